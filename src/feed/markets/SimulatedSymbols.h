// The symbols that the feed lists so that a search has something to find: companies, bonds, futures and
// indices that do not exist. Each is a simulated market and says so in its description.
#pragma once

#include "feed/markets/FeedRecords.h"

#include <vector>

namespace zantroq::feed {

// Rows of the reference tables that these symbols use, beside SimulatedMarketId for the named simulations.
inline constexpr int FirstSimulatedExchangeId = 10; // and the two behind it
inline constexpr int SimulatedEquityId = 10, SimulatedIndexId = 11, SimulatedFutureId = 12,
                     SimulatedBondId = 13;

// More than 5,000, always the same ones, in no particular order.
std::vector<sLISTED_SYMBOL> SimulatedSymbols();

} // namespace zantroq::feed
