#include "trends/TrendLists.h"

#include "trends/FibonacciRetracementsTrend.h"

namespace zantroq {

CTrendLists::CTrendLists(IPaneWindow& window) : m_owner(window), m_pool(window)
{
    for (auto& list : m_lists)
        list = std::make_unique<CTrendList>(window, m_pool);
}

CBaseTrend* CTrendLists::FindNearest(int x, int y, int* distance)
{
    *distance = -1;
    m_lastHit = nullptr;
    for (const auto& list : m_lists) {
        int d = -1;
        CBaseTrend* const trend = list->FindNearest(x, y, &d);
        if (trend && (!m_lastHit || d < *distance)) {
            m_lastHit = trend;
            *distance = d;
        }
    }
    return m_lastHit;
}

void CTrendLists::DrawAll()
{
    for (const auto& list : m_lists)
        list->DrawAll();
}

void CTrendLists::Delete(CBaseTrend* trend)
{
    for (const auto& list : m_lists) {
        if (!list->ReleaseFirstSeries(trend))
            continue;
        const std::vector<int> series = trend->AllSeries();
        for (std::size_t i = 1; i < series.size(); ++i)
            m_pool.GiveBack(series[i]);
        if (trend->GetFirstLabel() != 0) {
            m_nextLabel -= CFibonacciRetracementsTrend::Levels;
            for (int i = list->IndexOf(trend) + 1; i < list->Count(); ++i)
                list->Item(i).SetFirstLabel(list->Item(i).GetFirstLabel() -
                                            CFibonacciRetracementsTrend::Levels);
        }
        if (m_lastHit == trend)
            m_lastHit = nullptr;
        list->Remove(trend);
        return;
    }
}

void CTrendLists::RemoveAll()
{
    for (const auto& list : m_lists)
        list->RemoveAll();
    m_nextLabel = PriceLabels;
    m_lastHit = nullptr;
}

int CTrendLists::Count() const
{
    int count = 0;
    for (const auto& list : m_lists)
        count += list->Count();
    return count;
}

bool CTrendLists::Holds(const CBaseTrend* trend) const
{
    for (const auto& list : m_lists) {
        if (list->Holds(trend))
            return true;
    }
    return false;
}

int CTrendLists::AllocateLabels()
{
    const int first = CFibonacciRetracementsTrend::AddLabels(m_owner);
    m_nextLabel = first - 1 + CFibonacciRetracementsTrend::Levels;
    return first;
}

} // namespace zantroq
