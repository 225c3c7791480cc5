// The ends and spacings of an axis under the names that they have in a pane file.
#pragma once

#include "scene/PaneObjects.h"

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
