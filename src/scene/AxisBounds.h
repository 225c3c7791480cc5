// The ends and spacings of an axis with their names in a pane file. Constant, any thread.
#pragma once

#include "scene/PaneAxes.h"

#include <utility>

namespace zantroq {

inline constexpr std::pair<const char*, const CAxisBound& (CPaneAxis::*)() const> AxisBounds[] = {
    {"origin", &CPaneAxis::AxisOrigin},
    {"dataLow", &CPaneAxis::DataLow},
    {"dataHigh", &CPaneAxis::DataHigh},
    {"viewLow", &CPaneAxis::ViewLow},
    {"viewHigh", &CPaneAxis::ViewHigh},
    {"tickSpacing", &CPaneAxis::TickSpacing},
    {"tickMarkSpacing", &CPaneAxis::TickMarkSpacing},
};

} // namespace zantroq
