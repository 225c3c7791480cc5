// Unicode case folding: two texts that differ only in case fold to the same bytes. Pure functions, any
// thread.
#pragma once

#include <string>
#include <string_view>

namespace zantroq::feed {

// True if all bytes are ASCII; such a text folds to its lower-case letters.
bool IsAscii(std::string_view text);

constexpr char FoldAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Full Unicode case folding with composed accents: "STRASSE" and "straße" fold to the same text. Bytes that
// are not valid UTF-8 fold to U+FFFD.
std::string FoldCase(std::string_view utf8);

} // namespace zantroq::feed
