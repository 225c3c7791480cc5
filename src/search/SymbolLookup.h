// The interface of the symbol lookup: a client starts a search and receives text lines as events. Window's
// thread.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace zantroq {

// Receives the lines of a search. Every line ends with CR LF; a search ends with the line "!ENDMSG!,\r\n".
class ISymbolLookupEvents
{
public:
    virtual ~ISymbolLookupEvents() = default;
    virtual void OnResultLine(std::string_view line) = 0; // event 1: symbol, market id, type id, description
    virtual void OnEvent2() = 0;
    virtual void OnEvent3() = 0;
    virtual void OnErrorLine(std::string_view line) = 0; // event 4: an error mark and the message
    // The search ended without its end line; no event follows.
    virtual void OnNoAnswer() = 0;
};

class ISymbolLookup
{
public:
    virtual ~ISymbolLookup() = default; // no event follows
    // Starts a search and returns at once. An earlier search is dropped; none of its lines follow. `reserved`
    // is always empty.
    virtual void Find(const std::string& field, const std::string& text, const std::string& filterKind,
                      const std::string& filterIds, const std::string& reserved) = 0;
    // Drops the current search, if there is one; none of its lines follow.
    virtual void Stop() = 0;
};

// Creates the lookup when a client first needs it.
class ISymbolLookupMaker
{
public:
    virtual ~ISymbolLookupMaker() = default;
    // Returns null if the lookup cannot be reached. `events` must outlive the lookup.
    virtual std::unique_ptr<ISymbolLookup> Make(ISymbolLookupEvents& events) = 0;
};

} // namespace zantroq
