// The y value that means "no data". Plain constants, any thread.
#pragma once

namespace zantroq {

// Stands at every point of a pane that has no value. Finite, so that it can be compared with ==; no price or
// study value comes near it.
inline constexpr double HoleValue = 1e+308;

// False for holes and not-a-numbers. Infinities are drawn, at the plot's edge.
inline bool IsDrawn(double y)
{
    return y == y && y != HoleValue;
}

} // namespace zantroq
