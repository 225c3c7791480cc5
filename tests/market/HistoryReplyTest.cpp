#include "market/HistoryReply.h"

#include "market/SeriesFixture.h"

#include <gtest/gtest.h>

using namespace zantroq;
using namespace zantroq::test;

namespace {

constexpr const char* TickLine = "2014-01-02 09:30:01.250,101.25,100,5000,101.20,101.30,77,C";

std::string TickWithBasis(const std::string& basis)
{
    return "2014-01-02 09:30:01.250,101.25,100,5000,101.20,101.30,77," + basis;
}

} // namespace

TEST(HistoryReply, ATickLineBecomesATick)
{
    CSeriesFixture chart(TicksByDatapoints);
    chart.Feed(TickLine);
    ASSERT_EQ(chart.Count(), 1);
    const sHIST_POINT point = chart.Point(0);
    EXPECT_EQ(point.Time, MakeTime({2014, 1, 2, 9, 30, 1}, 250));
    EXPECT_EQ(point.Last, 101.25);
    EXPECT_EQ(point.LastSize, 100u);
    EXPECT_EQ(point.TotalVolume, 5000);
    EXPECT_EQ(point.Bid, 101.20);
    EXPECT_EQ(point.Ask, 101.30);
    EXPECT_EQ(point.TickId, 77u);
    EXPECT_EQ(point.Basis, "C");
    EXPECT_EQ(point.BidSize + point.AskSize, 0u);
    EXPECT_EQ(point.Conditions, "");
}

TEST(HistoryReply, AnIntervalLineBecomesABar)
{
    for (const int kind : {3, 4, 5}) {
        CSeriesFixture chart(kind);
        chart.Feed("2014-01-02 09:31:00,4.5,1.5,2.5,3.5,5000000000,700");
        ASSERT_EQ(chart.Count(), 1);
        const sHIST_POINT point = chart.Point(0);
        EXPECT_EQ(point.Time, MakeTime({2014, 1, 2, 9, 31, 0}));
        EXPECT_EQ(point.High, 4.5);
        EXPECT_EQ(point.Low, 1.5);
        EXPECT_EQ(point.Open, 2.5);
        EXPECT_EQ(point.Close, 3.5);
        EXPECT_EQ(point.TotalVolume, 5000000000);
        EXPECT_EQ(point.LastSize, 700u);
    }
}

TEST(HistoryReply, ADayLineBecomesABarAtMidnightForEveryDayKind)
{
    for (const int kind : {6, 7, 8, 9})
        for (const char* date : {"2014-01-02", "2014-01-02 16:00:00", "2014-01-02xyz"}) {
            CSeriesFixture chart(kind);
            chart.Feed(std::string(date) + ",4.5,1.5,2.5,3.5,5000000000,700");
            ASSERT_EQ(chart.Count(), 1) << date;
            const sHIST_POINT point = chart.Point(0);
            EXPECT_EQ(point.Time, MakeTime({2014, 1, 2, 0, 0, 0}));
            EXPECT_EQ(point.High + point.Low + point.Open + point.Close, 12);
            EXPECT_EQ(point.TotalVolume, 5000000000);
            EXPECT_EQ(point.OpenInterest, 700u);
        }
}

TEST(HistoryReply, ExtendedTradeNeedsTheSwitch)
{
    for (const char* basis : {"E", "O"}) {
        CSeriesFixture chart(TicksByDatapoints);
        chart.Feed(TickWithBasis(basis));
        EXPECT_EQ(chart.Count(), 0);
        chart.Request().SetExtendedTrades(true);
        chart.Feed(TickWithBasis(basis));
        EXPECT_EQ(chart.Count(), 1);
    }
}

TEST(HistoryReply, OtherBasisLettersAreDropped)
{
    CSeriesFixture chart(TicksByDatapoints);
    chart.Request().SetExtendedTrades(true);
    for (const char* basis : {"", "b", "a", "c", "X", " C"})
        chart.Feed(TickWithBasis(basis));
    EXPECT_EQ(chart.Count(), 0);
    chart.Feed(TickWithBasis("Cx"));
    EXPECT_EQ(chart.Count(), 1);
}

