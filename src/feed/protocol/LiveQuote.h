// The state of one symbol that level 1 lines are written from, and the lines themselves. Pure, no thread of
// its own.
//
// A line is its type letter, a comma and the selected fields in the order in which they were asked for, the
// symbol always first. "Q" is a trade or a quote, "P" the summary sent when a watch begins. "F", the
// fundamental line, has fixed fields: 1 the symbol, 2 its listed market, 3 its security type, 4 its
// description, 39 the exchange's display code, 40 the decimals; the others are empty.
#pragma once

#include "feed/markets/FeedRecords.h"
#include "market/Level1Command.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

// A price that nobody knows is absent and leaves its field empty; a size or count that nobody knows is 0.
struct sLIVE_QUOTE
{
    TFeedTime Time = 0;         // of the most recent trade
    std::optional<sPRICE> Last; // its price, and Basis its kind
    char Basis = 0;
    // Of the day's regular trades.
    std::optional<sPRICE> Open, High, Low;
    std::optional<sPRICE> PreviousClose; // of the trading day before
    std::optional<sPRICE> Bid, Ask;
    std::int64_t TotalVolume = 0; // of the day
    std::uint32_t Size = 0, BidSize = 0, AskSize = 0;
    std::uint32_t OpenInterest = 0;
    std::uint32_t TickId = 0;
    int DisplayCode = 12;
    unsigned Decimals = 2;
    // Of an update. Letters: C a regular trade, E an extended one, O another, b and a a changed bid and ask,
    // v the volume, o, h and l a changed open, high and low, c the close.
    std::string_view Contents;

    // Puts a regular trade into the day's open, high and low.
    void TakeRegularPrice(sPRICE price);
};

using TFieldSelection = std::vector<Level1Field>;

// All 22 by their wire position.
TFieldSelection AllQuoteFields();
// Names parted by commas. Empty and unknown names are passed over and take no place; the symbol is put in
// front where it was not asked for. False, and selection untouched, when no name is known.
bool ReadFieldSelection(std::string_view names, TFieldSelection& selection);
std::string FieldNamesText(const TFieldSelection& selection);

// `type` is 'Q' or 'P'. The symbol stands in the line as it was asked for. The contents of a summary are the
// letters of all that is known; it is a regular trade's once the day has had one.
void AppendQuoteLine(char type, std::string_view symbol, const sLIVE_QUOTE& quote,
                     const TFieldSelection& selection, std::string& text);
void AppendFundamentalLine(std::string_view symbol, const sLIVE_QUOTE& quote, const sLISTED_SYMBOL* listed,
                           std::string& text);

} // namespace zantroq::feed
