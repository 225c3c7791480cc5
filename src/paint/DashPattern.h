// Lengths of the dashes of patterned lines, for every kind of canvas.
#pragma once

#include "scene/PaneLooks.h"

#include <optional>

namespace zantroq {

// In widths of the line.
struct sDashPattern
{
    int On, Off;
    int Period() const { return On + Off; }
};

// Dashes of a line through data. Nothing for patterns without dashes.
constexpr std::optional<sDashPattern> CurveDashes(int pattern)
{
    if (pattern == LineLongDashes)
        return sDashPattern{8, 4};
    if (pattern == LineShortDashes)
        return sDashPattern{3, 3};
    return std::nullopt;
}

// Dashes of a straight line on whole pixels (grid, marker). Its edges are sharp, so shorter dashes still read
// as dashes.
constexpr std::optional<sDashPattern> RuleDashes(int pattern)
{
    if (pattern == LineShortDashes)
        return sDashPattern{2, 2};
    return CurveDashes(pattern);
}

} // namespace zantroq
