// The price pane: price bars, moving averages, bands, x labels and value axis. Each whole draw computes
// everything from the series. Chart window's thread.
//
// Group 1 contains the price (ticks) or high, low, open and close (bars). Group 2 contains the averages or
// bands; trendlines follow. PricePaneNumbers.h has the numbers of labels and series.
#pragma once

#include "drawing/BaseChart.h"
#include "drawing/DrawnExtent.h"
#include "drawing/PriceOverlays.h"
#include "drawing/PricePaneNumbers.h"
#include "drawing/PriceRange.h"
#include "drawing/PriceStyles.h"
#include "drawing/SeriesReader.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zantroq {

class CPriceChart : public CBaseChart
{
public:
    IChartWindow* dlg = nullptr; // not owned
};

class CHistPriceChart : public CPriceChart
{
public:
    // Nothing is owned; `trendLayer` may be null.
    CHistPriceChart(IChartWindow& window, CChart2D& pane, const CSeriesReader& reader,
                    ITrendLayer* trendLayer);

    virtual void SetupSeries();
    virtual void SetChartType();
    virtual void SetTitle(const std::string& text); // appended to the name of the data type
    virtual std::array<std::string, 8> GetInfo() const;
    virtual void BuildXLabels();
    virtual int DataCount() const { return Count(); }
    virtual double Close(int index) const { return m_prices.Close(index); }
    virtual double High(int index) const { return m_prices.High(index); }
    virtual double Low(int index) const { return m_prices.Low(index); }
    virtual std::int32_t Volume(int index) const
    {
        return CutVolume(m_prices.Volume(index));
    } // limited to 32 bits
    virtual int Count() const { return m_prices.Count(); }

    void SetUp(); // call at the start of a chart: labels, margins, axes, colors
    // The whole draw; a position outside the series is clamped.
    sDrawnExtent Draw(int position);
    // Updates the last bar after a live change: writes only that point. Returns false if its values are
    // unchanged.
    bool UpdateLastPoint();
    void RefreshTitle();
    void RedrawTrends();
    void SetYScale(double high, double low);
    void NarrowCandles(); // fits the width of candles to the width of a point

    std::uint32_t maxVolume = 0;  // largest volume when the value axis was last fitted
    std::int32_t priceDigits = 1; // digits of the highest price before the point at that time

protected:
    // Marks which of `count` points from `first` on are deleted; an empty list means none. The feed marks no
    // point.
    virtual void ReadDeletedMarks(int first, int count, std::vector<std::uint8_t>& marks) const;

private:
    const sChartSettings& Settings() const { return dlg->Settings(); }
    CPaneData& Bars() { return chart->PaneGroups(1).PaneData(); }
    CPaneData& Curves() { return chart->PaneGroups(2).PaneData(); }
    bool TickSeries() const { return m_prices.GetDataType() == TickData; }
    bool Intraday() const; // ticks and minutes
    PriceShape Shape() const { return PriceShapeOf(Settings(), m_prices.GetDataType()); }
    bool FitsScale() const; // false: the value axis does not change

    void SetUpLabels();
    void PlaceRange(int position, int count, int wanted);
    void MakeRoom(const sDrawnPoints& points);
    void LoadBars(sDrawnPoints& points);
    sPriceRange FitToPrices(const sDrawnPoints& points);
    void DrawCurves(const sDrawnPoints& points, sPriceRange prices);

    const CSeriesReader& m_prices;
    ITrendLayer* m_trends;
    CPriceOverlays m_overlays;
};

} // namespace zantroq
