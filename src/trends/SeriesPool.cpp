#include "trends/SeriesPool.h"

namespace zantroq {

void SetUpTrendSeries(IPaneWindow& window, int series)
{
    CPaneGroup& group = window.Pane(0).PaneGroups(2);
    CPaneData& data = group.PaneData();
    data.SetSeriesCount(series);
    // The set-up of the price pane limited the shown series to those that existed then.
    if (data.LastShownSeries() != 0 && data.LastShownSeries() < series)
        data.SetLastShownSeries(series);
    CSeriesStyle& style = group.SeriesStyles(series);
    style.LineLook().SetPattern(LineSolid);
    style.SymbolLook().SetShape(SymbolMark);
    style.SymbolLook().SetColor(0xC0C0C0);
    style.SymbolLook().SetSize(3);
}

int CSeriesPool::Allocate()
{
    if (m_freeSeries.empty()) {
        SetUpTrendSeries(m_window, m_nextSeries);
        return m_nextSeries++;
    }
    const int series = m_freeSeries.front();
    m_freeSeries.pop_front();
    return series;
}

void CSeriesPool::Reset()
{
    m_freeSeries.clear();
    m_nextSeries = FirstSeries;
}

} // namespace zantroq
