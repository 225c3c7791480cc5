// Invented companies, bonds, futures and indices that the feed lists, so that a symbol search finds
// something. Each is a simulated market and its description says so. Pure, any thread.
#pragma once

#include "feed/markets/FeedRecords.h"

#include <vector>

namespace zantroq::feed {

// Ids of these symbols in the reference tables. The named simulations use SimulatedMarketId.
inline constexpr int FirstSimulatedExchangeId = 10; // this one and the next two
inline constexpr int SimulatedEquityId = 10, SimulatedIndexId = 11, SimulatedFutureId = 12,
                     SimulatedBondId = 13;

// Returns more than 5,000 symbols, the same at each call, in no particular order.
std::vector<sLISTED_SYMBOL> SimulatedSymbols();

} // namespace zantroq::feed
