// Stands between the chart window and the panes: owns the price pane and the study panes, gives them the
// series, decides what is redrawn whole and what only at its last point, and builds the text under the mouse.
// One per chart window, on its thread. Each read takes the series' lock once and leaves it, so that the
// worker can go on filling the series.
#pragma once

#include "drawing/BaseChart.h"
#include "drawing/HistPriceChart.h"
#include "drawing/InfoText.h"
#include "market/ChartHistRequest.h"

#include <array>
#include <memory>
#include <string>

namespace zantroq {

class CHistChartDrawManager : public IPriceSource
{
public:
    // The factory may be null: then no study panes are made. Nothing is owned.
    CHistChartDrawManager(IChartWindow& window, IStudyFactory* studies, ITrendLayer* trends);
    ~CHistChartDrawManager() override;
    CHistChartDrawManager(const CHistChartDrawManager&) = delete;
    CHistChartDrawManager& operator=(const CHistChartDrawManager&) = delete;

    // An index outside the series gives 0.
    double High(int index) const override;
    double Low(int index) const override;
    double Open(int index) const override;
    double Close(int index) const override;
    std::int64_t Volume(int index) const override;
    int Count() const override;
    std::uint32_t GreatestVolume() const override { return priceChart.maxVolume; }
    void ReadHigh(int first, int count, double* out) const override;
    void ReadLow(int first, int count, double* out) const override;
    void ReadOpen(int first, int count, double* out) const override;
    void ReadClose(int first, int count, double* out) const override;
    void ReadVolume(int first, int count, std::int64_t* out) const override;

    CHistPriceChart& PriceChart() { return priceChart; }
    std::array<std::unique_ptr<CStudyChart>, 10>& Studies() { return studies; }

    void CreateStudies(); // destroys all studies and makes one for each displayed
    void SetSeries(CChartHistRequest* request);
    CChartHistRequest* Series() const { return series; }
    void SetDataType(int type);
    int GetDataType() const { return dataType; }
    void SetTrends(ITrendLayer* layer);
    ITrendLayer* Trends() const { return trends; }
    void SetPriceFormatter(const IPriceFormatter& formatter) { priceFormatter = &formatter; } // not owned
    sPriceWords PriceWords() const; // how prices of this series are written; plain without a series

    // Sets all panes up anew, makes the studies where the displayed set has changed, and draws at the live
    // edge. For a complete series that has arrived and after a change of settings. An empty series leaves
    // empty panes.
    void FullRedraw();
    void Draw(int position); // every zoom, scroll, restore and deletion
    void Update(
        int newPoints); // live data: how many points came behind those drawn; 0 for a change of the last one
    void DeletePoint(int index); // from the series alone; the panes follow at the next Draw
    void RedrawTrends();
    void RefreshTitles(); // the price pane's title and every study's header
    // The readout of a displayed point, counted from 1. Empty for a point that is not shown.
    std::string MakeInfoText(int point) const;

    // Index below 1 reads as 1, index at or past the end as the last. Without any point "1900/01/01" and
    // "00:00:00".
    std::string GetDate(int index) const;
    std::string GetMinuteTime(int index) const;
    std::string GetTime(int index, bool withMilliseconds) const; // index held inside the series
    // Index held between 0 and Count(), which reads as the last. Without any point the record stays as it is.
    void GetPoint(int index, sHIST_DATA& point) const;
    sTIME_W_MILLISECONDS TimeAt(int index) const;

    bool seriesEdited = false; // a point was deleted since the last full load

private:
    int PriceField(int barField) const; // ticks have one price for all four
    int VolumeField() const;
    double PriceAt(int field, int index) const;
    void ReadPrices(int field, int first, int count, double* out) const;
    int TextIndex(int index) const;
    bool StudiesAsDisplayed() const;
    int DisplayedStudies() const;
    void DrawStudies();
    void UpdateStudies();
    void PlaceMarkers();
    void RefreshMarkedTitles(); // if a point is marked

    IChartWindow& dlg;
    IStudyFactory* studyFactory;
    ITrendLayer* trends;
    const IPriceFormatter* priceFormatter = &ShippedPriceFormatter();
    CHistPriceChart priceChart;
    std::array<std::unique_ptr<CStudyChart>, 10> studies;
    CChartHistRequest* series = nullptr;
    int dataType = TickData;
    int studiesEnd = 0; // the index behind the last point that the studies show
};

} // namespace zantroq
