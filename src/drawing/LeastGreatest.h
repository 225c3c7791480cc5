// The least and greatest of a stretch of numbers, two at a time where the processor can.
#pragma once

#include <span>

namespace zantroq {

struct sLeastGreatest
{
    double Least = 0, Greatest = 0;
};

// False, with nothing found, when there is a hole, a not-a-number or an infinity among the values, or no
// value at all.
bool FindLeastGreatest(std::span<const double> values, sLeastGreatest& found);

} // namespace zantroq
