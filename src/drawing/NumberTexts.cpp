#include "drawing/NumberTexts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace zantroq {

namespace {

std::string Printed(double value, std::chars_format format, int precision)
{
    if (std::isnan(value))
        return "nan";
    std::array<char, 700> buffer; // 309 digits, a point and 340 decimals
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision).ptr;
    return std::string(buffer.data(), end);
}

std::string WithCommas(const std::string& digits)
{
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            text += ',';
        text += digits[i];
    }
    return text;
}

} // namespace

std::string FixedText(double value, int decimals)
{
    return Printed(value, std::chars_format::fixed, std::clamp(decimals, 0, 340));
}

std::string GeneralText(double value, int digits)
{
    return Printed(value, std::chars_format::general, std::clamp(digits, 1, 340));
}

std::string CutTrailingZeros(std::string text)
{
    if (text.find('.') == std::string::npos || text.find('e') != std::string::npos)
        return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

std::string ThousandsText(std::int64_t value)
{
    return value < 0 ? std::string() : WithCommas(std::to_string(value));
}

std::string RoundedThousandsText(double value)
{
    if (std::isnan(value))
        return "nan";
    // Sums of volumes are far smaller; other values are limited to what can be rounded without overflow.
    constexpr double limit = 9.0e18;
    const auto whole = static_cast<std::int64_t>(std::clamp(value, -limit, limit));
    auto magnitude = static_cast<std::uint64_t>(whole < 0 ? -whole : whole);
    std::uint64_t unit = 1;
    while (magnitude / unit >= 1000)
        unit *= 10;
    magnitude = (magnitude + unit / 2) / unit * unit;
    return (whole < 0 ? "-" : "") + WithCommas(std::to_string(magnitude));
}

std::string ShortLargeNumberText(double value)
{
    if (!(value > 0) || std::isinf(value))
        return {};
    const int exponent = static_cast<int>(std::log10(value));
    if (exponent < 0 || exponent / 3 > 4)
        return {};
    static constexpr std::array<double, 5> divisors{1.0, 1000.0, 1000000.0, 1000000000.0, 1000000000000.0};
    static constexpr std::array<const char*, 5> suffixes{"", "K", "M", "B", "T"};
    const int thousands = exponent / 3;
    const auto row = static_cast<std::size_t>(thousands);
    return FixedText(value / divisors[row], thousands * 3 - exponent + 2) + suffixes[row];
}

} // namespace zantroq
