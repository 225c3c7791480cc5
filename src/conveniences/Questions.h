// How the window's questions are put to a user. Pure functions, any thread.
#pragma once

#include <string>

namespace zantroq {

// Whether a yes to this text removes something for good.
bool AsksToDelete(const std::string& text);

// The caption, or where it is empty a title for a box of this text.
std::string BoxTitle(const std::string& text, const std::string& caption);

} // namespace zantroq
