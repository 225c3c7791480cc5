// The arithmetic of the MACD pane; the formula is told in HistMACDChart.h. Chart window's thread.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

struct sMACDPeriods
{
    std::int32_t Short = 0, Long = 0, Signal = 0;
};

// The averages at the last index finished, so that the next one continues on them.
struct sMACDRunningState
{
    std::int32_t Index = -10;
    double EmaShort = 0, EmaLong = 0, Signal = 0;
};

// macd[i] and signal[i] are the values at `index` + i, for i from 0 to count - 1, the hole value where
// there is none. With any of the three periods below 1 there are none and the state is left alone; where the
// short period is the longer one, nothing has a value before both averages have.
void ComputeMACD(const IPriceSource& prices, std::int64_t index, int count, const sMACDPeriods& periods,
                 sMACDRunningState& state, double* macd, double* signal);

} // namespace zantroq
