// The arithmetic of the ADX pane; the formula is told in HistADXChart.h. Chart window's thread.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

// The averages at the last index finished, so that the next one continues on them.
struct sADXRunningState
{
    std::int32_t Index = -10;
    double AvgTR = 0, AvgPlus = 0, AvgMinus = 0, Adx = 0;
};

// plusDI[i], minusDI[i] and adx[i] are the values at `index` + i, for i from 0 to count - 1. The hole value
// stands where there is none: everywhere with a period below 1, which leaves the state alone.
void ComputeADX(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                sADXRunningState& state, double* plusDI, double* minusDI, double* adx);

} // namespace zantroq
