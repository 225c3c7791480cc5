#include "paint/PaneCanvas.h"

namespace zantroq {

void IPaneCanvas::Rects(std::span<const sInkRect> rects)
{
    for (const sInkRect& rect : rects)
        Fill({rect.Left, rect.Top, rect.Right, rect.Bottom}, PixelOf(rect.Color));
}

void IPaneCanvas::Columns(const CInkColumns& ink, std::span<const sInkColumn> columns)
{
    for (const sInkColumn& column : columns) {
        const std::span<const std::uint8_t> shades = ink.Shades(column);
        for (std::size_t i = 0, end; i < shades.size(); i = end) {
            for (end = i + 1; end < shades.size() && shades[end] == shades[i];)
                ++end;
            Fill({column.Column, column.Top + static_cast<int>(i), column.Column + 1,
                  column.Top + static_cast<int>(end)},
                 PixelOf(ink.ColorOf(shades[i])));
        }
    }
}

} // namespace zantroq
