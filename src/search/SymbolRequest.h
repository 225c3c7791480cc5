// Collects the results of a symbol search in three columns. Window's thread.
#pragma once

#include "search/SymbolInterface3.h"

#include <string>
#include <vector>

namespace zantroq {

// Notifications to the owner of a request. PostResults is posted: it arrives after the event that caused it
// has returned.
class ISearchNotify
{
public:
    virtual ~ISearchNotify() = default;
    virtual void PostResults(int count) = 0; // the search has ended with `count` rows
    virtual void OnNoAnswer() = 0;           // the search ended without its end line
};

class CSymbolRequest : public CSymbolInterface3
{
public:
    // The owner, `notify`, must outlive the request.
    CSymbolRequest(ISearchNotify& notify, ISymbolLookupMaker& maker)
        : CSymbolInterface3(maker), m_notify(notify)
    {
    }
    ~CSymbolRequest() override { DropLookup(); }

    // Starts a search. Field: "s" symbols, "d" descriptions. Filter kind: empty, "e" markets, "t" security
    // types. Filter ids are separated by blanks. Returns false if the lookup cannot be reached; nothing is
    // sent then.
    bool Request(const std::string& field, const std::string& text, const std::string& filterKind,
                 const std::string& filterIds);
    // Empties the three columns and drops the current search, so that none of its rows follow.
    void Clear();
    int GetCount() const { return static_cast<int>(m_symbols.size()); }
    // Column 0 is the symbol, 1 the market id as text, 2 the description, which may end with a CR; any other
    // column returns "Invalid Column". `row` is 0 to GetCount() - 1.
    std::string GetColumn(int row, int column) const;

private:
    void OnResultLine(std::string_view line) override;
    void OnErrorLine(std::string_view line) override;
    void OnNoAnswer() override { m_notify.OnNoAnswer(); }
    bool EndsSearch(std::string_view line);
    void AddRow(std::string_view symbol, std::string_view market, std::string_view description);

    ISearchNotify& m_notify;
    std::vector<std::string> m_symbols, m_markets, m_descriptions;
};

} // namespace zantroq
