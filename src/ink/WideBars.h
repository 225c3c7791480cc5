// Draws candles, H/L/O/C bars and bars as rectangles, each point by itself. Lives for one drawing, on the
// chart window's thread.
#pragma once

#include "ink/BarSource.h"
#include "ink/InkRect.h"

#include <cstddef>
#include <vector>

namespace zantroq {

class CWideBars
{
public:
    // Rectangles are added to `rects`; all three outlive this object.
    CWideBars(const sBarSource& source, const sPlotMap& map, std::vector<sInkRect>& rects)
        : m_source(source), m_map(map), m_rects(rects)
    {
    }

    // The rectangles of one point.
    void Draw(std::size_t i, int column);

private:
    void Emit(int left, int top, int right, int bottom, ColorValue color);
    void DrawBar(std::size_t i, int column);
    void DrawPriceBar(std::size_t i, int column);
    void DrawCandle(std::size_t i, int column);

    const sBarSource& m_source;
    const sPlotMap& m_map;
    std::vector<sInkRect>& m_rects;
};

} // namespace zantroq
