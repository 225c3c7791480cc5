// The arithmetic of the on-balance volume pane; HistOBVChart.h gives the formula. No state; any thread that
// may read the prices.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

// out[i] is the balance at `index` + i, for i from 0 to count - 1; the hole value for indices below the
// period. A period of 0 or less gives 0.
void ComputeOBV(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out);

} // namespace zantroq
