#include "ink/OnePixelBars.h"

#include "ink/InkStyle.h"
#include "platform/Prefetch.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace zantroq {

COnePixelBars::COnePixelBars(const sBarSource& source, const sPlotMap& map, std::vector<sInkRect>& rects,
                             CInkColumns& columns)
    : m_source(source),
      m_map(map),
      m_rects(rects),
      m_columns(columns),
      m_bars(IsBarType(source.Type)),
      m_seen(map),
      m_parts(source, map, m_found)
{
    if (source.Type == ChartCandles)
        m_columns.SetColors(source.Up, source.Down);
}

void COnePixelBars::ExamineAll()
{
    m_examineAll = true;
    m_parts.ExamineAll();
}

// Columns are walked backwards, which the processor does not foresee.
void COnePixelBars::Foresee(std::size_t first, std::size_t count) const
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
    // Finding them together takes as long for few as for many. A column shows about as many points as the
    // one before it.
    constexpr std::size_t pointsForOne = 24;
    if (!m_bars && !m_examineAll && pointsForOne * m_shown >= last - first &&
        m_seen.Find(m_source.High, m_source.Low, first, last)) {
        DrawSeen(first, column);
        m_shown = m_seen.Found().Count;
    } else {
        m_parts.Find(first, last);
        m_shown = m_found.size();
    }
    Emit(m_before, m_columnBefore);
}

// The points found become a column of pixels, or a piece where there is one color only.
void COnePixelBars::DrawSeen(std::size_t first, int column)
{
    const CVisibleStrokes::sFound found = m_seen.Found();
    const double *const open = m_source.Open.data() + first, *const close = m_source.Close.data() + first;
    for (std::size_t k = 0; k < found.Count; ++k) {
        Prefetch(open + found.Point[k]);
        Prefetch(close + found.Point[k]);
    }
    const int rows = m_map.Plot.Height();
    if (m_source.Type != ChartCandles) {
        for (std::size_t k = 0; k < found.Count; ++k)
            m_allComplete &= IsDrawn(open[found.Point[k]]) && IsDrawn(close[found.Point[k]]);
        m_found.push_back({m_map.Plot.Bottom - found.Up[found.Count - 1],
                           m_map.Plot.Top + found.Down[found.Count - 1],
                           first + static_cast<std::size_t>(found.Point[0])});
        return;
    }
    // Every point writes eight pixels beyond each end of what is covered; those behind it write over what is
    // too much.
    constexpr int more = sizeof(std::uint64_t);
    m_shades.resize(static_cast<std::size_t>(rows + 2 * more));
    std::uint8_t* const shades = m_shades.data() + more;
    bool plain = true;
    int top = rows - found.Up[0], bottom = top; // rows of the plot
    for (std::size_t k = 0; k < found.Count; ++k) {
        const double a = open[found.Point[k]], b = close[found.Point[k]];
        plain &= a < CPaneData::HoleValue();
        plain &= b < CPaneData::HoleValue();
        const std::uint64_t shade = b >= a ? 0 : 0x0101010101010101u;
        const int nextTop = rows - found.Up[k], nextBottom = found.Down[k];
        if (top - nextTop <= more && nextBottom - bottom <= more) {
            std::memcpy(shades + top - more, &shade, more);
            std::memcpy(shades + bottom, &shade, more);
        } else {
            std::fill(shades + nextTop, shades + top, static_cast<std::uint8_t>(shade & 1));
            std::fill(shades + bottom, shades + nextBottom, static_cast<std::uint8_t>(shade & 1));
        }
        top = nextTop;
        bottom = nextBottom;
    }
    m_allComplete &= plain;
    m_columns.Add(column, m_map.Plot.Top + top, m_map.Plot.Top + bottom, shades + top);
}

bool COnePixelBars::Finish()
{
    Emit(m_found, m_column);
    m_found.clear();
    return m_allComplete;
}

// What was found becomes rectangles, neighbours of one color together.
void COnePixelBars::Emit(const std::vector<sSeenPart>& parts, int column)
{
    const bool candles = m_source.Type == ChartCandles;
    const std::size_t begin = m_rects.size();
    for (const sSeenPart& part : parts) {
        ColorValue color = m_source.Up;
        if (!m_bars) {
            m_allComplete =
                m_allComplete && IsDrawn(m_source.Open[part.Point]) && IsDrawn(m_source.Close[part.Point]);
            if (candles && !m_source.IsUp(part.Point))
                color = m_source.Down;
        }
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

} // namespace zantroq
