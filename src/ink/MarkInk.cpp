#include "ink/MarkInk.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace zantroq {

CMarkInk::CMarkInk(const sPlotMap& map, int size, ColorValue color, const CPaneData& data, int series,
                   std::vector<sInkRect>& rects)
    : m_map(map),
      m_size(size),
      m_half(size / 2),
      m_color(color),
      m_x(data.X()),
      m_y(data.Y(series)),
      m_firstDrawn(data.FirstDrawn(series)),
      m_rects(rects)
{
}

void CMarkInk::DrawPoints()
{
    for (std::size_t i = m_firstDrawn; i < m_x.size(); ++i)
        DrawPoint(i);
}

void CMarkInk::DrawRuns(std::span<const sLineRun> runs)
{
    for (const sLineRun& run : runs) {
        if (run.Plain && DrawTogether(run))
            continue;
        for (std::size_t i = run.First; i < run.End; ++i)
            DrawPoint(i);
    }
}

// False when there may be a gap inside the plot between the lowest and the highest mark.
bool CMarkInk::DrawTogether(const sLineRun& run)
{
    const int a = m_map.Y.Pixel(run.Least), b = m_map.Y.Pixel(run.Greatest);
    const int top = std::min(a, b), bottom = std::max(a, b);
    if (bottom - top > m_size && top - m_half < m_map.Plot.Bottom &&
        bottom - m_half + m_size > m_map.Plot.Top)
        return false;
    Emit({m_map.X.Pixel(m_x[run.First]), m_map.X.Pixel(m_x[run.End - 1]), top, bottom});
    return true;
}

void CMarkInk::DrawPoint(std::size_t i)
{
    if (!IsDrawn(m_y[i]) || !IsDrawn(m_x[i]) || std::isinf(m_x[i]) || std::isinf(m_y[i]))
        return;
    const int row = m_map.Y.Pixel(m_y[i]), column = m_map.X.Pixel(m_x[i]);
    Emit({column, column, row, row});
}

void CMarkInk::Emit(const sCenters& centers)
{
    const sInkRect box{std::max(centers.Left - m_half, m_map.Plot.Left),
                       std::max(centers.Top - m_half, m_map.Plot.Top),
                       std::min(centers.Right - m_half + m_size, m_map.Plot.Right),
                       std::min(centers.Bottom - m_half + m_size, m_map.Plot.Bottom), m_color};
    // One color: the same box again shows nothing new.
    if (box.Left < box.Right && box.Top < box.Bottom && !(box == m_before))
        m_rects.push_back(box);
    m_before = box;
}

} // namespace zantroq
