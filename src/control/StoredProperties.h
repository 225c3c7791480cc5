// The bytes in which a container keeps a control: the version number, then the stock properties. The symbol
// and ResizeParentWindow are not in them; a host sets these every time.
//
//     bytes  0 to 3   version, 0x10000
//     bytes  4 to 5   Appearance
//     bytes  6 to 7   BorderStyle
//     bytes  8 to 9   Enabled, 0 or 1
//
// All numbers stand with the low byte first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zantroq {

struct sStoredProperties
{
    static constexpr std::uint32_t Version = 0x10000;
    static constexpr std::size_t Size = 10;

    int Appearance = 0;
    int BorderStyle = 0;
    bool Enabled = true;
    bool operator==(const sStoredProperties&) const = default;
};

std::vector<std::uint8_t> WriteProperties(const sStoredProperties& properties);

// False, with nothing changed, for bytes of another length or version, and for values out of range.
bool ReadProperties(std::span<const std::uint8_t> bytes, sStoredProperties& properties);

} // namespace zantroq
