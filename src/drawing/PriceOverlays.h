// The curves over the prices: three moving averages or the three Bollinger Bands, in series 1 to 3 of group 2
// of the price pane. If both are switched on, bands replace averages. A hidden curve consists of holes. Each
// whole draw computes the curves. Chart window's thread.
#pragma once

#include "drawing/MovingAverages.h"
#include "drawing/Numbers.h"
#include "drawing/PricePaneNumbers.h"
#include "drawing/PriceRange.h"
#include "drawing/PriceSource.h"
#include "scene/Chart2D.h"
#include "settings/ChartSettings.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace zantroq {

// The part of the series that one draw uses.
struct sDrawnPoints
{
    int First = 0; // data index
    int Count = 0;
    int SeriesCount = 0;               // number of points in the whole series at the start of the draw
    std::vector<std::uint8_t> Deleted; // one mark per point; empty: none is deleted
};

// Which values of the bands the value axis must include. Averages are included over the drawn points in both
// cases.
enum class BandRange
{
    OfTheDrawnPoints,
    OfTheWholeSeries
};

class CPriceOverlays
{
public:
    CPriceOverlays(CChart2D& pane, const IPriceSource& prices) : m_pane(pane), m_prices(prices) {}

    // Computes the curves of `points`, whose prices are already in group 1, and returns the range of their
    // values; its ends are infinite if there are none.
    sPriceRange Draw(const sOverlaySettings& settings, const sDrawnPoints& points, BandRange rule);

private:
    CPaneData& Curves() { return m_pane.PaneGroups(2).PaneData(); }
    sCloseRun LoadCloses(const sOverlaySettings& settings, const sDrawnPoints& points,
                         CNumbers& lookBack) const;
    sPriceRange DrawAverages(const sOverlaySettings& settings, const sDrawnPoints& points,
                             const sCloseRun& closes);
    sPriceRange DrawBands(const sOverlaySettings& settings, const sDrawnPoints& points,
                          const sCloseRun& closes);
    sPriceRange RangeOfAllBands(const sOverlaySettings& settings, int count) const;
    std::span<double> ValuesOf(int series);
    void MarkDrawn(int series, int warmUp);
    void Clear(int series);

    CChart2D& m_pane;
    const IPriceSource& m_prices;
    std::array<bool, PriceOverlays> m_hasValues{true, true, true};
};

} // namespace zantroq
