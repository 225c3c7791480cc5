// The series numbers of group 2 of the price pane that trendlines draw into. Numbers 1 to 3 belong to the
// price pane. A released number is used again, first in first out, before a new number. Chart window's
// thread.
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
    // Returns a free number. The series of a new number is first set up: solid line, grey marks of size 3.
    int Allocate();
    void GiveBack(int series) { m_freeSeries.push_back(series); }
    void Reset();
    int Next() const { return m_nextSeries; }
    const std::deque<int>& Free() const { return m_freeSeries; }

private:
    IPaneWindow& m_window;
    int m_nextSeries = FirstSeries; // next new number
    std::deque<int> m_freeSeries;
};

// Creates a series in group 2, shows it and gives it the style of a new trendline.
void SetUpTrendSeries(IPaneWindow& window, int series);

} // namespace zantroq
