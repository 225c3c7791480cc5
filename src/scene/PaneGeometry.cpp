#include "scene/PaneGeometry.h"

#include <cstdint>
#include <limits>

namespace zantroq {

CAxisMap::CAxisMap(double low, double high, int firstPixel, int lastPixel) : m_low(low), m_first(firstPixel)
{
    m_factor = (lastPixel - firstPixel) / (high - low);
    // A range can be so wide or so narrow that the slope is no usable number.
    if (!std::isfinite(m_factor) || !std::isfinite(high - low) || high == low || m_factor == 0) {
        m_factor = 0;
        m_first = firstPixel == lastPixel ? firstPixel : (firstPixel + lastPixel) / 2;
        if (!std::isfinite(low))
            m_low = 0;
    }
}

sPlotMap::sPlotMap(const CChart2D& chart, double scale)
{
    const auto device = [scale](int pixel) {
        return static_cast<int>(std::clamp(std::floor(pixel * scale + 0.5), -1.0 * FarPixel, 1.0 * FarPixel));
    };
    const sPixelRect plot = chart.PlotRect();
    Plot = {device(plot.Left), device(plot.Top), device(plot.Right), device(plot.Bottom)};
    const CPaneAxes& axes = chart.PaneArea().PaneAxes();
    X = CAxisMap(axes.X().ViewLow().Value(), axes.X().ViewHigh().Value(), Plot.Left,
                 std::max(Plot.Left, Plot.Right - 1));
    Y = CAxisMap(axes.Y().ViewLow().Value(), axes.Y().ViewHigh().Value(), std::max(Plot.Top, Plot.Bottom - 1),
                 Plot.Top);
}

int CPaneGroup::PixelToData(int pixelX, int pixelY, double& x, double& y) const
{
    const sPlotMap map(*m_chart);
    x = map.X.Value(pixelX);
    y = map.Y.Value(pixelY);
    return map.Contains(pixelX, pixelY) ? GeometryFound : 0;
}

namespace {

// value on an axis whose low end is at edgeLow and whose high end is at edgeHigh of the pane
int ClippedPixel(const CAxisMap& map, double value, int edgeLow, int edgeHigh)
{
    if (!IsDrawn(value))
        return -1;
    if (std::isinf(value))
        return std::max(0, value < 0 ? edgeLow : edgeHigh);
    return map.Pixel(value);
}

} // namespace

void CPaneGroup::DataToPixel(double x, double y, int& pixelX, int& pixelY) const
{
    const sPlotMap map(*m_chart);
    pixelX = ClippedPixel(map.X, x, 0, std::min(m_chart->PixelWidth(), FarPixel) - 1);
    pixelY = ClippedPixel(map.Y, y, std::min(m_chart->PixelHeight(), FarPixel) - 1, 0);
}

void CPaneGroup::PointToPixel(int series, int point, int& pixelX, int& pixelY) const
{
    pixelX = pixelY = -1;
    if (point < 1 || point > m_data.PointCount(series))
        return;
    DataToPixel(m_data.PointX(series, point), m_data.PointY(series, point), pixelX, pixelY);
    if (std::isinf(m_data.PointY(series, point)) || !sPlotMap(*m_chart).Contains(pixelX, pixelY))
        pixelY = -1;
}

namespace {

// A search for the nearest point. Points are looked at in ranges of pixels around the mouse when their
// columns ascend, else all of them.
class CPointSearch
{
public:
    CPointSearch(const CPaneData& data, const sPlotMap& map, int x, int y)
        : m_data(data),
          m_map(map),
          m_ascending(map.X.PixelsPerUnit() > 0 && data.XAscending()),
          m_mouseX(x),
          m_mouseY(y)
    {
    }

    void FindNearest()
    {
        if (!m_ascending)
            return Look(0, Points());
        const int widest = std::max(m_mouseX - m_map.Plot.Left, m_map.Plot.Right - 1 - m_mouseX);
        for (int radius = 4;; radius *= 4) {
            Look(FirstAtOrAfter(m_mouseX - radius), FirstAtOrAfter(m_mouseX + radius + 1));
            // Whatever lies outside the band is further away than its half width.
            if (radius >= widest || BestSquare <= static_cast<std::int64_t>(radius) * radius)
                return;
        }
    }

    void FindNearestX()
    {
        const std::span<const double> x = m_data.X();
        std::size_t first = 0, last = x.size();
        if (m_ascending) {
            // The points right of the mouse that share the first pixel, and the first of the pixel left of
            // it.
            const std::size_t right = FirstAtOrAfter(m_mouseX);
            first = right > 0 ? FirstAtOrAfter(m_map.X.Pixel(x[right - 1])) : right;
            ConsiderX(first);
            ConsiderX(right);
            return;
        }
        for (std::size_t i = first; i < last; ++i)
            ConsiderX(i);
    }

    std::int64_t BestSquare = std::numeric_limits<std::int64_t>::max();
    int Series = 0, Point = 0;

private:
    static constexpr std::size_t Block = 64;
    std::size_t Points() const { return m_data.X().size(); }

    std::size_t FirstAtOrAfter(int pixel) const
    {
        const std::span<const double> x = m_data.X();
        const auto found = std::partition_point(x.begin(), x.end(),
                                                [&](double value) { return m_map.X.Pixel(value) < pixel; });
        return static_cast<std::size_t>(found - x.begin());
    }

    void ConsiderX(std::size_t i)
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

    void Look(std::size_t first, std::size_t last)
    {
        BestSquare = std::numeric_limits<std::int64_t>::max();
        Point = 0;
        for (int series = m_data.FirstVisible(); series <= m_data.LastVisible(); ++series) {
            const std::span<const double> y = m_data.Y(series);
            for (std::size_t block = first; block < last; block += Block) {
                const std::size_t end = std::min(block + Block, last);
                if (MayHoldNearer(y.data() + block, y.data() + end))
                    for (std::size_t i = block; i < end; ++i)
                        Consider(series, i, y[i]);
            }
        }
    }

    // Whether any of the values lies within the distance of the best one so far, in y alone and with two
    // pixels of slack.
    bool MayHoldNearer(const double* from, const double* to) const
    {
        if (m_map.Y.PixelsPerUnit() == 0 || Point == 0)
            return true;
        const double mouse = m_map.Y.Value(m_mouseY);
        const double reach =
            (std::sqrt(static_cast<double>(BestSquare)) + 2) / std::abs(m_map.Y.PixelsPerUnit());
        bool any = false;
        for (; from != to; ++from)
            any |= std::abs(*from - mouse) <= reach;
        return any;
    }

    void Consider(int series, std::size_t i, double y)
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

    const CPaneData& m_data;
    const sPlotMap& m_map;
    const bool m_ascending;
    int m_mouseX, m_mouseY;
};

} // namespace

int CPaneGroup::PickPoint(int pixelX, int pixelY, int focus, int& series, int& point, int& distance) const
{
    series = point = 0;
    distance = -1;
    const sPlotMap map(*m_chart);
    if (!map.Contains(pixelX, pixelY) || m_data.FirstVisible() > m_data.LastVisible())
        return 0;
    CPointSearch search(m_data, map, pixelX, pixelY);
    if (focus == FocusX)
        search.FindNearestX();
    else
        search.FindNearest();
    if (search.Point == 0)
        return 0;
    series = search.Series;
    point = search.Point;
    distance = static_cast<int>(std::sqrt(static_cast<double>(search.BestSquare)));
    return GeometryFound;
}

} // namespace zantroq
