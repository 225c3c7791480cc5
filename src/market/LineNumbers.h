// Reads a field of a line as a number with the rules of LeadingNumber.h. REQUIRES: the field exists. Pure
// functions, any thread.
#pragma once

#include "platform/parse/LeadingNumber.h"

#include <cstdint>
#include <limits>
#include <string_view>

namespace zantroq {

template<class Fields> double PriceField(const Fields& fields, int field)
{
    return TextToDouble(fields.At(field), fields.Before(field));
}

// Fast path for a field that has only digits and fits the type; otherwise the full rules.
template<auto ByTheRules, class Fields> auto WholeField(const Fields& fields, int field)
{
    using Number = decltype(ByTheRules(std::string_view()));
    const std::string_view text = fields.At(field);
    std::uint64_t value = 0;
    if (PlainInteger(text, fields.Before(field), value) &&
        value <= static_cast<std::uint64_t>(std::numeric_limits<Number>::max()))
        return static_cast<Number>(value);
    return ByTheRules(text);
}

template<class Fields> std::uint32_t UnsignedField(const Fields& fields, int field)
{
    return WholeField<TextToUnsigned>(fields, field);
}

template<class Fields> std::int64_t IntegerField(const Fields& fields, int field)
{
    return WholeField<TextToInt64>(fields, field);
}

} // namespace zantroq
