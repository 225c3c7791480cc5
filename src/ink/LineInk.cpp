#include "ink/LineInk.h"

#include "platform/Prefetch.h"
#include "scene/MinMax.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zantroq {

namespace {

// Asks the memory for the values around `first`: of a column whose blocks are known, only the values before
// the first and behind the last whole block are read.
void PrefetchColumn(std::span<const double> y, std::size_t first)
{
    constexpr std::size_t size = sBlockedValues::BlockSize;
    if (first >= size && first + size <= y.size())
        Prefetch(y.data() + first - size, 2 * size);
}

} // namespace

CLineInk::CLineInk(const CPaneData& data, int series, const sPlotMap& map, CPointColumns& points,
                   LineGrouping grouping, sInkLine& line)
    : m_data(data),
      m_series(series),
      m_map(map),
      m_points(points),
      m_grouping(grouping),
      m_line(line),
      m_y(data.Y(series))
{
}

// The three functions of every point come first and inline: with calls a line of 1,920 points took 28 us instead
// of 16 (bench/RESULTS.md, Ink).

// In 1/256 device pixels. Infinities are at the plot's edges.
inline int CLineInk::HeightOf(double value) const
{
    const double place = !std::isinf(value) ? m_map.Y.Position(value)
                         : value > 0        ? m_map.Plot.Top
                                            : m_map.Plot.Bottom - 1;
    return NearestPixel(place * sInkVertex::One);
}

// Appends a stay in a column, or lengthens the last vertex if the line is still in its column.
inline void CLineInk::Add(const sInkVertex& stay)
{
    const bool lengthens =
        m_joined && m_grouping != LineGrouping::EveryPoint && m_line.Vertices.back().Column == stay.Column;
    m_joined = true;
    if (!lengthens) {
        m_line.Vertices.push_back(stay);
        return;
    }
    sInkVertex& last = m_line.Vertices.back();
    last.Last = stay.Last;
    last.Top = std::min(last.Top, stay.Top);
    last.Bottom = std::max(last.Bottom, stay.Bottom);
    last.Several = true;
}

inline void CLineInk::DrawPoint(std::size_t i)
{
    const int height = HeightOf(m_y[i]);
    Add({m_points.ColumnOf(i), height, height, height, height, m_joined, false});
}

void CLineInk::Draw(std::size_t firstPoint, std::vector<sLineRun>& runs)
{
    runs.clear();
    m_line.Level = firstPoint == 0 && IsLevel();
    if (m_line.Level)
        return DrawLevel(runs);
    if (m_grouping == LineGrouping::Blocks)
        m_data.UpdateBlockMinMax(m_series);
    m_blocked = m_data.BlockedY(m_series);
    const std::size_t points = m_points.Count();
    std::size_t i = CutFrom(firstPoint);
    while (i < points) {
        if (!IsDrawn(m_y[i]) || !m_points.IsPlaced(i)) {
            m_joined = false;
            i = SkipUndrawn(m_blocked, i + 1);
        } else if (m_grouping >= LineGrouping::Columns) {
            i = DrawColumn(i, runs);
        } else {
            DrawPoint(i++);
        }
    }
}

// Whether the ends of the line tell all of it: one value at many points in every column. Dashes of a wide
// line begin anew at every column.
bool CLineInk::IsLevel() const
{
    const std::optional<sStep> step = m_data.KnownStep(m_series);
    return step && !std::isinf(step->Value) && m_grouping >= LineGrouping::Columns &&
           m_data.ConsecutiveXFrom() && (m_line.Pattern == LineSolid || m_line.Width <= 1);
}

// REQUIRES: IsLevel().
void CLineInk::DrawLevel(std::vector<sLineRun>& runs)
{
    const sStep step = *m_data.KnownStep(m_series);
    m_line.Vertices.clear();
    const std::size_t first = std::max(step.Holes, m_data.FirstDrawn(m_series));
    if (!IsDrawn(step.Value) || first >= m_points.Count())
        return;
    const std::size_t last = m_points.Count() - 1;
    runs.push_back({first, last + 1, step.Value, step.Value, true}); // every column has a point
    const int height = HeightOf(step.Value);
    const int from = m_points.ColumnOf(first), to = m_points.ColumnOf(last);
    // A column of several points gets more ink than a column that the line only passes. All columns but the
    // two at each end are of one kind.
    int before = from - 1;
    for (const int column : {from, from + 1, to - 1, to}) {
        if (column <= before || column > to)
            continue;
        const std::size_t begin = m_points.First(first, column);
        const bool several = begin < last && m_points.ColumnOf(begin + 1) == column;
        m_line.Vertices.push_back({column, height, height, height, height, column > from, several});
        before = column;
    }
}

// Removes the vertices from the point's column on. Returns the first point to draw.
std::size_t CLineInk::CutFrom(std::size_t firstPoint)
{
    const std::size_t firstDrawn = m_data.FirstDrawn(m_series);
    if (firstPoint == 0) {
        m_line.Vertices.clear();
        return firstDrawn;
    }
    const int column = m_points.IsPlaced(firstPoint) ? m_points.ColumnOf(firstPoint) : 0;
    while (!m_line.Vertices.empty() && m_line.Vertices.back().Column >= column)
        m_line.Vertices.pop_back();
    const std::size_t i = m_points.First(firstDrawn, column);
    m_joined = i > 0 && i <= m_points.Count() && !m_line.Vertices.empty() && IsDrawn(m_y[i - 1]);
    return i;
}

// Draws the points of the column from i on together if each of them is a number, else one by one up to the first
// that is none. Returns the next point to draw. Only the least and the greatest value matter, not the order of the
// points between the first and the last.
std::size_t CLineInk::DrawColumn(std::size_t i, std::vector<sLineRun>& runs)
{
    const int column = m_points.ColumnOf(i);
    const std::size_t end = m_points.End(i, column);
    if (m_grouping == LineGrouping::Blocks)
        PrefetchColumn(m_y, i + 3 * (end - i)); // three columns ahead
    sMinMax found;
    const bool plain = end - i > 2 && FindMinMax(m_blocked, i, end, found);
    if (runs.empty() || runs.back().End <= i) // else the rest of a column with gaps
        runs.push_back({i, end, found.Least, found.Greatest, plain});
    if (!plain)
        return DrawPoints(i, end);
    const int a = HeightOf(found.Least), b = HeightOf(found.Greatest);
    Add({column, HeightOf(m_y[i]), HeightOf(m_y[end - 1]), std::min(a, b), std::max(a, b), m_joined, true});
    return end;
}

// Draws point i and those after it up to `end`, a hole, or past an infinity: what follows may be numbers alone.
std::size_t CLineInk::DrawPoints(std::size_t i, std::size_t end)
{
    do
        DrawPoint(i++);
    while (i < end && IsDrawn(m_y[i]) && !std::isinf(m_y[i - 1]));
    return i;
}

} // namespace zantroq
