// The value that means "no value" in study arithmetic: the pane's hole value. Pure functions, any thread.
#pragma once

#include "scene/HoleValue.h"

namespace zantroq {

inline constexpr double StudyHole = HoleValue;

inline bool IsHole(double value)
{
    return value == StudyHole;
}

// Leaves the variable unchanged if `value` is the hole value.
inline void AssignValue(double& variable, double value)
{
    if (!IsHole(value))
        variable = value;
}

} // namespace zantroq
