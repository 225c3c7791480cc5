// The arithmetic of the RSI pane; HistRSIChart.h gives the formula. Chart window's thread.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

// The averages at the last computed index; the next index continues from them.
struct sRSIRunningState
{
    std::int32_t Index = -10;
    double AvgGain = 0, AvgLoss = 0;
};

// out[i] is the RSI of index position + i - 1, for i from 0 to count - 1; a value outside 0 to 100, such as
// -1, means none. A period below 1 gives -1 everywhere and leaves the state unchanged.
void ComputeRSI(const IPriceSource& prices, std::int64_t position, int count, std::int32_t period,
                sRSIRunningState& state, double* out);

} // namespace zantroq
