// The object that finds symbols, as its client sees it: a request goes in, text lines come back as events.
// Window's thread.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace zantroq {

// Where the lines go. Every line ends with CR LF; the search ends with the line "!ENDMSG!,\r\n".
class ISymbolLookupEvents
{
public:
    virtual ~ISymbolLookupEvents() = default;
    virtual void OnResultLine(std::string_view line) = 0; // event 1: symbol, market id, type id, description
    virtual void OnEvent2() = 0;
    virtual void OnEvent3() = 0;
    virtual void OnErrorLine(std::string_view line) = 0; // event 4: a mark, message
    // The search came to an end of its own without its end line: nothing more will come of it.
    virtual void OnNoAnswer() = 0;
};

class ISymbolLookup
{
public:
    virtual ~ISymbolLookup() = default; // after which no event comes
    // Returns at once; a search under way is dropped, and none of its lines come any more. `reserved` is
    // always empty.
    virtual void Find(const std::string& field, const std::string& text, const std::string& filterKind,
                      const std::string& filterIds, const std::string& reserved) = 0;
    // Drops the search under way, if there is one: none of its lines come any more.
    virtual void Stop() = 0;
};

// Makes the lookup object when a client first needs it.
class ISymbolLookupMaker
{
public:
    virtual ~ISymbolLookupMaker() = default;
    // Null when the object cannot be reached. The events must outlive the object.
    virtual std::unique_ptr<ISymbolLookup> Make(ISymbolLookupEvents& events) = 0;
};

} // namespace zantroq
