// Sums and extremes of a window that slides over an array, each bit for bit what a loop over that one window
// gives.
#pragma once

#include <cstdint>

namespace zantroq {

// sums[i] = in[i] + in[i + 1] + ... + in[i + terms - 1], added in that order from 0, for i from 0 to count
// - 1. `in` holds count + terms - 1 values and does not overlap `sums`. No sum is carried from one window to
// the next, since a floating-point sum that slides rounds differently; many windows are added side by side
// instead. Costs count * terms additions.
void SumWindows(const double* in, std::int64_t count, std::int64_t terms, double* sums);

// means[i] is that sum divided by `divisor`, which need not be the number of terms.
void MeanWindows(const double* in, std::int64_t count, std::int64_t terms, double divisor, double* means);

// least[i] is the least of `start` and in[i] to in[i + terms - 1], the earliest among equals; a not-a-number
// is never the least. `in` holds count + terms - 1 values. About log2(terms) passes.
void LeastInWindows(const double* in, std::int64_t count, std::int64_t terms, double start, double* least);

// The same for the greatest.
void GreatestInWindows(const double* in, std::int64_t count, std::int64_t terms, double start,
                       double* greatest);

} // namespace zantroq
