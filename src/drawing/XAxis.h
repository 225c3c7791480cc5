// The axis that all panes share: a point takes the same room whatever the time to the next one, so x values
// are the numbers 1 to the count of points shown. Pure arithmetic, and the writing of it into a pane. Chart
// window's thread.
#pragma once

#include "scene/Chart2D.h"

namespace zantroq {

// Points between two labels: (shown - 2) / 5 + 1 in integer division, which makes five labels.
int XSpacing(int shown);

// Labels that go with that spacing: five, or one a point where the spacing is 1.
int XLabelCount(int shown);

// Room of one point in pixels; widthPx is the pane's client width. A width that leaves nothing gives 1.
double PixelsPerPoint(int widthPx, int shown);

// Both margins together: what of the client width is not plot.
inline constexpr double SideMarginsPx = 81.0;

// Range and spacings of a pane's x axis for so many points; the grid's spacing too where the grid is on.
void SetXAxis(CChart2D& chart, int shown, bool grid);

} // namespace zantroq
