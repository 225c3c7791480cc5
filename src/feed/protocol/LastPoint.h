// The last recorded state of a market: its newest trade, and the open, high, low and volume of that trade's
// day. Pure function, any thread.
#pragma once

#include "feed/markets/MarketSource.h"
#include "feed/protocol/LiveQuote.h"

namespace zantroq::feed {

// Trading hours of the simulated markets, in milliseconds from midnight, Monday to Friday.
inline constexpr TFeedTime OpeningTime = (9 * 60 + 30) * 60 * MsPerSecond;
inline constexpr TFeedTime ClosingTime = 16 * 3600 * MsPerSecond;

struct sLAST_POINT
{
    sLIVE_QUOTE Quote;
    TFeedDay Day = 0;            // trading day of Quote's open, high, low, volume and open interest
    std::optional<sPRICE> Close; // newest regular price; the previous close of the next day
    TFeedTime Clock = 0;         // everything that follows is later than this time
};

// Bid, ask and size come from the newest tick and are absent if the newest record is a bar. The values of the
// day come from its daily bar, or if it has none from its minutes; the ticks of a day are included in both.
// Open, high and low are absent on a day without a regular trade, the previous close if no older daily bar
// exists, and the last price if there never was a trade.
sLAST_POINT LastPointOf(const IMarketSource& market);

} // namespace zantroq::feed
