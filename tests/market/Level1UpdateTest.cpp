#include "market/SeriesFixture.h"

#include <gtest/gtest.h>

using namespace zantroq;
using namespace zantroq::test;

namespace {

// A one-minute chart whose last bar ends at the given time.
void LoadBar(CSeriesFixture& chart, const std::string& time, int seconds = 60)
{
    chart.Request().SetIntervalSeconds(seconds);
    chart.Feed(time + ",11,9,10,10.5,1000,500");
    chart.Complete();
}

void LoadDay(CSeriesFixture& chart, const std::string& date)
{
    chart.Feed(date + ",11,9,10,10.5,1000,3");
    chart.Complete();
}

CLevel1Line DayTrade(const std::string& date, const std::string& price, const std::string& contents = "C")
{
    return Trade(date, "12:00:00.000", price, "100", contents, "7000")
        .Set(4, "12")
        .Set(5, "8")
        .Set(12, "9.5")
        .Set(11, "4");
}

CLevel1Line Fundamental(const std::string& format, const std::string& precision)
{
    // Field 22 and sixteen commas reach to field 38.
    return CLevel1Line("F").Set(22, std::string(16, ',') + "," + format + "," + precision);
}

} // namespace

TEST(Level1Tick, ATradeBecomesATick)
{
    CSeriesFixture chart(0);
    chart.Complete();
    chart.Live(Trade("01/02/2014", "09:30:01.250", "101.25", "100", "Cba", "5000000000")
                   .Set(6, "101.2")
                   .Set(7, "101.3")
                   .Set(8, "3")
                   .Set(9, "4")
                   .Set(17, "77"));
    ASSERT_EQ(chart.Count(), 1);
    const sHIST_POINT point = chart.Point(0);
    EXPECT_EQ(point.Time, MakeTime({2014, 1, 2, 9, 30, 1}, 250));
    EXPECT_EQ(point.Last, 101.25);
    EXPECT_EQ(point.LastSize, 100u);
    EXPECT_EQ(point.TotalVolume, 5000000000);
    EXPECT_EQ(point.Bid, 101.2);
    EXPECT_EQ(point.Ask, 101.3);
    EXPECT_EQ(point.BidSize, 3u);
    EXPECT_EQ(point.AskSize, 4u);
    EXPECT_EQ(point.TickId, 77u);
    EXPECT_EQ(point.Basis, "C");
}

TEST(Level1Tick, ExtendedTradesNeedTheSwitch)
{
    for (const char* contents : {"E", "O", "bE", "Oa"}) {
        CSeriesFixture chart(0);
        chart.Complete();
        chart.Live(Trade("01/02/2014", "09:30:01.250", "101.25", "100", contents));
        EXPECT_EQ(chart.Count(), 0) << contents;
        chart.Request().SetExtendedTrades(true);
        chart.Live(Trade("01/02/2014", "09:30:01.250", "101.25", "100", contents));
        EXPECT_EQ(chart.Count(), 1) << contents;
    }
}

TEST(Level1Tick, BidAndAskUpdatesAreIgnored)
{
    CSeriesFixture chart(0);
    chart.Complete();
    chart.Request().SetExtendedTrades(true);
    for (const char* contents : {"ba", "b", "a", "", "c"})
        chart.Live(Trade("01/02/2014", "09:30:01.250", "101.25", "100", contents));
    EXPECT_EQ(chart.Count(), 0);
}

TEST(Level1Tick, AnUnreadableDateIsAppendedInvalid)
{
    CSeriesFixture chart(0);
    chart.Complete();
    chart.Live(Trade("", "", "101.25"));
    chart.Live(Trade("2014-01-02", "09:30:01.250", "101.25"));
    ASSERT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.Point(0).Time.Status, TimeInvalid);
    EXPECT_EQ(chart.Point(1).Time.Status, TimeInvalid);
    EXPECT_EQ(chart.Point(1).Time.Milliseconds, 250);
    chart.Request().SetBeginTime("093000");
    chart.Live(Trade("", "", "101.25"));
    EXPECT_EQ(chart.Count(), 3) << "the text of an invalid time is above every begin bound";
}

TEST(Level1Tick, SummariesAndOtherTypesAreIgnored)
{
    CSeriesFixture chart(0);
    chart.Complete();
    for (const char* type : {"P", "S", "T", "N", "X", ""}) {
        CLevel1Line line = Trade("01/02/2014", "09:30:01.250", "101.25");
        chart.Live(line.Set(0, type));
    }
    EXPECT_EQ(chart.Count(), 0);
}

