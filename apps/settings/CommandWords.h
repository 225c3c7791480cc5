// Prepares the words of the command line so that the command line library does not change names and
// values. The library takes ++ as the end of a subcommand, and after --key= without a value it takes the
// next word. Pure functions, any thread.
#pragma once

#include <string>
#include <vector>

namespace zantroq {

// The words after the program's name, in order.
std::vector<std::string> ShieldedWords(int argc, const char* const* argv);

// A name or a value as the user typed it.
std::string Unshielded(const std::string& word);

// A message of the library in a form for the user.
std::string WithoutShields(std::string message);

} // namespace zantroq
