// Where a market stands: at its newest recorded trade, with the values of that trade's day and of no other.
// Pure function, any thread.
#pragma once

#include "feed/markets/MarketSource.h"
#include "feed/protocol/LiveQuote.h"

namespace zantroq::feed {

// The hours of the invented markets, in milliseconds from midnight; weekdays alone are trading days.
inline constexpr TFeedTime OpeningTime = (9 * 60 + 30) * 60 * MsPerSecond;
inline constexpr TFeedTime ClosingTime = 16 * 3600 * MsPerSecond;

struct sLAST_POINT
{
    sLIVE_QUOTE Quote;
    TFeedDay Day = 0;            // the trading day of Quote's open, high, low, volume and open interest
    std::optional<sPRICE> Close; // newest regular price, which the next day has as its close before
    TFeedTime Clock = 0;         // what goes on from here comes later than this
};

// Bid, ask and size are recorded ones, absent where the newest record is a bar. A day that is in daily bars
// has that bar's values, a newer one those of its minutes; its ticks are within them in either case. Open,
// high and low are absent on a day without a regular trade, the close before where no daily bar is older, the
// last price where nothing was ever traded.
sLAST_POINT LastPointOf(const IMarketSource& market);

} // namespace zantroq::feed
