#include "feed/markets/SymbolIndex.h"

#include <algorithm>

namespace zantroq::feed {
namespace {

bool BeginsWithAscii(std::string_view text, std::string_view folded)
{
    if (text.size() < folded.size())
        return false;
    for (std::size_t i = 0; i < folded.size(); ++i)
        if (FoldAscii(text[i]) != folded[i])
            return false;
    return true;
}

// Sorts rows by symbol; of several rows of one symbol the last stays.
void SortRows(std::vector<sLISTED_SYMBOL>& rows)
{
    const auto before = [](const sLISTED_SYMBOL& a, const sLISTED_SYMBOL& b) { return a.Symbol < b.Symbol; };
    std::stable_sort(rows.begin(), rows.end(), before);
    const auto same = [](const sLISTED_SYMBOL& a, const sLISTED_SYMBOL& b) { return a.Symbol == b.Symbol; };
    // unique keeps the first of equal elements, which in reverse order is the last.
    rows.erase(rows.begin(), std::unique(rows.rbegin(), rows.rend(), same).base());
}

CSymbolIndex::sROW RowOf(const sLISTED_SYMBOL& listed)
{
    return {listed.Symbol, listed.Description, listed.MarketId, listed.SecurityTypeId};
}

} // namespace

CSymbolQuery::CSymbolQuery(Field field, std::string_view text, Filter filter, TIds ids)
    : m_field(field), m_folded(FoldCase(text)), m_isAscii(IsAscii(m_folded)), m_filter(filter), m_ids(ids)
{
}

CSymbolIndex::CSymbolIndex(const CSymbolIndex& base, std::vector<sLISTED_SYMBOL> rows, ListRank rank)
{
    SortRows(rows);
    std::size_t symbolBytes = base.m_symbols.TextBytes(), descriptionBytes = base.m_descriptions.TextBytes();
    for (const sLISTED_SYMBOL& row : rows) {
        symbolBytes += row.Symbol.size();
        descriptionBytes += row.Description.size();
    }
    const std::size_t most = base.Size() + rows.size();
    m_symbols.Reserve(most, symbolBytes);
    m_descriptions.Reserve(most, descriptionBytes);
    m_ids.reserve(most);
    std::size_t old = 0;
    for (const sLISTED_SYMBOL& row : rows) {
        for (; old < base.Size() && base.m_symbols[old] < row.Symbol; ++old)
            Append(base.Row(old), base.m_ids[old].Rank);
        const bool isListed = old < base.Size() && base.m_symbols[old] == row.Symbol;
        if (isListed && base.m_ids[old].Rank > rank)
            Append(base.Row(old), base.m_ids[old].Rank);
        else
            Append(RowOf(row), rank);
        old += isListed ? 1 : 0;
    }
    for (; old < base.Size(); ++old)
        Append(base.Row(old), base.m_ids[old].Rank);
    Close();
}

void CSymbolIndex::Append(const sROW& row, ListRank rank)
{
    if (!IsAscii(row.Symbol) || !IsAscii(row.Description)) {
        m_unicodeRows.push_back(m_ids.size());
        m_foldedSymbols.Add(FoldCase(row.Symbol));
        m_foldedDescriptions.Add(FoldCase(row.Description));
    }
    m_symbols.Add(row.Symbol);
    m_descriptions.Add(row.Description);
    m_ids.push_back(
        {static_cast<std::uint8_t>(row.MarketId), static_cast<std::uint8_t>(row.SecurityTypeId), rank});
}

void CSymbolIndex::Close()
{
    for (CTextTable* table : {&m_symbols, &m_descriptions, &m_foldedSymbols, &m_foldedDescriptions})
        table->Close();
    m_unicodeRows.shrink_to_fit();
}

CSymbolIndex::sROW CSymbolIndex::Row(std::size_t row) const
{
    return {m_symbols[row], m_descriptions[row], m_ids[row].MarketId, m_ids[row].SecurityTypeId};
}

std::optional<std::size_t> CSymbolIndex::Find(std::string_view symbol) const
{
    std::size_t first = 0, last = Size();
    while (first < last) {
        const std::size_t middle = first + (last - first) / 2;
        if (m_symbols[middle] < symbol)
            first = middle + 1;
        else
            last = middle;
    }
    if (first == Size() || m_symbols[first] != symbol)
        return std::nullopt;
    return first;
}

void CSymbolIndex::Find(const CSymbolQuery& query, std::size_t from, std::size_t to,
                        std::vector<std::size_t>& found) const
{
    to = std::min(to, Size());
    if (query.m_field == CSymbolQuery::Field::Symbols)
        FindSymbols(query, from, to, found);
    else
        FindDescriptions(query, from, to, found);
}

bool CSymbolIndex::Passes(const CSymbolQuery& query, std::size_t row) const
{
    switch (query.m_filter) {
    case CSymbolQuery::Filter::Markets:
        return query.m_ids[m_ids[row].MarketId];
    case CSymbolQuery::Filter::SecurityTypes:
        return query.m_ids[m_ids[row].SecurityTypeId];
    default:
        return true;
    }
}

std::size_t CSymbolIndex::UnicodePlace(std::size_t row) const
{
    return static_cast<std::size_t>(std::lower_bound(m_unicodeRows.begin(), m_unicodeRows.end(), row) -
                                    m_unicodeRows.begin());
}

void CSymbolIndex::FindSymbols(const CSymbolQuery& query, std::size_t from, std::size_t to,
                               std::vector<std::size_t>& found) const
{
    std::size_t unicode = UnicodePlace(from);
    for (std::size_t row = from; row < to; ++row) {
        const bool isUnicode = unicode < m_unicodeRows.size() && m_unicodeRows[unicode] == row;
        const bool fits = isUnicode ? m_foldedSymbols[unicode].starts_with(query.m_folded)
                                    : query.m_isAscii && BeginsWithAscii(m_symbols[row], query.m_folded);
        if (fits && Passes(query, row))
            found.push_back(row);
        unicode += isUnicode ? 1 : 0;
    }
}

void CSymbolIndex::FindDescriptions(const CSymbolQuery& query, std::size_t from, std::size_t to,
                                    std::vector<std::size_t>& found) const
{
    std::vector<std::size_t> unicode;
    const std::size_t end = UnicodePlace(to);
    for (std::size_t i = UnicodePlace(from); i < end; ++i)
        if (m_foldedDescriptions[i].find(query.m_folded) != std::string_view::npos)
            unicode.push_back(m_unicodeRows[i]);
    std::vector<std::size_t> ascii;
    if (query.m_isAscii)
        m_descriptions.FindAscii(query.m_folded, from, to, [&](std::size_t row) { ascii.push_back(row); });
    // A text that contains the query also contains it after folding, so most rows of the first list are in
    // both lists.
    std::vector<std::size_t> both;
    if (!unicode.empty()) {
        std::set_union(ascii.begin(), ascii.end(), unicode.begin(), unicode.end(), std::back_inserter(both));
        ascii.swap(both);
    }
    std::copy_if(ascii.begin(), ascii.end(), std::back_inserter(found),
                 [&](std::size_t row) { return Passes(query, row); });
}

std::size_t CSymbolIndex::BytesBesideText() const
{
    return m_symbols.OtherBytes() + m_descriptions.OtherBytes() + m_ids.capacity() * sizeof(sIDS) +
           m_unicodeRows.capacity() * sizeof m_unicodeRows[0] + m_foldedSymbols.TextBytes() +
           m_foldedSymbols.OtherBytes() + m_foldedDescriptions.TextBytes() +
           m_foldedDescriptions.OtherBytes();
}

} // namespace zantroq::feed
