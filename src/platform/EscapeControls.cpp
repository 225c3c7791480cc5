#include "platform/EscapeControls.h"

namespace zantroq {
namespace {

std::string HexDigits(unsigned char byte)
{
    constexpr std::string_view Digits = "0123456789abcdef";
    return {Digits[byte >> 4], Digits[byte & 15]};
}

std::string Escape(unsigned char control)
{
    switch (control) {
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    case '\r':
        return "\\r";
    default:
        return "\\x" + HexDigits(control);
    }
}

constexpr unsigned char Delete = 0x7f, FirstOfTwo = 0xc2;

bool IsControl(unsigned char byte)
{
    return byte < ' ' || byte == Delete;
}

} // namespace

std::string EscapeControls(std::string_view text)
{
    std::string escaped;
    escaped.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : '\0';
        if (IsControl(byte))
            escaped += Escape(byte);
        else if (byte == FirstOfTwo && next >= 0x80 && next < 0xa0) {
            escaped += "\\u00" + HexDigits(next);
            ++i;
        } else
            escaped += text[i];
    }
    return escaped;
}

} // namespace zantroq
