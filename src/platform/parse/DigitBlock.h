// Reads up to eight characters as decimal digits in one 64-bit word, without a loop and so without a branch
// that depends on their number. Each byte of a block is a character minus '0'; the first character is the
// lowest byte. Little-endian machines only. Pure functions, any thread.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zantroq {

inline constexpr bool HasDigitBlocks = std::endian::native == std::endian::little;

// A block of the eight characters at `at`.
inline std::uint64_t LoadBlock(const char* at)
{
    std::uint64_t block;
    std::memcpy(&block, at, sizeof block);
    return block ^ 0x3030303030303030u;
}

// A block of the last `length` (1 to 8) characters before `end`, with leading zeros. Reads all eight bytes
// before `end`.
inline std::uint64_t LoadBlockBefore(const char* end, std::size_t length)
{
    const auto foreign = static_cast<unsigned>(64 - 8 * length);
    return LoadBlock(end - 8) >> foreign << foreign;
}

// Sets the highest bit of each byte that is not a digit; bytes after the first such byte may be marked
// wrongly. 0 means digits only.
inline std::uint64_t MarkNoDigits(std::uint64_t block)
{
    return (block | (block + 0x7676767676767676u)) & 0x8080808080808080u;
}

// Each even byte becomes the two-digit number (0 to 99) of that digit and the next. Odd bytes are
// meaningless. REQUIRES: digits only.
inline std::uint64_t JoinPairs(std::uint64_t digits)
{
    return digits * 10 + (digits >> 8);
}

// The value of the eight digits. REQUIRES: digits only.
inline std::uint32_t BlockValue(std::uint64_t digits)
{
    constexpr std::uint64_t Fourth = 0x000000FF000000FFu;
    const std::uint64_t pairs = JoinPairs(digits);
    return static_cast<std::uint32_t>(
        ((pairs & Fourth) * (100 + (1000000ull << 32)) + (pairs >> 16 & Fourth) * (1 + (10000ull << 32))) >>
        32);
}

} // namespace zantroq
