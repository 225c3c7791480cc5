// Checks the text of a pane file before the JSON parser allocates anything. Any thread.
#pragma once

#include <string_view>

namespace zantroq {

inline constexpr int DeepestPaneValue = 32; // the members of the outermost object are at depth 1

// Throws std::runtime_error if values are nested deeper than in any pane file, and for a NUL byte outside a
// string, where a parser would assume the end of the file. Reads each character once.
void CheckPaneText(std::string_view text);
[[noreturn]] void RefuseDeepValue();

} // namespace zantroq