TEST(HistoryReply, EndMarkerCompletesAndOtherMarkersDoNot)
{
    CSeriesFixture chart(TicksByDatapoints);
    chart.Feed("E,!NO_DATA!,,");
    chart.Feed("!SOMETHING!,");
    chart.Feed("Error");
    EXPECT_FALSE(chart.Request().IsComplete());
    chart.Feed("!ENDMSG!,");
    EXPECT_TRUE(chart.Request().IsComplete());
    chart.RawLine("");
    EXPECT_EQ(chart.Count(), 0);
}

TEST(HistoryReply, EndMarkerIsFoundInsideItsField)
{
    CSeriesFixture chart(TicksByDatapoints);
    chart.Feed("E!ENDMSG!");
    EXPECT_TRUE(chart.Request().IsComplete());
}

TEST(HistoryReply, ProtocolErrorAndForeignLinesAreDropped)
{
    CSeriesFixture chart(TicksByDatapoints);
    for (const char* line :
         {"", "S,CURRENT PROTOCOL,5.0", "E,!SYNTAX_ERROR!,,", "0", ",", ",,", "x", "0,!ENDMSG!,",
          "02147483647,2014-01-02 09:30:01.250,1,1,1,1,1,1,C", "0-5,!ENDMSG!,", "0abc,!ENDMSG!,"})
        chart.RawLine(line);
    EXPECT_EQ(chart.Count(), 0);
    EXPECT_FALSE(chart.Request().IsComplete());
}

TEST(HistoryReply, TooFewFieldsAreAnInvalidArgument)
{
    CSeriesFixture ticks(0), bars(3), days(6);
    EXPECT_THROW(ticks.Feed("2014-01-02 09:30:01.250,101.25,100,5000,101.20,101.30,77"),
                 std::invalid_argument);
    EXPECT_THROW(bars.Feed("2014-01-02 09:31:00,4,1,2,3,5000"), std::invalid_argument);
    EXPECT_THROW(days.Feed("2014-01-02,4,1,2,3,5000"), std::invalid_argument);
    EXPECT_NO_THROW(days.RawLine(days.Identifier(6))); // names no request without a comma
    EXPECT_EQ(ticks.Count() + bars.Count() + days.Count(), 0);
}

TEST(HistoryReply, MoreFieldsThanNeededAreIgnored)
{
    CSeriesFixture chart(0);
    chart.Feed(std::string(TickLine) + ",1,2,3");
    EXPECT_EQ(chart.Count(), 1);
}

TEST(HistoryReply, ADateThatDoesNotExistDropsThePoint)
{
    CSeriesFixture chart(0);
    for (const char* time :
         {"2014-02-30 09:30:01.250", "2014-13-01 09:30:01.250", "2014-01-02 24:00:00.000",
          "2014-01-02 09:60:00.000", "", "xxxx-xx-xx xx:xx:xx.xxx", "0099-01-01 00:00:00.000"})
        chart.Feed(std::string(time) + ",101.25,100,5000,101.20,101.30,77,C");
    EXPECT_EQ(chart.Count(), 0);
}

TEST(HistoryReply, TimeStampsAreCutByPosition)
{
    CSeriesFixture chart(0);
    const std::string rest = ",1,1,1,1,1,1,C";
    chart.Feed("2014/01/02T09.30.01,250" + rest); // the comma moves the fields: nine are still there
    EXPECT_EQ(chart.Count(), 0);
    chart.Feed("2014/01/02T09.30.01x250" + rest);
    chart.Feed("2014- 1- 2  9: 3: 1.  7" + rest);
    chart.Feed("2014-01-02" + rest);
    chart.Feed("2014-01-02 09:30:01" + rest);
    chart.Feed("2014-01-02 09:30:01.25" + rest);
    chart.Feed("2014-01-02 09:30:01.2509" + rest);
    chart.Feed("2014-01-02 +9:3x:1" + rest);
    ASSERT_EQ(chart.Count(), 7);
    EXPECT_EQ(chart.Point(0).Time, MakeTime({2014, 1, 2, 9, 30, 1}, 250));
    EXPECT_EQ(chart.Point(1).Time, MakeTime({2014, 1, 2, 9, 3, 1}, 7));
    EXPECT_EQ(chart.Point(2).Time, MakeTime({2014, 1, 2, 0, 0, 0}, 0));
    EXPECT_EQ(chart.Point(3).Time, MakeTime({2014, 1, 2, 9, 30, 1}, 0));
    EXPECT_EQ(chart.Point(4).Time, MakeTime({2014, 1, 2, 9, 30, 1}, 25));
    EXPECT_EQ(chart.Point(5).Time, MakeTime({2014, 1, 2, 9, 30, 1}, 250));
    EXPECT_EQ(chart.Point(6).Time, MakeTime({2014, 1, 2, 9, 3, 1}, 0));
}

