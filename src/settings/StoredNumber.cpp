#include "settings/StoredNumber.h"

#include "platform/parse/LeadingNumber.h"

#include <array>
#include <charconv>
#include <fast_float/fast_float.h>

namespace zantroq {
namespace {

// from_chars does not accept a plus sign. A sign after it would be a second sign, which ends the number.
bool SkipPlus(std::string_view& text)
{
    if (text.empty() || text.front() != '+')
        return true;
    text.remove_prefix(1);
    return text.empty() || text.front() != '-';
}

} // namespace

std::int32_t ParseStoredInt(std::string_view text)
{
    return TextToInt(text.substr(0, StoredNumberLength));
}

double ParseStoredDouble(std::string_view text)
{
    return TextToDouble(text.substr(0, StoredNumberLength));
}

std::string TextFromInt(std::int32_t value)
{
    return std::to_string(value);
}

std::string TextFromDouble(double value)
{
    std::array<char, 400> buffer; // the largest double has 309 digits before the point
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
