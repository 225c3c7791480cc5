// One tick, one bar and one symbol of the search as the feed keeps them. Plain data.
#pragma once

#include "feed/markets/DecimalPrice.h"
#include "feed/markets/FeedTime.h"

#include <string>

namespace zantroq::feed {

struct sFEED_TICK
{
    TFeedTime Time = 0;
    sPRICE Last, Bid, Ask;
    std::int64_t TotalVolume = 0; // of the day, this trade included
    std::uint32_t Size = 0;
    std::uint32_t TickId = 0;
    char Basis = 'C'; // C a regular trade, E an extended one, O another; any other letter is no trade
};

struct sFEED_BAR
{
    TFeedTime Stamp = 0; // end of an interval bar; midnight at the start of the (last) day of a longer one
    sPRICE Open, High, Low, Close;
    std::int64_t Volume = 0;      // of the bar alone
    std::int64_t TotalVolume = 0; // interval bars: of the day up to the bar's end
    std::uint32_t OpenInterest = 0;
};

struct sLISTED_SYMBOL
{
    std::string Symbol;                   // as written in symbols.csv or in the file name; never with a comma
    int MarketId = 0, SecurityTypeId = 0; // 0 to 255
    std::string Description;              // never empty, never with a comma
};

inline bool IsTrade(const sFEED_TICK& tick)
{
    return tick.Basis == 'C' || tick.Basis == 'E' || tick.Basis == 'O';
}

} // namespace zantroq::feed
