// Paints a pane with a QPainter, for vector files and printed pages. A device pixel is one unit of the
// painter. Chart window's thread.
#pragma once

#include "paint/PaneCanvas.h"
#include "qt/paint/PaneText.h"

#include <QPainter>
#include <QPainterPath>

namespace zantroq {

class CPainterCanvas : public IPaneCanvas
{
public:
    // Paints only inside `pane`. Neither the painter nor the text is owned.
    CPainterCanvas(QPainter& painter, CPaneText& text, const sPixelRect& pane);

    void Fill(const sPixelRect& rect, PixelColor color) override;
    void Line(const sInkLine& line, const sPixelRect& plot) override;
    void Text(int left, int top, std::string_view text, PixelColor color) override;

private:
    bool IsCutByHand(const QRectF& ink, const QRectF& box) const
    {
        return m_ignoresClips && !box.contains(ink);
    }

    QPainter& m_painter;
    CPaneText& m_text;
    const QRect m_pane;
    const bool m_ignoresClips; // true for QSvgGenerator: shapes are then cut by computation
};

} // namespace zantroq
