// A straight horizontal or vertical line on whole device pixels: grid, frame, tick marks, marker.
#pragma once

#include "paint/PaneCanvas.h"

namespace zantroq {

enum class RuleDirection
{
    Horizontal,
    Vertical,
};

struct sRuledLine
{
    sPixelRect Rect; // its whole width and length
    RuleDirection Direction = RuleDirection::Horizontal;
    int Pattern = LineSolid; // a LinePattern
    PixelColor Color = 0;

    bool IsVertical() const { return Direction == RuleDirection::Vertical; }
};

// Draws the part of the line inside `within`, and possibly more. Dashes count from the line's own start, so
// that parts drawn one by one fit together.
void DrawRuled(IPaneCanvas& canvas, const sRuledLine& line, const sPixelRect& within);

} // namespace zantroq
