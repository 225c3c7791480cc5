// The stored form of a control: the version number, then the stock properties, as little-endian numbers. The
// symbol and ResizeParentWindow are not stored; a host sets them every time. Pure functions, any thread.
//
//     bytes  0 to 3   version, 0x10000
//     bytes  4 to 5   Appearance
//     bytes  6 to 7   BorderStyle
//     bytes  8 to 9   Enabled, 0 or 1
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

// Returns false and changes nothing if the length or the version is wrong or a value is out of range.
bool ReadProperties(std::span<const std::uint8_t> bytes, sStoredProperties& properties);

} // namespace zantroq
