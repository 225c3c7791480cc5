// Makes a text fit for one line of a message.
#pragma once

#include <string>
#include <string_view>

namespace zantroq {

// Writes control characters as escapes: "\n", "\t", "\r", "\x1b", and "\u009b" for those that UTF-8 encodes in
// two bytes. An argument in a message can then neither break the line nor control the terminal. All else is
// unchanged. Any thread.
std::string EscapeControls(std::string_view text);

} // namespace zantroq
