#include "trends/TrendGeometry.h"

#include <cmath>
#include <cstdlib>

namespace zantroq {

namespace {

CPaneGroup& Overlay(IChartWindow& window)
{
    return window.Pane(0).PaneGroups(2);
}

// Rounds half up, as all pixel distances here; a value that is no number counts as out of reach.
int RoundedPixels(double distance)
{
    if (!(std::fabs(distance) < 1e9))
        return NotHittable;
    return static_cast<int>(distance + 0.5);
}

int PointDistance(int dx, int dy)
{
    const double x = dx, y = dy;
    return RoundedPixels(std::sqrt(x * x + y * y));
}

} // namespace

int AxisBase(IChartWindow& window)
{
    return static_cast<int>(window.Pane(0).PaneArea().PaneAxes().X().ViewLow().Value());
}

std::vector<double>& TrendScratch(IChartWindow& window)
{
    static thread_local std::vector<double> scratch;
    const std::size_t points = static_cast<std::size_t>(
        std::max({window.Range().shown, Overlay(window).PaneData().PointCount(1), 0}));
    scratch.assign(points, CPaneData::HoleValue());
    return scratch;
}

void CommitTrendSeries(IChartWindow& window, int series, const sTrendLook& look, XVector x,
                       const std::vector<double>& y)
{
    CPaneGroup& group = Overlay(window);
    CLineLook& line = group.SeriesStyles(series).LineLook();
    line.SetColour(look.Color);
    line.SetPattern(look.Pattern);
    line.SetWidth(look.Width);
    CPaneData& data = group.PaneData();
    data.SetFirstPoint(series, 1);
    data.SetDrawnTo(series, 0);
    const int shown = window.Range().shown;
    if (x == XVector::Write) {
        const int base = AxisBase(window);
        for (int i = 1; i <= shown; ++i) {
            if (data.PointX(1, i) != base + i - 1)
                data.SetPointX(1, i, base + i - 1);
        }
    }
    data.SetYVector(series, y);
    data.AdvanceDrawn(series, shown);
}

void EraseTrendSeries(IChartWindow& window, int series)
{
    CPaneData& data = Overlay(window).PaneData();
    data.SetYVector(series, TrendScratch(window));
}

int LevelDistance(IChartWindow& window, int series, int p1, int p2, int x, int y)
{
    const CPaneGroup& group = Overlay(window);
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    group.PointToPixel(series, p1, x1, y1);
    if (y1 == -1)
        return NotHittable;
    group.PointToPixel(series, p2, x2, y2);
    if (x < x1)
        return PointDistance(x1 - x, y2 - y);
    if (x > x2)
        return PointDistance(x2 - x, y2 - y);
    return std::abs(y2 - y);
}

int SegmentDistance(IChartWindow& window, int series, int p1, int p2, int x, int y)
{
    const CPaneGroup& group = Overlay(window);
    int x1 = 0, y1 = -1, x2 = 0, y2 = -1;
    for (; p1 <= p2; ++p1) {
        group.PointToPixel(series, p1, x1, y1);
        if (y1 != -1)
            break;
    }
    if (p1 >= p2)
        return NotHittable;
    for (; p2 > p1; --p2) {
        group.PointToPixel(series, p2, x2, y2);
        if (y2 != -1)
            break;
    }
    if (p1 == p2)
        return NotHittable;
    if (x <= x1)
        return PointDistance(x1 - x, y1 - y);
    if (x >= x2)
        return PointDistance(x2 - x, y2 - y);
    const double dx = x2 - x1, dy = y2 - y1;
    return std::abs(RoundedPixels(((y2 - y) * dx - (x2 - x) * dy) / std::sqrt(dy * dy + dx * dx)));
}

bool ClipRayRange(const IChartWindow& window, int& p1, int& p2)
{
    p2 = window.Range().shown;
    if (p1 >= p2)
        return false;
    p1 = std::max(p1, 1);
    return true;
}

} // namespace zantroq
