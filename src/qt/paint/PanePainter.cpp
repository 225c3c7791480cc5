#include "qt/paint/PanePainter.h"

#include "qt/paint/PainterCanvas.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace zantroq {

namespace {

int DeviceSize(int pixels, double ratio)
{
    return static_cast<int>(std::floor(std::clamp(pixels, 0, 32000) * ratio + 0.5));
}

sPixelRect Joined(const sPixelRect& a, const sPixelRect& b)
{
    if (a.Width() <= 0)
        return b;
    return {std::min(a.Left, b.Left), std::min(a.Top, b.Top), std::max(a.Right, b.Right),
            std::max(a.Bottom, b.Bottom)};
}

} // namespace

bool CPanePainter::sKept::operator==(const sKept& other) const
{
    return Plot.Left == other.Plot.Left && Plot.Top == other.Plot.Top && Plot.Right == other.Plot.Right &&
           Plot.Bottom == other.Plot.Bottom && Background == other.Background &&
           PlotBackground == other.PlotBackground;
}

CPanePainter::CPanePainter(const CChart2D& chart, const QString& family, InkDetail detail)
    : m_chart(chart), m_text(family), m_ink{CPaneInk(1, detail), CPaneInk(2, detail)}, m_canvas(m_text)
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
        m_fresh = true;
    }
    if (!m_picture.isNull())
        Repaint(sPlotMap(m_chart, ratio), ratio);
    return m_picture;
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

void CPanePainter::Repaint(const sPlotMap& map, double scale)
{
    m_text.SetScale(scale);
    m_canvas.SetPicture(m_picture);
    const sPixelRect whole{0, 0, m_picture.width(), m_picture.height()};
    bool all = m_fresh;
    sPixelRect columns{};
    for (CPaneInk& ink : m_ink) {
        const CPaneInk::sDamage damage = ink.Update(m_chart, map, scale);
        all = all || damage.Whole;
        if (damage.Right > damage.Left)
            columns = Joined(columns, {damage.Left, map.Plot.Top, damage.Right, map.Plot.Bottom});
    }
    if (m_fresh || m_revision != m_chart.Revision() || all) {
        m_revision = m_chart.Revision();
        m_furniture = PlaceDecorations(m_chart, map, scale, whole.Right, whole.Bottom, m_text);
        sKept kept{map.Plot, m_furniture.Background, m_furniture.PlotBackground};
        m_canvas.SetClip(whole);
        if (m_fresh || !(kept == m_kept)) {
            m_canvas.ForgetInk();
            m_kept = std::move(kept);
            m_fresh = false;
            PaintColumns(whole, map);
        } else {
            PaintOverInk(whole, map);
            PaintAbove(m_canvas, whole);
        }
        m_damage = whole;
    } else if (columns.Right > columns.Left) {
        m_canvas.SetClip(columns);
        m_damage = m_canvas.Clip(); // a plot may reach past the picture
        if (m_damage.Width() > 0 && m_damage.Height() > 0)
            PaintColumns(m_damage, map);
        m_canvas.SetClip(whole);
    }
}

// Wipes the ink that is there and paints the data, in strips that stay in the processor's cache between the
// one and the other.
void CPanePainter::PaintOverInk(const sPixelRect& whole, const sPlotMap& map)
{
    constexpr int cached = 1024 * 1024; // bytes of a strip
    const std::vector<sPixelRect>& ink = m_canvas.TakeInk();
    // Lines are looked through from end to end for each strip.
    const bool lines = !m_ink[0].Lines().empty() || !m_ink[1].Lines().empty();
    const int width = lines ? whole.Width() : std::max(16, cached / (4 * whole.Height()));
    for (int left = 0; left < whole.Right; left += width) {
        const sPixelRect strip{left, 0, std::min(left + width, whole.Right), whole.Bottom};
        m_canvas.SetClip(strip);
        m_canvas.SetMarking(false);
        for (const sPixelRect& rect : ink)
            if (rect.Left < strip.Right && rect.Right > strip.Left)
                Wipe(rect, map.Plot);
        m_canvas.SetMarking(true);
        for (const sRuledLine& line : m_furniture.Grid)
            if (line.Rect.Left < strip.Right && line.Rect.Right > strip.Left)
                DrawRuled(m_canvas, line, strip);
        PaintData(m_canvas, std::max(strip.Left, map.Plot.Left), std::min(strip.Right, map.Plot.Right),
                  map.Plot);
    }
    m_canvas.SetClip(whole);
}

void CPanePainter::Wipe(const sPixelRect& ink, const sPixelRect& plot)
{
    const bool inside =
        ink.Left >= plot.Left && ink.Right <= plot.Right && ink.Top >= plot.Top && ink.Bottom <= plot.Bottom;
    if (!inside)
        m_canvas.Fill(ink, m_furniture.Background);
    m_canvas.Fill({std::max(ink.Left, plot.Left), std::max(ink.Top, plot.Top),
                   std::min(ink.Right, plot.Right), std::min(ink.Bottom, plot.Bottom)},
                  m_furniture.PlotBackground);
}

