// The value axes of study panes: ends, spacings and labels. Chart window's thread.
//
// Each function sets both value axes, "y" and "y2", to the same range and labels the axis of the chosen side.
// The grid spacing of "y" is written only while the grid is on.
#pragma once

#include "scene/Chart2D.h"
#include "settings/ChartSettings.h"

#include <cstdint>

namespace zantroq {

struct sStudyAxisLook
{
    AxisSide Side = AxisSide::Left; // the axis with the labels
    bool Grid = false;
};

// A round spacing with about n steps from bottom to top. Start is the multiple of Step at or below bottom;
// Step is a whole multiple of 10 to the power Exponent. If there is no such spacing, because the range is
// empty, not finite or too small, Step is 0 and Start is bottom.
struct sAxisStep
{
    double Step = 0, Start = 0;
    int Exponent = 0;
};
sAxisStep ChooseAxisStep(double top, double bottom, int n);

// A value axis that fits its data. If max is below min (no data) or an end is not finite, only the labels are
// removed.
void SetStudyYAxis(CChart2D& chart, const sStudyAxisLook& look, double max, double min);

// An axis from low to high with labels at 25, 50 and 75.
void SetPercentYAxis(CChart2D& chart, const sStudyAxisLook& look, double high, double low);

// The axis of the volume pane, from 0 to max. A maximum below 10 counts as 1,000, one above 2 * 10^18 as 2 *
// 10^18.
void SetVolumeYAxis(CChart2D& chart, const sStudyAxisLook& look, std::int64_t max);

} // namespace zantroq
