// A symbol as a user or a host writes it. Pure functions, any thread.
#pragma once

#include <string>
#include <string_view>

namespace zantroq {

// The text without the blanks, tabs and line ends before and after it.
std::string TrimmedSymbol(std::string_view text);

} // namespace zantroq
