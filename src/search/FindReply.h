// The FIND command of the lookup port and the parser of its reply: takes bytes in pieces of any size and
// calls the events of the lookup. Has no socket and no thread. One thread at a time.
#pragma once

#include "search/SymbolLookup.h"

#include <string>
#include <string_view>

namespace zantroq {

// FIND,<id>,<field>,<text>,<filter kind>,<filter ids> with a line end. Line ends inside the texts would end
// the command early and become blanks.
std::string FindCommand(int id, const std::string& field, const std::string& text,
                        const std::string& filterKind, const std::string& filterIds);

class CFindReply
{
public:
    // In bytes, without the line end. Longer lines are dropped.
    static constexpr std::size_t MaxLine = 65'535;

    CFindReply(int id, ISymbolLookupEvents& events) : m_prefix(std::to_string(id) + ','), m_events(events) {}

    // Returns false once the reply has ended, with its end line or with an error line; later bytes are
    // ignored. An error line ends the search as if the end line had followed it. Lines of other searches are
    // ignored.
    bool Take(std::string_view bytes);

private:
    void AppendToLine(std::string_view part);
    bool OnLine(std::string_view line);
    bool EndByError(std::string_view line);

    const std::string m_prefix;
    ISymbolLookupEvents& m_events;
    std::string m_line; // received part of an incomplete line
    bool m_dropping = false, m_ended = false;
};

} // namespace zantroq
