// Moving averages of closes over a run of the series, as plain functions. Any thread.
//
// The simple average is the textbook's, with one difference: index period - 1 has no value yet, although its
// window is full. The exponential one is not the textbook's recursion: it weighs the close against the simple
// average of the index before, one step deep, so that no earlier exponential value enters; and it starts one
// index later still.
//
// Each sum runs from the earliest close of its window to the latest, so every value is bit for bit the plain
// definition. That rules out a running sum; instead sixteen windows are summed side by side. Cost: period
// additions a value, four a cycle.
#pragma once

#include <span>

namespace zantroq {

// Closes of consecutive indexes, the first of them being index First (from 0).
struct sCloseRun
{
    std::span<const double> Values;
    int First = 0;
    int End() const { return First + static_cast<int>(Values.size()); }
};

// The index from which a run must begin so that values can be computed from `first` on.
int FirstCloseNeeded(int first, int period);

// out[k] is the value at index first + k; the hole value where there is none, which is everywhere for a
// period below 1. The run must hold the closes from FirstCloseNeeded(first, period) to the last index asked
// for.
void SimpleAverages(const sCloseRun& closes, int first, int period, std::span<double> out);
void ExponentialAverages(const sCloseRun& closes, int first, int period, std::span<double> out);

// means[k] is values[k] + ... + values[k + length - 1], added in that order from 0, over length.
void WindowMeans(const double* values, int length, std::span<double> means);

} // namespace zantroq
