// A series, a fake window and a draw manager, for tests of what reaches the panes.
#pragma once

#include "drawing/HistChartDrawManager.h"
#include "market/ChartHistRequest.h"
#include "support/FakeChartWindow.h"

#include <vector>

namespace zantroq {

// A fake of the trendline interface: two numbers and a count of requested draws.
class CFakeTrendLayer : public ITrendLayer
{
public:
    int SeriesCount() const override { return seriesCount; }
    int LabelCount() const override { return labelCount; }
    void DrawAll() override { ++draws; }
    int seriesCount = 3, labelCount = 9, draws = 0;
};

class CSeriesFixture
{
public:
    explicit CSeriesFixture(int dataType = DailyData, IStudyFactory* studies = nullptr)
        : manager(window, prices, studies, &trends)
    {
        static constexpr std::int32_t kinds[] = {TicksByDatapoints, IntervalsByDatapoints, DailyByDatapoints,
                                                 WeeklyByDatapoints, MonthlyByDatapoints};
        window.settings.Panes.StudyCount = 0;
        window.settings.Request.DataType = dataType;
        request.SetRequestKind(kinds[dataType]);
        prices.SetSeries(&request);
        prices.SetDataType(dataType);
    }

    // Adds a tick or a bar; times are a minute apart from 2 January 2014 09:30 on, for day kinds a day.
    void Add(double open, double high, double low, double close, std::int64_t volume = 100)
    {
        sHIST_POINT point;
        const int n = request.GetCount(FieldTime);
        const bool days = IsDayKind(request.GetRequestKind());
        const double start = 41641.0 + 9.5 / 24;
        point.Time.Time = days ? 41641.0 + n : start + n / 1440.0;
        point.Time.Milliseconds = static_cast<std::uint16_t>(days ? 0 : 250);
        point.Last = close;
        point.Open = open;
        point.High = high;
        point.Low = low;
        point.Close = close;
        point.LastSize = static_cast<std::uint32_t>(volume);
        point.TotalVolume = volume;
        request.AppendPoint(point);
    }
    void AddCloses(const std::vector<double>& closes)
    {
        for (double close : closes)
            Add(close, close, close, close);
    }

    CPaneData& Bars() { return window.Pane(0).PaneGroups(1).PaneData(); }
    CPaneData& Overlays() { return window.Pane(0).PaneGroups(2).PaneData(); }
    CPaneAxes& Axes() { return window.Pane(0).PaneArea().PaneAxes(); }
    CPaneLabels& Labels() { return window.Pane(0).PaneLabels(); }

    CFakeChartWindow window;
    CFakeTrendLayer trends;
    CChartHistRequest request;
    CSeriesReader prices;
    CHistChartDrawManager manager;
};

} // namespace zantroq
