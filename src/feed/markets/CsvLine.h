// Cutting comma-separated text into lines and fields, in place. Pure functions, any thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// Takes the next line off the front of `text`; CR LF, LF and a lone CR all end a line. False at the end of
// the text.
bool TakeLine(std::string_view& text, std::string_view& line);

// The fields of a line, blanks around each trimmed. A field in double quotes may hold commas; the quotes are
// taken off.
void SplitCsvLine(std::string_view line, std::vector<std::string_view>& fields);

// The fields of a command: cut at every comma, nothing trimmed, never empty.
void SplitAtCommas(std::string_view line, std::vector<std::string_view>& fields);

std::string_view TrimBlanks(std::string_view text);
// Letters A to Z only, whatever the locale.
std::string UpperCase(std::string_view text);
// What a person gets to see of a text of unknown origin: at most 40 bytes, "..." behind a longer one, and "?"
// for whatever is no printable ASCII.
std::string ShownText(std::string_view text);

} // namespace zantroq::feed
