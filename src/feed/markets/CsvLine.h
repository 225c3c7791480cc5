// Cuts comma-separated text into lines and fields without copying. Pure functions, any thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// Removes the first line from `text`. CR LF, LF and a lone CR all end a line. Returns false at the end of the
// text.
bool TakeLine(std::string_view& text, std::string_view& line);

// Cuts a line into fields and trims the blanks around each. A field in double quotes may contain commas; the
// quotes are removed.
void SplitCsvLine(std::string_view line, std::vector<std::string_view>& fields);

// Cuts a command at every comma and trims nothing. Yields at least one field.
void SplitAtCommas(std::string_view line, std::vector<std::string_view>& fields);

std::string_view TrimBlanks(std::string_view text);
// Converts a to z only, in every locale.
std::string UpperCase(std::string_view text);
// Makes a text of unknown origin safe to show: at most 40 bytes, then "..." if it was longer; "?" replaces
// every byte that is not printable ASCII.
std::string ShownText(std::string_view text);

} // namespace zantroq::feed
