// What a pane is painted on: whole device pixels, lines of a pane's ink and lines of text. One canvas writes
// pixels of a picture itself, another goes through QPainter to vectors and printed pages.
#pragma once

#include "ink/PaneInk.h"

#include <QRgb>

#include <span>
#include <string_view>

namespace zantroq {

inline QRgb ScreenColor(ColorValue color)
{
    return qRgb(color & 0xff, (color >> 8) & 0xff, (color >> 16) & 0xff);
}

// weight of b in 256ths
inline QRgb Mixed(QRgb a, QRgb b, int weight)
{
    const auto mix = [weight](int from, int to) { return (from * (256 - weight) + to * weight) / 256; };
    return qRgb(mix(qRed(a), qRed(b)), mix(qGreen(a), qGreen(b)), mix(qBlue(a), qBlue(b)));
}

class IPaneCanvas
{
public:
    virtual ~IPaneCanvas() = default;
    virtual void Fill(const sPixelRect& rect, QRgb color) = 0;
    // One after the other.
    virtual void Rects(std::span<const sInkRect> rects)
    {
        for (const sInkRect& rect : rects)
            Fill({rect.Left, rect.Top, rect.Right, rect.Bottom}, ScreenColor(rect.Color));
    }
    // Some of the columns of `ink`.
    virtual void Columns(const CInkColumns& ink, std::span<const sInkColumn> columns);
    virtual void Line(const sInkLine& line, const sPixelRect& plot) = 0; // clipped to the plot
    virtual void Text(int left, int top, std::string_view text, QRgb color) = 0;
};

} // namespace zantroq
