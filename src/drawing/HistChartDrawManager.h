// Stands between the chart window and the panes: owns the price pane and the study panes, gives them the series, decides what is
// redrawn whole and what only at its last point, and builds the text under the mouse. One per chart window, on its thread.
#pragma once

#include "drawing/BaseChart.h"
#include "drawing/HistPriceChart.h"
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

    double High(int index) const override;
    double Low(int index) const override;
    double Open(int index) const override;
    double Close(int index) const override;
    std::int64_t Volume(int index) const override;
    int Count() const override;
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

    void FullRedraw();
    void Draw(int position);
    void Update(int newPoints);
    void DeletePoint(int index);
    void RedrawTrends();
    void RefreshTitles(); // the price pane's title and every study's header
    std::string MakeInfoText(int point) const;

    std::string GetDate(int index) const;
    std::string GetTime(int index, bool withMilliseconds) const;
    std::string GetMinuteTime(int index) const;
    void GetPoint(int index, sHIST_DATA& point) const; // clamps

    bool seriesEdited = false; // a point was deleted since the last full load

private:
    IChartWindow& dlg;
    IStudyFactory* studyFactory;
    CHistPriceChart priceChart;
    std::array<std::unique_ptr<CStudyChart>, 10> studies;
    CChartHistRequest* series = nullptr;
    int dataType = TickData;
};

} // namespace zantroq
