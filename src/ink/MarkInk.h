// The marks of a series' points as rectangles of one color. Lives for one drawing, on the chart window's
// thread.
#pragma once

#include "ink/InkRect.h"
#include "ink/LineInk.h"

#include <cstddef>
#include <span>
#include <vector>

namespace zantroq {

class CMarkInk
{
public:
    // A mark is a square of `size` device pixels around its point. Rectangles are added to `rects`; all three
    // outlive this object.
    CMarkInk(const sPlotMap& map, int size, ColorValue color, const CPaneData& data, int series,
             std::vector<sInkRect>& rects);

    // Every point by itself.
    void DrawPoints();
    // The points of a line's runs. A run whose marks leave no gap between them becomes one rectangle.
    void DrawRuns(std::span<const sLineRun> runs);

private:
    struct sCenters // of marks, in device pixels, last column and row included
    {
        int Left, Right, Top, Bottom;
    };

    bool DrawTogether(const sLineRun& run);
    void DrawPoint(std::size_t i);
    void Emit(const sCenters& centers);

    const sPlotMap& m_map;
    const int m_size, m_half;
    const ColorValue m_color;
    const std::span<const double> m_x, m_y;
    const std::size_t m_firstDrawn;
    std::vector<sInkRect>& m_rects;
    sInkRect m_before{}; // emitted last
};

} // namespace zantroq
