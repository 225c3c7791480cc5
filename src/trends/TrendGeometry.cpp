#include "trends/TrendGeometry.h"

#include "scene/PaneGeometry.h"

#include <cmath>
#include <cstdlib>

namespace zantroq {

namespace {

CPaneGroup& Overlay(IPaneWindow& window)
{
    return window.Pane(0).PaneGroups(2);
}

// Rounds half up, like all pixel distances here; not-a-number and huge values cannot be hit.
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

// Sets x to base, base + 1, and so on. The pane detects cheaply if they already have these values. If only
// the first points need numbers, a loop without branches checks them first.
void NumberPoints(CPaneData& data, int base, int shown)
{
    if (shown >= static_cast<int>(data.X().size())) {
        data.NumberPoints(base);
        return;
    }
    const std::span<const double> x = data.X();
    const int points = std::min(shown, static_cast<int>(x.size()));
    bool differs = false;
    for (int i = 0; i < points; ++i)
        differs |= x[static_cast<std::size_t>(i)] != base + i;
    for (int i = 1; differs && i <= points; ++i)
        data.SetPointX(1, i, base + i - 1);
}

} // namespace

int AxisBase(IPaneWindow& window)
{
    return static_cast<int>(window.Pane(0).PaneArea().PaneAxes().X().ViewLow().Value());
}

namespace {

CPaneData& PrepareTrendSeries(IPaneWindow& window, int series, const sTrendLook& look, XVector x)
{
    CPaneGroup& group = Overlay(window);
    CLineLook& line = group.SeriesStyles(series).LineLook();
    line.SetColor(look.Color);
    line.SetPattern(look.Pattern);
    line.SetWidth(look.Width);
    CPaneData& data = group.PaneData();
    data.SetFirstPoint(series, 1);
    data.SetDrawnTo(series, 0);
    const int shown = window.Range().shown;
    if (x == XVector::Write)
        NumberPoints(data, AxisBase(window), shown);
    data.AdvanceDrawn(series, shown);
    return data;
}

} // namespace

std::span<double> BeginTrendSeries(IPaneWindow& window, int series, const sTrendLook& look, XVector x)
{
    return PrepareTrendSeries(window, series, look, x).YForOverwrite(series);
}

void WriteTrendLevel(IPaneWindow& window, int series, const sTrendLook& look, XVector x, int from,
                     double price)
{
    CPaneData& data = PrepareTrendSeries(window, series, look, x);
    data.SetStepY(series, from, price);
    EndTrendSeries(window);
}

void EndTrendSeries(IPaneWindow& window)
{
    Overlay(window).CommitPaneData();
}

void EraseTrendSeries(IPaneWindow& window, int series)
{
    const std::span<double> y = Overlay(window).PaneData().YForOverwrite(series);
    std::fill(y.begin(), y.end(), HoleValue);
    EndTrendSeries(window);
}

int LevelDistance(IPaneWindow& window, int series, int p1, int p2, int x, int y)
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

int SegmentDistance(IPaneWindow& window, int series, int p1, int p2, int x, int y)
{
    // One map serves all points, because a line may start or end far outside the plot.
    const sPlotMap map(window.Pane(0));
    const CPaneData& data = Overlay(window).PaneData();
    const std::span<const double> dataX = data.X(), dataY = data.Y(series);
    const auto seen = [&](int point, int& pixelX, int& pixelY) {
        const auto i = static_cast<std::size_t>(point - 1);
        if (i >= dataY.size() || !IsDrawn(dataY[i]) || std::isinf(dataY[i]) || !IsDrawn(dataX[i]))
            return false;
        pixelX = map.X.Pixel(dataX[i]);
        pixelY = map.Y.Pixel(dataY[i]);
        return map.Contains(pixelX, pixelY);
    };
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    while (p1 <= p2 && !seen(p1, x1, y1))
        ++p1;
    while (p2 > p1 && !seen(p2, x2, y2))
        --p2;
    if (p1 >= p2)
        return NotHittable;
    if (x <= x1)
        return PointDistance(x1 - x, y1 - y);
    if (x >= x2)
        return PointDistance(x2 - x, y2 - y);
    const double dx = x2 - x1, dy = y2 - y1;
    return std::abs(RoundedPixels(((y2 - y) * dx - (x2 - x) * dy) / std::sqrt(dy * dy + dx * dx)));
}

bool ClipRayRange(const IPaneWindow& window, int& p1, int& p2)
{
    p2 = window.Range().shown;
    if (p1 >= p2)
        return false;
    p1 = std::max(p1, 1);
    return true;
}

} // namespace zantroq
