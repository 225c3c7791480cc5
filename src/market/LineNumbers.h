// A field of a line as a number, by the reading rules of LeadingNumber.h. The field must be known to be
// there.
#pragma once

#include "platform/LeadingNumber.h"

namespace zantroq {

template<class Fields> double PriceField(const Fields& fields, int field)
{
    return TextToDouble(fields.At(field), fields.Before(field));
}

template<class Fields> std::uint32_t UnsignedField(const Fields& fields, int field)
{
    const std::string_view text = fields.At(field);
    std::uint64_t value = 0;
    if (PlainInteger(text, fields.Before(field), value) && value <= 0xFFFFFFFFu)
        return static_cast<std::uint32_t>(value);
    return TextToUnsigned(text);
}

template<class Fields> std::int64_t IntegerField(const Fields& fields, int field)
{
    const std::string_view text = fields.At(field);
    std::uint64_t value = 0;
    if (PlainInteger(text, fields.Before(field), value) && value <= 0x7FFFFFFFFFFFFFFFu)
        return static_cast<std::int64_t>(value);
    return TextToInt64(text);
}

} // namespace zantroq
