#include "qt/dialogs/CandlePreview.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace zantroq {
namespace {

// In units of the square plot: 0 to 1, upwards.
struct sCandle
{
    double X, Open, High, Low, Close;
};

constexpr std::array<sCandle, 6> Candles{{{0.10, 0.25, 0.45, 0.15, 0.40},
                                          {0.25, 0.40, 0.65, 0.35, 0.60},
                                          {0.40, 0.60, 0.70, 0.40, 0.45},
                                          {0.55, 0.45, 0.55, 0.25, 0.30},
                                          {0.70, 0.30, 0.60, 0.28, 0.55},
                                          {0.85, 0.55, 0.88, 0.50, 0.80}}};
constexpr double BodyWidth = 0.08;
constexpr double PriceBarAt = 0.55;
constexpr int GridLines = 4;

class CPlot
{
public:
    explicit CPlot(const QRectF& area) : m_area(area) {}
    double X(double x) const { return m_area.left() + x * m_area.width(); }
    double Y(double y) const { return m_area.bottom() - y * m_area.height(); }
    QLineF Vertical(double x, double from, double to) const { return {X(x), Y(from), X(x), Y(to)}; }
    QLineF Horizontal(double y) const { return {m_area.left(), Y(y), m_area.right(), Y(y)}; }
    QRectF Body(const sCandle& candle) const
    {
        return {QPointF(X(candle.X - BodyWidth / 2), Y(std::max(candle.Open, candle.Close))),
                QPointF(X(candle.X + BodyWidth / 2), Y(std::min(candle.Open, candle.Close)))};
    }

private:
    QRectF m_area;
};

} // namespace

void CCandlePreview::SetColors(const sPreviewColors& colors)
{
    m_colors = colors;
    update();
}

QSize CCandlePreview::sizeHint() const
{
    const int line = fontMetrics().height();
    return {14 * line, 8 * line};
}

void CCandlePreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_colors.Background);
    const int line = fontMetrics().height();
    const CPlot plot(QRectF(rect()).adjusted(3.0 * line, line / 2.0, -line / 2.0, -line / 2.0));
    painter.setPen(QPen(m_colors.Grid, 0, Qt::DashLine));
    for (int k = 0; k <= GridLines; ++k)
        painter.drawLine(plot.Horizontal(static_cast<double>(k) / GridLines));
    painter.setPen(m_colors.Label);
    for (int k = 0; k <= GridLines; k += 2) {
        const double y = plot.Y(static_cast<double>(k) / GridLines);
        painter.drawText(QRectF(0, y - line / 2.0, 2.6 * line, line), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(100 + 5 * k));
    }
    painter.setPen(m_colors.PriceBar);
    painter.drawLine(plot.Vertical(PriceBarAt, 0, 1));
    for (const sCandle& candle : Candles) {
        painter.setPen(m_colors.Data);
        painter.drawLine(plot.Vertical(candle.X, candle.Low, candle.High));
        painter.setBrush(candle.Close >= candle.Open ? m_colors.Up : m_colors.Down);
        painter.drawRect(plot.Body(candle));
    }
}

} // namespace zantroq
