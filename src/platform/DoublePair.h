// Two doubles in one vector register. For loops whose additions must keep their order within each result,
// so that the only way to speed them up is to compute several results at once. Pure functions, any thread.
#pragma once

#include <cstddef>
#include <cstring>

namespace zantroq {

using DoublePair = double __attribute__((vector_size(16)));
inline constexpr std::size_t PairWidth = 2;
// Vectors processed together: eight hide the latency of an addition.
inline constexpr std::size_t PairsAtATime = 8;
inline constexpr std::size_t PairBlock = PairWidth * PairsAtATime;

inline DoublePair LoadPair(const double* from)
{
    DoublePair lanes;
    std::memcpy(&lanes, from, sizeof lanes);
    return lanes;
}

inline void StorePair(double* to, const DoublePair& lanes)
{
    std::memcpy(to, &lanes, sizeof lanes);
}

} // namespace zantroq
