// Collects what a symbol search finds into three columns. Window's thread.
#pragma once

#include "search/SymbolInterface3.h"

#include <string>
#include <vector>

namespace zantroq {

// What the owner of a request is notified of. The result message is posted: it comes after the event that
// caused it has returned.
class ISearchNotify
{
public:
    virtual ~ISearchNotify() = default;
    virtual void PostResults(int count) = 0; // the search has ended with that many rows
    virtual void OnNoAnswer() = 0;           // the search ended without its end line
};

class CSymbolRequest : public CSymbolInterface3
{
public:
    // The owner must outlive the request.
    CSymbolRequest(ISearchNotify& notify, ISymbolLookupMaker& maker)
        : CSymbolInterface3(maker), m_notify(notify)
    {
    }
    ~CSymbolRequest() override { DropLookup(); }

    // field: "s" symbols, "d" descriptions; filter kind: empty, "e" markets, "t" security types; filter ids
    // separated by blanks. False when the lookup object cannot be reached; nothing was sent then.
    bool Request(const std::string& field, const std::string& text, const std::string& filterKind,
                 const std::string& filterIds);
    // Empties the three columns. A search under way is dropped, so that none of its rows follow.
    void Clear();
    int GetCount() const { return static_cast<int>(m_symbols.size()); }
    // Column 0 the symbol, 1 a market id as text, 2 the description, whose end may be a CR; any other is
    // "Invalid Column". Rows from 0 to GetCount() - 1.
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