// Everything inside the clip, from the background up.
void CPanePainter::PaintColumns(const sPixelRect& clip, const sPlotMap& map)
{
    m_canvas.SetMarking(false);
    m_canvas.ForgetInk(clip);
    const sPixelRect& plot = map.Plot;
    const bool inside = clip.Left >= plot.Left && clip.Right <= plot.Right && clip.Top >= plot.Top &&
                        clip.Bottom <= plot.Bottom;
    if (!inside && map.Empty()) {
        m_canvas.Fill(clip, m_furniture.Background);
    } else if (!inside) { // around the plot, each pixel once
        m_canvas.Fill({clip.Left, clip.Top, clip.Right, plot.Top}, m_furniture.Background);
        m_canvas.Fill({clip.Left, plot.Top, plot.Left, plot.Bottom}, m_furniture.Background);
        m_canvas.Fill({plot.Right, plot.Top, clip.Right, plot.Bottom}, m_furniture.Background);
        m_canvas.Fill({clip.Left, plot.Bottom, clip.Right, clip.Bottom}, m_furniture.Background);
    }
    if (!map.Empty())
        m_canvas.Fill(plot, m_furniture.PlotBackground);
    m_canvas.SetMarking(true);
    for (const sRuledLine& line : m_furniture.Grid)
        DrawRuled(m_canvas, line, clip);
    PaintData(m_canvas, std::max(clip.Left, plot.Left), std::min(clip.Right, plot.Right), plot);
    PaintAbove(m_canvas, clip);
}

void CPanePainter::PaintData(IPaneCanvas& canvas, int left, int right, const sPixelRect& plot)
{
    const auto bars = [&](const CPaneInk& ink) {
        std::span<const sInkRect> rects = ink.Rects();
        if (ink.RectsAscend() && (left > plot.Left || right < plot.Right)) {
            // A little slack: the parts of a candle begin at different columns.
            const int from = left - 2 * ink.WidestRect(), to = right + 2 * ink.WidestRect();
            const auto first =
                std::partition_point(rects.begin(), rects.end(), [&](auto& r) { return r.Right < from; });
            const auto last = std::partition_point(first, rects.end(), [&](auto& r) { return r.Left <= to; });
            rects = {first, last};
        }
        canvas.Rects(rects);
        std::span<const sInkColumn> columns = ink.Columns().Columns();
        const auto before = [](int edge) { return [edge](auto& column) { return column.Column < edge; }; };
        const auto first = std::partition_point(columns.begin(), columns.end(), before(left));
        canvas.Columns(ink.Columns(), {first, std::partition_point(first, columns.end(), before(right))});
    };
    // A histogram stands behind the curves, whichever group it is in.
    const bool histogramFirst = m_ink[1].IsHistogram() && !m_ink[0].HasBars();
    for (const int i : histogramFirst ? std::array{1, 0} : std::array{0, 1}) {
        if (m_ink[i].Lines().empty())
            bars(m_ink[i]);
        for (const sInkLine& line : m_ink[i].Lines())
            canvas.Line(line, plot);
        if (!m_ink[i].Lines().empty())
            bars(m_ink[i]); // the symbols on the lines
    }
}

void CPanePainter::PaintAbove(IPaneCanvas& canvas, const sPixelRect& within)
{
    for (const sRuledLine& line : m_furniture.Marker)
        DrawRuled(canvas, line, within);
    for (const sRuledLine& line : m_furniture.Frame)
        DrawRuled(canvas, line, within);
    for (const sGround& ground : m_furniture.Grounds)
        canvas.Fill(ground.Rect, ground.Color);
    for (const sPlacedText& text : m_furniture.AxisTexts)
        canvas.Text(text.Left, text.Top, text.Text, text.Color);
    for (const sPlacedLabel& label : m_furniture.Labels) {
        const sPixelRect& box = label.Box;
        if (label.Edge > 0)
            canvas.Fill(box, label.Border);
        canvas.Fill(
            {box.Left + label.Edge, box.Top + label.Edge, box.Right - label.Edge, box.Bottom - label.Edge},
            label.Background);
        for (const sPlacedText& line : label.Lines)
            canvas.Text(line.Left, line.Top, line.Text, line.Color);
    }
}

void CPanePainter::PaintInto(QPainter& painter, const QRectF& box)
{
    const int width = m_chart.PixelWidth(), height = m_chart.PixelHeight();
    if (width <= 0 || height <= 0 || box.width() <= 0 || box.height() <= 0)
        return;
    const double scale = std::min(box.width() / width, box.height() / height);
    const int deviceWidth = DeviceSize(width, scale), deviceHeight = DeviceSize(height, scale);
    if (deviceWidth <= 0 || deviceHeight <= 0)
        return;
    const sPlotMap map(m_chart, scale);
    m_text.SetScale(scale);
    for (CPaneInk& ink : m_ink)
        ink.Update(m_chart, map, scale);
    m_furniture = PlaceDecorations(m_chart, map, scale, deviceWidth, deviceHeight, m_text);
    m_fresh = true;
    painter.save();
    painter.translate(box.topLeft());
    painter.scale(box.width() / deviceWidth, box.height() / deviceHeight);
    painter.setClipRect(QRect(0, 0, deviceWidth, deviceHeight), Qt::IntersectClip);
    const sPixelRect whole{0, 0, deviceWidth, deviceHeight};
    CPainterCanvas canvas(painter, m_text, whole);
    canvas.Fill(whole, m_furniture.Background);
    if (!map.Empty() && m_furniture.PlotBackground != m_furniture.Background)
        canvas.Fill(map.Plot, m_furniture.PlotBackground);
    for (const sRuledLine& line : m_furniture.Grid)
        DrawRuled(canvas, line, whole);
    PaintData(canvas, map.Plot.Left, map.Plot.Right, map.Plot);
    PaintAbove(canvas, whole);
    painter.restore();
}

QImage PanePicture(const CChart2D& chart, double devicePixelRatio, const QString& family)
{
    CPanePainter painter(chart, family);
    return painter.Picture(devicePixelRatio);
}

} // namespace zantroq
