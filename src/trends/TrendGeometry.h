// What every trendline kind needs of the price pane: display positions, writing a curve into a series of
// group 2, and the two distance rules. Chart window's thread.
//
// A display position is a data index minus the first displayed index plus 1, so 1 to `shown` are on the pane;
// a position outside is legal and simply not drawn.
#pragma once

#include "drawing/ChartWindow.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace zantroq {

inline constexpr int NotHittable = 1000; // the distance of a line that cannot be hit

struct sTrendLook
{
    ColorValue Color = 0;
    int Pattern = LineSolid;
    int Width = 1;
};

enum class XVector
{
    Keep,
    Write
};

inline int DisplayPosition(const IPaneWindow& window, int index)
{
    return index - window.Range().first + 1;
}

// The integer part of the x axis's left edge.
int AxisBase(IPaneWindow& window);

// The values of a series of group 2 for a whole draw to write in place, with its look set: first point 1,
// drawn to the last displayed point. Empty when the pane has no such series.
std::span<double> BeginTrendSeries(IPaneWindow& window, int series, const sTrendLook& look, XVector x);
// Ends the writing of a series: the scene takes the values over.
void EndTrendSeries(IPaneWindow& window);

// Writes value(i) at positions from..to of a series and the hole value at the other displayed points. One
// pass, nothing allocated. Inside of a batch.
template<class Value>
void WriteTrendSeries(IPaneWindow& window, int series, const sTrendLook& look, XVector x, int from, int to,
                      Value value)
{
    const std::span<double> y = BeginTrendSeries(window, series, look, x);
    const int points = static_cast<int>(y.size());
    const int first = std::clamp(from, 1, points + 1);
    const int last = std::max(std::min({to, window.Range().shown, points}), first - 1);
    double* const values = y.data();
    std::fill_n(values, first - 1, CPaneData::HoleValue());
    for (int i = first; i <= last; ++i)
        values[i - 1] = value(i);
    std::fill_n(values + last, points - last, CPaneData::HoleValue());
    EndTrendSeries(window);
}

// Writes one price from a position to the last point, and holes before it. Costs what changes.
void WriteTrendLevel(IPaneWindow& window, int series, const sTrendLook& look, XVector x, int from,
                     double price);

// The hole value at every displayed point of a series.
void EraseTrendSeries(IPaneWindow& window, int series);

// Pixels from (x, y) to the level line that series draws from position p1 to p2: to an end beyond the ends,
// |dy| between them. NotHittable when its left end is a hole or off the plot.
int LevelDistance(IPaneWindow& window, int series, int p1, int p2, int x, int y);

// The segment rule: p1 and p2 first move together over points that are holes or off the plot; then the
// distance to an end beyond the ends, and to the infinite line between them. NotHittable when no two visible
// points are left.
int SegmentDistance(IPaneWindow& window, int series, int p1, int p2, int x, int y);

// The range of a hit test that starts at a line's left end and runs to the last displayed point; false:
// nothing to hit.
bool ClipRayRange(const IPaneWindow& window, int& p1, int& p2);

} // namespace zantroq
