#include "qt/PainterCanvas.h"

#include <QPainterPath>
#include <QPen>

#include <algorithm>

namespace zantroq {

void CPainterCanvas::Fill(const sPixelRect& rect, QRgb colour)
{
    m_painter.fillRect(QRect(rect.Left, rect.Top, rect.Width(), rect.Height()), QColor(colour));
}

void CPainterCanvas::Line(const sInkLine& line, const sPixelRect& plot)
{
    // Heights far outside are brought near, where a vector file's reader still has exact numbers for them.
    const double far = 20.0 * std::max(1, plot.Height());
    const auto point = [&](int column, int height) {
        return QPointF(column + 0.5,
                       std::clamp(height / double(sInkVertex::One) + 0.5, plot.Top - far, plot.Bottom + far));
    };
    QPainterPath path;
    for (std::size_t i = 0; i < line.Vertices.size(); ++i) {
        const sInkVertex& vertex = line.Vertices[i];
        const bool goesOn = i + 1 < line.Vertices.size() && line.Vertices[i + 1].Joined;
        if (vertex.Joined)
            path.lineTo(point(vertex.Column, vertex.First));
        else
            path.moveTo(point(vertex.Column, vertex.First));
        if (vertex.Top != vertex.Bottom) {
            path.lineTo(point(vertex.Column, vertex.Top));
            path.lineTo(point(vertex.Column, vertex.Bottom));
            path.lineTo(point(vertex.Column, vertex.Last));
        } else if (!vertex.Joined && !goesOn) {
            path.moveTo(point(vertex.Column, vertex.First) - QPointF(line.Width / 2.0, 0));
            path.lineTo(point(vertex.Column, vertex.First) + QPointF(line.Width / 2.0, 0));
        }
    }
    QPen pen(QColor(ScreenColour(line.Color)), line.Width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (line.Pattern == LineLongDashes)
        pen.setDashPattern({8, 4});
    else if (line.Pattern == LineShortDashes)
        pen.setDashPattern({3, 3});
    m_painter.save();
    m_painter.setClipRect(QRect(plot.Left, plot.Top, plot.Width(), plot.Height()), Qt::IntersectClip);
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.strokePath(path, pen);
    m_painter.restore();
}

void CPainterCanvas::Text(int left, int top, std::string_view text, QRgb colour)
{
    m_painter.setFont(m_text.Font());
    m_painter.setPen(QColor(colour));
    m_painter.drawText(QPointF(left, top + m_text.Ascent()),
                       QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

} // namespace zantroq
