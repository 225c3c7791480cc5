#include "search/SymbolRequest.h"

#include "search/RowTokens.h"

#include <stdexcept>

namespace zantroq {

namespace {

constexpr std::string_view EndLine = "!ENDMSG!,\r\n";
constexpr std::string_view Delimiters = ",\n";
constexpr std::size_t ShortestLine = 5; // shorter lines are not rows

} // namespace

bool CSymbolRequest::Request(const std::string& field, const std::string& text, const std::string& filterKind,
                             const std::string& filterIds)
{
    if (!Connect())
        return false;
    Lookup()->Find(field, text, filterKind, filterIds, "");
    return true;
}

void CSymbolRequest::Clear()
{
    if (Lookup() != nullptr)
        Lookup()->Stop();
    m_symbols.clear();
    m_markets.clear();
    m_descriptions.clear();
}

std::string CSymbolRequest::GetColumn(int row, int column) const
{
    if (row < 0 || row >= GetCount())
        throw std::invalid_argument("row " + std::to_string(row) + " of " + std::to_string(GetCount()));
    const auto index = static_cast<std::size_t>(row);
    switch (column) {
    case 0:
        return m_symbols[index];
    case 1:
        return m_markets[index];
    case 2:
        return m_descriptions[index];
    default:
        return "Invalid Column";
    }
}

bool CSymbolRequest::EndsSearch(std::string_view line)
{
    if (line != EndLine)
        return false;
    m_notify.PostResults(GetCount());
    return true;
}

void CSymbolRequest::AddRow(std::string_view symbol, std::string_view market, std::string_view description)
{
    m_symbols.emplace_back(symbol);
    m_markets.emplace_back(market);
    m_descriptions.emplace_back(description);
}

void CSymbolRequest::OnResultLine(std::string_view line)
{
    if (EndsSearch(line) || line.size() < ShortestLine)
        return;
    CRowTokens tokens(line, Delimiters);
    const std::string_view symbol = tokens.Take(), market = tokens.Take();
    tokens.Take(); // the security type is not shown
    AddRow(symbol, market, tokens.Take());
}

void CSymbolRequest::OnErrorLine(std::string_view line)
{
    if (EndsSearch(line) || line.size() < ShortestLine)
        return;
    CRowTokens tokens(line, Delimiters);
    tokens.Take();
    AddRow("ERROR", "", tokens.Take());
}

} // namespace zantroq
