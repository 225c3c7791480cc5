// Ticks of history lines on their way into one request's series, in columns as the series keeps them: a
// column enters its array as one block of memory, and all of them under one lock. Plain data, one thread.
#pragma once

#include "market/HistoryRecords.h"

#include <array>
#include <cstdint>

namespace zantroq {

struct sTickBatch
{
    // So few that they wait for no more than some microseconds, and that they stay in the nearest cache.
    static constexpr int Most = 128;

    bool Full() const { return Count == Most; }

    // The record of one tick, as AppendPoint takes it.
    sHIST_POINT Point(int index) const
    {
        const auto at = static_cast<std::size_t>(index);
        sHIST_POINT point;
        point.Time = Time[at];
        point.Last = Last[at];
        point.LastSize = static_cast<std::uint32_t>(Size[at]);
        point.Bid = Bid[at];
        point.Ask = Ask[at];
        point.TotalVolume = TotalVolume[at];
        point.TickId = static_cast<std::uint32_t>(TickId[at]);
        point.Basis.assign(1, Basis[at]);
        return point;
    }

    int Count = 0;
    // Times are valid ones. Bid size, ask size and conditions are not here: no history line carries them.
    std::array<sTIME_W_MILLISECONDS, Most> Time{};
    std::array<double, Most> Last{}, Bid{}, Ask{};
    std::array<std::int32_t, Most> Size{}, TickId{};
    std::array<std::int64_t, Most> TotalVolume{};
    std::array<char, Most> Basis{};
};

} // namespace zantroq
