// The seven trendline lists of a chart window with their pool of series and labels. Lines are never stored:
// they go with the data that they were drawn on. One per window, on its thread.
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

    // The nearest of all lists; on a tie the earlier kind wins. Null with distance -1 when there is no line.
    CBaseTrend* FindNearest(int x, int y, int* distance);
    void DrawAll() override;
    // Erases a line, gives its series back in order and deletes it; what is in no list is ignored.
    void Delete(CBaseTrend* trend);
    void RemoveAll();
    int Count() const;
    bool Holds(const CBaseTrend* trend) const;

    CTrendList& List(TrendKind kind) { return *m_lists[static_cast<std::size_t>(kind)]; }
    const CTrendList& List(TrendKind kind) const { return *m_lists[static_cast<std::size_t>(kind)]; }
    int AllocateSeries() { return m_pool.Allocate(); }
    // Makes the nine labels of a retracement; answers the number of the first.
    int AllocateLabels();
    const CSeriesPool& Pool() const { return m_pool; }

    int SeriesCount() const override { return m_pool.Next() - 1; }
    int LabelCount() const override { return m_nextLabel; }

    CBaseTrend* m_lastHit = nullptr;      // result of the last FindNearest

private:
    IPaneWindow& m_owner;
    CSeriesPool m_pool;
    std::array<std::unique_ptr<CTrendList>, TrendKinds> m_lists;
    int m_nextLabel = PriceLabels; // labels in use on the price pane
};

} // namespace zantroq
