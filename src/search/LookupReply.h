// The reply to a reference-table command as a text machine: blocks go in as they were received, rows come
// out. No socket and no thread of its own.
#pragma once

#include "search/RowTokens.h"

#include <string>
#include <string_view>

namespace zantroq {

class CLookupReply
{
public:
    // One received block; what stands behind a zero byte in it is lost. False when the reply has ended and
    // the connection can go. Each marker is looked for in this block alone: one that arrives split over two
    // blocks is not seen.
    bool Take(std::string_view block);

    const std::string& Text() const { return m_text; }
    void Clear() { m_text.clear(); }

    // Calls onRow(id, tokens) for each line that begins with a number from 0 to 255; `tokens` are those
    // behind it. Lines end with LF, so that the last token of a row keeps the CR in front of it, and text
    // behind the last LF is no line.
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

// Places in a reference table: ids run from 0 to LookupRows - 1.
inline constexpr unsigned LookupRows = 256;

} // namespace zantroq
