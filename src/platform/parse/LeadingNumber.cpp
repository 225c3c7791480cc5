#include "platform/parse/LeadingNumber.h"

#include <cstdlib>
#include <fast_float/fast_float.h>
#include <limits>
#include <locale.h>
#include <string>

namespace zantroq {

namespace {

bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// Removes leading blanks and one sign; returns true for a minus sign.
bool TakeSign(std::string_view& text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    if (text.empty() || (text.front() != '-' && text.front() != '+'))
        return false;
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

// The value of the leading digits, at most `limit`.
std::uint64_t TakeDigits(std::string_view text, std::uint64_t limit)
{
    std::uint64_t value = 0;
    for (const char c : text) {
        const auto digit = static_cast<unsigned char>(c - '0');
        if (digit > 9)
            break;
        if (value > (limit - digit) / 10)
            return limit;
        value = value * 10 + digit;
    }
    return value;
}

// Leaves hexadecimal numbers, infinity and not-a-number to the C library: no feed sends them, so speed does
// not matter.
double RareTextToDouble(std::string_view text)
{
    static const locale_t plain = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return ::strtod_l(std::string(text).c_str(), nullptr, plain);
}

bool IsRareForm(std::string_view text)
{
    if (text.empty())
        return false;
    const char first = text[0];
    if (first == 'i' || first == 'I' || first == 'n' || first == 'N')
        return true;
    return first == '0' && text.size() > 1 && (text[1] == 'x' || text[1] == 'X');
}

} // namespace

double detail::LongTextToDouble(std::string_view text)
{
    std::string_view digits = text;
    const bool negative = TakeSign(digits);
    if (IsRareForm(digits))
        return RareTextToDouble(text);
    // In C a second sign ends the number before its first digit; from_chars would accept it.
    if (digits.empty() || digits.front() == '-' || digits.front() == '+')
        return 0;
    double value = 0;
    const auto result = fast_float::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ptr == digits.data())
        return 0;
    return negative ? -value : value;
}

std::int32_t TextToInt(std::string_view text)
{
    constexpr std::uint64_t Greatest = std::numeric_limits<std::int32_t>::max();
    const bool negative = TakeSign(text);
    const std::uint64_t value = TakeDigits(text, negative ? Greatest + 1 : Greatest);
    return static_cast<std::int32_t>(negative ? -static_cast<std::int64_t>(value)
                                              : static_cast<std::int64_t>(value));
}

std::int64_t TextToInt64(std::string_view text)
{
    constexpr std::uint64_t Greatest = std::numeric_limits<std::int64_t>::max();
    const bool negative = TakeSign(text);
    const std::uint64_t value = TakeDigits(text, negative ? Greatest + 1 : Greatest);
    return static_cast<std::int64_t>(negative ? 0 - value : value);
}

std::uint32_t TextToUnsigned(std::string_view text)
{
    constexpr std::uint64_t Greatest = std::numeric_limits<std::uint32_t>::max();
    constexpr std::uint64_t TooLarge = Greatest + 1;
    const bool negative = TakeSign(text);
    const std::uint64_t value = TakeDigits(text, TooLarge);
    if (value == TooLarge)
        return static_cast<std::uint32_t>(Greatest);
    return static_cast<std::uint32_t>(negative ? 0 - value : value);
}

} // namespace zantroq
