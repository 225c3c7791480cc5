// What every trendline kind needs of the price pane: display positions, writing a curve into a series of
// group 2, and the two distance rules. Chart window's thread.
//
// A display position is a data index minus the first displayed index plus 1, so 1 to `shown` are on the pane;
// a position outside is legal and simply not drawn.
#pragma once

#include "drawing/ChartWindow.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zantroq {

inline constexpr int NotHittable = 1000; // the distance of a line that cannot be hit

struct sTrendLook
{
    Colour Color = 0;
    int Pattern = LineSolid;
    int Width = 1;
};

enum class XVector
{
    Keep,
    Write
};

inline int DisplayPosition(const IChartWindow& window, int index)
{
    return index - window.Range().first + 1;
}

// The integer part of the x axis's left edge.
int AxisBase(IChartWindow& window);

// The curves of one draw are built here, so that a draw allocates nothing once the window has been seen at
// its widest.
std::vector<double>& TrendScratch(IChartWindow& window);

// Hands the scratch vector to a series of group 2 with its look: first point 1, drawn to the last displayed
// point.
void CommitTrendSeries(IChartWindow& window, int series, const sTrendLook& look, XVector x,
                       const std::vector<double>& y);

// Writes value(i) at positions from..to of a series and the hole value at the other displayed points.
template<class Value>
void WriteTrendSeries(IChartWindow& window, int series, const sTrendLook& look, XVector x, int from, int to,
                      Value value)
{
    std::vector<double>& y = TrendScratch(window);
    const int last = std::min(to, window.Range().shown);
    for (int i = std::max(from, 1); i <= last; ++i)
        y[static_cast<std::size_t>(i - 1)] = value(i);
    CommitTrendSeries(window, series, look, x, y);
}

// The hole value at every displayed point of a series.
void EraseTrendSeries(IChartWindow& window, int series);

// Pixels from (x, y) to the level line that series draws from position p1 to p2: to an end beyond the ends,
// |dy| between them. NotHittable when its left end is a hole or off the plot.
int LevelDistance(IChartWindow& window, int series, int p1, int p2, int x, int y);

// The segment rule: p1 and p2 first move together over points that are holes or off the plot; then the
// distance to an end beyond the ends, and to the infinite line between them. NotHittable when no two visible
// points are left.
int SegmentDistance(IChartWindow& window, int series, int p1, int p2, int x, int y);

// The range of a hit test that starts at a line's left end and runs to the last displayed point; false:
// nothing to hit.
bool ClipRayRange(const IChartWindow& window, int& p1, int& p2);

} // namespace zantroq
