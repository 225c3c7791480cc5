// The FIND line of the lookup port and its reply as a text machine: bytes go in, in whatever pieces they were
// received, and the events of the lookup object come out. No socket and no thread of its own.
#pragma once

#include "search/SymbolLookup.h"

#include <string>
#include <string_view>

namespace zantroq {

// FIND,<id>,<field>,<text>,<filter kind>,<filter ids> with its line end. Line ends in the texts, which would
// end the command early, become blanks.
std::string FindCommand(int id, const std::string& field, const std::string& text,
                        const std::string& filterKind, const std::string& filterIds);

class CFindReply
{
public:
    // Without its line end. Longer lines are dropped.
    static constexpr std::size_t MaxLine = 65'535;

    CFindReply(int id, ISymbolLookupEvents& events) : m_prefix(std::to_string(id) + ','), m_events(events) {}

    // False when the reply has ended, by its end line or by an error line; what stands behind that is
    // dropped. An error line ends the search as if the end line had come with it. Lines of other searches are
    // passed over.
    bool Take(std::string_view bytes);

private:
    void AppendToLine(std::string_view part);
    bool OnLine(std::string_view line);
    bool EndByError(std::string_view line);

    const std::string m_prefix;
    ISymbolLookupEvents& m_events;
    std::string m_line; // the part of a line that has come
    bool m_dropping = false, m_ended = false;
};

} // namespace zantroq