TEST(Level1Tick, AShortLineIsAnInvalidArgument)
{
    CSeriesFixture chart(0);
    chart.Complete();
    EXPECT_THROW(chart.LiveLine("Q,SYM,1,2"), std::invalid_argument);
    EXPECT_EQ(chart.Count(), 0);
}

TEST(Level1Interval, ATradeInsideTheBarGrowsIt)
{
    CSeriesFixture chart(3);
    LoadBar(chart, "2014-01-02 09:31:00");
    chart.Live(Trade("01/02/2014", "09:30:59.999", "12", "7", "C", "1007"));
    chart.Live(Trade("01/02/2014", "09:30:59.999", "8", "3", "C", "9999999999"));
    ASSERT_EQ(chart.Count(), 1);
    const sHIST_POINT bar = chart.Point(0);
    EXPECT_EQ(bar.High, 12);
    EXPECT_EQ(bar.Low, 8);
    EXPECT_EQ(bar.Open, 10);
    EXPECT_EQ(bar.Close, 8);
    EXPECT_EQ(bar.LastSize, 510u);
    EXPECT_EQ(bar.TotalVolume, 4294967295);
}

TEST(Level1Interval, ATradeAtTheStampOpensTheNextBar)
{
    CSeriesFixture chart(3);
    LoadBar(chart, "2014-01-02 09:30:00");
    chart.Live(Trade("01/02/2014", "09:30:00.000", "10.25", "7", "C", "1007"));
    ASSERT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.TimeText(1), "2014-01-02 09:31:00");
    const sHIST_POINT bar = chart.Point(1);
    EXPECT_EQ(bar.Open + bar.High + bar.Low + bar.Close, 41);
    EXPECT_EQ(bar.LastSize, 7u);
    EXPECT_EQ(bar.TotalVolume, 1007);
}

TEST(Level1Interval, TheBarThatEndsAtMidnightTakesTheTradesOwnTimeADayOn)
{
    CSeriesFixture chart(3);
    LoadBar(chart, "2014-01-02 22:00:00", 7200);
    chart.Live(Trade("01/02/2014", "22:30:00.000", "10"));
    ASSERT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.TimeText(1), "2014-01-03 22:30:00");
    CSeriesFixture trimmed(3);
    LoadBar(trimmed, "2014-01-02 22:00:00", 7200);
    trimmed.Live(Trade("01/02/2014", "22:30:00.000tTbao", "10"));
    EXPECT_EQ(trimmed.TimeText(1), "2014-01-03 22:30:00");
}

TEST(Level1Interval, AFirstBarOfANewDayKeepsThePreviousDate)
{
    CSeriesFixture chart(3);
    LoadBar(chart, "2014-01-02 16:00:00");
    chart.Live(Trade("01/03/2014", "09:30:10.000", "10"));
    ASSERT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.TimeText(1), "2014-01-02 09:31:00");
}

TEST(Level1Interval, AnEarlierDateGrowsTheBar)
{
    CSeriesFixture chart(3);
    LoadBar(chart, "2014-01-03 09:31:00");
    chart.Live(Trade("01/02/2014", "16:00:00.000", "10"));
    EXPECT_EQ(chart.Count(), 1);
}

TEST(Level1Interval, AcrossANewYearTheDigitsAreNotGreater)
{
    CSeriesFixture chart(3);
    LoadBar(chart, "2013-12-31 16:00:00");
    chart.Live(Trade("01/02/2014", "09:30:10.000", "12"));
    EXPECT_EQ(chart.Count(), 1);
    EXPECT_EQ(chart.Point(0).High, 12);
}

TEST(Level1Interval, AnEmptySeriesTakesItsDateFromTheTrade)
{
    CSeriesFixture chart(3);
    chart.Request().SetIntervalSeconds(300);
    chart.Complete();
    chart.Live(Trade("01/03/2014", "09:31:10.000", "10"));
    ASSERT_EQ(chart.Count(), 1);
    EXPECT_EQ(chart.TimeText(0), "2014-01-03 09:35:00");
}

