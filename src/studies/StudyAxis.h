// The value axes of study panes: their ends, spacings and labels. Chart window's thread.
//
// Each operation sets both value axes, "y" and "y2", to the same range and labels the one of the chosen side.
// The grid spacing of "y" is written only while the grid is on.
#pragma once

#include "scene/Chart2D.h"
#include "settings/ChartSettings.h"

#include <cstdint>

namespace zantroq {

struct sStudyAxisLook
{
    AxisSide Side = AxisSide::Left; // which axis carries the labels
    bool Grid = false;
};

// A round spacing for about n steps from bottom to top. Start is the multiple of Step at or below bottom;
// Step is Exponent decimals exact: it is a whole multiple of 10 to the power Exponent. Where there is no such
// spacing, because the range is empty or not finite or too small, Step is 0 and Start is bottom.
struct sAxisStep
{
    double Step = 0, Start = 0;
    int Exponent = 0;
};
sAxisStep ChooseAxisStep(double top, double bottom, int n);

// A value axis that fits its data. max below min stands for no data: only the labels are cleared. So it is
// with an end that is not finite, which no axis can show.
void SetStudyYAxis(CChart2D& chart, const sStudyAxisLook& look, double max, double min);

// An axis from low to high with labels at 25, 50 and 75.
void SetPercentYAxis(CChart2D& chart, const sStudyAxisLook& look, double high, double low);

// The axis of the volume pane, from 0. A maximum below 10 counts as 1,000, one above 2 * 10^18 as that.
void SetVolumeYAxis(CChart2D& chart, const sStudyAxisLook& look, std::int64_t max);

} // namespace zantroq
