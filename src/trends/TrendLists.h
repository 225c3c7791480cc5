// The seven trendline lists of a chart window with their pool of series and labels. Lines are never stored;
// they are removed together with the data on which they were drawn. One per window, on the window's thread.
#pragma once

#include "drawing/PricePaneNumbers.h"
#include "trends/TrendList.h"

#include <array>
#include <memory>

namespace zantroq {

class CTrendLists : public ITrendLayer
{
public:
    explicit CTrendLists(IPaneWindow& window);

    // The nearest line of all lists; of equal distances, the line of the earlier kind. Null and distance -1 if
    // there are no lines.
    CBaseTrend* FindNearest(int x, int y, int* distance);
    void DrawAll() override;
    // Erases a line, releases its series in order and deletes it. Ignores a line that is in no list.
    void Delete(CBaseTrend* trend);
    void RemoveAll();
    int Count() const;
    bool Holds(const CBaseTrend* trend) const;

    CTrendList& List(TrendKind kind) { return *m_lists[static_cast<std::size_t>(kind)]; }
    const CTrendList& List(TrendKind kind) const { return *m_lists[static_cast<std::size_t>(kind)]; }
    int AllocateSeries() { return m_pool.Allocate(); }
    // Creates the nine labels of a retracement. Returns the number of the first.
    int AllocateLabels();
    const CSeriesPool& Pool() const { return m_pool; }

    int SeriesCount() const override { return m_pool.Next() - 1; }
    int LabelCount() const override { return m_nextLabel; }

    CBaseTrend* m_lastHit = nullptr; // result of the last FindNearest

private:
    IPaneWindow& m_owner;
    CSeriesPool m_pool;
    std::array<std::unique_ptr<CTrendList>, TrendKinds> m_lists;
    int m_nextLabel = PriceLabels; // labels in use on the price pane
};

} // namespace zantroq
