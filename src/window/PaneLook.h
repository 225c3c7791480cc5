// What the window changes on panes that stand: grid, marker, side of the value axis. Pure functions over one
// scene.
#pragma once

#include "drawing/Chart2D.h"

namespace zantroq {

// Off: no grid lines. On: one at each tick, in the style and colour of the settings.
void ApplyGrid(CChart2D& pane, const sChartSettings& settings);

// Shows the value labels on the side of the settings; labels that stand on the other axis move over with
// their values.
void ApplyAxisSide(CChart2D& pane, const sChartSettings& settings);

} // namespace zantroq
