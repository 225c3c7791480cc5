// The series numbers of group 2 of the price pane that trendlines draw into. Numbers 1 to 3 belong to the
// price pane; a number given back is used again, first in first out, before any new one.
#pragma once

#include "drawing/ChartWindow.h"
#include "drawing/PricePaneNumbers.h"

#include <deque>

namespace zantroq {

class CSeriesPool
{
public:
    static constexpr int FirstSeries = PriceOverlays + 1;

    explicit CSeriesPool(IPaneWindow& window) : m_window(window) {}
    // A free number; a never-used one is set up first: solid line, grey marks of size 3.
    int Allocate();
    void GiveBack(int series) { m_freeSeries.push_back(series); }
    void Reset();
    int Next() const { return m_nextSeries; }
    const std::deque<int>& Free() const { return m_freeSeries; }

private:
    IPaneWindow& m_window;
    int m_nextSeries = FirstSeries; // the next never-used number
    std::deque<int> m_freeSeries;
};

// Brings group 2 up to a new series, shows it and gives it the look of a new trendline.
void SetUpTrendSeries(IPaneWindow& window, int series);

} // namespace zantroq
