// The x axis that all panes share: every point takes the same width whatever the time to the next, so x
// values are 1 to the number of displayed points. XSpacing, XLabelCount and PixelsPerPoint are pure; SetXAxis
// belongs to the chart window's thread.
#pragma once

#include "scene/Chart2D.h"

namespace zantroq {

// The number of points between two labels: (shown - 2) / 5 + 1 in integer division, which gives five labels.
int XSpacing(int shown);

// The number of labels with that spacing: five, or one per point if the spacing is 1.
int XLabelCount(int shown);

// The width of a point in pixels; `widthPx` is the client width of the pane. 1 if no width is left.
double PixelsPerPoint(int widthPx, int shown);

// Sum of both side margins.
inline constexpr double SideMarginsPx = 81.0;

// Sets the range and the spacings of a pane's x axis for so many points; also the grid's spacing if the grid
// is on.
void SetXAxis(CChart2D& chart, int shown, bool grid);

} // namespace zantroq
