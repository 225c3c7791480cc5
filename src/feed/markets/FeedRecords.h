// The feed's records: a tick, a bar and a listed symbol. Plain data.
#pragma once

#include "feed/markets/DecimalPrice.h"
#include "feed/markets/FeedTime.h"

#include <string>

namespace zantroq::feed {

struct sFEED_TICK
{
    TFeedTime Time = 0;
    sPRICE Last, Bid, Ask;
    std::int64_t TotalVolume = 0; // of the day, including this trade
    std::uint32_t Size = 0;
    std::uint32_t TickId = 0;
    char Basis = 'C'; // kind of trade: C regular, E extended, O other; any other letter: not a trade
};

struct sFEED_BAR
{
    TFeedTime Stamp = 0; // Interval bar: its end. Longer bar: midnight at the start of its last day.
    sPRICE Open, High, Low, Close;
    std::int64_t Volume = 0;      // of this bar
    std::int64_t TotalVolume = 0; // interval bars only: of the day, up to the end of this bar
    std::uint32_t OpenInterest = 0;
};

struct sLISTED_SYMBOL
{
    std::string Symbol;                   // as written in symbols.csv or in the file name; contains no comma
    int MarketId = 0, SecurityTypeId = 0; // 0 to 255
    std::string Description;              // not empty; contains no comma
};

inline bool IsTrade(const sFEED_TICK& tick)
{
    return tick.Basis == 'C' || tick.Basis == 'E' || tick.Basis == 'O';
}

} // namespace zantroq::feed
