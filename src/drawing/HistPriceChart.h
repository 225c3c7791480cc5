// The top pane: price bars, moving averages, bands, its x labels and value axis. Everything it shows is
// computed anew from the series at each whole draw. Chart window's thread.
//
// Group 1 holds the price (ticks) or high, low, open and close (bars). Group 2 holds in series 1 to 3 the
// three averages, or while they are on the lower, upper and middle band; behind them stand the trendlines. A
// curve that is not shown is all holes. Label 1 is the readout under the mouse, label 2 the title, 3 to 9 are
// in reserve; trendline texts follow.
#pragma once

#include "drawing/BaseChart.h"
#include "drawing/InfoText.h"
#include "drawing/PriceRange.h"
#include "market/HistoryRecords.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace zantroq {

class CHistChartDrawManager;

inline constexpr int ReadoutLabel = 1, PriceTitleLabel = 2, PriceLabels = 9, PriceOverlays = 3;

class CPriceChart : public CBaseChart
{
public:
    IChartWindow* dlg = nullptr; // not owned
};

class CHistPriceChart : public CPriceChart
{
public:
    virtual void SetupSeries();
    virtual void SetChartType();
    virtual void SetTitle(const std::string& text); // the text goes behind the name of the data type
    virtual std::array<std::string, 8> GetInfo() const;
    virtual void BuildXLabels();
    virtual int DataCount() const { return Count(); }
    virtual double Close(int index) const;
    virtual double High(int index) const;
    virtual double Low(int index) const;
    virtual std::int32_t Volume(int index) const; // cut to 32 bits
    virtual int Count() const;

    void SetUp();            // at the start of a chart: labels, margins, axes, colors
    void Draw(int position); // the whole draw; a position outside the series is held at its nearer end
    void UpdateLastPoint();  // a live change of the last bar: touches that point alone
    void RefreshTitle();
    void SetYScale(double high, double low);
    void NarrowCandles(); // fits the candles' width to the room of a point

    std::uint32_t maxVolume = 0;              // greatest volume when the value axis was last fitted
    std::int32_t priceDigits = 1;             // digits before the point of the highest price then
    CHistChartDrawManager* manager = nullptr; // not owned

protected:
    // Fills in which of `count` points from `first` on are marked deleted; an empty list marks none. No point
    // of the feed's is.
    virtual void ReadDeletedMarks(int first, int count, std::vector<std::uint8_t>& marks) const;

private:
    struct sDrawnPoints; // the stretch of the series that one draw works on

    const sChartSettings& Settings() const { return dlg->Settings(); }
    CPaneData& Bars() { return chart->PaneGroups(1).PaneData(); }
    CPaneData& Overlays() { return chart->PaneGroups(2).PaneData(); }
    const CPaneData& Overlays() const;
    sPriceWords Words() const;
    bool TickSeries() const;
    int PriceSeries() const { return TickSeries() ? 1 : 4; } // series of group 1
    bool ShowsCandles() const;
    bool FitsScale() const; // false: the value axis stays as it is

    void ApplyStyles();
    void ApplyCandleStyles();
    void PlaceRange(int position, int count, int wanted);
    void MakeRoom(const sDrawnPoints& points);
    void LoadBars(sDrawnPoints& points);
    void LoadCloses(sDrawnPoints& points);
    sPriceRange FitToPrices(const sDrawnPoints& points, int count);
    void ScanPrices(sPriceRange& range, int count) const;
    void ScanVolumes(sPriceRange& range, int first, int count) const;
    void IncludeAllBands(sPriceRange& range, int count) const;
    void FitToCurves(sPriceRange prices, const sPriceRange& curves);
    void DrawAverages(const sDrawnPoints& points, const sPriceRange& prices);
    void DrawBands(const sDrawnPoints& points, const sPriceRange& prices, int count);
    void ClearOverlay(int series);
    std::span<double> OverlayValues(int series);
    void MarkOverlayDrawn(int series, int warmUp);
    void ToggleScrollBar(bool fillsWindow);
    void RefreshReadout();

    std::array<bool, PriceOverlays> m_overlayDrawn{true, true, true};
};

} // namespace zantroq
