// Moving averages of closes over a run of the series. Pure functions, any thread.
//
// The simple average is the textbook's, except that index period - 1 has no value although its window is
// full. The exponential average is not the textbook's recursion: it weighs the close against the simple
// average of the index before, so no earlier exponential value is used, and it starts one index later than
// the simple average.
//
// Each sum runs from the earliest close of its window to the latest, so every value is bit for bit the value
// of the plain definition. That excludes a running sum; instead, sixteen windows are summed in parallel.
// Cost: `period` additions per value, four per cycle.
#pragma once

#include <span>

namespace zantroq {

// The closes of consecutive indices, beginning with index First (from 0).
struct sCloseRun
{
    std::span<const double> Values;
    int First = 0;
    int End() const { return First + static_cast<int>(Values.size()); }
};

// The first index that a run must contain so that values can be computed from `first` on.
int FirstCloseNeeded(int first, int period);

// out[k] is the value at index first + k; the hole value if there is none, which is everywhere for a period
// below 1. The run must hold the closes from FirstCloseNeeded(first, period) to the last requested index.
void SimpleAverages(const sCloseRun& closes, int first, int period, std::span<double> out);
void ExponentialAverages(const sCloseRun& closes, int first, int period, std::span<double> out);

// means[k] is the sum values[k] + ... + values[k + length - 1], added in that order from 0, divided by
// length.
void WindowMeans(const double* values, int length, std::span<double> means);

} // namespace zantroq
