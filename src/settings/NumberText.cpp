#include "settings/NumberText.h"

#include <array>
#include <charconv>
#include <fast_float/fast_float.h>

namespace zantroq {
namespace {

std::string_view WithoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t\n\v\f\r");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// from_chars takes no plus sign. A sign behind it would be a second one, which ends the number.
bool SkipPlus(std::string_view& text)
{
    if (text.empty() || text.front() != '+')
        return true;
    text.remove_prefix(1);
    return text.empty() || text.front() != '-';
}

} // namespace

std::int32_t IntFromText(std::string_view text)
{
    text = WithoutBlanks(text.substr(0, StoredNumberLength));
    std::int32_t value = 0;
    if (SkipPlus(text))
        std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

double DoubleFromText(std::string_view text)
{
    text = WithoutBlanks(text.substr(0, StoredNumberLength));
    double value = 0;
    if (SkipPlus(text))
        fast_float::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string TextFromInt(std::int32_t value)
{
    return std::to_string(value);
}

std::string TextFromDouble(double value)
{
    std::array<char, 400> buffer; // the greatest double has 309 digits before the point
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 6);
    return {buffer.data(), end.ptr};
}

bool ParseWholeInt(std::string_view text, std::int64_t& value)
{
    if (!SkipPlus(text) || text.empty())
        return false;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
    return end.ec == std::errc() && end.ptr == text.data() + text.size();
}

bool ParseWholeDouble(std::string_view text, double& value)
{
    if (!SkipPlus(text) || text.empty())
        return false;
    const auto end = fast_float::from_chars(text.data(), text.data() + text.size(), value);
    return end.ec == std::errc() && end.ptr == text.data() + text.size();
}

} // namespace zantroq
