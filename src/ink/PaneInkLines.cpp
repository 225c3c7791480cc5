#include "ink/InkStyle.h"
#include "ink/PaneInk.h"
#include "platform/Prefetch.h"
#include "scene/MinMax.h"

#include <algorithm>
#include <cmath>

namespace zantroq {

namespace {

// Asks the memory for what blocks leave to be read of a column: the values about its first one.
void ForeseeColumn(std::span<const double> y, std::size_t first)
{
    constexpr std::size_t size = sBlockedValues::BlockSize;
    if (first >= size && first + size <= y.size())
        Prefetch(y.data() + first - size, 2 * size);
}

} // namespace

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
            DrawSymbols(group, series);
        if (look.Pattern() == LineNone)
            continue;
        m_widest = std::max(m_widest, 2 * line.Width);
        m_lines.push_back(std::move(line));
        m_lineSeries.push_back(series);
    }
    m_ascending = m_ascending && m_rects.empty(); // marks stand series by series
}

// Lines of one look whose points alone changed: the others stay as they are. False when everything has to be
// drawn.
bool CPaneInk::DrawChangedLines(const CPaneGroup& group, std::uint64_t since)
{
    const CPaneData& data = group.PaneData();
    if (m_map.Empty() || HasBars(group) || data.FrameChangedSince(since))
        return false;
    m_rects.clear();
    m_ascending = m_points.InOrder();
    sInkLine bare;
    std::size_t next = 0;
    for (int series = data.FirstVisible(); series <= data.LastVisible(); ++series) {
        const bool drawn = next < m_lineSeries.size() && m_lineSeries[next] == series;
        const bool marked = StyleOf(group, series).SymbolLook().Shape() != SymbolNone;
        if (marked || (drawn && data.SeriesChangedSince(series, since)))
            DrawLine(group, series, 0, drawn ? m_lines[next] : bare);
        if (marked)
            DrawSymbols(group, series);
        next += drawn;
    }
    m_ascending = m_ascending && m_rects.empty();
    return true;
}

// Infinities stand at the plot's edges.
int CPaneInk::HeightOf(double value) const
{
    const double place = !std::isinf(value) ? m_map.Y.Position(value)
                         : value > 0        ? m_map.Plot.Top
                                            : m_map.Plot.Bottom - 1;
    return NearestPixel(place * sInkVertex::One);
}

// A level line of many points is known by its ends. False when it has to be drawn point by point: dashes of a
// wide line begin anew at every column.
bool CPaneInk::DrawLevel(const CPaneGroup& group, int series, sInkLine& line)
{
    const CPaneData& data = group.PaneData();
    const std::optional<sStep> step = data.KnownStep(series);
    if (!step || std::isinf(step->Value) || !IsCrowded() || !data.ConsecutiveXFrom() ||
        (line.Pattern != LineSolid && line.Width > 1))
        return false;
    line.Vertices.clear();
    const std::size_t first = std::max(step->Holes, data.FirstDrawn(series));
    if (!IsDrawn(step->Value) || first >= m_points.Count())
        return true;
    const std::size_t last = m_points.Count() - 1;
    m_runs.push_back({first, last + 1, step->Value, step->Value, true}); // every column has a point
    const int height = HeightOf(step->Value);
    const int from = m_points.ColumnOf(first), to = m_points.ColumnOf(last);
    // A column of several points is wider inked than one that a line only passes; between the ones beside the
    // ends all are of one kind.
    int before = from - 1;
    for (const int column : {from, from + 1, to - 1, to}) {
        if (column <= before || column > to)
            continue;
        const std::size_t begin = m_points.First(first, column);
        const bool several = begin < last && m_points.ColumnOf(begin + 1) == column;
        line.Vertices.push_back({column, height, height, height, height, column > from, several});
        before = column;
    }
    return true;
}

