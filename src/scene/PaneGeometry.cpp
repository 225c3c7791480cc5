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

} // namespace zantroq
