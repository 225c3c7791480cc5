#include "qt/paint/PanePainter.h"

#include "qt/paint/PainterCanvas.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zantroq {

namespace {

int DeviceSize(int pixels, double ratio)
{
    return static_cast<int>(std::floor(std::clamp(pixels, 0, 32000) * ratio + 0.5));
}

sRaster RasterOf(QImage& picture)
{
    static_assert(sizeof(QRgb) == sizeof(PixelColor));
    return {reinterpret_cast<PixelColor*>(picture.bits()), static_cast<int>(picture.bytesPerLine() / 4),
            picture.width(), picture.height()};
}

} // namespace

CPanePainter::CPanePainter(const CChart2D& chart, const QString& family, InkDetail detail)
    : m_chart(chart), m_detail(detail), m_text(family), m_raster(chart, m_text, detail)
{
}

const QImage& CPanePainter::Picture(double devicePixelRatio)
{
    const double ratio = std::clamp(devicePixelRatio, 0.1, 16.0);
    const int width = DeviceSize(m_chart.PixelWidth(), ratio),
              height = DeviceSize(m_chart.PixelHeight(), ratio);
    m_damage = {};
    if (m_picture.width() != width || m_picture.height() != height || ratio != m_ratio) {
        m_picture = width > 0 && height > 0 ? QImage(width, height, QImage::Format_RGB32) : QImage();
        m_picture.setDevicePixelRatio(ratio);
        m_ratio = ratio;
        m_raster.Forget();
    }
    if (m_picture.isNull())
        return m_picture;
    m_text.SetScale(ratio);
    m_damage = m_raster.Paint(RasterOf(m_picture), ratio);
    return m_picture;
}

void CPanePainter::SetManner(PaneManner manner)
{
    m_manner = manner;
    m_raster.SetManner(manner);
}

QRect CPanePainter::Damage() const
{
    if (m_damage.Width() <= 0 || m_damage.Height() <= 0)
        return {};
    const int left = static_cast<int>(std::floor(m_damage.Left / m_ratio)),
              top = static_cast<int>(std::floor(m_damage.Top / m_ratio));
    return {left, top, static_cast<int>(std::ceil(m_damage.Right / m_ratio)) - left,
            static_cast<int>(std::ceil(m_damage.Bottom / m_ratio)) - top};
}

void CPanePainter::PaintInto(QPainter& painter, const QRectF& box)
{
    const int width = m_chart.PixelWidth(), height = m_chart.PixelHeight();
    if (width <= 0 || height <= 0 || box.width() <= 0 || box.height() <= 0)
        return;
    const double scale = std::min(box.width() / width, box.height() / height);
    const sPixelRect whole{0, 0, DeviceSize(width, scale), DeviceSize(height, scale)};
    if (whole.Right <= 0 || whole.Bottom <= 0)
        return;
    const sPlotMap map(m_chart, scale);
    m_text.SetScale(scale);
    CPaneLayers layers(m_detail);
    layers.SetManner(m_manner);
    layers.UpdateInk(m_chart, map, scale);
    layers.SetDecorations(PlaceDecorations(m_chart, map, scale, whole.Right, whole.Bottom, m_text, m_manner));
    const sPaneDecorations& decorations = layers.Decorations();
    painter.save();
    painter.translate(box.topLeft());
    painter.scale(box.width() / whole.Right, box.height() / whole.Bottom);
    painter.setClipRect(QRect(0, 0, whole.Right, whole.Bottom), Qt::IntersectClip);
    CPainterCanvas canvas(painter, m_text, whole);
    canvas.Fill(whole, decorations.Background);
    if (!map.Empty() && decorations.PlotBackground != decorations.Background)
        canvas.Fill(map.Plot, decorations.PlotBackground);
    layers.PaintGrid(canvas, whole);
    layers.PaintData(canvas, map.Plot, map.Plot);
    layers.PaintAbove(canvas, whole);
    painter.restore();
}

QImage PanePicture(const CChart2D& chart, double devicePixelRatio, const QString& family, PaneManner manner)
{
    CPanePainter painter(chart, family);
    painter.SetManner(manner);
    return painter.Picture(devicePixelRatio);
}

} // namespace zantroq
