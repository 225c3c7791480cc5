// The least and greatest of a stretch of numbers, two at a time where the processor can.
#pragma once

#include <cstddef>
#include <span>

namespace zantroq {

struct sLeastGreatest
{
    double Least = 0, Greatest = 0;
};

// False, with nothing found, when there is a hole, a not-a-number or an infinity among the values, or no
// value at all.
bool FindLeastGreatest(std::span<const double> values, sLeastGreatest& found);

// Walks from end - 1 down to first over those places at which neither array's value is below least or above
// greatest (a not-a-number is neither). Returns one more than the first place that stops the walk, or first.
std::size_t SkipWithin(const double* a, const double* b, std::size_t first, std::size_t end, double least,
                       double greatest);

} // namespace zantroq
