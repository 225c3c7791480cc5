// Functions for all kinds of trendline: display positions, writing a curve into a series of group 2 of the
// price pane, and the two distance rules. Chart window's thread.
//
// A display position is a data index minus the first displayed index plus 1, so positions 1 to `shown` are in
// the pane. Other positions are valid and are not drawn.
#pragma once

#include "drawing/ChartWindow.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace zantroq {

inline constexpr int NotHittable = 1000; // distance of a line that cannot be hit

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

// Prepares a series of group 2 for a whole draw: sets its style, makes point 1 its first point and the last
// displayed point its last, and returns its values for writing. Empty if the pane has no such series.
std::span<double> BeginTrendSeries(IPaneWindow& window, int series, const sTrendLook& look, XVector x);
// Ends the writing of a series: the scene takes the values over.
void EndTrendSeries(IPaneWindow& window);

// Writes value(i) at positions from..to of a series and the hole value at the other displayed points. One
// pass, no allocation. Must be called inside a batch.
template<class Value>
void WriteTrendSeries(IPaneWindow& window, int series, const sTrendLook& look, XVector x, int from, int to,
                      Value value)
{
    const std::span<double> y = BeginTrendSeries(window, series, look, x);
    const int points = static_cast<int>(y.size());
    const int first = std::clamp(from, 1, points + 1);
    const int last = std::max(std::min({to, window.Range().shown, points}), first - 1);
    double* const values = y.data();
    std::fill_n(values, first - 1, HoleValue);
    for (int i = first; i <= last; ++i)
        values[i - 1] = value(i);
    std::fill_n(values + last, points - last, HoleValue);
    EndTrendSeries(window);
}

// Writes one price from a position to the last point, and holes before it. Writes only values that change.
void WriteTrendLevel(IPaneWindow& window, int series, const sTrendLook& look, XVector x, int from,
                     double price);

// Writes the hole value at every displayed point of a series.
void EraseTrendSeries(IPaneWindow& window, int series);

// Distance in pixels from (x, y) to the level line of `series` from position p1 to p2: beyond its ends the
// distance to the nearer end, otherwise |dy|. NotHittable if its left end is a hole or off the plot.
int LevelDistance(IPaneWindow& window, int series, int p1, int p2, int x, int y);

// The segment rule: p1 and p2 first move together over points that are holes or off the plot. Beyond
// the ends the distance is measured to the nearer end, otherwise to the infinite line through both points.
// NotHittable if fewer than two visible points are left.
int SegmentDistance(IPaneWindow& window, int series, int p1, int p2, int x, int y);

// The range of a hit test from the left end of a line to the last displayed point. Returns false if it is
// empty.
bool ClipRayRange(const IPaneWindow& window, int& p1, int& p2);

} // namespace zantroq
