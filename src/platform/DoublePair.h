// Two numbers side by side, for loops that must keep the order of additions within each result and so can
// only go faster by working on several results at once.
#pragma once

#include <cstddef>
#include <cstring>

namespace zantroq {

using DoublePair = double __attribute__((vector_size(16)));
inline constexpr std::size_t PairWidth = 2;
inline constexpr std::size_t PairsAtATime =
    8; // vectors at a time: together they hide the latency of an addition
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
