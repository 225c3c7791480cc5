// The parser of a reply to a reference-table command: takes blocks as they were received and returns rows.
// Has no socket and no thread. One thread at a time.
#pragma once

#include "search/RowTokens.h"

#include <string>
#include <string_view>

namespace zantroq {

class CLookupReply
{
public:
    // Takes one received block; bytes after a zero byte are lost. Returns false when the reply has ended and
    // the connection can be closed. The end marker is searched in this block alone: a marker split over two
    // blocks is not found.
    bool Take(std::string_view block);

    const std::string& Text() const { return m_text; }
    void Clear() { m_text.clear(); }

    // Calls onRow(id, tokens) for each line that begins with a number from 0 to 255; `tokens` are the tokens
    // after that number. Lines end with LF, so the last token of a row keeps the CR before it, and text after
    // the last LF is ignored.
    template<class TOnRow> void ForEachRow(TOnRow onRow) const
    {
        std::string_view rest = m_text;
        for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
            CRowTokens tokens(rest.substr(0, end), ",");
            rest.remove_prefix(end + 1);
            std::string_view first;
            unsigned id = 0;
            if (tokens.Next(first) && ReadId(first, id))
                onRow(id, tokens);
        }
    }

private:
    static bool ReadId(std::string_view token, unsigned& id);

    std::string m_text;
};

// Number of rows of a reference table: ids are 0 to LookupRows - 1.
inline constexpr unsigned LookupRows = 256;

} // namespace zantroq
