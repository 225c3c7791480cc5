// The drawing operations that painting a pane needs. CRasterCanvas writes the pixels of a picture; the face
// has another canvas for vector files and printed pages. Coordinates are device pixels from the picture's top
// left corner.
#pragma once

#include "ink/PaneInk.h"
#include "paint/PixelColor.h"

#include <span>
#include <string_view>

namespace zantroq {

class IPaneCanvas
{
public:
    virtual ~IPaneCanvas() = default;
    virtual void Fill(const sPixelRect& rect, PixelColor color) = 0;
    // Fills the rectangles in order.
    virtual void Rects(std::span<const sInkRect> rects);
    // Paints columns of `ink`; `columns` is a part of ink.Columns().
    virtual void Columns(const CInkColumns& ink, std::span<const sInkColumn> columns);
    // Strokes a line, clipped to the plot.
    virtual void Line(const sInkLine& line, const sPixelRect& plot) = 0;
    // (left, top) is the corner of the text's line box.
    virtual void Text(int left, int top, std::string_view text, PixelColor color) = 0;
};

} // namespace zantroq
