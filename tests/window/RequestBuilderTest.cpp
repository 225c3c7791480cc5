#include "window/RequestBuilder.h"

#include "market/ChartHistRequest.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

sRequestSettings Settings(int dataType, int kind)
{
    sRequestSettings settings;
    settings.DataType = dataType;
    const auto type = static_cast<std::size_t>(dataType);
    settings.RequestKinds[type] = kind;
    settings.DatapointCounts = {11, 12, 13, 14, 15};
    settings.DayCounts = {21, 22, 23, 24, 25};
    settings.IntervalIndex = 6; // 15 minutes
    settings.BeginDates[type] = "20140102";
    settings.EndDates[type] = "20140103";
    settings.BeginTimes[type] = "100000";
    settings.EndTimes[type] = "150000";
    return settings;
}

TEST(RequestBuilder, EachKindTakesTheCountOfItsDataType)
{
    const std::array<std::array<int, 3>, 5> rows{{{TickData, TicksByDatapoints, 11},
                                                  {MinuteData, IntervalsByDatapoints, 12},
                                                  {DailyData, DailyByDatapoints, 13},
                                                  {WeeklyData, WeeklyByDatapoints, 14},
                                                  {MonthlyData, MonthlyByDatapoints, 15}}};
    for (const auto& [type, kind, points] : rows) {
        CChartHistRequest request;
        FillRequest(request, Settings(type, kind), "X");
        EXPECT_EQ(request.GetRequestKind(), kind);
        EXPECT_EQ(request.GetDatapoints(), points);
        EXPECT_EQ(request.GetDataDirection(), "1");
        EXPECT_EQ(request.GetSymbol(), "X");
        EXPECT_EQ(request.GetBeginDate(), "");
    }
}

TEST(RequestBuilder, DaysAndRangesComeFromTheirLists)
{
    CChartHistRequest request;
    FillRequest(request, Settings(MinuteData, IntervalsByDays), "X");
    EXPECT_EQ(request.GetDays(), 22);
    EXPECT_EQ(request.GetIntervalSeconds(), 900);
    FillRequest(request, Settings(TickData, TicksByRange), "X");
    EXPECT_EQ(request.GetBeginDate() + request.GetBeginTime(), "20140102100000");
    EXPECT_EQ(request.GetEndDate() + request.GetEndTime(), "20140103150000");
    FillRequest(request, Settings(DailyData, DailyByRange), "X");
    EXPECT_EQ(request.GetEndDate(), "20140103");
    EXPECT_EQ(request.GetBeginTime(), ""); // what an earlier request left is gone
    EXPECT_EQ(request.GetEndTime(), "");
}

TEST(RequestBuilder, TheTimeFilterIsSetForAnyKindAndClearedWhenOff)
{
    CChartHistRequest request;
    sRequestSettings settings = Settings(DailyData, DailyByDatapoints);
    settings.TimeFilterOn[DailyData] = true;
    settings.ExtendedTrades[DailyData] = true;
    FillRequest(request, settings, "X");
    EXPECT_EQ(request.GetBeginFilterTime(), "093000");
    EXPECT_EQ(request.GetEndFilterTime(), "160000");
    EXPECT_TRUE(request.HasExtendedTrades());
    EXPECT_TRUE(request.UsesExchangeFormat());
    settings.TimeFilterOn[DailyData] = false;
    settings.UseExchangeFormat = false;
    FillRequest(request, settings, "X");
    EXPECT_EQ(request.GetBeginFilterTime(), "");
    EXPECT_FALSE(request.UsesExchangeFormat());
}

} // namespace
} // namespace zantroq
