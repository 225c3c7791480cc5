// The texts that the chart sends on the level 1 port, and the fields that it selects there. The local feed
// uses the same numbers. Pure functions, any thread.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zantroq {

// Names of the level 1 fields by wire position. Position 0 is the message type and has no name.
inline constexpr std::array<std::string_view, 23> Level1FieldNames{"",
                                                                   "Symbol",
                                                                   "Total Volume",
                                                                   "Most Recent Trade Size",
                                                                   "High",
                                                                   "Low",
                                                                   "Bid",
                                                                   "Ask",
                                                                   "Bid Size",
                                                                   "Ask Size",
                                                                   "Most Recent Trade TimeMS",
                                                                   "Open Interest",
                                                                   "Open",
                                                                   "Close",
                                                                   "Most Recent Trade Date",
                                                                   "Most Recent Trade",
                                                                   "Fraction Display Code",
                                                                   "TickID",
                                                                   "Most Recent Trade Market Center",
                                                                   "Bid Market Center",
                                                                   "Ask Market Center",
                                                                   "Message Contents",
                                                                   "Most Recent Trade Conditions"};

// Wire positions of the fields.
enum Level1Field : int
{
    Level1Type = 0,
    Level1Symbol = 1,
    Level1TotalVolume = 2,
    Level1Size = 3,
    Level1High = 4,
    Level1Low = 5,
    Level1Bid = 6,
    Level1Ask = 7,
    Level1BidSize = 8,
    Level1AskSize = 9,
    Level1Time = 10,
    Level1OpenInterest = 11,
    Level1Open = 12,
    Level1Close = 13,
    Level1Date = 14,
    Level1Last = 15,
    Level1DisplayCode = 16,
    Level1TickId = 17,
    Level1TradeMarket = 18,
    Level1BidMarket = 19,
    Level1AskMarket = 20,
    Level1Contents = 21,
    Level1Conditions = 22
};

// Fields of "F" lines, which have positions of their own.
enum FundamentalField : int
{
    FundamentalFormat = 39,   // the exchange's format code
    FundamentalPrecision = 40 // number of decimals
};

// Three lines in one text: client name, protocol and field selection. The list of fields begins with an empty
// field, as the feed expects.
std::string Level1SetupText();

std::string WatchCommand(std::string_view symbol);  // "w%s\r\n"
std::string RemoveCommand(std::string_view symbol); // "r%s\r\n"

} // namespace zantroq
