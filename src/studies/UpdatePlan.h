// How a study pane makes room for live points: which points it drops at its left edge, the x values of the
// points after that, and which points are new. Pure functions, any thread.
#pragma once

#include <cstdint>

namespace zantroq {

// The pane before the update.
struct sPaneBefore
{
    int Points = 0;       // number of points in the pane
    int XLow = 0;         // x of its first point: the integer part of the x axis's low end
    int WindowPoints = 0; // number of points that the window is set to show
    int LastIndex = 0;    // series index of the last displayed point after the update
};

struct sUpdatePlan
{
    int Dropped = 0;     // points dropped at the left edge
    int Kept = 0;        // points that remain and move left by Dropped
    int Points = 0;      // number of points in the pane after the update
    int FirstNew = 0;    // first point to compute, counted from 1
    int XOffset = 0;     // x value of a point minus its number
    int FirstIndex = 0;  // index of FirstNew in the series
    int MarkerShift = 0; // shift of the marker to the left
    int XLow() const { return XOffset + 1; }
    int XHigh() const { return XOffset + Points; }
    int NewPoints() const { return Points - FirstNew + 1; }
};

// `newPoints` must be at least 1. A pane with more points than the window displays keeps its number of
// points.
sUpdatePlan PlanUpdate(const sPaneBefore& pane, int newPoints);

} // namespace zantroq
