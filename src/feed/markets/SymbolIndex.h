// The searchable index of all symbols of a feed, sorted by their bytes. A search of a million symbols takes
// some milliseconds; each symbol takes less than 64 bytes besides its text.
#pragma once

#include "feed/markets/FeedRecords.h"
#include "feed/markets/TextTable.h"

#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// Decides which of two rows of the same symbol stays: the one of higher rank; of equal rank, the later one.
enum class ListRank : std::uint8_t
{
    Simulated,
    Recorded,
    Named // by a symbols.csv
};

// A query to the index. Its text is folded once, at construction.
class CSymbolQuery
{
public:
    enum class Field
    {
        Symbols,     // symbols that begin with the text
        Descriptions // descriptions that contain the text
    };
    enum class Filter
    {
        None,
        Markets,
        SecurityTypes
    };
    using TIds = std::bitset<256>;

    // `text` is UTF-8, 1 to CTextTable::LongestPiece bytes; case does not matter.
    CSymbolQuery(Field field, std::string_view text, Filter filter = Filter::None, TIds ids = {});

private:
    friend class CSymbolIndex;
    Field m_field;
    std::string m_folded;
    bool m_isAscii;
    Filter m_filter;
    TIds m_ids;
};

// Constant after construction and safe to read from any thread.
class CSymbolIndex
{
public:
    struct sROW
    {
        std::string_view Symbol, Description;
        int MarketId, SecurityTypeId;
    };

    CSymbolIndex() { Close(); }
    // The rows of `base` and the new rows, which may come in any order.
    CSymbolIndex(const CSymbolIndex& base, std::vector<sLISTED_SYMBOL> rows, ListRank rank);

    std::size_t Size() const { return m_ids.size(); }
    sROW Row(std::size_t row) const;
    // The index of the row of exactly this symbol, if there is one.
    std::optional<std::size_t> Find(std::string_view symbol) const;

    // Appends to `found`, in order, the rows from `from` up to but not including `to` that match the query.
    void Find(const CSymbolQuery& query, std::size_t from, std::size_t to,
              std::vector<std::size_t>& found) const;

    // The size of the index in bytes, without the texts of symbols and descriptions.
    std::size_t BytesBesideText() const;

private:
    struct sIDS
    {
        std::uint8_t MarketId, SecurityTypeId;
        ListRank Rank;
    };

    void Append(const sROW& row, ListRank rank);
    void Close();
    void FindSymbols(const CSymbolQuery& query, std::size_t from, std::size_t to,
                     std::vector<std::size_t>& found) const;
    void FindDescriptions(const CSymbolQuery& query, std::size_t from, std::size_t to,
                          std::vector<std::size_t>& found) const;
    bool Passes(const CSymbolQuery& query, std::size_t row) const;
    // The position in m_unicodeRows of the first row at or after `row`.
    std::size_t UnicodePlace(std::size_t row) const;

    CTextTable m_symbols, m_descriptions;
    std::vector<sIDS> m_ids;
    // Rows with a text that is not ASCII, ascending, and their folded texts. ASCII rows are compared without
    // a folded copy.
    std::vector<std::size_t> m_unicodeRows;
    CTextTable m_foldedSymbols, m_foldedDescriptions;
};

} // namespace zantroq::feed
