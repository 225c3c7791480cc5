#include "drawing/XAxis.h"

namespace zantroq {

int XSpacing(int shown)
{
    return (shown - 2) / 5 + 1;
}

int XLabelCount(int shown)
{
    return XSpacing(shown) == 1 ? shown : 5;
}

double PixelsPerPoint(int widthPx, int shown)
{
    const double pixels = shown == 1 ? widthPx : (widthPx - SideMarginsPx) / (shown - 0.5);
    return pixels <= 0 ? 1.0 : pixels;
}

void SetXAxis(CChart2D& chart, int shown, bool grid)
{
    CPaneAxis& x = chart.PaneArea().PaneAxes().X();
    x.DataLow().SetValue(1);
    x.ViewLow().SetValue(1);
    x.DataHigh().SetValue(shown);
    x.ViewHigh().SetValue(shown + 0.5);
    const int spacing = XSpacing(shown);
    x.TickSpacing().SetValue(spacing);
    x.TickMarkSpacing().SetValue(spacing);
    if (grid)
        x.AxisGrid().SetSpacing(spacing);
}

} // namespace zantroq
