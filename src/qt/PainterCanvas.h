// A pane's pixels through QPainter: for vector files and printed pages, where a device pixel is a unit of the
// painter. Chart window's thread.
#pragma once

#include "qt/PaneCanvas.h"
#include "qt/PaneText.h"

#include <QPainter>

namespace zantroq {

class CPainterCanvas : public IPaneCanvas
{
public:
    CPainterCanvas(QPainter& painter, CPaneText& text) : m_painter(painter), m_text(text) {}

    void Fill(const sPixelRect& rect, QRgb colour) override;
    void Line(const sInkLine& line, const sPixelRect& plot) override;
    void Text(int left, int top, std::string_view text, QRgb colour) override;

private:
    QPainter& m_painter;
    CPaneText& m_text;
};

} // namespace zantroq
