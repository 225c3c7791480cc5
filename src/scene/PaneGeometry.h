// The mapping from values to pixels: one axis of the plot, and the two axes of a scene together. The same
// maps answer questions in the pane's pixels and serve painting on a finer grid (a screen of scale factor 2,
// a printed page). Plain arithmetic, any thread.
#pragma once

#include "scene/Chart2D.h"
#include "scene/HoleValue.h"

#include <algorithm>
#include <cmath>

namespace zantroq {

// The nearest whole number, halves upwards, of a position within 256 times FarPixel. Truncating a positive
// number is one instruction where rounding down is a call.
inline constexpr double NearestPixelLift = 512.0 * FarPixel;
inline int NearestPixel(double place)
{
    return static_cast<int>(place + (NearestPixelLift + 0.5)) - static_cast<int>(NearestPixelLift);
}

// Maps low to firstPixel and high to lastPixel, both whole pixels and both inside the plot. A range that is
// empty or not finite has no slope: every value maps to the middle and every pixel to low.
class CAxisMap
{
public:
    CAxisMap() = default;
    CAxisMap(double low, double high, int firstPixel, int lastPixel);

    // The position on the axis, in pixels, at most FarPixel away from 0. Not-a-number for a not-a-number.
    double Position(double value) const
    {
        if (m_factor == 0)
            return m_first;
        const double position = m_first + (value - m_low) * m_factor;
        return position < -FarPixel ? -FarPixel : position > FarPixel ? FarPixel : position;
    }
    // The nearest whole pixel; halves round up. REQUIRES: not a not-a-number.
    int Pixel(double value) const { return NearestPixel(Position(value)); }
    double Value(double pixel) const { return m_factor == 0 ? m_low : m_low + (pixel - m_first) / m_factor; }
    double PixelsPerUnit() const { return m_factor; } // 0: no slope
    double Low() const { return m_low; }              // the value in the middle of pixel First()
    double First() const { return m_first; }
    bool operator==(const CAxisMap&) const = default;

private:
    double m_low = 0, m_first = 0, m_factor = 0;
};

// The plot of a scene on a grid of `scale` device pixels per pane pixel, its edges rounded to whole device
// pixels.
struct sPlotMap
{
    sPlotMap() = default;
    explicit sPlotMap(const CChart2D& chart, double scale = 1.0);
    bool Contains(int x, int y) const
    {
        return x >= Plot.Left && x < Plot.Right && y >= Plot.Top && y < Plot.Bottom;
    }
    bool Empty() const { return Plot.Width() <= 0 || Plot.Height() <= 0; }

    sPixelRect Plot;
    CAxisMap X, Y;
};

} // namespace zantroq