TEST(HistoryReply, TheRememberedDateDoesNotLeakIntoOtherDates)
{
    CSeriesFixture chart(6);
    for (const char* date :
         {"2014-01-02", "2014-02-30", "2014-01-02", "1899-12-29", "2014-01-03", "2014-01-0x"})
        chart.Feed(std::string(date) + ",1,1,1,1,1,1");
    ASSERT_EQ(chart.Count(), 4);
    EXPECT_EQ(chart.TimeText(1), "2014-01-02 00:00:00");
    EXPECT_EQ(chart.TimeText(2), "1899-12-29 00:00:00");
    EXPECT_EQ(chart.TimeText(3), "2014-01-03 00:00:00");
}

TEST(HistoryReply, TheRememberedTimeOfDayDoesNotLeakIntoOtherTimes)
{
    CSeriesFixture chart(0);
    const char* const stamps[] = {"2014-01-02 09:30:01.250", "2014-01-02 09:30:01.999",
                                  "2014-01-02 09:30:02.000", "2014-01-03 09:30:02.001",
                                  "2014-01-03 25:30:02.001", "2014-01-03 09:30:02.002",
                                  "2014-01-03 09-30-02.003"};
    for (const char* stamp : stamps)
        chart.Feed(std::string(stamp) + ",1,1,1,1,1,1,C");
    ASSERT_EQ(chart.Count(), 6) << "there is no hour 25";
    const char* const times[] = {"2014-01-02 09:30:01", "2014-01-02 09:30:01", "2014-01-02 09:30:02",
                                 "2014-01-03 09:30:02", "2014-01-03 09:30:02", "2014-01-03 09:30:02"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(chart.TimeText(i), times[i]) << i;
    EXPECT_EQ(chart.Point(1).Time.Milliseconds, 999);
    EXPECT_EQ(chart.Point(5).Time.Milliseconds, 3);
}

TEST(HistoryReply, NumbersReadTheirPrefix)
{
    CSeriesFixture chart(0);
    chart.Feed("2014-01-02 09:30:01.250, 1.5x,-1,-3 ,abc,,99999999999,C");
    const sHIST_POINT point = chart.Point(0);
    EXPECT_EQ(point.Last, 1.5);
    EXPECT_EQ(point.LastSize, 4294967295u);
    EXPECT_EQ(chart.Request().GetSizeAt(0), -1);
    EXPECT_EQ(point.TotalVolume, -3);
    EXPECT_EQ(point.Bid, 0);
    EXPECT_EQ(point.Ask, 0);
    EXPECT_EQ(point.TickId, 4294967295u);
}

TEST(HistoryReply, PriceFormatIsDerivedOnlyOnceItIsZero)
{
    CSeriesFixture chart(6);
    chart.Feed("2014-01-02,4.50,1,2,3,5,7");
    EXPECT_EQ(chart.Request().GetPriceFormat(), 14);
    chart.Request().SetPriceFormat(0);
    chart.Feed("2014-01-02,4.50,1,2,3,5,7");
    EXPECT_EQ(chart.Request().GetPriceFormat(), 12);
    chart.Feed("2014-01-02,4.5000,1,2,3,5,7");
    EXPECT_EQ(chart.Request().GetPriceFormat(), 12);
}

TEST(HistoryReply, PriceFormatCountsDecimalsAndIsAtLeastEleven)
{
    EXPECT_EQ(PriceFormatOf("101.25"), 12);
    EXPECT_EQ(PriceFormatOf("101.2500"), 14);
    EXPECT_EQ(PriceFormatOf("101."), 11);
    EXPECT_EQ(PriceFormatOf(""), 11);
    EXPECT_EQ(PriceFormatOf("101"), 13); // 3 + 9 + 1
}

TEST(HistoryReply, TheLinesKindParsesAndTheRequestsKindStores)
{
    CSeriesFixture chart(TicksByDatapoints);
    chart.FeedAs(6, "2014-01-02,4,1,2,3,5,7");
    ASSERT_EQ(chart.Count(), 1);
    EXPECT_EQ(chart.Point(0).Last, 0);
    EXPECT_EQ(chart.Point(0).TotalVolume, 5);
    EXPECT_EQ(chart.Point(0).Basis, std::string(1, '\0'));
    CSeriesFixture bars(IntervalsByDatapoints);
    bars.FeedAs(0, TickLine);
    ASSERT_EQ(bars.Count(), 1);
    EXPECT_EQ(bars.Point(0).Close, 0);
    EXPECT_EQ(bars.Point(0).LastSize, 100u);
}

TEST(HistoryReply, AKindThatIsNoDigitIsNotParsed)
{
    CSeriesFixture chart(0);
    const std::string handle = std::to_string(chart.Request().Handle());
    chart.RawLine("x" + handle + "," + TickLine);
    chart.RawLine(":" + handle + "," + TickLine);
    EXPECT_EQ(chart.Count(), 0);
    chart.RawLine("x" + handle + ",!ENDMSG!,");
    EXPECT_TRUE(chart.Request().IsComplete());
}

TEST(HistoryReply, PointsKeepTheOrderInWhichTheyCame)
{
    CSeriesFixture chart(6);
    for (const char* date : {"2014-01-03", "2014-01-02", "2014-01-03"})
        chart.Feed(std::string(date) + ",1,1,1,1,1,1");
    EXPECT_EQ(chart.TimeText(0) + chart.TimeText(1) + chart.TimeText(2),
              "2014-01-03 00:00:002014-01-02 00:00:002014-01-03 00:00:00");
}

TEST(RequestLife, ADeadRequestIsFreedByItsEndMarkerAlone)
{
    CSeriesFixture chart(0);
    const std::string identifier = chart.Identifier(0);
    const std::weak_ptr<CChartHistRequest> watched = FindRequest(chart.Request().Handle());
    chart.Feed(TickLine);
    GiveUpRequest(chart.TakeRequest());
    EXPECT_FALSE(watched.expired());
    chart.RawLine(identifier + "," + TickLine);
    EXPECT_EQ(watched.lock()->GetCount(0), 1) << "lines of a dead request are not parsed";
    chart.RawLine(identifier + ",!ENDMSG!,");
    EXPECT_TRUE(watched.expired());
    chart.RawLine(identifier + ",!ENDMSG!,");
    chart.RawLine(identifier + "," + TickLine);
}

TEST(RequestLife, ACompleteRequestIsFreedAtOnce)
{
    CSeriesFixture chart(0);
    chart.Complete();
    const std::weak_ptr<CChartHistRequest> watched = FindRequest(chart.Request().Handle());
    GiveUpRequest(chart.TakeRequest());
    EXPECT_TRUE(watched.expired());
}

TEST(RequestLife, ARequestThatWasNeverSentIsFreedAtOnce)
{
    auto request = std::make_unique<CChartHistRequest>();
    const std::int32_t handle = request->Handle();
    const std::weak_ptr<CChartHistRequest> watched = EnterRequest(*request);
    GiveUpRequest(std::move(request));
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(FindRequest(handle), nullptr);
}

TEST(RequestLife, ARequestDestroyedByItsOwnerLeavesTheTable)
{
    const int before = CountRequests();
    std::int32_t handle = 0;
    {
        CChartHistRequest request;
        handle = request.Handle();
        EXPECT_EQ(EnterRequest(request).get(), &request);
        EXPECT_EQ(CountRequests(), before + 1);
    }
    EXPECT_EQ(FindRequest(handle), nullptr);
    EXPECT_EQ(CountRequests(), before);
}

TEST(RequestLife, SendingAgainClearsCompleteAndKeepsTheHandle)
{
    CSeriesFixture chart(0);
    const std::int32_t handle = chart.Request().Handle();
    chart.Complete();
    BeginReply(chart.Request());
    EXPECT_FALSE(chart.Request().IsComplete());
    EXPECT_EQ(chart.Request().Handle(), handle);
}
