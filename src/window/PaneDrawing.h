// The interface of the draw manager and its panes for the window's collaborators, so that the window's rules
// can be tested without a series or a scene. Chart window's thread.
#pragma once

#include "market/HistoryRecords.h"

#include <cstdint>
#include <string>

namespace zantroq {

class CChartHistRequest;

class IPaneDrawing
{
public:
    virtual ~IPaneDrawing() = default;
    virtual int Count() const = 0; // number of points in the series
    // A different number for each requested chart. Compare it after a message box to find out whether a point
    // index still refers to the same series.
    virtual int ChartNumber() const = 0;

    virtual void SetSource(CChartHistRequest* request, int dataType) = 0;
    virtual void ClearPanes() = 0; // panes as at the start of a chart: axes without data
    virtual void FullRedraw() = 0; // sets up the panes and draws at the scroll limit
    virtual void Draw(int position) = 0;
    virtual void Update(int newPoints) = 0;
    virtual void RefreshTitles() = 0; // the price pane's title and the studies' headers
    virtual void AdjustStudyBars() = 0;
    virtual void RebuildStudies() = 0; // creates the displayed studies

    virtual void DeletePoint(int index) = 0;
    virtual bool SeriesEdited() const = 0; // a point was deleted since the last full load

    virtual std::string MakeInfoText(int point) const = 0; // readout of a displayed point, from 1
    virtual void GetPoint(int index, sHIST_DATA& point) const = 0;
    virtual std::string Date(int index) const = 0;
    virtual std::string Time(int index) const = 0;
    virtual std::string MinuteTime(int index) const = 0;
    virtual std::string PriceText(double price) const = 0; // in the price format of the series
};

} // namespace zantroq
