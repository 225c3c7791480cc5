#include "paint/RulePlacer.h"

namespace zantroq {

namespace {

constexpr int MostGridLines = 400;

// Calls `place` with the pixel of each value origin + k * spacing between the pixels first and last.
template<class F>
void ForEachStep(const CAxisMap& axis, double origin, double spacing, int first, int last, F place)
{
    if (!(spacing > 0) || !std::isfinite(spacing) || !std::isfinite(origin))
        return;
    const int least = std::min(first, last), greatest = std::max(first, last);
    const double a = axis.Value(least), b = axis.Value(greatest);
    const double slack = 1e-6;
    const double from = std::ceil((std::min(a, b) - origin) / spacing - slack);
    const double to = std::floor((std::max(a, b) - origin) / spacing + slack);
    if (!(to - from < MostGridLines)) // also when it is not a number
        return;
    for (double k = from; k <= to; ++k)
        place(std::clamp(axis.Pixel(origin + k * spacing), least, greatest));
}

} // namespace

CRulePlacer::CRulePlacer(const sPlacement& placement, sPaneDecorations& out)
    : m_placement(placement),
      m_plot(placement.Map.Plot),
      m_axes(placement.Chart.PaneArea().PaneAxes()),
      m_out(out),
      m_quiet(Mixed(out.Background, placement.Foreground(), 96))
{
}

void CRulePlacer::Place()
{
    PlaceGrid();
    PlaceFrame();
    PlaceMarker();
}

// Grid lines run through the value labels, whichever axis carries them.
double CRulePlacer::ValueOrigin() const
{
    for (const CPaneAxis* axis : {&m_axes.Y(), &m_axes.Y2()})
        if (axis->TickLabels().Count() > 0)
            return axis->TickLabels().Item(1).Value;
    return m_axes.Y().ViewLow().Value();
}

// The labels are at multiples of the spacing, counted from the point before the first displayed point.
double CRulePlacer::PointOrigin() const
{
    return std::floor(m_axes.X().ViewLow().Value()) - 1;
}

sRuledLine CRulePlacer::Horizontal(int y, const CLineLook& look) const
{
    const int width = m_placement.Device(std::clamp(look.Width(), 1, 20));
    return {{m_plot.Left, y - width / 2, m_plot.Right, y - width / 2 + width},
            RuleDirection::Horizontal,
            look.Pattern(),
            PixelOf(look.LineColor())};
}

sRuledLine CRulePlacer::Vertical(int x, const CLineLook& look) const
{
    const int width = m_placement.Device(std::clamp(look.Width(), 1, 20));
    return {{x - width / 2, m_plot.Top, x - width / 2 + width, m_plot.Bottom},
            RuleDirection::Vertical,
            look.Pattern(),
            PixelOf(look.LineColor())};
}

void CRulePlacer::AddCut(std::vector<sRuledLine>& lines, sRuledLine line) const
{
    line.Rect = CommonPart(line.Rect, m_plot);
    if (line.Pattern != LineNone && line.Rect.Width() > 0 && line.Rect.Height() > 0)
        lines.push_back(line);
}

void CRulePlacer::AddSolid(const sPixelRect& rect)
{
    const RuleDirection direction =
        rect.Width() < rect.Height() ? RuleDirection::Vertical : RuleDirection::Horizontal;
    m_out.Frame.push_back({rect, direction, LineSolid, m_quiet});
}

void CRulePlacer::PlaceGrid()
{
    const sPlotMap& map = m_placement.Map;
    ForEachStep(map.X, PointOrigin(), m_axes.X().AxisGrid().Spacing(), m_plot.Left, m_plot.Right - 1,
                [&](int x) {
                    if (x > m_plot.Left && x < m_plot.Right - 1)
                        AddCut(m_out.Grid, Vertical(x, m_axes.X().AxisGrid().LineLook()));
                });
    const CAxisGrid& grid =
        m_axes.Y().AxisGrid().Spacing() > 0 ? m_axes.Y().AxisGrid() : m_axes.Y2().AxisGrid();
    ForEachStep(map.Y, ValueOrigin(), grid.Spacing(), m_plot.Top, m_plot.Bottom - 1, [&](int y) {
        if (y > m_plot.Top && y < m_plot.Bottom - 1)
            AddCut(m_out.Grid, Horizontal(y, grid.LineLook()));
    });
}

void CRulePlacer::PlaceFrame()
{
    const int hair = m_placement.Hair();
    AddSolid({m_plot.Left - hair, m_plot.Top - hair, m_plot.Right + hair, m_plot.Top});
    AddSolid({m_plot.Left - hair, m_plot.Bottom, m_plot.Right + hair, m_plot.Bottom + hair});
    AddSolid({m_plot.Left - hair, m_plot.Top, m_plot.Left, m_plot.Bottom});
    AddSolid({m_plot.Right, m_plot.Top, m_plot.Right + hair, m_plot.Bottom});
    PlaceValueTicks(m_axes.Y(), PlotSide::Left);
    PlaceValueTicks(m_axes.Y2(), PlotSide::Right);
    PlacePointTicks();
}

void CRulePlacer::PlaceValueTicks(const CPaneAxis& axis, PlotSide side)
{
    if (!axis.Shown())
        return;
    const int hair = m_placement.Hair(), length = m_placement.Device(3);
    const int left = side == PlotSide::Left ? m_plot.Left - hair - length : m_plot.Right + hair;
    ForEachStep(m_placement.Map.Y, ValueOrigin(), axis.TickMarkSpacing().Value(), m_plot.Top,
                m_plot.Bottom - 1, [&](int y) {
                    AddSolid({left, y - hair / 2, left + length, y - hair / 2 + hair});
                });
}

void CRulePlacer::PlacePointTicks()
{
    if (!m_axes.X().Shown())
        return;
    const int hair = m_placement.Hair(), top = m_plot.Bottom + hair, length = m_placement.Device(3);
    ForEachStep(m_placement.Map.X, PointOrigin(), m_axes.X().TickMarkSpacing().Value(), m_plot.Left,
                m_plot.Right - 1, [&](int x) {
                    AddSolid({x - hair / 2, top, x - hair / 2 + hair, top + length});
                });
}

void CRulePlacer::PlaceMarker()
{
    const CPaneMarker& marker = m_placement.Chart.PaneArea().Marker();
    const CPaneData& data = m_placement.Chart.PaneGroups(1).PaneData();
    if (!marker.Shown() || marker.Point() < 1)
        return;
    const double x = marker.Point() <= data.PointCount(1) ? data.PointX(1, marker.Point()) : marker.Point();
    if (IsDrawn(x))
        AddCut(m_out.Marker, Vertical(m_placement.Map.X.Pixel(x), marker.LineLook()));
}

} // namespace zantroq
