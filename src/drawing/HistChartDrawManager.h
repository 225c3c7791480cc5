// Stands between the chart window and the panes: owns the price pane and the study panes, decides what is
// redrawn whole and what only at its last point, and builds the text under the mouse. One per chart window,
// on its thread.
#pragma once

#include "drawing/BaseChart.h"
#include "drawing/DrawnExtent.h"
#include "drawing/HistPriceChart.h"
#include "drawing/SeriesReader.h"

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace zantroq {

class CHistChartDrawManager
{
public:
    // `studiesFactory` may be null: then no study panes are made. So may `trendLayer`. Nothing is owned.
    CHistChartDrawManager(IChartWindow& window, CSeriesReader& reader, IStudyFactory* studiesFactory,
                          ITrendLayer* trendLayer);
    ~CHistChartDrawManager();
    CHistChartDrawManager(const CHistChartDrawManager&) = delete;
    CHistChartDrawManager& operator=(const CHistChartDrawManager&) = delete;

    CHistPriceChart& PriceChart() { return priceChart; }
    std::array<std::unique_ptr<CStudyChart>, 10>& Studies() { return studies; }

    void CreateStudies(); // destroys all studies and makes one for each displayed

    // Sets all panes up anew, makes the studies where the displayed set has changed, and draws at the live
    // edge. For a complete series that has arrived and after a change of settings. An empty series leaves
    // empty panes and reports nothing.
    std::optional<sDrawnExtent> FullRedraw();
    sDrawnExtent Draw(int position); // every zoom, scroll, restore and deletion
    // Live data: how many points follow those drawn; 0 for a change of the last one. Reports nothing where
    // nothing was drawn whole.
    std::optional<sDrawnExtent> Update(int newPoints);
    void DeletePoint(int index); // from the series alone; the panes follow at the next Draw
    void RefreshTitles();        // the price pane's title and every study's header
    // The readout of a displayed point, counted from 1. Empty for a point that is not shown.
    std::string MakeInfoText(int point) const;

    bool seriesEdited = false; // a point was deleted since the last full load

private:
    sDrawnExtent DrawPrices(int position);
    bool StudiesAsDisplayed() const;
    int DisplayedStudies() const;
    void DrawStudies();
    void UpdateStudies();
    void UpdateLastBar();
    void RefreshReadout();
    void PlaceMarkers();
    void RefreshMarkedTitles(); // if a point is marked

    IChartWindow& dlg;
    CSeriesReader& prices;
    IStudyFactory* studyFactory;
    CHistPriceChart priceChart;
    std::array<std::unique_ptr<CStudyChart>, 10> studies;
    int studiesEnd = 0; // the index after the last point that the studies show
};

} // namespace zantroq