void CPaneInk::DrawLine(const CPaneGroup& group, int series, std::size_t firstPoint, sInkLine& line)
{
    m_runs.clear();
    line.Level = firstPoint == 0 && DrawLevel(group, series, line);
    if (line.Level)
        return;
    const CPaneData& data = group.PaneData();
    const double* y = data.Y(series).data();
    const bool blocks = UsesBlocks();
    if (blocks)
        data.UpdateBlockMinMax(series);
    const sBlockedValues blocked = data.BlockedY(series);
    const std::size_t points = data.X().size();
    std::size_t i = data.FirstDrawn(series);
    if (firstPoint == 0) {
        line.Vertices.clear();
    } else {
        const int column = m_points.IsPlaced(firstPoint) ? m_points.ColumnOf(firstPoint) : 0;
        while (!line.Vertices.empty() && line.Vertices.back().Column >= column)
            line.Vertices.pop_back();
        i = m_points.First(i, column);
    }
    const bool reduced = m_detail != InkDetail::EveryPoint, crowded = IsCrowded();
    bool joined = i > 0 && i <= points && !line.Vertices.empty() && IsDrawn(y[i - 1]);
    for (; i < points; ++i) {
        if (!IsDrawn(y[i]) || !m_points.IsPlaced(i)) {
            joined = false;
            i = SkipUndrawn(blocked, i + 1) - 1;
            continue;
        }
        const int column = m_points.ColumnOf(i), h = HeightOf(y[i]);
        if (crowded) {
            // A column of plain numbers at once: the least and greatest decide, the order of the points
            // between does not.
            const std::size_t end = m_points.End(i, column);
            if (blocks)
                ForeseeColumn(data.Y(series), i + 3 * (end - i));
            sMinMax found;
            const bool plain = end - i > 2 && FindMinMax(blocked, i, end, found);
            if (m_runs.empty() || m_runs.back().End <= i) // else a column with gaps, begun already
                m_runs.push_back({i, end, found.Least, found.Greatest, plain});
            if (plain) {
                const int a = HeightOf(found.Least), b = HeightOf(found.Greatest);
                if (joined && line.Vertices.back().Column == column) {
                    sInkVertex& vertex = line.Vertices.back();
                    vertex = {column,
                              vertex.First,
                              HeightOf(y[end - 1]),
                              std::min({vertex.Top, a, b}),
                              std::max({vertex.Bottom, a, b}),
                              vertex.Joined,
                              true};
                } else {
                    line.Vertices.push_back(
                        {column, h, HeightOf(y[end - 1]), std::min(a, b), std::max(a, b), joined, true});
                }
                joined = true;
                i = end - 1;
                continue;
            }
        }
        if (reduced && joined && line.Vertices.back().Column == column) {
            sInkVertex& vertex = line.Vertices.back();
            vertex.Last = h;
            vertex.Several = true;
            vertex.Top = std::min(vertex.Top, h);
            vertex.Bottom = std::max(vertex.Bottom, h);
        } else {
            line.Vertices.push_back({column, h, h, h, h, joined, false});
        }
        joined = true;
    }
}

// The marks of the line drawn last.
void CPaneInk::DrawSymbols(const CPaneGroup& group, int series)
{
    const CPaneData& data = group.PaneData();
    const CSymbolLook& look = StyleOf(group, series).SymbolLook();
    const int size = DevicePixels(look.Size(), m_scale), half = size / 2;
    const std::span<const double> x = data.X(), y = data.Y(series);
    sInkRect before{};
    const auto emit = [&](int from, int to, int top, int bottom) { // the first and last column
        const sInkRect box{std::max(from - half, m_map.Plot.Left), std::max(top - half, m_map.Plot.Top),
                           std::min(to - half + size, m_map.Plot.Right),
                           std::min(bottom - half + size, m_map.Plot.Bottom), look.SymbolColor()};
        // One color: the same box again shows nothing new.
        if (box.Left < box.Right && box.Top < box.Bottom && !(box == before))
            m_rects.push_back(box);
        before = box;
    };
    const auto single = [&](std::size_t i) {
        if (!IsDrawn(y[i]) || !IsDrawn(x[i]) || std::isinf(x[i]) || std::isinf(y[i]))
            return;
        const int row = m_map.Y.Pixel(y[i]), column = m_map.X.Pixel(x[i]);
        emit(column, column, row, row);
    };
    m_widest = std::max(m_widest, size);
    if (!IsCrowded()) {
        for (std::size_t i = data.FirstDrawn(series); i < x.size(); ++i)
            single(i);
        return;
    }
    for (const sRun& run : m_runs) {
        if (run.Plain) {
            // Where the marks that stand furthest apart leave no gap, they are one.
            const int a = m_map.Y.Pixel(run.Least), b = m_map.Y.Pixel(run.Greatest);
            if (std::abs(a - b) <= size || std::min(a, b) - half >= m_map.Plot.Bottom ||
                std::max(a, b) - half + size <= m_map.Plot.Top) {
                emit(m_map.X.Pixel(x[run.First]), m_map.X.Pixel(x[run.End - 1]), std::min(a, b),
                     std::max(a, b));
                continue;
            }
        }
        for (std::size_t i = run.First; i < run.End; ++i)
            single(i);
    }
}

} // namespace zantroq
