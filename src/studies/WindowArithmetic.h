// Sums and extremes of a sliding window, bit for bit equal to a loop over each window. Pure functions, any
// thread.
#pragma once

#include <cstdint>

namespace zantroq {

// sums[i] = in[i] + in[i + 1] + ... + in[i + terms - 1], added in that order from 0, for each i below `count`.
// `in` holds count + terms - 1 values and must not overlap `sums`. No sum is derived from the sum of the
// window before, because a sliding floating-point sum rounds differently; instead, many windows are summed
// in parallel. Costs count * terms additions.
void SumWindows(const double* in, std::int64_t count, std::int64_t terms, double* sums);

// means[i] is that sum divided by `divisor`, which may differ from the number of terms.
void MeanWindows(const double* in, std::int64_t count, std::int64_t terms, double divisor, double* means);

// least[i] is the smallest of `start` and in[i] to in[i + terms - 1]; of equal values the earliest.
// Not-a-number does not count. `in` holds count + terms - 1 values. About log2(terms) passes.
void LeastInWindows(const double* in, std::int64_t count, std::int64_t terms, double start, double* least);

// The same for the largest value.
void GreatestInWindows(const double* in, std::int64_t count, std::int64_t terms, double start,
                       double* greatest);

} // namespace zantroq
