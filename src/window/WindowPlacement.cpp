#include "window/WindowPlacement.h"

#include <algorithm>
#include <cstdint>

namespace zantroq {

namespace {

constexpr int LeastExtent = 200;
constexpr int GreatestExtent =
    32'767; // limit of window systems in pixels; a stored extent may exceed 32 bits

// Fits one direction, in 64 bits because stored numbers may be anything.
void FitExtent(std::int32_t& low, std::int32_t& high, std::int32_t screenLow, std::int32_t screenHigh)
{
    std::int64_t from = low, to = high;
    to = std::min(to, from + GreatestExtent);
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
    m_default = m_isUnread ? std::optional(PositionOf(m_top)) : std::nullopt;
}

void CWindowPlacement::LoadWindowPosition()
{
    m_isUnread = !zantroq::LoadWindowPosition(m_key, m_top.Title(), m_position);
}

void CWindowPlacement::SaveIfAsked()
{
    const sWindowPosition position = PositionOf(m_top);
    if (m_resizeParent && position != m_default)
        SaveWindowPosition(m_key, m_top.Title(), position);
}

} // namespace zantroq
