#include "scene/PaneGroup.h"

#include "scene/PaneGeometry.h"
#include "scene/PointSearch.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace zantroq {

CSeriesStyle& CPaneGroup::SeriesStyles(int series)
{
    if (series < 1)
        throw std::invalid_argument("series style " + std::to_string(series));
    if (series > MaxSeries)
        throw std::invalid_argument("series style " + std::to_string(series));
    while (StyleCount() < series)
        m_styles.push_back(std::make_unique<CSeriesStyle>(m_chart));
    return *m_styles[static_cast<std::size_t>(series - 1)];
}

void CPaneGroup::RemoveStyles()
{
    if (m_styles.empty())
        return;
    m_styles.clear();
    Touch();
}

const CSeriesStyle* CPaneGroup::FindStyle(int series) const
{
    return series >= 1 && series <= StyleCount() ? m_styles[static_cast<std::size_t>(series - 1)].get()
                                                 : nullptr;
}

int CPaneGroup::PixelToData(int pixelX, int pixelY, double& x, double& y) const
{
    const sPlotMap map(*m_chart);
    x = map.X.Value(pixelX);
    y = map.Y.Value(pixelY);
    return map.Contains(pixelX, pixelY) ? GeometryFound : 0;
}

namespace {

// The pixel of a value; edgeLow and edgeHigh are the pane's outermost pixels at the axis's low and high end.
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
