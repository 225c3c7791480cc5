#include "paint/PaneRaster.h"

#include <algorithm>
#include <utility>

namespace zantroq {

bool CPaneRaster::IsSame(const sBackdrop& a, const sBackdrop& b)
{
    return a.Plot.Left == b.Plot.Left && a.Plot.Top == b.Plot.Top && a.Plot.Right == b.Plot.Right &&
           a.Plot.Bottom == b.Plot.Bottom && a.Background == b.Background &&
           a.PlotBackground == b.PlotBackground;
}

CPaneRaster::CPaneRaster(const CChart2D& chart, ITextMasks& text, InkDetail detail)
    : m_chart(chart), m_text(text), m_layers(detail), m_canvas(text)
{
}

void CPaneRaster::SetManner(PaneManner manner)
{
    m_layers.SetManner(manner);
    Forget();
}

sPixelRect CPaneRaster::Paint(const sRaster& picture, double scale)
{
    const sPlotMap map(m_chart, scale);
    const sPixelRect whole{0, 0, picture.Width, picture.Height};
    m_canvas.SetPicture(picture);
    switch (FindChange(map, scale, whole)) {
    case PaneChange::None:
        return {};
    case PaneChange::Columns:
        RepaintFromNothing(m_columns, map.Plot);
        return m_columns;
    case PaneChange::Ink:
        RepaintInk(whole, map.Plot);
        return whole;
    case PaneChange::Everything:
        m_canvas.DropRecord();
        RepaintFromNothing(whole, map.Plot);
        return whole;
    }
    return whole;
}

// Updates ink and decorations and returns which parts of the picture they change.
PaneChange CPaneRaster::FindChange(const sPlotMap& map, double scale, const sPixelRect& whole)
{
    const CPaneInk::sDamage ink = m_layers.UpdateInk(m_chart, map, scale);
    if (!m_fresh && !ink.Whole && m_revision == m_chart.Revision()) {
        // A plot may reach past the picture.
        m_columns = CommonPart({ink.Left, map.Plot.Top, ink.Right, map.Plot.Bottom}, whole);
        return m_columns.Width() > 0 && m_columns.Height() > 0 ? PaneChange::Columns : PaneChange::None;
    }
    m_revision = m_chart.Revision();
    m_layers.SetDecorations(
        PlaceDecorations(m_chart, map, scale, whole.Right, whole.Bottom, m_text, m_layers.Manner()));
    const sBackdrop backdrop{map.Plot, m_layers.Decorations().Background,
                             m_layers.Decorations().PlotBackground};
    const bool sameBackdrop = IsSame(std::exchange(m_backdrop, backdrop), backdrop);
    return std::exchange(m_fresh, false) || !sameBackdrop ? PaneChange::Everything : PaneChange::Ink;
}

// Wipes what was painted and paints the data, in strips that stay in the processor's cache in between.
void CPaneRaster::RepaintInk(const sPixelRect& whole, const sPixelRect& plot)
{
    constexpr int cached = 1024 * 1024; // bytes of a strip
    const std::vector<sPixelRect>& painted = m_canvas.TakeRecord();
    // Each strip walks lines from end to end, so with lines one strip is cheaper.
    const int width = m_layers.HasLines() ? whole.Width() : std::max(16, cached / (4 * whole.Height()));
    for (int left = 0; left < whole.Right; left += width) {
        const sPixelRect strip{left, 0, std::min(left + width, whole.Right), whole.Bottom};
        m_canvas.SetClip(strip);
        m_canvas.SetRecording(CRasterCanvas::Recording::Off);
        for (const sPixelRect& rect : painted)
            if (rect.Left < strip.Right && rect.Right > strip.Left)
                Wipe(rect, plot);
        m_canvas.SetRecording(CRasterCanvas::Recording::On);
        m_layers.PaintGrid(m_canvas, strip);
        m_layers.PaintData(m_canvas, strip, plot);
    }
    m_canvas.SetClip(whole);
    m_layers.PaintAbove(m_canvas, whole);
}

void CPaneRaster::Wipe(const sPixelRect& rect, const sPixelRect& plot)
{
    if (!LiesInside(rect, plot))
        m_canvas.Fill(rect, m_layers.Decorations().Background);
    m_canvas.Fill(CommonPart(rect, plot), m_layers.Decorations().PlotBackground);
}

// Paints all layers inside the clip.
void CPaneRaster::RepaintFromNothing(const sPixelRect& clip, const sPixelRect& plot)
{
    m_canvas.SetClip(clip);
    m_canvas.SetRecording(CRasterCanvas::Recording::Off);
    m_canvas.DropRecord(clip);
    m_layers.PaintBackgrounds(m_canvas, clip, plot);
    m_canvas.SetRecording(CRasterCanvas::Recording::On);
    m_layers.PaintGrid(m_canvas, clip);
    m_layers.PaintData(m_canvas, clip, plot);
    m_layers.PaintAbove(m_canvas, clip);
}

} // namespace zantroq
