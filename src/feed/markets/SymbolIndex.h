// All symbols that a feed knows, in the order of their bytes, made for being searched: a million of them are
// looked through in some milliseconds and take less than 64 bytes each beside their text.
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

// Which of two rows of the same symbol stays: the one of higher rank, of equal rank the later one.
enum class ListRank : std::uint8_t
{
    Simulated,
    Recorded,
    Named // by a symbols.csv
};

// A question to the index, made ready once.
class CSymbolQuery
{
public:
    enum class Field
    {
        Symbols,     // that begin with the text
        Descriptions // that hold the text
    };
    enum class Filter
    {
        None,
        Markets,
        SecurityTypes
    };
    using TIds = std::bitset<256>;

    // The text is UTF-8, at most CTextTable::LongestPiece bytes, not empty; its case does not matter.
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
    // The rows of `base` and the new ones, which may come in any order.
    CSymbolIndex(const CSymbolIndex& base, std::vector<sLISTED_SYMBOL> rows, ListRank rank);

    std::size_t Size() const { return m_ids.size(); }
    sROW Row(std::size_t row) const;
    // The row of exactly this symbol.
    std::optional<std::size_t> Find(std::string_view symbol) const;

    // Appends to `found` the rows from `from` up to but not including `to` that answer the query, in order.
    void Find(const CSymbolQuery& query, std::size_t from, std::size_t to,
              std::vector<std::size_t>& found) const;

    // What the index takes, the bytes of symbols and descriptions aside.
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
    // The first of m_unicodeRows at or behind the row.
    std::size_t UnicodePlace(std::size_t row) const;

    CTextTable m_symbols, m_descriptions;
    std::vector<sIDS> m_ids;
    // Rows with a text that is not ASCII, ascending, and their folded texts. The others are compared as they
    // are, which needs no copy.
    std::vector<std::size_t> m_unicodeRows;
    CTextTable m_foldedSymbols, m_foldedDescriptions;
};

} // namespace zantroq::feed
