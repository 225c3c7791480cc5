// The arithmetic of the money flow and money flow index panes; HistMFChart.h and HistMFIChart.h give the
// formulas. No state; any thread that may read the prices.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

// positive[i] and negative[i] are the flows at `index` + i, for i from 0 to count - 1; neither is negative.
// Indices up to the period, and all indices with a period below 1, have no value and get the hole value.
// Returns the number of these elements.
int ComputeMoneyFlow(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                     double* positive, double* negative);

// out[i] is the money flow index at `index` + i; the hole value if there is none.
void ComputeMFI(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out);

} // namespace zantroq
