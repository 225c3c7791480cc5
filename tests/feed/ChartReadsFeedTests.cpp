// Both sides of the protocol together, without sockets: the feed's sessions answer the chart's commands, and
// the chart's handlers read the answers. Expected values come from the recordings below.
#include "TemporaryFolder.h"
#include "feed/protocol/Level1Session.h"
#include "feed/protocol/LookupSession.h"
#include "market/HistoryCommand.h"
#include "market/HistoryReply.h"
#include "market/Level1Command.h"
#include "market/Level1Stream.h"

#include <gtest/gtest.h>

namespace zantroq::feed {
namespace {

using namespace std::chrono_literals;

// Calls `call` with each line of a text, and with the empty lines of CR LF pairs.
template<class Call> void EachLine(std::string_view text, Call call)
{
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        ASSERT_NE(end, std::string_view::npos) << "a line without an end: " << text;
        call(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
}

class ChartReadsFeed : public testing::Test
{
protected:
    ChartReadsFeed()
    {
        m_folder.Write("TK.tick.csv", "time,last,size,total_volume,bid,ask,tick_id,basis\n"
                                      "2014-01-02 09:30:00.000,10.00,100,100,9.99,10.01,1,C\n"
                                      "2014-01-03 09:30:00.250,10.50,200,200,10.49,10.51,2,E\n"
                                      "2014-01-03 09:30:01.000,10.25,300,500,10.24,10.26,3,C\n");
        m_folder.Write("MN.minute.csv", "time,open,high,low,close,volume\n"
                                        "2014-01-02 16:00:00,1,4,0.5,2,10\n"
                                        "2014-01-03 09:31:00,2,5,1.5,3,20\n"
                                        "2014-01-03 09:32:00,3,6,2.5,4,30\n");
        m_folder.Write("DY.daily.csv", "date,open,high,low,close,volume,open_interest\n"
                                       "2013-12-31,1,5,0.5,2,10,7\n"
                                       "2014-01-02,2,6,1.5,3,20,8\n"
                                       "2014-01-06,3,7,2.5,4,30,9\n");
        m_catalog.AddFolder(m_folder.Path());
        m_request.SetDataDirection("1");
    }

    CChartHistRequest& Request(int kind, const std::string& symbol)
    {
        m_request.SetRequestKind(kind);
        m_request.SetSymbol(symbol);
        return m_request;
    }

    // Sends the request and reads the whole reply. Returns the number of new points.
    int Load()
    {
        m_request.ClearSeries();
        BeginReply(m_request);
        EachLine(HistoryRequestText(m_request), [&](std::string_view line) { m_lookup.OnLine(line); });
        CTextBlock block;
        CWorkSlice slice = CWorkSlice::Unlimited();
        m_lookup.Write(block, 1'000'000, slice);
        EachLine(block.Text(), [&](std::string_view line) { m_reply.OnLine(line); });
        return m_request.GetCount(FieldTime);
    }

    // Sends these lines to the level 1 port and passes its answers to the chart.
    void Say(std::string_view lines)
    {
        std::string text;
        CWorkSlice slice = CWorkSlice::Unlimited();
        EachLine(lines, [&](std::string_view line) { m_live.OnLine(line); });
        m_live.AnswerLines(m_now, 1'000'000, slice, text);
        EachLine(text, [&](std::string_view line) { m_stream.OnLine(line); });
    }
    void Trade(CLevel1Session::TClock::duration wait)
    {
        std::string text;
        m_now += wait;
        CWorkSlice slice = CWorkSlice::Unlimited();
        m_live.WriteDue(m_now, 1'000'000, slice, text);
        EachLine(text, [&](std::string_view line) { m_stream.OnLine(line); });
    }

    sHIST_POINT Point(int index) const
    {
        sHIST_POINT point;
        m_request.GetPoint(index, point);
        return point;
    }
    std::string TimeOf(int index) const
    {
        return FormatTime(m_request.GetTimeAt(index), "%Y-%m-%d %H:%M:%S");
    }

    CTemporaryFolder m_folder;
    CMarketCatalog m_catalog{1, [](const std::string&) {}};
    CLookupSession m_lookup{m_catalog};
    CLevel1Session m_live{m_catalog, {.ReplayTicks = true}};
    CLevel1Session::TClock::time_point m_now{};

    CChartHistRequest m_request;
    CWatchTable m_watches;
    std::vector<std::string> m_removed;
    CLevel1Stream m_stream{m_watches, [this](std::string_view symbol) { m_removed.emplace_back(symbol); }};
    CHistoryReply m_reply{[this] { m_stream.ReplayPending(); }};
};

} // namespace

TEST_F(ChartReadsFeed, TicksByPointsDaysAndRange)
{
    Request(TicksByDatapoints, "TK").SetExtendedTrades(true);
    EXPECT_EQ(Load(), 3); // 0 points means all
    EXPECT_TRUE(m_request.IsComplete());
    const sHIST_POINT tick = Point(1);
    EXPECT_EQ(tick.Time, MakeTime({2014, 1, 3, 9, 30, 0}, 250));
    EXPECT_EQ(tick.Last, 10.5);
    EXPECT_EQ(tick.LastSize, 200u);
    EXPECT_EQ(tick.TotalVolume, 200);
    EXPECT_EQ(tick.Bid, 10.49);
    EXPECT_EQ(tick.Ask, 10.51);
    EXPECT_EQ(tick.TickId, 2u);
    EXPECT_EQ(tick.Basis, "E");
    m_request.SetExtendedTrades(false);
    EXPECT_EQ(Load(), 2);
    m_request.SetDatapoints(1);
    EXPECT_EQ(Load(), 1);
    EXPECT_EQ(TimeOf(0), "2014-01-03 09:30:01");

    Request(TicksByDays, "TK").SetDays(1);
    EXPECT_EQ(Load(), 1);
    m_request.SetBeginFilterTime("093001");
    m_request.SetExtendedTrades(true);
    EXPECT_EQ(Load(), 1);
    m_request.SetBeginFilterTime("");
    EXPECT_EQ(Load(), 2);

    Request(TicksByRange, "TK").SetBeginDate("20140102");
    m_request.SetBeginTime("093000");
    m_request.SetEndDate("20140103");
    m_request.SetEndTime("093000");
    EXPECT_EQ(Load(), 2) << "both ends are inside, the last one's whole second too";
}

TEST_F(ChartReadsFeed, IntervalsByPointsDaysAndRange)
{
    Request(IntervalsByDatapoints, "MN").SetIntervalSeconds(60);
    m_request.SetDatapoints(2);
    EXPECT_EQ(Load(), 2);
    const sHIST_POINT bar = Point(1);
    EXPECT_EQ(TimeOf(1), "2014-01-03 09:32:00");
    EXPECT_EQ(bar.Open, 3);
    EXPECT_EQ(bar.High, 6);
    EXPECT_EQ(bar.Low, 2.5);
    EXPECT_EQ(bar.Close, 4);
    EXPECT_EQ(bar.LastSize, 30u);
    EXPECT_EQ(bar.TotalVolume, 50);

    Request(IntervalsByDays, "MN").SetIntervalSeconds(300);
    m_request.SetDays(1);
    EXPECT_EQ(Load(), 1);
    EXPECT_EQ(TimeOf(0), "2014-01-03 09:35:00");
    EXPECT_EQ(Point(0).LastSize, 50u);

    Request(IntervalsByRange, "MN").SetIntervalSeconds(60);
    m_request.SetBeginDate("20140102");
    m_request.SetBeginTime("093100");
    m_request.SetEndDate("20140103");
    m_request.SetEndTime("160000");
    EXPECT_EQ(Load(), 3);
    m_request.SetEndFilterTime("093100");
    EXPECT_EQ(Load(), 1);
}

TEST_F(ChartReadsFeed, DaysWeeksAndMonths)
{
    Request(DailyByDatapoints, "DY").SetDatapoints(2);
    EXPECT_EQ(Load(), 2);
    EXPECT_EQ(TimeOf(0), "2014-01-02 00:00:00");
    EXPECT_EQ(Point(1).TotalVolume, 30);
    EXPECT_EQ(Point(1).OpenInterest, 9u);
    Request(DailyByRange, "DY").SetBeginDate("20131231");
    m_request.SetEndDate("20140102");
    EXPECT_EQ(Load(), 2);
    m_request.SetBeginDate("");
    m_request.SetEndDate("");

    Request(WeeklyByDatapoints, "DY").SetDatapoints(0);
    EXPECT_EQ(Load(), 2); // Tuesday and Thursday of one week, then a Monday
    EXPECT_EQ(TimeOf(0), "2014-01-02 00:00:00");
    EXPECT_EQ(Point(0).High, 6);
    EXPECT_EQ(Point(0).TotalVolume, 30);
    Request(MonthlyByDatapoints, "DY");
    EXPECT_EQ(Load(), 2);
    EXPECT_EQ(TimeOf(1), "2014-01-06 00:00:00");
    EXPECT_EQ(Point(1).Open, 2);
    EXPECT_EQ(Point(1).Close, 4);
}

TEST_F(ChartReadsFeed, WhatTheFeedCannotServeLeavesTheChartLoading)
{
    Request(TicksByDatapoints, "DY");
    EXPECT_EQ(Load(), 0);
    EXPECT_FALSE(m_request.IsComplete());
    Request(DailyByDatapoints, "NOBODY");
    EXPECT_EQ(Load(), 0);
    m_request.SetDatapoints(-1); // which makes the command malformed
    EXPECT_EQ(Load(), 0);
    EXPECT_FALSE(m_request.IsComplete());
    Request(DailyByDatapoints, "DY").SetDatapoints(1);
    EXPECT_EQ(Load(), 1);
    EXPECT_TRUE(m_request.IsComplete());
}

TEST_F(ChartReadsFeed, LiveTradesFollowOnTheHistory)
{
    Request(TicksByDatapoints, "TK");
    Say(Level1SetupText());
    m_watches.Add("TK", EnterRequest(m_request));
    Say(WatchCommand("TK"));
    EXPECT_EQ(m_request.GetPriceFormat(), 12) << "two decimals, from the fundamental line";
    EXPECT_EQ(Load(), 2);
    Trade(1h); // the newest day's two ticks again, after the last point; one is an extended trade
    ASSERT_EQ(m_request.GetCount(FieldTime), 3);
    EXPECT_EQ(TimeOf(2), "2014-01-03 09:30:01");
    EXPECT_EQ(Point(2).Last, 10.25);
    EXPECT_EQ(Point(2).LastSize, 300u);
    EXPECT_EQ(m_removed, (std::vector<std::string>{}));
}

// The summary has no bid and ask, and its day is taken completely.
TEST_F(ChartReadsFeed, ASummaryOfANewerDayGivesADailyChartItsBar)
{
    m_folder.Write("NEW.daily.csv", "date,open,high,low,close,volume,open_interest\n"
                                    "2014-01-03,105,111,95,106,2000,6\n");
    m_folder.Write("NEW.minute.csv",
                   "time,open,high,low,close,volume\n2014-01-06 09:31:00,200,203,199,202,30\n");
    m_catalog.AddFolder(m_folder.Path());
    Request(DailyByDatapoints, "NEW");
    Say(Level1SetupText());
    EXPECT_EQ(Load(), 1);
    m_watches.Add("NEW", EnterRequest(m_request));
    Say(WatchCommand("NEW"));
    ASSERT_EQ(m_request.GetCount(FieldTime), 2);
    EXPECT_EQ(TimeOf(1), "2014-01-06 00:00:00");
    const sHIST_POINT bar = Point(1);
    EXPECT_EQ(bar.Open, 200);
    EXPECT_EQ(bar.High, 203);
    EXPECT_EQ(bar.Low, 199);
    EXPECT_EQ(bar.Close, 202);
    EXPECT_EQ(bar.TotalVolume, 30);
    EXPECT_EQ(bar.OpenInterest, 0u);
}

// The chart answers an unwanted update with a remove command, and the feed stops.
TEST_F(ChartReadsFeed, UpdatesThatNobodyWantsEnd)
{
    Say(Level1SetupText());
    Say(WatchCommand("TK") + WatchCommand("NOBODY") + "nonsense\n");
    EXPECT_EQ(m_removed, (std::vector<std::string>{"TK", "TK", "!SYNTAX_ERROR!"}));
    for (const std::string& symbol : std::vector<std::string>(m_removed))
        Say(RemoveCommand(symbol));
    Trade(1h);
    EXPECT_EQ(m_removed.size(), 3u);
}

} // namespace zantroq::feed
