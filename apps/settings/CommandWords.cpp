#include "CommandWords.h"

#include <string_view>

namespace zantroq {
namespace {

constexpr std::string_view EndOfSubcommand = "++";
constexpr char Shield = '\1';

// Any number of shields followed by ++, so that a word typed with a shield is restored too.
bool IsShieldable(std::string_view word)
{
    const auto begin = word.find_first_not_of(Shield);
    return begin != std::string_view::npos && word.substr(begin) == EndOfSubcommand;
}

} // namespace

std::vector<std::string> ShieldedWords(int argc, const char* const* argv)
{
    std::vector<std::string> words;
    bool isOption = true; // until -- only
    for (int i = 1; i < argc; ++i) {
        std::string word = argv[i];
        isOption = isOption && word != "--";
        if (IsShieldable(word))
            word.insert(word.begin(), Shield);
        if (isOption && (word == "--key=" || word == "--type=")) {
            word.pop_back();
            words.push_back(std::move(word));
            word.clear();
        }
        words.push_back(std::move(word));
    }
    return words;
}

std::string Unshielded(const std::string& word)
{
    return word.starts_with(Shield) && IsShieldable(word) ? word.substr(1) : word;
}

std::string WithoutShields(std::string message)
{
    std::erase(message, Shield);
    return message;
}

} // namespace zantroq
