// Cuts a line into tokens the way strtok does: delimiters that follow one another count as one, so that an
// empty field moves the tokens after it one place forward. Pure, no allocation.
#pragma once

#include <string_view>

namespace zantroq {

class CRowTokens
{
public:
    // Each character of `delimiters` ends a token. The line must outlive the tokens.
    CRowTokens(std::string_view line, std::string_view delimiters) : m_rest(line), m_delimiters(delimiters) {}

    // False, and an empty token, when there is none left. A token is never empty.
    bool Next(std::string_view& token)
    {
        const std::size_t begin = m_rest.find_first_not_of(m_delimiters);
        if (begin == std::string_view::npos) {
            token = m_rest = {};
            return false;
        }
        m_rest.remove_prefix(begin);
        token = m_rest.substr(0, m_rest.find_first_of(m_delimiters));
        m_rest.remove_prefix(token.size());
        return true;
    }

    // The next token, or the empty text.
    std::string_view Take()
    {
        std::string_view token;
        Next(token);
        return token;
    }

private:
    std::string_view m_rest, m_delimiters;
};

} // namespace zantroq
