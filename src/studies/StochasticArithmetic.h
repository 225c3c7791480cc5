// The arithmetic of the stochastics pane; the formula is told in HistSTOChart.h.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

enum class StochasticSpeed
{
    Slow,
    Fast
};

// k[i] and d[i] are %K and %D at `index` + i, for i from 0 to count - 1. The hole value stands where
// there is none: everywhere with a period below 1. A few passes over the range,
// plus one addition a point and term for each stage of smoothing.
void ComputeStochastic(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                       StochasticSpeed speed, double* k, double* d);

} // namespace zantroq
