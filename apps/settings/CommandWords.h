// The words of the command line, made so that the command line library takes names and values as they are. It
// reads ++ as the end of a subcommand, and where nothing stands behind --key= it takes the next word.
#pragma once

#include <string>
#include <vector>

namespace zantroq {

// The words behind the program's name, in their order.
std::vector<std::string> ShieldedWords(int argc, const char* const* argv);

// A name or value as it was typed.
std::string Unshielded(const std::string& word);

// A message of the library as the user may read it.
std::string WithoutShields(std::string message);

} // namespace zantroq
