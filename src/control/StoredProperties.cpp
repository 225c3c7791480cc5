#include "control/StoredProperties.h"

#include "control/ControlFrame.h"

namespace zantroq {
namespace {

void Append(std::vector<std::uint8_t>& bytes, std::uint32_t number, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

std::uint32_t NumberAt(std::span<const std::uint8_t> bytes, std::size_t place, std::size_t count)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < count; ++i)
        number |= static_cast<std::uint32_t>(bytes[place + i]) << (8 * i);
    return number;
}

} // namespace

std::vector<std::uint8_t> WriteProperties(const sStoredProperties& properties)
{
    std::vector<std::uint8_t> bytes;
    bytes.reserve(sStoredProperties::Size);
    Append(bytes, sStoredProperties::Version, 4);
    Append(bytes, static_cast<std::uint32_t>(properties.Appearance), 2);
    Append(bytes, static_cast<std::uint32_t>(properties.BorderStyle), 2);
    Append(bytes, properties.Enabled ? 1 : 0, 2);
    return bytes;
}

bool ReadProperties(std::span<const std::uint8_t> bytes, sStoredProperties& properties)
{
    if (bytes.size() != sStoredProperties::Size || NumberAt(bytes, 0, 4) != sStoredProperties::Version)
        return false;
    const int appearance = static_cast<int>(NumberAt(bytes, 4, 2));
    const int borderStyle = static_cast<int>(NumberAt(bytes, 6, 2));
    const std::uint32_t enabled = NumberAt(bytes, 8, 2);
    if (!sControlFrame::IsAppearance(appearance) || !sControlFrame::IsBorderStyle(borderStyle) || enabled > 1)
        return false;
    properties = {appearance, borderStyle, enabled == 1};
    return true;
}

} // namespace zantroq
