// The live state of one symbol, and the level 1 lines written from it. Plain data and pure functions, any
// thread.
//
// A line is its type letter, a comma and the selected fields in the order of the selection; the symbol is
// always first. Type "Q" is a trade or a quote, "P" the summary sent when a watch begins. The fundamental
// line "F" has fixed fields: 1 symbol, 2 listed market, 3 security type, 4 description, 39 display code of
// the exchange, 40 decimals; the other fields are empty.
#pragma once

#include "feed/markets/FeedRecords.h"
#include "market/Level1Command.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// An unknown price is absent and its field empty; an unknown size or count is 0.
struct sLIVE_QUOTE
{
    TFeedTime Time = 0;         // of the most recent trade
    std::optional<sPRICE> Last; // price and kind of the most recent trade
    char Basis = 0;
    // Of the day's regular trades.
    std::optional<sPRICE> Open, High, Low;
    std::optional<sPRICE> PreviousClose; // close of the previous trading day
    std::optional<sPRICE> Bid, Ask;
    std::int64_t TotalVolume = 0; // of the day
    std::uint32_t Size = 0, BidSize = 0, AskSize = 0;
    std::uint32_t OpenInterest = 0;
    std::uint32_t TickId = 0;
    int DisplayCode = 12;
    unsigned Decimals = 2;
    // What changed, as letters: C a regular trade, E an extended one, O another; b, a the bid and the ask; v
    // the volume; o, h, l the open, high and low; c the close.
    std::string_view Contents;

    // Updates the day's open, high and low with the price of a regular trade.
    void TakeRegularPrice(sPRICE price);
};

using TFieldSelection = std::vector<Level1Field>;

// All 22 fields in wire order.
TFieldSelection AllQuoteFields();
// Reads field names separated by commas. Empty and unknown names are skipped. If the symbol is not among the
// names, it becomes the first field. Returns false and leaves `selection` unchanged if no name is known.
bool ReadFieldSelection(std::string_view names, TFieldSelection& selection);
std::string FieldNamesText(const TFieldSelection& selection);

// Appends a line of `type` 'Q' or 'P' for the symbol as the client wrote it. The contents field of a summary
// lists the letters of all known values; it includes C once the day has had a regular trade.
void AppendQuoteLine(char type, std::string_view symbol, const sLIVE_QUOTE& quote,
                     const TFieldSelection& selection, std::string& text);
void AppendFundamentalLine(std::string_view symbol, const sLIVE_QUOTE& quote, const sLISTED_SYMBOL* listed,
                           std::string& text);

} // namespace zantroq::feed
