// Reads the number at the start of a text like the C library's atof, strtoul and atoi in the "C" locale:
// leading blanks are skipped, the first character that does not belong ends the number, and a text without a
// number gives 0. Independent of the process's locale; no allocation for the usual forms. Any thread.
#pragma once

#include "platform/parse/DigitBlock.h"

#include <cstdint>
#include <string_view>

namespace zantroq {

namespace detail {
double LongTextToDouble(std::string_view text);
inline constexpr double PowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
} // namespace detail

// Like atof: the nearest double; an infinity on overflow. As in C, hexadecimal numbers, "inf" and "nan" are
// accepted.
inline double TextToDouble(std::string_view text)
{
    // Fast path of prices: up to 15 digits are an integer below 2^53, and powers of ten up to 1e22 are exact,
    // so one division gives the correctly rounded result.
    if (text.size() > 16)
        return detail::LongTextToDouble(text);
    const char* at = text.data();
    const char* const end = at + text.size();
    std::uint64_t mantissa = 0;
    while (at != end && static_cast<unsigned char>(*at - '0') < 10)
        mantissa = mantissa * 10 + static_cast<unsigned char>(*at++ - '0');
    if (at == end)
        return text.size() == 16 ? detail::LongTextToDouble(text) : static_cast<double>(mantissa);
    if (*at != '.')
        return detail::LongTextToDouble(text);
    const char* const point = at++;
    while (at != end && static_cast<unsigned char>(*at - '0') < 10)
        mantissa = mantissa * 10 + static_cast<unsigned char>(*at++ - '0');
    if (at != end)
        return detail::LongTextToDouble(text);
    return static_cast<double>(mantissa) / detail::PowersOfTen[end - point - 1];
}

// The same, for a text with `before` readable bytes before it. Faster if these and the text are at least
// eight bytes.
inline double TextToDouble(std::string_view text, std::size_t before)
{
    const std::size_t length = text.size();
    if (!HasDigitBlocks || length - 1 >= 8 || before + length < 8)
        return TextToDouble(text);
    const std::uint64_t block = LoadBlockBefore(text.data() + length, length);
    const std::uint64_t marks = MarkNoDigits(block);
    if (marks == 0)
        return BlockValue(block);
    const int point = std::countr_zero(marks) - 7; // bit position of the first byte that is not a digit
    if ((marks & (marks - 1)) != 0 || (block >> point & 0xFF) != ('.' ^ '0'))
        return TextToDouble(text);
    const std::uint64_t whole = block & ((1ull << point) - 1), decimals = block & ~0ull << 8 << point;
    return BlockValue(whole << 8 | decimals) / detail::PowersOfTen[7 - point / 8];
}

// Reads a decimal integer of 1 to 19 digits without sign or blank. Returns false for any other text.
inline bool PlainInteger(std::string_view text, std::uint64_t& value)
{
    if (text.empty() || text.size() > 19)
        return false;
    value = 0;
    for (const char c : text) {
        const auto digit = static_cast<unsigned char>(c - '0');
        if (digit > 9)
            return false;
        value = value * 10 + digit;
    }
    return true;
}

// The same, for a text with `before` readable bytes before it.
inline bool PlainInteger(std::string_view text, std::size_t before, std::uint64_t& value)
{
    const std::size_t length = text.size();
    if (!HasDigitBlocks || length - 1 >= 8 || before + length < 8)
        return PlainInteger(text, value);
    const std::uint64_t block = LoadBlockBefore(text.data() + length, length);
    value = BlockValue(block);
    return MarkNoDigits(block) == 0;
}

// Like atoi, clamped to the range of 32 bits.
std::int32_t TextToInt(std::string_view text);
// The same for 64 bits.
std::int64_t TextToInt64(std::string_view text);
// Like strtoul with base 10 and a 32-bit result: 4294967295 if the number is too large; a minus sign negates
// modulo 2^32.
std::uint32_t TextToUnsigned(std::string_view text);

} // namespace zantroq
