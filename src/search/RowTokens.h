// Cuts a line into tokens like strtok: consecutive delimiters count as one, so the tokens after an empty
// field move one place forward. No allocation; one thread at a time.
#pragma once

#include <string_view>

namespace zantroq {

class CRowTokens
{
public:
    // Each character of `delimiters` is a delimiter. The line must outlive this object.
    CRowTokens(std::string_view line, std::string_view delimiters) : m_rest(line), m_delimiters(delimiters) {}

    // Sets `token` to the next token, which is not empty. Returns false and an empty token at the end.
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

    // The next token, or an empty text at the end.
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
