// The ticks of a series: live trades append them singly, history replies in batches.
#include "market/ChartHistRequest.h"
#include "market/StoredFields.h"

#include <algorithm>

namespace zantroq {

namespace {

// How many elements fit into every one of the arrays.
template<class... Arrays> int RoomIn(const Arrays&... arrays)
{
    return std::min({(arrays.Capacity() - arrays.Count())...});
}

// Calls call(first, count) for each run of ticks that the bounds admit.
template<class Call> void ForEachRunInside(const sSeriesBounds& bounds, const sTickBatch& ticks, Call call)
{
    if (!bounds.Any()) {
        call(0, ticks.Count);
        return;
    }
    int first = 0;
    bool inside = false;
    for (int i = 0; i < ticks.Count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        // Bounds ignore milliseconds, and consecutive trades often share their second.
        if (i > 0 && ticks.Time[at].Time == ticks.Time[at - 1].Time)
            continue;
        const bool admitted = bounds.Admits(ticks.Time[at]);
        if (inside && !admitted)
            call(first, i - first);
        if (!inside && admitted)
            first = i;
        inside = admitted;
    }
    if (inside)
        call(first, ticks.Count - first);
}

} // namespace

void CChartHistRequest::AppendTicks(const sTickBatch& ticks)
{
    CLockGuard guard(DataLock);
    const bool hasTicks = IsTickKind(Kind);
    ForEachRunInside(Bounds, ticks, [&](int first, int count) NO_THREAD_SAFETY_ANALYSIS {
        if (hasTicks)
            AppendTickRun(ticks, first, count);
        else // the request got another kind while the reply was arriving
            for (int i = first; i < first + count; ++i)
                Append(ticks.Point(i));
    });
}

void CChartHistRequest::AppendTickRun(const sTickBatch& ticks, int first, int count)
{
    while (count > 0) {
        if (m_tickRoom == 0)
            PrepareTicks();
        const int now = std::min(count, m_tickRoom);
        const auto column = [first, now](auto& array, const auto& values) {
            array.AddPrepared(values.data() + first, now);
        };
        column(m_time, ticks.Time);
        column(m_last, ticks.Last);
        column(m_size, ticks.Size);
        column(m_bid, ticks.Bid);
        column(m_ask, ticks.Ask);
        column(m_totalVolume, ticks.TotalVolume);
        column(m_tickId, ticks.TickId);
        column(m_basis, ticks.Basis);
        m_bidSize.AddZeros(now);
        m_askSize.AddZeros(now);
        m_conditions.AddEmpty(now);
        m_tickRoom -= now;
        first += now;
        count -= now;
    }
}

void CChartHistRequest::AppendTick(const sHIST_POINT& point)
{
    if (m_tickRoom == 0)
        PrepareTicks();
    m_conditions.Add(point.Conditions);
    m_time.AddPrepared(point.Time);
    m_last.AddPrepared(point.Last);
    m_size.AddPrepared(StoredInteger(point.LastSize));
    m_bid.AddPrepared(point.Bid);
    m_bidSize.AddPrepared(StoredInteger(point.BidSize));
    m_ask.AddPrepared(point.Ask);
    m_askSize.AddPrepared(StoredInteger(point.AskSize));
    m_totalVolume.AddPrepared(point.TotalVolume);
    m_tickId.AddPrepared(StoredInteger(point.TickId));
    m_basis.AddPrepared(StoredBasis(point.Basis));
    --m_tickRoom;
}

void CChartHistRequest::PrepareTicks()
{
    PrepareAll(m_time, m_last, m_size, m_bid, m_bidSize, m_ask, m_askSize, m_totalVolume, m_tickId, m_basis);
    m_tickRoom =
        RoomIn(m_time, m_last, m_size, m_bid, m_bidSize, m_ask, m_askSize, m_totalVolume, m_tickId, m_basis);
}

} // namespace zantroq
