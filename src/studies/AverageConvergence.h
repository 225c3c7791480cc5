// The arithmetic of the MACD pane; HistMACDChart.h gives the formula. Chart window's thread.
#pragma once

#include "drawing/PriceSource.h"

#include <cstdint>

namespace zantroq {

struct sMACDPeriods
{
    std::int32_t Short = 0, Long = 0, Signal = 0;
};

// The averages at the last computed index; the next index continues from them.
struct sMACDRunningState
{
    std::int32_t Index = -10;
    double EmaShort = 0, EmaLong = 0, Signal = 0;
};

// macd[i] and signal[i] are the values at `index` + i, for i from 0 to count - 1; the hole value if there is
// none. If one of the three periods is below 1, there are no values and the state is unchanged; if the short
// period is the longer one, there are no values before both averages have begun.
void ComputeMACD(const IPriceSource& prices, std::int64_t index, int count, const sMACDPeriods& periods,
                 sMACDRunningState& state, double* macd, double* signal);

} // namespace zantroq
