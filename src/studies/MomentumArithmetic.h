// The arithmetic of the momentum and rate-of-change panes; HistMOMChart.h and HistROCChart.h give the
// formulas. No state; any thread that may read the prices.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

// out[i] is the value at `index` + i, for i from 0 to count - 1; the hole value if there is none. A period of
// 0 compares a close with itself, a negative period with a later close.
void ComputeMomentum(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                     double* out);
void ComputeROC(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period, double* out);

} // namespace zantroq
