// What the window's collaborators ask of the drawing side: the draw manager and its panes, as one narrow
// door, so that the window's rules can be tested without a series or a scene. Chart window's thread.
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
    virtual int Count() const = 0; // points in the series
    // Another number for each chart asked for: whether a point index still means the same point after a
    // question that others may have used.
    virtual int ChartNumber() const = 0;

    virtual void SetSource(CChartHistRequest* request, int dataType) = 0;
    virtual void ClearPanes() = 0; // panes as at the start of a chart: axes and no data
    virtual void FullRedraw() = 0; // sets the panes up again and draws at the scroll limit
    virtual void Draw(int position) = 0;
    virtual void Update(int newPoints) = 0;
    virtual void RefreshTitles() = 0; // the price pane's title and the studies' headers
    virtual void AdjustStudyBars() = 0;
    virtual void RebuildStudies() = 0; // one study for each displayed

    virtual void DeletePoint(int index) = 0;
    virtual bool SeriesEdited() const = 0; // a point was deleted since the last full load

    virtual std::string MakeInfoText(int point) const = 0; // readout of a displayed point, from 1
    virtual void GetPoint(int index, sHIST_DATA& point) const = 0;
    virtual std::string Date(int index) const = 0;
    virtual std::string Time(int index) const = 0;
    virtual std::string MinuteTime(int index) const = 0;
    virtual std::string PriceText(double price) const = 0; // by the series' format code
};

} // namespace zantroq
