// What is looked at in the text of a pane file before a JSON parser builds anything of it. Any thread.
#pragma once

#include <string_view>

namespace zantroq {

inline constexpr int DeepestPaneValue = 32; // the members of the whole are at depth 1

// Throws std::runtime_error where values lie deeper in one another than in any pane file, and for a NUL byte
// outside of a text, where a parser would take the file to end. One look at each letter.
void CheckPaneText(std::string_view text);
[[noreturn]] void RefuseDeepValue();

} // namespace zantroq
