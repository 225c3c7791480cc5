#include "qt/paint/PainterCanvas.h"

#include "paint/DashPattern.h"
#include "qt/paint/CutShapes.h"

#include <QPaintEngine>
#include <QPen>

#include <algorithm>

namespace zantroq {

namespace {

QRect Rectangle(const sPixelRect& rect)
{
    return {rect.Left, rect.Top, rect.Width(), rect.Height()};
}

} // namespace

CPainterCanvas::CPainterCanvas(QPainter& painter, CPaneText& text, const sPixelRect& pane)
    : m_painter(painter),
      m_text(text),
      m_pane(Rectangle(pane)),
      m_ignoresClips(painter.paintEngine()->type() == QPaintEngine::SVG)
{
}

void CPainterCanvas::Fill(const sPixelRect& rect, PixelColor color)
{
    const QRect cut = Rectangle(rect) & m_pane;
    if (!cut.isEmpty())
        m_painter.fillRect(cut, QColor(color));
}

void CPainterCanvas::Line(const sInkLine& line, const sPixelRect& plot)
{
    // Limits heights far outside the plot, because readers of vector files lose precision for large numbers.
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
    const QColor color(PixelOf(line.Color));
    QPen pen(color, line.Width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    const std::optional<sDashPattern> dashes = CurveDashes(line.Pattern);
    const QRect box = Rectangle(plot) & m_pane;
    const double half = line.Width / 2.0;
    if (box.isEmpty())
        return;
    m_painter.save();
    m_painter.setClipRect(box, Qt::IntersectClip);
    m_painter.setRenderHint(QPainter::Antialiasing);
    if (IsCutByHand(path.controlPointRect().adjusted(-half, -half, half, half), box)) {
        std::optional<sDashes> units;
        if (dashes)
            units = sDashes{1.0 * dashes->On * line.Width, 1.0 * dashes->Off * line.Width};
        const sCutStroke cut = CutStroke(path, line.Width, units, box);
        if (!cut.Stroked.isEmpty())
            m_painter.strokePath(cut.Stroked, pen);
        if (!cut.Filled.isEmpty())
            m_painter.fillPath(cut.Filled, color);
    } else {
        if (dashes)
            pen.setDashPattern({1.0 * dashes->On, 1.0 * dashes->Off});
        m_painter.strokePath(path, pen);
    }
    m_painter.restore();
}

void CPainterCanvas::Text(int left, int top, std::string_view text, PixelColor color)
{
    const QString line = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    const QPointF base(left, top + m_text.Ascent());
    if (IsCutByHand(QRectF(left, top, m_text.Advance(text), m_text.LineHeight()), m_pane)) {
        // A text that extends beyond the pane is drawn as the shapes of its letters.
        QPainterPath letters;
        letters.addText(base, m_text.Font(), line);
        const QPainterPath cut = CutPath(letters, m_pane);
        if (!cut.isEmpty())
            m_painter.fillPath(cut, QColor(color));
        return;
    }
    m_painter.setFont(m_text.Font());
    m_painter.setPen(QColor(color));
    m_painter.drawText(base, line);
}

} // namespace zantroq
