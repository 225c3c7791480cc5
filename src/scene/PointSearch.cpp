#include "scene/PointSearch.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace zantroq {

CPointSearch::CPointSearch(const CPaneData& data, const sPlotMap& map, int x, int y)
    : m_data(data),
      m_map(map),
      m_ascending(map.X.PixelsPerUnit() > 0 && data.XAscending()),
      m_mouseX(x),
      m_mouseY(y)
{
}

void CPointSearch::FindNearest()
{
    if (!m_ascending)
        return Look(0, Points());
    const int widest = std::max(m_mouseX - m_map.Plot.Left, m_map.Plot.Right - 1 - m_mouseX);
    for (int radius = 4;; radius *= 4) {
        Look(FirstAtOrAfter(m_mouseX - radius), FirstAtOrAfter(m_mouseX + radius + 1));
        // Everything outside the band is further away than its half width.
        if (radius >= widest || BestSquare <= static_cast<std::int64_t>(radius) * radius)
            return;
    }
}

void CPointSearch::FindNearestX()
{
    const std::span<const double> x = m_data.X();
    if (!m_ascending) {
        for (std::size_t i = 0; i < x.size(); ++i)
            ConsiderX(i);
        return;
    }
    // The first point at or right of the mouse, and the first in the column of the point left of it.
    const std::size_t right = FirstAtOrAfter(m_mouseX);
    ConsiderX(right > 0 ? FirstAtOrAfter(m_map.X.Pixel(x[right - 1])) : right);
    ConsiderX(right);
}

std::size_t CPointSearch::FirstAtOrAfter(int pixel) const
{
    const std::span<const double> x = m_data.X();
    const auto found =
        std::partition_point(x.begin(), x.end(), [&](double value) { return m_map.X.Pixel(value) < pixel; });
    return static_cast<std::size_t>(found - x.begin());
}

void CPointSearch::ConsiderX(std::size_t i)
{
    if (i >= Points() || !IsDrawn(m_data.X()[i]))
        return;
    const int x = m_map.X.Pixel(m_data.X()[i]);
    const std::int64_t dx = x - m_mouseX;
    if (x < m_map.Plot.Left || x >= m_map.Plot.Right || dx * dx >= BestSquare)
        return;
    BestSquare = dx * dx;
    Series = m_data.FirstVisible();
    Point = static_cast<int>(i) + 1;
}

// The points of all shown series, from `first` to `last` (exclusive), by blocks: most blocks lie too far
// above or below the mouse.
void CPointSearch::Look(std::size_t first, std::size_t last)
{
    // The worst case takes 3.2 ms with blocks of 64 (bench/RESULTS.md, Painting). Other sizes were not compared.
    constexpr std::size_t blockSize = 64;
    BestSquare = std::numeric_limits<std::int64_t>::max();
    Point = 0;
    for (int series = m_data.FirstVisible(); series <= m_data.LastVisible(); ++series) {
        const std::span<const double> y = m_data.Y(series);
        for (std::size_t block = first; block < last; block += blockSize) {
            const std::size_t end = std::min(block + blockSize, last);
            if (MayHoldNearer(y.data() + block, y.data() + end))
                for (std::size_t i = block; i < end; ++i)
                    Consider(series, i, y[i]);
        }
    }
}

// Whether any of the values lies within the distance of the best one so far, in y alone and with two pixels
// of slack.
bool CPointSearch::MayHoldNearer(const double* from, const double* to) const
{
    if (m_map.Y.PixelsPerUnit() == 0 || Point == 0)
        return true;
    const double mouse = m_map.Y.Value(m_mouseY);
    const double reach = (std::sqrt(static_cast<double>(BestSquare)) + 2) / std::abs(m_map.Y.PixelsPerUnit());
    bool any = false;
    for (; from != to; ++from)
        any |= std::abs(*from - mouse) <= reach;
    return any;
}

void CPointSearch::Consider(int series, std::size_t i, double y)
{
    const double dataX = m_data.X()[i];
    if (!IsDrawn(y) || std::isinf(y) || !IsDrawn(dataX))
        return;
    const int pixelX = m_map.X.Pixel(dataX), pixelY = m_map.Y.Pixel(y);
    const std::int64_t dx = pixelX - m_mouseX, dy = pixelY - m_mouseY;
    if (!m_map.Contains(pixelX, pixelY) || dx * dx + dy * dy >= BestSquare)
        return;
    BestSquare = dx * dx + dy * dy;
    Series = series;
    Point = static_cast<int>(i) + 1;
}

} // namespace zantroq