TEST(Level1Interval, ABarAcceptsOnlyTrades)
{
    CSeriesFixture chart(3);
    LoadBar(chart, "2014-01-02 09:31:00");
    for (const char* contents : {"ba", "E", "O", ""})
        chart.Live(Trade("01/02/2014", "09:40:00.000", "12", "7", contents));
    EXPECT_EQ(chart.Count(), 1);
    EXPECT_EQ(chart.Point(0).High, 11);
    chart.Request().SetExtendedTrades(true);
    chart.Live(Trade("01/02/2014", "09:40:00.000", "12", "7", "O"));
    EXPECT_EQ(chart.Count(), 2);
}

TEST(Level1Interval, WithoutAnIntervalTheLineFails)
{
    CSeriesFixture chart(3);
    LoadBar(chart, "2014-01-02 09:31:00", 0);
    EXPECT_THROW(chart.Live(Trade("01/02/2014", "09:40:00.000", "12")), std::invalid_argument);
    EXPECT_EQ(chart.Count(), 1);
}

TEST(Level1Interval, BoundsStillApplyToNewBars)
{
    CSeriesFixture chart(4);
    LoadBar(chart, "2014-01-02 09:31:00");
    chart.Request().SetEndFilterTime(
        "100000"); // its end date and time are empty, so it still accepts updates
    chart.Live(Trade("01/02/2014", "10:00:00.000", "12"));
    EXPECT_EQ(chart.Count(), 1);
    chart.Live(Trade("01/02/2014", "09:59:00.000", "12"));
    EXPECT_EQ(chart.Count(), 2);
}

TEST(Level1Day, ATradeOfTheSameDayTakesTheFeedsDayValues)
{
    CSeriesFixture chart(6);
    LoadDay(chart, "2014-01-02");
    chart.Live(DayTrade("01/02/2014", "10.75"));
    ASSERT_EQ(chart.Count(), 1);
    const sHIST_POINT bar = chart.Point(0);
    EXPECT_EQ(bar.High, 12);
    EXPECT_EQ(bar.Low, 8);
    EXPECT_EQ(bar.Open, 9.5);
    EXPECT_EQ(bar.Close, 10.75);
    EXPECT_EQ(bar.TotalVolume, 7000);
    EXPECT_EQ(bar.OpenInterest, 4u);
}

TEST(Level1Day, DayValuesOfZeroBecomeThePrice)
{
    CSeriesFixture chart(6);
    LoadDay(chart, "2014-01-02");
    chart.Live(DayTrade("01/02/2014", "10.75").Set(4, "0").Set(5, "").Set(12, "0.0"));
    const sHIST_POINT bar = chart.Point(0);
    EXPECT_EQ(bar.High + bar.Low + bar.Open, 3 * 10.75);
    chart.Live(DayTrade("01/02/2014", "0").Set(4, "0").Set(5, "0").Set(12, "0"));
    EXPECT_EQ(chart.Point(0).High, 0);
}

TEST(Level1Day, AnExtendedTradeWidensTheBar)
{
    CSeriesFixture chart(6);
    LoadDay(chart, "2014-01-02");
    chart.Live(DayTrade("01/02/2014", "20", "E"));
    EXPECT_EQ(chart.Point(0).Close, 10.5);
    chart.Request().SetExtendedTrades(true);
    chart.Live(DayTrade("01/02/2014", "20", "E"));
    chart.Live(DayTrade("01/02/2014", "5", "O"));
    const sHIST_POINT bar = chart.Point(0);
    EXPECT_EQ(bar.High, 20);
    EXPECT_EQ(bar.Low, 5);
    EXPECT_EQ(bar.Open, 10);
    EXPECT_EQ(bar.Close, 5);
}

TEST(Level1Day, ALaterDateOpensANewBar)
{
    CSeriesFixture chart(7);
    LoadDay(chart, "2013-12-31");
    chart.Live(DayTrade("01/02/2014", "10.75"));
    ASSERT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.TimeText(1), "2014-01-02 00:00:00");
    EXPECT_EQ(chart.Point(0).Close, 10.5);
}

TEST(Level1Day, ASummaryCountsOnlyForALaterDate)
{
    CSeriesFixture chart(6);
    LoadDay(chart, "2014-01-02");
    chart.Live(DayTrade("01/02/2014", "99").Set(0, "P"));
    EXPECT_EQ(chart.Point(0).Close, 10.5);
    chart.Live(DayTrade("01/03/2014", "99").Set(0, "P"));
    ASSERT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.Point(1).Close, 99);
}

