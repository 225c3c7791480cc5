// The trendlines of one kind, in the order in which they were drawn. Chart window's thread.
#pragma once

#include "trends/BaseTrend.h"
#include "trends/SeriesPool.h"

#include <memory>
#include <vector>

namespace zantroq {

class CTrendList
{
public:
    CTrendList(IPaneWindow& window, CSeriesPool& pool) : m_owner(window), m_pool(pool) {}

    CBaseTrend* Add(std::unique_ptr<CBaseTrend> trend);
    // Returns the line with the smallest distance and sets `distance`; of equal distances the first line.
    // Null and -1 if the list is empty.
    CBaseTrend* FindNearest(int x, int y, int* distance) const;
    void DrawAll();
    void RemoveAll(); // erases and deletes all lines, the last first, and resets the series pool
    void SetAllColors(ColorValue color);
    void SetAllWidths(int width);
    void SetAllExtendable(int flag);
    // If the line is a member, erases it and releases its first series.
    bool ReleaseFirstSeries(CBaseTrend* trend);
    int AllocateSeries() { return m_pool.Allocate(); }
    // Removes and deletes a member without erasing it from the pane.
    void Remove(CBaseTrend* trend);

    bool Holds(const CBaseTrend* trend) const { return IndexOf(trend) >= 0; }
    int IndexOf(const CBaseTrend* trend) const; // -1: not a member
    int Count() const { return static_cast<int>(m_trends.size()); }
    CBaseTrend& Item(int index) const { return *m_trends[static_cast<std::size_t>(index)]; } // from 0

private:
    IPaneWindow& m_owner;
    CSeriesPool& m_pool;
    std::vector<std::unique_ptr<CBaseTrend>> m_trends;
};

} // namespace zantroq
