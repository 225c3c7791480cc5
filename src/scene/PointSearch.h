// The search for the point of a group nearest to the mouse. Lives for one search, on the chart window's
// thread.
#pragma once

#include "scene/PaneGeometry.h"

#include <cstddef>
#include <cstdint>
#include <limits>

namespace zantroq {

// Looks only at columns near the mouse where the columns of the points ascend, else at all points.
class CPointSearch
{
public:
    // (x, y) is the mouse, in pixels of the pane; `data` and `map` outlive this object.
    CPointSearch(const CPaneData& data, const sPlotMap& map, int x, int y);

    // Search for the nearest point, or the nearest in x of the first shown series. On a tie the earliest
    // series, in it the earliest point.
    void FindNearest();
    void FindNearestX();

    // What was found: the series and point, from 1, and the square of the distance in whole pixels. Point is
    // 0 when nothing was.
    std::int64_t BestSquare = std::numeric_limits<std::int64_t>::max();
    int Series = 0, Point = 0;

private:
    std::size_t Points() const { return m_data.X().size(); }
    std::size_t FirstAtOrAfter(int pixel) const;
    void ConsiderX(std::size_t i);
    void Look(std::size_t first, std::size_t last);
    bool MayHoldNearer(const double* from, const double* to) const;
    void Consider(int series, std::size_t i, double y);

    const CPaneData& m_data;
    const sPlotMap& m_map;
    const bool m_ascending;
    int m_mouseX, m_mouseY;
};

} // namespace zantroq
