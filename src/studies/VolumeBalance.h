// The arithmetic of the on-balance volume pane; the formula is told in HistOBVChart.h.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

// out[i] is the balance at `index` + i, for i from 0 to count - 1; the hole value below the period. A period
// of 0 or less sums nothing and gives 0.
void ComputeOBV(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out);

} // namespace zantroq
