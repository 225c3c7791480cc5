// The pixel columns of points. x values that are known to count up by one are not read at all. Lives for one
// drawing, during which the values must not change; chart window's thread.
#pragma once

#include "scene/PaneGeometry.h"

#include <cstddef>

namespace zantroq {

class CPointColumns
{
public:
    CPointColumns() = default;
    CPointColumns(const CPaneData& data, const CAxisMap& map)
        : m_x(data.X().data()),
          m_count(data.X().size()),
          m_ascending(data.XAscending()),
          m_counts(data.ConsecutiveXFrom().has_value()),
          m_first(data.ConsecutiveXFrom().value_or(0)),
          m_map(map)
    {
    }

    std::size_t Count() const { return m_count; }
    // Whether the point has a column: its x is finite and no hole.
    bool IsPlaced(std::size_t i) const { return m_counts || (IsDrawn(m_x[i]) && !std::isinf(m_x[i])); }
    // Whether every point has a column and the columns ascend. On an axis that runs backwards they do not.
    bool InOrder() const
    {
        return m_ascending && m_map.PixelsPerUnit() >= 0 &&
               (m_count == 0 || (IsPlaced(0) && IsPlaced(m_count - 1)));
    }
    // REQUIRES: IsPlaced(i).
    int ColumnOf(std::size_t i) const
    {
        return m_map.Pixel(m_counts ? m_first + static_cast<double>(i) : m_x[i]);
    }

    // The first point from `from` on that lies in the column or right of it; Count() if none does. REQUIRES:
    // InOrder().
    std::size_t First(std::size_t from, int column) const;
    // One more than the last point of the column. REQUIRES: InOrder(), and point i lies in the column.
    std::size_t End(std::size_t i, int column);

private:
    const double* m_x = nullptr;
    std::size_t m_count = 0;
    bool m_ascending = true, m_counts = false;
    double m_first = 0;
    CAxisMap m_map;
    std::size_t m_stride = 1; // points in the column that End found last
};

} // namespace zantroq
