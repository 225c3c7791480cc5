// A pane painted into memory with the fixed font.
#pragma once

#include "paint/FixedFont.h"
#include "paint/PaneRaster.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace zantroq::test {

struct sPixels
{
    sPixels(int width, int height) : Width(width), Height(height)
    {
        // A color that the painter never writes.
        Pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0x12345678);
    }
    sRaster Raster() { return {Pixels.data(), Width, Width, Height}; }
    PixelColor At(int x, int y) const
    {
        return Pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) +
                         static_cast<std::size_t>(x));
    }

    int Width, Height;
    std::vector<PixelColor> Pixels;
};

// A pane with its cached picture.
class CPaintedPane
{
public:
    explicit CPaintedPane(const CChart2D& chart, double scale = 1)
        : Picture(Device(chart.PixelWidth(), scale), Device(chart.PixelHeight(), scale)),
          m_scale(scale),
          m_font(scale),
          m_raster(chart, m_font)
    {
        Paint();
    }
    void SetManner(PaneManner manner) { m_raster.SetManner(manner); }
    // Returns the painted part.
    sPixelRect Paint() { return m_raster.Paint(Picture.Raster(), m_scale); }

    sPixels Picture;

private:
    static int Device(int pixels, double scale) { return static_cast<int>(std::floor(pixels * scale + 0.5)); }

    double m_scale;
    CFixedFont m_font;
    CPaneRaster m_raster;
};

} // namespace zantroq::test
