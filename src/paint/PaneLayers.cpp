#include "paint/PaneLayers.h"

#include "paint/PixelRects.h"

#include <algorithm>

namespace zantroq {

namespace {

CPaneInk::sDamage Joined(const CPaneInk::sDamage& a, const CPaneInk::sDamage& b)
{
    if (a.Left >= a.Right || b.Left >= b.Right) {
        const CPaneInk::sDamage& columns = a.Left < a.Right ? a : b;
        return {a.Whole || b.Whole, columns.Left, columns.Right};
    }
    return {a.Whole || b.Whole, std::min(a.Left, b.Left), std::max(a.Right, b.Right)};
}

// Whether all points of the line have one height.
bool IsLevel(const sInkLine& line)
{
    const auto isLevel = [&line](const sInkVertex& vertex) {
        return vertex.Top == line.Vertices.front().Top && vertex.Bottom == line.Vertices.front().Top;
    };
    return line.Level || std::all_of(line.Vertices.begin(), line.Vertices.end(), isLevel);
}

} // namespace

CPaneInk::sDamage CPaneLayers::UpdateInk(const CChart2D& chart, const sPlotMap& map, double scale)
{
    const CPaneInk::sDamage first = m_ink[0].Update(chart, map, scale);
    return Joined(first, m_ink[1].Update(chart, map, scale));
}

void CPaneLayers::PaintBackgrounds(IPaneCanvas& canvas, const sPixelRect& within,
                                   const sPixelRect& plot) const
{
    const PixelColor background = m_decorations.Background;
    if (plot.Width() <= 0 || plot.Height() <= 0)
        return canvas.Fill(within, background);
    if (!LiesInside(within, plot)) {
        canvas.Fill({within.Left, within.Top, within.Right, plot.Top}, background);
        canvas.Fill({within.Left, plot.Top, plot.Left, plot.Bottom}, background);
        canvas.Fill({plot.Right, plot.Top, within.Right, plot.Bottom}, background);
        canvas.Fill({within.Left, plot.Bottom, within.Right, within.Bottom}, background);
    }
    canvas.Fill(plot, m_decorations.PlotBackground);
}

void CPaneLayers::PaintGrid(IPaneCanvas& canvas, const sPixelRect& within) const
{
    for (const sRuledLine& line : m_decorations.Grid)
        if (line.Rect.Left < within.Right && line.Rect.Right > within.Left)
            DrawRuled(canvas, line, within);
}

void CPaneLayers::PaintData(IPaneCanvas& canvas, const sPixelRect& within, const sPixelRect& plot) const
{
    const int left = std::max(within.Left, plot.Left), right = std::min(within.Right, plot.Right);
    // A histogram is painted below the curves, whichever group it is in.
    const bool histogramFirst = m_ink[1].IsHistogram() && !m_ink[0].HasBars();
    for (const std::size_t i :
         histogramFirst ? std::array<std::size_t, 2>{1, 0} : std::array<std::size_t, 2>{0, 1}) {
        const CPaneInk& ink = m_ink[i];
        PaintLines(canvas, ink, plot);
        PaintBars(canvas, ink, left, right, plot); // with lines: the marks on them
    }
}

void CPaneLayers::PaintLines(IPaneCanvas& canvas, const CPaneInk& ink, const sPixelRect& plot) const
{
    if (m_manner == PaneManner::Plain) {
        for (const sInkLine& line : ink.Lines())
            canvas.Line(line, plot);
        return;
    }
    for (const bool levels : {true, false})
        for (const sInkLine& line : ink.Lines())
            if (IsLevel(line) == levels)
                canvas.Line(line, plot);
}

// Paints the bars that touch the pixel columns left to right (exclusive).
void CPaneLayers::PaintBars(IPaneCanvas& canvas, const CPaneInk& ink, int left, int right,
                            const sPixelRect& plot)
{
    std::span<const sInkRect> rects = ink.Rects();
    if (ink.RectsAscend() && (left > plot.Left || right < plot.Right)) {
        // Twice the width as slack: the parts of a candle begin at different columns.
        const int from = left - 2 * ink.WidestRect(), to = right + 2 * ink.WidestRect();
        const auto first =
            std::partition_point(rects.begin(), rects.end(), [&](auto& rect) { return rect.Right < from; });
        const auto last =
            std::partition_point(first, rects.end(), [&](auto& rect) { return rect.Left <= to; });
        rects = {first, last};
    }
    canvas.Rects(rects);
    const std::span<const sInkColumn> columns = ink.Columns().Columns();
    const auto before = [](int edge) { return [edge](auto& column) { return column.Column < edge; }; };
    const auto first = std::partition_point(columns.begin(), columns.end(), before(left));
    canvas.Columns(ink.Columns(), {first, std::partition_point(first, columns.end(), before(right))});
}

void CPaneLayers::PaintAbove(IPaneCanvas& canvas, const sPixelRect& within) const
{
    for (const sRuledLine& line : m_decorations.Marker)
        DrawRuled(canvas, line, within);
    for (const sRuledLine& line : m_decorations.Frame)
        DrawRuled(canvas, line, within);
    for (const sTextGround& ground : m_decorations.Grounds)
        canvas.Fill(ground.Rect, ground.Color);
    for (const sPlacedText& text : m_decorations.AxisTexts)
        canvas.Text(text.Left, text.Top, text.Text, text.Color);
    for (const sPlacedLabel& label : m_decorations.Labels)
        PaintLabel(canvas, label);
}

void CPaneLayers::PaintLabel(IPaneCanvas& canvas, const sPlacedLabel& label)
{
    const sPixelRect& box = label.Box;
    const int edge = label.Edge;
    if (edge > 0)
        canvas.Fill(box, label.Border);
    canvas.Fill({box.Left + edge, box.Top + edge, box.Right - edge, box.Bottom - edge}, label.Background);
    for (const sPlacedText& line : label.Lines)
        canvas.Text(line.Left, line.Top, line.Text, line.Color);
}

} // namespace zantroq
