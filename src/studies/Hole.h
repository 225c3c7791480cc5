// The value that means "no value here" in study arithmetic: the pane's hole value.
#pragma once

#include "scene/PaneObjects.h"

namespace zantroq {

inline constexpr double StudyHole = CPaneData::HoleValue();

inline bool IsHole(double value)
{
    return value == StudyHole;
}

// What has no value leaves the variable as it is.
inline void AssignValue(double& variable, double value)
{
    if (!IsHole(value))
        variable = value;
}

} // namespace zantroq
