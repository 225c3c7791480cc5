#include "ink/OnePixelBars.h"

#include "ink/InkStyle.h"
#include "platform/Prefetch.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace zantroq {

COnePixelBars::COnePixelBars(const sBarSource& source, const sPlotMap& map, PriceCheck check,
                             std::vector<sInkRect>& rects, CInkColumns& columns)
    : m_source(source),
      m_map(map),
      m_rects(rects),
      m_columns(columns),
      m_bars(IsBarType(source.Type)),
      m_check(check),
      m_strokes(map),
      m_spans(source, map, check, m_found)
{
    if (source.Type == ChartCandles)
        m_columns.SetColors(source.Up, source.Down);
}

void COnePixelBars::PrefetchPoints(std::size_t first, std::size_t count) const
{
    const std::size_t end = std::min(first + count, m_source.High.size());
    if (first >= end || m_source.Bars.Blocks() > 0)
        return;
    Prefetch(m_source.High.data() + first, end - first);
    if (!m_bars)
        Prefetch(m_source.Low.data() + first, end - first);
}

void COnePixelBars::Draw(std::size_t first, std::size_t last, int column)
{
    std::swap(m_found, m_before);
    std::swap(m_column, m_columnBefore);
    m_found.clear();
    m_column = column;
    if (FindStrokes(first, last)) {
        DrawStrokes(first, column);
        m_visible = m_strokes.Found().Count;
    } else {
        m_spans.Find(first, last);
        m_visible = m_found.size();
    }
    Emit(m_before, m_columnBefore);
}

// Whether the fast path took the column. It costs the same whether few or many of its points are visible,
// while the slow path costs little where few are; a column shows about as many points as the one before it.
bool COnePixelBars::FindStrokes(std::size_t first, std::size_t last)
{
    // docs/painting.md has the gain of the fast path; other limits than 24 are not on record.
    constexpr std::size_t pointsForOneVisible = 24;
    return !m_bars && m_check == PriceCheck::HighAndLow && last - first <= pointsForOneVisible * m_visible &&
           m_strokes.Find(m_source.High, m_source.Low, first, last);
}

// Candles become a column of shades. H/L/O/C bars, which have one color, become one part.
void COnePixelBars::DrawStrokes(std::size_t first, int column)
{
    PrefetchColors(first);
    if (m_source.Type == ChartCandles)
        AddShades(first, column);
    else
        AddSpan(first);
}

void COnePixelBars::PrefetchColors(std::size_t first) const
{
    const CVisibleStrokes::sFound found = m_strokes.Found();
    const double *const open = m_source.Open.data() + first, *const close = m_source.Close.data() + first;
    for (std::size_t k = 0; k < found.Count; ++k) {
        Prefetch(open + found.Point[k]);
        Prefetch(close + found.Point[k]);
    }
}

void COnePixelBars::AddSpan(std::size_t first)
{
    const CVisibleStrokes::sFound found = m_strokes.Found();
    for (std::size_t k = 0; k < found.Count; ++k) {
        const std::size_t i = first + static_cast<std::size_t>(found.Point[k]);
        m_allComplete &= IsDrawn(m_source.Open[i]) && IsDrawn(m_source.Close[i]);
    }
    m_found.push_back({m_map.Plot.Bottom - found.Up[found.Count - 1],
                       m_map.Plot.Top + found.Down[found.Count - 1],
                       first + static_cast<std::size_t>(found.Point[0])});
}

namespace {

// The shades of one column while it grows from its last point outwards; rows are rows of the plot.
struct sShadedRows
{
    // Each point writes so many shades beyond either end, more than it has rows as a rule: those of the
    // points before it overwrite what is too much. A fixed size is one store where the exact one is a loop.
    static constexpr int Spill = sizeof(std::uint64_t);

    std::uint8_t* Shades; // of row 0, with room for Spill shades before it and after the last row
    int Top, Bottom;      // shaded so far, Bottom exclusive

    void GrowTo(int top, int bottom, bool up)
    {
        const std::uint64_t eight = up ? 0 : 0x0101010101010101u;
        if (Top - top <= Spill && bottom - Bottom <= Spill) {
            std::memcpy(Shades + Top - Spill, &eight, Spill);
            std::memcpy(Shades + Bottom, &eight, Spill);
        } else {
            std::fill(Shades + top, Shades + Top, static_cast<std::uint8_t>(eight & 1));
            std::fill(Shades + Bottom, Shades + bottom, static_cast<std::uint8_t>(eight & 1));
        }
        Top = top;
        Bottom = bottom;
    }
};

} // namespace

void COnePixelBars::AddShades(std::size_t first, int column)
{
    const CVisibleStrokes::sFound found = m_strokes.Found();
    const double *const open = m_source.Open.data() + first, *const close = m_source.Close.data() + first;
    const int rows = m_map.Plot.Height();
    m_shades.resize(static_cast<std::size_t>(rows + 2 * sShadedRows::Spill));
    const int begin = rows - found.Up[0];
    sShadedRows shaded{m_shades.data() + sShadedRows::Spill, begin, begin};
    bool complete = true; // not left at once: a branch for each point costs more
    for (std::size_t k = 0; k < found.Count; ++k) {
        const double a = open[found.Point[k]], b = close[found.Point[k]];
        complete &= a < HoleValue;
        complete &= b < HoleValue;
        shaded.GrowTo(rows - found.Up[k], found.Down[k], b >= a);
    }
    m_allComplete &= complete;
    m_columns.Add(column, m_map.Plot.Top + shaded.Top, m_map.Plot.Top + shaded.Bottom,
                  shaded.Shades + shaded.Top);
}

bool COnePixelBars::Finish()
{
    Emit(m_found, m_column);
    m_found.clear();
    return m_allComplete;
}

// The parts become rectangles, neighbors of one color together.
void COnePixelBars::Emit(const std::vector<sSeenPart>& parts, int column)
{
    const std::size_t begin = m_rects.size();
    for (const sSeenPart& part : parts) {
        const ColorValue color = ColorOf(part.Point);
        if (m_rects.size() > begin && m_rects.back().Color == color) {
            sInkRect& last = m_rects.back();
            if (part.Bottom == last.Top) {
                last.Top = part.Top;
                continue;
            }
            if (part.Top == last.Bottom) {
                last.Bottom = part.Bottom;
                continue;
            }
        }
        m_rects.push_back({column, part.Top, column + 1, part.Bottom, color});
    }
}

// Notes a point that lacks its open or close price.
inline ColorValue COnePixelBars::ColorOf(std::size_t point)
{
    if (m_bars)
        return m_source.Up;
    m_allComplete = m_allComplete && IsDrawn(m_source.Open[point]) && IsDrawn(m_source.Close[point]);
    return m_source.Type == ChartCandles && !m_source.IsUp(point) ? m_source.Down : m_source.Up;
}

} // namespace zantroq