TEST(Level1Day, WithoutBarsNothingIsStarted)
{
    CSeriesFixture chart(6);
    chart.Complete();
    chart.Live(DayTrade("01/02/2014", "10"));
    EXPECT_EQ(chart.Count(), 0);
}

TEST(Level1Accept, WeeklyAndMonthlySeriesTakeNoUpdates)
{
    for (const int kind : {8, 9}) {
        CSeriesFixture chart(kind);
        LoadDay(chart, "2014-01-02");
        chart.Live(DayTrade("01/03/2014", "10"));
        chart.LiveLine("Q,SYM"); // nothing is read of a line that is not accepted
        EXPECT_EQ(chart.Count(), 1);
        EXPECT_EQ(chart.Point(0).Close, 10.5);
    }
}

TEST(Level1Accept, ABoundedRequestIsNotExtended)
{
    struct sRow
    {
        int Kind;
        void (CChartHistRequest::*Set)(std::string);
        bool Accepts;
    };
    using R = CChartHistRequest;
    for (const sRow& row : std::initializer_list<sRow>{{0, &R::SetEndDate, true},
                                                       {0, &R::SetEndFilterTime, true},
                                                       {1, &R::SetEndFilterTime, false},
                                                       {1, &R::SetBeginFilterTime, true},
                                                       {2, &R::SetEndDate, false},
                                                       {2, &R::SetEndTime, false},
                                                       {2, &R::SetEndFilterTime, false},
                                                       {2, &R::SetBeginDate, true},
                                                       {3, &R::SetEndDate, true},
                                                       {4, &R::SetEndFilterTime, true},
                                                       {4, &R::SetBeginFilterTime, true},
                                                       {4, &R::SetEndDate, true},
                                                       {5, &R::SetEndDate, false},
                                                       {5, &R::SetEndTime, false},
                                                       {5, &R::SetEndFilterTime, true},
                                                       {6, &R::SetEndDate, true},
                                                       {7, &R::SetEndDate, false},
                                                       {7, &R::SetEndTime, true}}) {
        CChartHistRequest request;
        request.SetRequestKind(row.Kind);
        (request.*row.Set)("20990101");
        EXPECT_EQ(request.AcceptsUpdates(), row.Accepts) << "kind " << row.Kind;
    }
    CChartHistRequest both;
    both.SetRequestKind(4);
    both.SetEndDate("20990101");
    both.SetEndFilterTime("160000");
    EXPECT_FALSE(both.AcceptsUpdates());
}

TEST(Level1Pending, OnlyTheNewestUpdateOfALoadIsAppliedOnce)
{
    CSeriesFixture chart(0);
    chart.Live(Trade("01/02/2014", "09:30:01.250", "1"));
    chart.Live(Trade("01/02/2014", "09:30:02.250", "2"));
    EXPECT_EQ(chart.Count(), 0);
    chart.Complete();
    ASSERT_EQ(chart.Count(), 1);
    EXPECT_EQ(chart.Point(0).Last, 2);
    chart.Complete();
    EXPECT_EQ(chart.Count(), 1);
}

TEST(Level1Pending, ALineThatFailsWhenReplayedIsForgotten)
{
    CSeriesFixture chart(0);
    chart.LiveLine("Q,SYM,short");
    EXPECT_THROW(chart.Complete(), std::invalid_argument);
    EXPECT_TRUE(chart.Request().IsComplete());
    EXPECT_NO_THROW(chart.Complete());
}

TEST(Level1Fundamental, SetsTheFormatWhateverTheState)
{
    CSeriesFixture chart(0);
    chart.Live(Fundamental("7", "2"));
    EXPECT_EQ(chart.Request().GetPriceFormat(), 12);
    chart.Request().SetUseExchangeFormat(true);
    chart.Live(Fundamental("7", "2"));
    EXPECT_EQ(chart.Request().GetPriceFormat(), 7);
    chart.Complete();
    chart.Live(Fundamental("x", "2"));
    EXPECT_EQ(chart.Request().GetPriceFormat(), 0);
    EXPECT_EQ(chart.Count(), 0) << "a fundamental message is never kept";
}

TEST(Level1Fundamental, AShortOneIsAnInvalidArgument)
{
    CSeriesFixture chart(0);
    EXPECT_THROW(chart.LiveLine("F,SYM,1"), std::invalid_argument);
    EXPECT_EQ(chart.Request().GetPriceFormat(), 14);
}

