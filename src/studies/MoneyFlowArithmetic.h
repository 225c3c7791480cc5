// The arithmetic of the money flow and money flow index panes; the formulas are told in HistMFChart.h and
// HistMFIChart.h.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

// positive[i] and negative[i] are the flows at `index` + i, for i from 0 to count - 1, neither with a sign.
// The first elements (indices up to the period, all with a period below 1) have none and get the hole value.
// Answers their number.
int ComputeMoneyFlow(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                     double* positive, double* negative);

// out[i] is the index at `index` + i; the hole value where there is none.
void ComputeMFI(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out);

} // namespace zantroq
