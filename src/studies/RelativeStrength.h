// The arithmetic of the RSI pane; its formula is told in HistRSIChart.h. Chart window's thread.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

// The averages at the last index finished, so that the next one continues on them.
struct sRSIRunningState
{
    std::int32_t Index = -10;
    double AvgGain = 0, AvgLoss = 0;
};

// out[i] is the RSI asked for at `position` + i, for i from 0 to count - 1; it is that of index position + i
// - 1. Not a number from 0 to 100 where there is none: -1. A period below 1 gives -1 everywhere and leaves
// the state alone.
void ComputeRSI(const IPriceSource& prices, std::int64_t position, int count, std::int32_t period,
                sRSIRunningState& state, double* out);

} // namespace zantroq
