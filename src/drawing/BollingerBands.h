// Bollinger Bands (John Bollinger, 1980s) over a run of the series, as a plain function. Any thread.
//
// The textbook's: a simple average of closes, and lines a number of population standard deviations above and
// below it. As with the averages the first value stands at index `period`, one later than the textbook's.
#pragma once

#include "drawing/MovingAverages.h"

#include <span>

namespace zantroq {

// lower[k], upper[k] and middle[k] are the values at index first + k; the hole value where there is none. All
// three have the same length; the run must hold the closes from FirstCloseNeeded on. Sums run from the
// earliest close to the latest, first for the average, then for the squares around it: about four operations
// a close of the window for each value.
void BollingerBands(const sCloseRun& closes, int first, int period, double deviations,
                    std::span<double> lower, std::span<double> upper, std::span<double> middle);

} // namespace zantroq
