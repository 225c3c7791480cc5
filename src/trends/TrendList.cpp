#include "trends/TrendList.h"

namespace zantroq {

CBaseTrend* CTrendList::Add(std::unique_ptr<CBaseTrend> trend)
{
    trend->m_owner = &m_owner;
    m_trends.push_back(std::move(trend));
    return m_trends.back().get();
}

CBaseTrend* CTrendList::FindNearest(int x, int y, int* distance) const
{
    *distance = -1;
    CBaseTrend* nearest = nullptr;
    for (const auto& trend : m_trends) {
        const int d = trend->HitDistance(x, y);
        if (!nearest || d < *distance) {
            nearest = trend.get();
            *distance = d;
        }
    }
    return nearest;
}

void CTrendList::DrawAll()
{
    for (const auto& trend : m_trends)
        trend->Draw();
}

void CTrendList::RemoveAll()
{
    while (!m_trends.empty()) {
        m_trends.back()->Erase();
        m_trends.pop_back();
    }
    m_pool.Reset();
}

void CTrendList::SetAllColors(ColorValue color)
{
    for (const auto& trend : m_trends)
        trend->m_color = color;
}

void CTrendList::SetAllWidths(int width)
{
    for (const auto& trend : m_trends)
        trend->m_width = width;
}

void CTrendList::SetAllExtendable(int flag)
{
    for (const auto& trend : m_trends)
        trend->m_extendable = flag;
}

bool CTrendList::ReleaseFirstSeries(CBaseTrend* trend)
{
    if (!Holds(trend))
        return false;
    trend->Erase();
    m_pool.GiveBack(trend->m_series);
    return true;
}

void CTrendList::Remove(CBaseTrend* trend)
{
    const int index = IndexOf(trend);
    if (index >= 0)
        m_trends.erase(m_trends.begin() + index);
}

int CTrendList::IndexOf(const CBaseTrend* trend) const
{
    for (int i = 0; i < Count(); ++i) {
        if (m_trends[static_cast<std::size_t>(i)].get() == trend)
            return i;
    }
    return -1;
}

} // namespace zantroq
