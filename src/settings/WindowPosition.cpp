#include "settings/WindowPosition.h"

namespace zantroq {
namespace {

using Bytes = std::vector<std::uint8_t>;

void Append(Bytes& bytes, std::int32_t number)
{
    const auto bits = static_cast<std::uint32_t>(number);
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<std::uint8_t>(bits >> shift));
}

std::int32_t NumberAt(const Bytes& bytes, std::size_t place)
{
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 4; ++i)
        bits |= static_cast<std::uint32_t>(bytes[place * 4 + i]) << (8 * i);
    return static_cast<std::int32_t>(bits);
}

} // namespace

std::string WindowRectName(const std::string& title)
{
    return "RectPosition." + title;
}

std::string WindowMaximizedName(const std::string& title)
{
    return WindowRectName(title) + ".Maximized";
}

bool LoadWindowPosition(ISettingsKey& key, const std::string& title, sWindowPosition& position)
{
    position = {};
    const CSettingRead rect = key.Read(WindowRectName(title));
    if (const auto* bytes = rect.As<Bytes>(); bytes && bytes->size() == 16)
        position.Rect = {NumberAt(*bytes, 0), NumberAt(*bytes, 1), NumberAt(*bytes, 2), NumberAt(*bytes, 3)};
    const CSettingRead flag = key.Read(WindowMaximizedName(title));
    if (const auto* number = flag.As<std::uint32_t>())
        position.Maximized = *number == 1;
    return rect.Result() != ReadResult::Unreadable && flag.Result() != ReadResult::Unreadable;
}

void SaveWindowPosition(ISettingsKey& key, const std::string& title, const sWindowPosition& position)
{
    Bytes bytes;
    for (const std::int32_t edge :
         {position.Rect.Left, position.Rect.Top, position.Rect.Right, position.Rect.Bottom})
        Append(bytes, edge);
    key.Write(WindowRectName(title), bytes);
    key.Write(WindowMaximizedName(title), position.Maximized ? 1u : 0u);
}

sWindowPosition PositionOf(const ITopLevelWindow& window)
{
    return {window.NormalRect(), window.Maximized()};
}

} // namespace zantroq
