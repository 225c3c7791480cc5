#include "ink/PaneInk.h"

#include "ink/InkStyle.h"
#include "ink/MarkInk.h"
#include "ink/OnePixelBars.h"
#include "ink/WideBars.h"

#include <algorithm>
#include <utility>

namespace zantroq {

bool CPaneInk::sLook::operator==(const sLook& other) const
{
    return Plot.Left == other.Plot.Left && Plot.Top == other.Plot.Top && Plot.Right == other.Plot.Right &&
           Plot.Bottom == other.Plot.Bottom && X == other.X && Y == other.Y && Scale == other.Scale &&
           Origin == other.Origin && Styles == other.Styles;
}

CPaneInk::sLook CPaneInk::LookOf(const CChart2D& chart, const sPlotMap& map, double scale) const
{
    const CPaneGroup& group = chart.PaneGroups(m_group);
    const CPaneData& data = group.PaneData();
    sLook look{map.Plot, map.X, map.Y, scale, m_origin, {}};
    const auto add = [&](auto value) { look.Styles.push_back(static_cast<std::uint32_t>(value)); };
    add(group.Type());
    add(m_barWidth);
    add(m_filledCandles);
    add(m_hollow);
    add(data.FirstVisible());
    add(data.LastVisible());
    for (int series = data.FirstVisible(); series <= data.LastVisible(); ++series) {
        const CSeriesStyle& style = StyleOf(group, series);
        add(style.LineLook().Pattern());
        add(style.LineLook().LineColor());
        add(style.LineLook().Width());
        add(style.FillLook().FillColor());
        add(style.SymbolLook().Shape());
        add(style.SymbolLook().SymbolColor());
        add(style.SymbolLook().Size());
    }
    return look;
}

bool CPaneInk::HasBars(const CPaneGroup& group) const
{
    const int series = group.PaneData().LastVisible() - group.PaneData().FirstVisible() + 1;
    return (IsBarType(group.Type()) && series >= 1) || (IsPriceType(group.Type()) && series >= 4);
}

void CPaneInk::ReadStyle(const CChart2D& chart)
{
    const CPaneGroup& group = chart.PaneGroups(m_group);
    const CPaneArea& area = chart.PaneArea();
    const CAxisBound& origin = area.PaneAxes().Y().AxisOrigin();
    m_origin = origin.Automatic() || !IsDrawn(origin.Value()) ? 0.0 : origin.Value();
    m_barWidth = area.BarLook().BarWidth();
    m_filledCandles = area.CandleLook().Filled();
    m_hollow = area.PlotBackground(chart.PaneInterior());
    m_hasBars = HasBars(group);
    m_histogram = IsBarType(group.Type());
}

// Draws the changed points and all after them; nothing when everything has to be drawn.
std::optional<CPaneInk::sDamage> CPaneInk::DrawChangedPoints(const CPaneGroup& group,
                                                             const sPointChanges& changes)
{
    // One point more on either side: lines lead from the one before and to the one after.
    const std::span<const double> x = group.PaneData().X();
    const auto first = static_cast<std::size_t>(changes.First - 1);
    const std::size_t last = std::min(static_cast<std::size_t>(changes.Last), x.size() - 1);
    const int reach = m_widest + 1; // of the ink that was there
    if (!m_points.InOrder() || !DrawTail(group, first))
        return std::nullopt;
    return sDamage{false, std::max(m_map.Plot.Left, m_map.X.Pixel(x[first > 0 ? first - 1 : 0]) - reach),
                   std::min(m_map.Plot.Right, m_map.X.Pixel(x[last]) + reach + 1)};
}

CPaneInk::sDamage CPaneInk::Update(const CChart2D& chart, const sPlotMap& map, double scale)
{
    const CPaneGroup& group = chart.PaneGroups(m_group);
    const CPaneData& data = group.PaneData();
    m_scale = scale;
    ReadStyle(chart);
    sLook look = LookOf(chart, map, scale);
    const sPointChanges changes = data.ChangesSince(m_revision);
    const bool known = m_drawn && look == m_look;
    const std::uint64_t since = std::exchange(m_revision, data.Revision());
    if (known && !changes.Whole && changes.Last < changes.First)
        return {};
    m_map = map;
    m_look = std::move(look);
    m_points = CPointColumns(data, map.X);
    if (known && !changes.Whole)
        if (const std::optional<sDamage> damage = DrawChangedPoints(group, changes))
            return *damage;
    if (!known || !DrawChangedLines(group, since))
        DrawAll(group);
    m_drawn = true;
    return {true, m_map.Plot.Left, m_map.Plot.Right};
}

// Whether a column holds more than two points, in order, so that looking at them together pays.
bool CPaneInk::IsCrowded() const
{
    return m_detail != InkDetail::EveryPoint && m_ascending && m_map.X.PixelsPerUnit() < 0.5;
}

// Whether a column holds more than three blocks of points, two of them whole at least.
bool CPaneInk::UsesBlocks() const
{
    return IsCrowded() && m_map.X.PixelsPerUnit() * 3 * sBlockedValues::BlockSize < 1;
}

LineGrouping CPaneInk::Grouping() const
{
    if (m_detail == InkDetail::EveryPoint)
        return LineGrouping::EveryPoint;
    if (UsesBlocks())
        return LineGrouping::Blocks;
    return IsCrowded() ? LineGrouping::Columns : LineGrouping::PointByPoint;
}

void CPaneInk::DrawAll(const CPaneGroup& group)
{
    m_rects.clear();
    CutColumns(0);
    m_lines.clear();
    m_lineSeries.clear();
    m_widest = 1;
    m_ascending = m_points.InOrder();
    if (m_map.Empty())
        return;
    if (HasBars(group))
        DrawBars(group, 0);
    else
        DrawLines(group);
}

// Draws again firstPoint and all points after it; false when everything has to be drawn.
bool CPaneInk::DrawTail(const CPaneGroup& group, std::size_t firstPoint)
{
    if (m_map.Empty())
        return true;
    if (HasBars(group)) {
        DrawBars(group, firstPoint);
        return true;
    }
    // Marks are not kept point by point; a series can have them without a line.
    for (int series = group.PaneData().FirstVisible(); series <= group.PaneData().LastVisible(); ++series)
        if (StyleOf(group, series).SymbolLook().Shape() != SymbolNone)
            return false;
    for (const int series : m_lineSeries)
        if (series == 0)
            return false;
    if (!m_rects.empty())
        return false;
    for (std::size_t i = 0; i < m_lines.size(); ++i)
        DrawLine(group, m_lineSeries[i], m_lines[i].Level ? 0 : firstPoint, m_lines[i]);
    return true;
}

void CPaneInk::DrawBars(const CPaneGroup& group, std::size_t firstPoint)
{
    const CPaneData& data = group.PaneData();
    if (UsesBlocks() && IsBarType(group.Type()))
        data.UpdateBlockMinMax(data.FirstVisible());
    sBarSource source = sBarSource::Of(group, m_map, m_scale, m_barWidth);
    source.Origin = m_origin;
    source.Filled = m_filledCandles;
    source.Hollow = m_hollow;
    m_widest = source.Width + 2 * source.Tick;
    const std::size_t i = CutBarsFrom(data, firstPoint);
    const std::size_t kept = m_columns.size();
    if (!source.IsThin() || !m_ascending || m_detail == InkDetail::EveryPoint) {
        DrawWideBars(source, i);
    } else if (!DrawOnePixelBars(source, i, PriceCheck::HighAndLow)) {
        CutColumns(kept);
        DrawOnePixelBars(source, i, PriceCheck::AllFour);
    }
}

// Removes the ink from the point's column on. Returns the first point to draw.
std::size_t CPaneInk::CutBarsFrom(const CPaneData& data, std::size_t firstPoint)
{
    const std::size_t firstDrawn = data.FirstDrawn(data.FirstVisible());
    if (firstPoint == 0) {
        CutColumns(0);
        return firstDrawn;
    }
    const int column = m_points.IsPlaced(firstPoint) ? m_points.ColumnOf(firstPoint) : 0;
    std::size_t kept = m_columns.size();
    while (kept > 0 && m_columns[kept - 1].Column >= column)
        --kept;
    CutColumns(kept);
    return m_points.First(firstDrawn, column);
}

// Keeps the first columns and their ink.
void CPaneInk::CutColumns(std::size_t count)
{
    if (count >= m_columns.size())
        return;
    m_rects.resize(m_columns[count].FirstRect);
    m_inkColumns.Cut(m_columns[count].FirstInkColumn);
    m_columns.resize(count);
}

// Whether a column begins that has no ink yet.
bool CPaneInk::BeginsColumn(int column) const
{
    return m_columns.empty() || m_columns.back().Column != column;
}

void CPaneInk::DrawWideBars(const sBarSource& source, std::size_t i)
{
    CWideBars ink(source, m_map, m_rects);
    for (; i < m_points.Count(); ++i) {
        if (!m_points.IsPlaced(i))
            continue;
        const int column = m_points.ColumnOf(i);
        if (column < m_map.Plot.Left - m_widest || column >= m_map.Plot.Right + m_widest)
            continue;
        if (BeginsColumn(column))
            m_columns.push_back({column, i, m_rects.size(), 0});
        ink.Draw(i, column);
    }
}

// False when a point turned out to lack an open or close price, and the ink is wrong; never with
// PriceCheck::AllFour.
bool CPaneInk::DrawOnePixelBars(const sBarSource& source, std::size_t i, PriceCheck check)
{
    // Fewer points than this are read before a prefetch would bring those of the next column: one vector of
    // eight.
    constexpr std::size_t worthPrefetching = 8;
    COnePixelBars ink(source, m_map, check, m_rects, m_inkColumns);
    if (m_detail == InkDetail::PointByPoint)
        ink.GoPointByPoint();
    for (std::size_t end = i; i < m_points.Count(); i = end) {
        end = i + 1;
        if (!m_points.IsPlaced(i))
            continue;
        const int column = m_points.ColumnOf(i);
        end = m_points.End(i, column);
        if (end - i > worthPrefetching)
            ink.PrefetchPoints(end, end - i);
        if (column < m_map.Plot.Left || column >= m_map.Plot.Right)
            continue;
        const std::size_t inkColumns = m_inkColumns.Columns().size();
        ink.Draw(i, end, column);
        if (BeginsColumn(column)) // its rectangles are added after those of the column before
            m_columns.push_back({column, i, m_rects.size(), inkColumns});
    }
    return ink.Finish();
}

void CPaneInk::DrawLines(const CPaneGroup& group)
{
    const CPaneData& data = group.PaneData();
    for (int series = data.FirstVisible(); series <= data.LastVisible(); ++series) {
        const CSeriesStyle& style = StyleOf(group, series);
        const CLineLook& look = style.LineLook();
        const bool marked = style.SymbolLook().Shape() != SymbolNone;
        if (look.Pattern() == LineNone && !marked)
            continue;
        sInkLine line{look.LineColor(), DevicePixels(look.Width(), m_scale), look.Pattern(), {}};
        DrawLine(group, series, 0, line);
        if (marked)
            DrawMarks(group, series);
        if (look.Pattern() == LineNone)
            continue;
        m_widest = std::max(m_widest, 2 * line.Width);
        m_lines.push_back(std::move(line));
        m_lineSeries.push_back(series);
    }
    m_ascending = m_ascending && m_rects.empty(); // marks follow one another series by series
}

// Draws again the lines whose own values changed since the revision, provided that nothing else changed.
// False when everything has to be drawn.
bool CPaneInk::DrawChangedLines(const CPaneGroup& group, std::uint64_t since)
{
    const CPaneData& data = group.PaneData();
    if (m_map.Empty() || HasBars(group) || data.FrameChangedSince(since))
        return false;
    m_rects.clear();
    m_ascending = m_points.InOrder();
    sInkLine bare; // of a series with marks alone
    std::size_t next = 0;
    for (int series = data.FirstVisible(); series <= data.LastVisible(); ++series) {
        const bool drawn = next < m_lineSeries.size() && m_lineSeries[next] == series;
        const bool marked = StyleOf(group, series).SymbolLook().Shape() != SymbolNone;
        if (marked || (drawn && data.SeriesChangedSince(series, since)))
            DrawLine(group, series, 0, drawn ? m_lines[next] : bare);
        if (marked)
            DrawMarks(group, series);
        next += drawn;
    }
    m_ascending = m_ascending && m_rects.empty();
    return true;
}

void CPaneInk::DrawLine(const CPaneGroup& group, int series, std::size_t firstPoint, sInkLine& line)
{
    CLineInk(group.PaneData(), series, m_map, m_points, Grouping(), line).Draw(firstPoint, m_runs);
}

// REQUIRES: the series' line was drawn last.
void CPaneInk::DrawMarks(const CPaneGroup& group, int series)
{
    const CSymbolLook& look = StyleOf(group, series).SymbolLook();
    const int size = DevicePixels(look.Size(), m_scale);
    m_widest = std::max(m_widest, size);
    CMarkInk ink(m_map, size, look.SymbolColor(), group.PaneData(), series, m_rects);
    if (IsCrowded())
        ink.DrawRuns(m_runs);
    else
        ink.DrawPoints();
}

} // namespace zantroq
