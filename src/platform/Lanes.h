// Two numbers side by side, for loops that must keep the order of additions within each result and so can
// only go faster by working on several results at once.
#pragma once

#include <cstddef>
#include <cstring>

namespace zantroq {

using Lanes = double __attribute__((vector_size(16)));
inline constexpr std::size_t LaneWidth = 2;
inline constexpr std::size_t LaneParts =
    8; // vectors at a time: together they hide the latency of an addition
inline constexpr std::size_t LaneBlock = LaneWidth * LaneParts;

inline Lanes LoadLanes(const double* from)
{
    Lanes lanes;
    std::memcpy(&lanes, from, sizeof lanes);
    return lanes;
}

inline void StoreLanes(double* to, const Lanes& lanes)
{
    std::memcpy(to, &lanes, sizeof lanes);
}

} // namespace zantroq
