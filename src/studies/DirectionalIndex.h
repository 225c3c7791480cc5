// The arithmetic of the ADX pane; HistADXChart.h gives the formula. Chart window's thread.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

// The averages at the last computed index; the next index continues from them.
struct sADXRunningState
{
    std::int32_t Index = -10;
    double AvgTR = 0, AvgPlus = 0, AvgMinus = 0, Adx = 0;
};

// plusDI[i], minusDI[i] and adx[i] are the values at `index` + i, for i from 0 to count - 1; the hole value
// if there is none. A period below 1 gives no values and leaves the state unchanged.
void ComputeADX(const IPriceSource& prices, std::int64_t index, int count, std::int32_t period,
                sADXRunningState& state, double* plusDI, double* minusDI, double* adx);

} // namespace zantroq
