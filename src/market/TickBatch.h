// Ticks of history lines before they are stored in the series of their request. The batch is stored by
// columns like the series, so that each column is appended with one block copy and all of them under one
// lock. Plain data, one thread.
#pragma once

#include "market/HistoryRecords.h"

#include <array>
#include <cstdint>

namespace zantroq {

struct sTickBatch
{
    // Small enough that ticks wait only some microseconds and the batch stays in the first-level cache.
    static constexpr int Most = 128;

    bool Full() const { return Count == Most; }

    // The tick as a record for AppendPoint.
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
    // All times are valid. Bid size, ask size and conditions are missing, because history lines do not carry
    // them.
    std::array<sTIME_W_MILLISECONDS, Most> Time{};
    std::array<double, Most> Last{}, Bid{}, Ask{};
    std::array<std::int32_t, Most> Size{}, TickId{};
    std::array<std::int64_t, Most> TotalVolume{};
    std::array<char, Most> Basis{};
};

} // namespace zantroq
