// Bollinger Bands (John Bollinger, 1980s) over a run of the series. Pure function, any thread.
//
// As in the textbook: a simple average of closes, and lines a number of population standard deviations above
// and below it. As with the averages, the first value is at index `period`, one later than in the textbook.
#pragma once

#include "drawing/MovingAverages.h"

#include <span>

namespace zantroq {

// lower[k], upper[k] and middle[k] are the values at index first + k; the hole value if there is none. All
// three have the same length, and the run must hold the closes from FirstCloseNeeded on. Sums run from the
// earliest close to the latest, first for the average, then for the squares of the differences from it. Costs
// about four operations per value and close of its window.
void BollingerBands(const sCloseRun& closes, int first, int period, double deviations,
                    std::span<double> lower, std::span<double> upper, std::span<double> middle);

} // namespace zantroq
