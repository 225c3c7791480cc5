// The words of one line of a replay script, and reading them one after the other. Errors are sScriptError.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// Thrown: what is wrong with a line. The parser catches it and adds the line's number.
struct sScriptError
{
    std::string Sentence;
};

using Words = std::vector<std::string>;

// Splits at blanks and tabs outside of double quotes; "#" outside of quotes ends the line.
Words SplitWords(std::string_view line);

std::string Quoted(const std::string& word);

// Takes the words after the first, the name of the step, which the line must have. `what` names the word in
// messages, such as "the control".
class CWordReader
{
public:
    CWordReader(const Words& words, const char* usage) : m_words(words), m_usage(usage) {}
    const std::string& Step() const { return m_words.front(); }
    bool More() const { return m_next < m_words.size(); }
    bool TakeIf(const char* word); // true and past it if it comes next

    const std::string& Take(const char* what);
    int TakeInt(const char* what, int low, int high); // decimal, or hexadecimal after "0x"

    // The place of the next word in a list of choices.
    template<std::size_t Count>
    std::size_t TakeChoice(const char* what, const std::array<const char*, Count>& choices)
    {
        return TakeChoice(what, choices.data(), Count);
    }

    void End() const; // an error where a word is left over

private:
    std::size_t TakeChoice(const char* what, const char* const* choices, std::size_t count);

    const Words& m_words;
    const char* m_usage;
    std::size_t m_next = 1;
};

} // namespace zantroq
