// Texts without their case, for all of Unicode: two texts that differ in case alone fold to the same bytes.
// Pure functions, any thread.
#pragma once

#include <string>
#include <string_view>

namespace zantroq::feed {

// Whether all bytes are ASCII; such a text folds to its small letters.
bool IsAscii(std::string_view text);

constexpr char FoldAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// The full case folding of Unicode, accents composed: "STRASSE" and "straße" fold to the same text. Bytes
// that are no UTF-8 fold to U+FFFD.
std::string FoldCase(std::string_view utf8);

} // namespace zantroq::feed
