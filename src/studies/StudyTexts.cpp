#include "studies/StudyTexts.h"

#include <array>
#include <charconv>
#include <cmath>

namespace zantroq {

std::string FixedText(double value, int decimals)
{
    if (std::isnan(value))
        return "nan";
    std::array<char, 1536> text; // the largest double has 309 digits, the smallest 1074 decimals
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    return {text.data(), end.ptr};
}

std::string GroupedText(std::int64_t value)
{
    if (value < 0)
        return {};
    std::string text = std::to_string(value);
    for (std::size_t place = text.size(); place > 3;) {
        place -= 3;
        text.insert(place, 1, ',');
    }
    return text;
}

} // namespace zantroq
