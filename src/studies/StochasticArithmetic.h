// The arithmetic of the stochastics pane; HistSTOChart.h gives the formula. No state; any thread that may
// read the prices.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

enum class StochasticSpeed
{
    Slow,
    Fast
};

// k[i] and d[i] are %K and %D at `index` + i, for i from 0 to count - 1; the hole value if there is none,
// which is everywhere for a period below 1. Costs a few passes over the range, and for each stage of
// smoothing `period` additions per point.
void ComputeStochastic(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                       StochasticSpeed speed, double* k, double* d);

} // namespace zantroq
