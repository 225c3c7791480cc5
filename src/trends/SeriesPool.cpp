#include "trends/SeriesPool.h"

namespace zantroq {

void SetUpTrendSeries(IChartWindow& window, int series)
{
    CPaneGroup& group = window.Pane(0).PaneGroups(2);
    group.PaneData().SetSeriesCount(series);
    CSeriesStyle& style = group.SeriesStyles(series);
    style.LineLook().SetPattern(LineSolid);
    style.SymbolLook().SetShape(SymbolMark);
    style.SymbolLook().SetColour(0xC0C0C0);
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
