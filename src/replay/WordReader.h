// The words of a line of a replay script, and a reader for them. Errors are thrown as sScriptError. Pure, any
// thread.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// Thrown for an error in a line. The parser catches it and adds the line number.
struct sScriptError
{
    std::string Sentence;
};

using Words = std::vector<std::string>;

// Splits at blanks and tabs outside double quotes; "#" outside quotes ends the line.
Words SplitWords(std::string_view line);

std::string Quoted(const std::string& word);

// Reads the words after the first, which is the name of the step and must exist. `what` names a word in error
// messages, such as "the control".
class CWordReader
{
public:
    CWordReader(const Words& words, const char* usage) : m_words(words), m_usage(usage) {}
    const std::string& Step() const { return m_words.front(); }
    bool More() const { return m_next < m_words.size(); }
    bool TakeIf(const char* word); // if `word` is next, skips it and returns true

    const std::string& Take(const char* what);
    int TakeInt(const char* what, int low, int high); // decimal, or hexadecimal after "0x"

    // The index of the next word in a list of choices.
    template<std::size_t Count>
    std::size_t TakeChoice(const char* what, const std::array<const char*, Count>& choices)
    {
        return TakeChoice(what, choices.data(), Count);
    }

    void End() const; // throws if a word is left over

private:
    std::size_t TakeChoice(const char* what, const char* const* choices, std::size_t count);

    const Words& m_words;
    const char* m_usage;
    std::size_t m_next = 1;
};

} // namespace zantroq