// A line too short for one chart is dropped for that chart only.
TEST(Level1Symbols, ALineTooShortForOneSeriesReachesTheOthers)
{
    for (const bool shortFirst : {true, false}) {
        CSeriesFixture chart(0);
        CChartHistRequest other;
        other.SetRequestKind(0);
        chart.Watches().Add("SYM", EnterRequest(other));
        chart.Request().SetUseExchangeFormat(!shortFirst);
        other.SetUseExchangeFormat(shortFirst);
        const std::string whole = Fundamental("7", "2").Text();
        EXPECT_THROW(chart.LiveLine(whole.substr(0, whole.rfind(','))), std::invalid_argument);
        EXPECT_EQ((shortFirst ? other : chart.Request()).GetPriceFormat(), 7);
        EXPECT_EQ((shortFirst ? chart.Request() : other).GetPriceFormat(), 14);
    }
}

TEST(Level1Symbols, UpdatesThatNobodyWantsAreStopped)
{
    CSeriesFixture chart(0);
    for (const char* line : {"Q,XYZ,1", "T,XYZ,1", "S,XYZ,1", "N,XYZ,1", "F,XYZ,1", "P,XYZ", "Q,sym,1"})
        chart.LiveLine(line);
    EXPECT_EQ(chart.Removed, (std::vector<std::string>{"XYZ", "XYZ", "XYZ", "sym"}));
}

TEST(Level1Symbols, AnEmptyLineAsksForNothing)
{
    CSeriesFixture chart(0);
    chart.LiveLine("");
    EXPECT_TRUE(chart.Removed.empty());
}

TEST(Level1Symbols, EachSeriesOfASymbolGetsEachUpdate)
{
    CSeriesFixture chart(0);
    CChartHistRequest other;
    other.SetRequestKind(0);
    other.SetComplete(true);
    chart.Watches().Add("SYM", EnterRequest(other));
    chart.Complete();
    chart.Live(Trade("01/02/2014", "09:30:01.250", "1"));
    EXPECT_EQ(chart.Count(), 1);
    EXPECT_EQ(other.GetCount(0), 1);
}

TEST(WatchTable, HashMultipliesByThirtyThreeOverSignedCharacters)
{
    EXPECT_EQ(CWatchTable::Hash(""), 0u);
    EXPECT_EQ(CWatchTable::Hash("A"), 65u);
    EXPECT_EQ(CWatchTable::Hash("AB"), 65u * 33 + 66);
    EXPECT_EQ(CWatchTable::Hash("\xff"), 0xFFFFFFFFu);
}

TEST(WatchTable, RemovesTheFirstEntryAndForgetsTheSymbolWithTheLast)
{
    CWatchTable table;
    CChartHistRequest a, b;
    table.Add("SYM", EnterRequest(a));
    table.Add("SYM", EnterRequest(b));
    table.Add("SYM", EnterRequest(a));
    std::vector<RequestPtr> requests;
    ASSERT_TRUE(table.Find("SYM", requests));
    EXPECT_EQ(requests.size(), 3u);
    requests.clear();
    EXPECT_EQ(table.Remove("SYM", a), CWatchTable::Removal::OthersRemain);
    ASSERT_TRUE(table.Find("SYM", requests));
    EXPECT_EQ(requests[0].get(), &b);
    requests.clear();
    EXPECT_EQ(table.Remove("SYM", b), CWatchTable::Removal::OthersRemain);
    EXPECT_EQ(table.Remove("SYM", a), CWatchTable::Removal::LastOne);
    EXPECT_EQ(table.Remove("SYM", a), CWatchTable::Removal::NotWatched);
    EXPECT_FALSE(table.Find("SYM", requests));
}

TEST(WatchTable, KeepsManySymbolsOfOneBucketApart)
{
    CWatchTable table;
    std::vector<std::unique_ptr<CChartHistRequest>> owned;
    for (int i = 0; i < 200; ++i) {
        owned.push_back(std::make_unique<CChartHistRequest>());
        table.Add("S" + std::to_string(i), EnterRequest(*owned.back()));
    }
    std::vector<RequestPtr> requests;
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(table.Find("S" + std::to_string(i), requests));
        ASSERT_EQ(requests.size(), 1u);
        EXPECT_EQ(requests[0].get(), owned[static_cast<std::size_t>(i)].get());
    }
}
