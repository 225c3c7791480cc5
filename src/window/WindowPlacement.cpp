#include "window/WindowPlacement.h"

#include <cstdint>
#include <vector>

namespace zantroq {

namespace {

constexpr int LeastExtent = 200;

std::string RectName(const std::string& title)
{
    return "RectPosition." + title;
}

std::string MaximizedName(const std::string& title)
{
    return RectName(title) + ".Maximized";
}

void AppendInt(std::vector<std::uint8_t>& bytes, std::int32_t value)
{
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<std::uint8_t>(static_cast<std::uint32_t>(value) >> shift));
}

std::int32_t IntAt(const std::vector<std::uint8_t>& bytes, std::size_t place)
{
    std::uint32_t value = 0;
    for (std::size_t k = 0; k < 4; ++k)
        value |= static_cast<std::uint32_t>(bytes[place + k]) << (8 * k);
    return static_cast<std::int32_t>(value);
}

// One direction of the fit, in 64 bits since stored numbers may be anything.
void FitExtent(std::int32_t& low, std::int32_t& high, std::int32_t screenLow, std::int32_t screenHigh)
{
    std::int64_t from = low, to = high;
    if (from < screenLow) {
        to += screenLow - from;
        from = screenLow;
    }
    if (to > screenHigh) {
        from -= to - screenHigh;
        to = screenHigh;
    }
    if (to - from <= LeastExtent) {
        from = (from + to) / 2 - LeastExtent / 2;
        to = from + LeastExtent;
    }
    low = static_cast<std::int32_t>(from);
    high = static_cast<std::int32_t>(to);
}

} // namespace

sWindowRect FitToScreen(sWindowRect rect, const sWindowRect& screen)
{
    FitExtent(rect.Left, rect.Right, screen.Left, screen.Right);
    FitExtent(rect.Top, rect.Bottom, screen.Top, screen.Bottom);
    return rect;
}

void CWindowPlacement::SetResizeParentWindow(bool resize)
{
    m_resizeParent = resize;
    if (!resize)
        return;
    LoadWindowPosition();
    Apply();
}

void CWindowPlacement::Apply()
{
    m_top.MoveTo(FitToScreen(m_position.Rect, m_top.VirtualScreen()));
    if (m_position.Maximized)
        m_top.Maximize();
}

void CWindowPlacement::LoadWindowPosition()
{
    m_position = {};
    const std::string title = m_top.Title();
    if (const auto value = m_key.Read(RectName(title))) {
        const auto* bytes = std::get_if<std::vector<std::uint8_t>>(&*value);
        if (bytes != nullptr && bytes->size() == 16)
            m_position.Rect = {IntAt(*bytes, 0), IntAt(*bytes, 4), IntAt(*bytes, 8), IntAt(*bytes, 12)};
    }
    if (const auto value = m_key.Read(MaximizedName(title))) {
        const auto* flag = std::get_if<std::uint32_t>(&*value);
        m_position.Maximized = flag != nullptr && *flag != 0;
    }
}

void CWindowPlacement::SaveWindowPosition()
{
    const std::string title = m_top.Title();
    m_position = {m_top.NormalRect(), m_top.Maximized()};
    std::vector<std::uint8_t> bytes;
    for (const std::int32_t value :
         {m_position.Rect.Left, m_position.Rect.Top, m_position.Rect.Right, m_position.Rect.Bottom})
        AppendInt(bytes, value);
    m_key.Write(RectName(title), bytes);
    m_key.Write(MaximizedName(title), std::uint32_t{m_position.Maximized ? 1u : 0u});
}

void CWindowPlacement::SaveIfAsked()
{
    if (m_resizeParent)
        SaveWindowPosition();
}

} // namespace zantroq
