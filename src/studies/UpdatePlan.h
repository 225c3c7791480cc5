// How a study pane makes room for live points: which points it drops at its left edge, which x values the
// points have then, and which of them are new. Pure arithmetic, any thread.
#pragma once

#include <cstdint>

namespace zantroq {

// The pane before the update.
struct sPaneBefore
{
    int Points = 0;       // points of the pane
    int XLow = 0;         // x of its first point: the whole part of the x axis's low end
    int WindowPoints = 0; // points that the window is set to show
    int LastIndex = 0;    // series index of the last point on show after the update
};

struct sUpdatePlan
{
    int Dropped = 0;     // points that leave at the left edge
    int Kept = 0;        // points that stay and move left by Dropped
    int Points = 0;      // the pane's points after the update
    int FirstNew = 0;    // the first point to compute, from 1
    int XOffset = 0;     // a point's x is its number plus this
    int FirstIndex = 0;  // the series index of FirstNew
    int MarkerShift = 0; // a marker moves left by this
    int XLow() const { return XOffset + 1; }
    int XHigh() const { return XOffset + Points; }
    int NewPoints() const { return Points - FirstNew + 1; }
};

// newPoints is at least 1. A pane that holds more than the window's points keeps its size.
sUpdatePlan PlanUpdate(const sPaneBefore& pane, int newPoints);

} // namespace zantroq
