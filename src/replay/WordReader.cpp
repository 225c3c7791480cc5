#include "replay/WordReader.h"

#include <charconv>

namespace zantroq {

namespace {

// In the place of a color value (after dialog set ID), "#" does not begin a comment, because the value would
// be missing.
bool IsColorHere(const Words& words, std::string_view rest)
{
    constexpr std::size_t Length = 7;
    return words.size() == 3 && words[0] == "dialog" && words[1] == "set" && rest.size() >= Length &&
           rest.substr(1, Length - 1).find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos &&
           (rest.size() == Length || rest[Length] == ' ' || rest[Length] == '\t');
}

} // namespace

Words SplitWords(std::string_view line)
{
    Words words;
    std::string word;
    bool inWord = false, quoted = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        if (c == '\0')
            throw sScriptError{"a NUL byte stands in it; a script is plain text, take the byte out"};
        if (quoted) {
            if (c == '"')
                quoted = false;
            else
                word += c;
        } else if (c == '"') {
            quoted = inWord = true;
        } else if (c == '#' && (inWord || !IsColorHere(words, line.substr(at)))) {
            break;
        } else if (c == ' ' || c == '\t') {
            if (inWord)
                words.push_back(std::move(word));
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (quoted)
        throw sScriptError{"a double quote is not closed; add the closing quote"};
    if (inWord)
        words.push_back(std::move(word));
    return words;
}

std::string Quoted(const std::string& word)
{
    return "\"" + word + "\"";
}

bool CWordReader::TakeIf(const char* word)
{
    const bool taken = More() && m_words[m_next] == word;
    m_next += taken ? 1 : 0;
    return taken;
}

const std::string& CWordReader::Take(const char* what)
{
    if (!More())
        throw sScriptError{Step() + ": " + what + " is missing; write " + m_usage};
    return m_words[m_next++];
}

int CWordReader::TakeInt(const char* what, int low, int high)
{
    const std::string& word = Take(what);
    const bool hex = word.starts_with("0x") || word.starts_with("0X");
    const char* const begin = word.data() + (hex ? 2 : 0);
    const char* const end = word.data() + word.size();
    int value = 0;
    const auto [stop, error] = std::from_chars(begin, end, value, hex ? 16 : 10);
    const bool tooLarge = error == std::errc::result_out_of_range;
    if ((error != std::errc() && !tooLarge) || stop != end)
        throw sScriptError{Step() + ": " + what + " " + Quoted(word) +
                           " is not a whole number; use one within " + std::to_string(low) + " and " +
                           std::to_string(high)};
    if (tooLarge || value < low || value > high)
        throw sScriptError{Step() + ": " + what + " " + word + " is not within " + std::to_string(low) +
                           " and " + std::to_string(high)};
    return value;
}

std::size_t CWordReader::TakeChoice(const char* what, const char* const* choices, std::size_t count)
{
    const std::string& word = Take(what);
    std::string offered;
    for (std::size_t k = 0; k < count; ++k) {
        if (word == choices[k])
            return k;
        offered += (k == 0 ? "" : ", ") + std::string(choices[k]);
    }
    throw sScriptError{Step() + ": " + what + " " + Quoted(word) + " is not offered; use one of " + offered};
}

void CWordReader::End() const
{
    if (More())
        throw sScriptError{Step() + ": " + Quoted(m_words[m_next]) + " is one word too many; write " +
                           m_usage};
}

} // namespace zantroq
