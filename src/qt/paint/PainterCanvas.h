// A pane's pixels through QPainter: for vector files and printed pages, where a device pixel is a unit of the
// painter. Chart window's thread.
#pragma once

#include "qt/paint/PaneCanvas.h"
#include "qt/paint/PaneText.h"

#include <QPainter>
#include <QPainterPath>

namespace zantroq {

class CPainterCanvas : public IPaneCanvas
{
public:
    // Nothing is painted outside of `pane`. Neither the painter nor the text is owned.
    CPainterCanvas(QPainter& painter, CPaneText& text, const sPixelRect& pane);

    void Fill(const sPixelRect& rect, QRgb color) override;
    void Line(const sInkLine& line, const sPixelRect& plot) override;
    void Text(int left, int top, std::string_view text, QRgb color) override;

private:
    bool IsCutByHand(const QRectF& ink, const QRectF& box) const
    {
        return m_ignoresClips && !box.contains(ink);
    }

    QPainter& m_painter;
    CPaneText& m_text;
    const QRect m_pane;
    const bool m_ignoresClips; // as the writer of SVG files does
};

} // namespace zantroq
