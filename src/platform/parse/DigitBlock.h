// Up to eight characters read as decimal digits in one 64-bit word, without a loop over them and so without a
// branch that depends on how many there are. In a block each byte holds a character with '0' taken off, the
// first character in the lowest byte. Little-endian machines only; others go without.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zantroq {

inline constexpr bool HasDigitBlocks = std::endian::native == std::endian::little;

// The eight characters from `at`.
inline std::uint64_t LoadBlock(const char* at)
{
    std::uint64_t block;
    std::memcpy(&block, at, sizeof block);
    return block ^ 0x3030303030303030u;
}

// The last `length` characters before `end`, 1 to 8, with zeros in front of them. All eight bytes before
// `end` are read.
inline std::uint64_t LoadBlockBefore(const char* end, std::size_t length)
{
    const auto foreign = static_cast<unsigned>(64 - 8 * length);
    return LoadBlock(end - 8) >> foreign << foreign;
}

// The highest bit of every byte that is not a digit; behind the first such byte a digit may be marked as
// well. 0: digits only.
inline std::uint64_t MarkNoDigits(std::uint64_t block)
{
    return (block | (block + 0x7676767676767676u)) & 0x8080808080808080u;
}

// Each even byte: that digit and the next one as a number, 0 to 99. REQUIRES: digits only. Odd bytes hold
// nothing of use.
inline std::uint64_t JoinPairs(std::uint64_t digits)
{
    return digits * 10 + (digits >> 8);
}

// The number that eight digits make. REQUIRES: digits only.
inline std::uint32_t BlockValue(std::uint64_t digits)
{
    constexpr std::uint64_t Fourth = 0x000000FF000000FFu;
    const std::uint64_t pairs = JoinPairs(digits);
    return static_cast<std::uint32_t>(
        ((pairs & Fourth) * (100 + (1000000ull << 32)) + (pairs >> 16 & Fourth) * (1 + (10000ull << 32))) >>
        32);
}

} // namespace zantroq
