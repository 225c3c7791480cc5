// The draw manager: owns the price pane and the study panes, decides what is redrawn completely and what only
// at its last point, and builds the text under the mouse. One per chart window, on the window's thread.
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
    // `studiesFactory` may be null, then there are no study panes; `trendLayer` may be null too. Nothing is
    // owned.
    CHistChartDrawManager(IChartWindow& window, CSeriesReader& reader, IStudyFactory* studiesFactory,
                          ITrendLayer* trendLayer);
    ~CHistChartDrawManager();
    CHistChartDrawManager(const CHistChartDrawManager&) = delete;
    CHistChartDrawManager& operator=(const CHistChartDrawManager&) = delete;

    CHistPriceChart& PriceChart() { return priceChart; }
    std::array<std::unique_ptr<CStudyChart>, StudyKinds>& Studies() { return studies; }

    void CreateStudies(); // destroys all studies and creates the displayed ones

    // Sets up all panes, recreates the studies if the displayed ones have changed, and draws at the live
    // edge. Call when a series is complete and after a change of settings. An empty series leaves empty panes
    // and returns nothing.
    std::optional<sDrawnExtent> FullRedraw();
    sDrawnExtent Draw(int position); // for every zoom, scroll, restore and deletion
    // Draws live data: `newPoints` new points at the end, or 0 for a change of the last point. Returns
    // nothing unless the panes were drawn completely.
    std::optional<sDrawnExtent> Update(int newPoints);
    void DeletePoint(int index); // only from the series; the next Draw updates the panes
    void RefreshTitles();        // the title of the price pane and the headers of all studies
    // The readout of a displayed point, counted from 1. Empty for other points.
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
    void RefreshMarkedTitles(); // only if a point is marked

    IChartWindow& dlg;
    CSeriesReader& prices;
    IStudyFactory* studyFactory;
    CHistPriceChart priceChart;
    std::array<std::unique_ptr<CStudyChart>, StudyKinds> studies;
    int studiesEnd = 0; // index after the last point that the studies show
};

} // namespace zantroq
