// The batching of ticks must not be visible.
#include "market/TickBatch.h"

#include "market/SeriesFixture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace zantroq;
using namespace zantroq::test;

namespace {

std::string TickOf(const CSeriesFixture& chart, int id, int kind = 0)
{
    return chart.Identifier(kind) + ",2014-01-02 09:30:01.250,101.25,100,5000,101.20,101.30," +
           std::to_string(id) + ",C";
}

sTickBatch RandomBatch()
{
    sTickBatch ticks;
    ticks.Count = *rc::gen::inRange(0, sTickBatch::Most + 1);
    for (std::size_t i = 0; i < static_cast<std::size_t>(ticks.Count); ++i) {
        ticks.Time[i] = MakeTime({2014, 1, *rc::gen::inRange(1, 5), *rc::gen::inRange(9, 12), 0, 0},
                                 static_cast<std::uint16_t>(*rc::gen::inRange(0, 1000)));
        ticks.Last[i] = *rc::gen::inRange(0, 1000) / 8.0;
        ticks.Bid[i] = ticks.Last[i] - 1;
        ticks.Ask[i] = ticks.Last[i] + 1;
        ticks.Size[i] = *rc::gen::arbitrary<std::int32_t>();
        ticks.TickId[i] = *rc::gen::arbitrary<std::int32_t>();
        ticks.TotalVolume[i] = *rc::gen::arbitrary<std::int64_t>();
        ticks.Basis[i] = *rc::gen::element('C', 'E', 'O');
    }
    return ticks;
}

// All values of a point in a series.
auto Told(const CChartHistRequest& request, int index)
{
    sHIST_POINT p;
    request.GetPoint(index, p);
    return std::make_tuple(p.Time.Time, p.Time.Status, p.Time.Milliseconds, p.Last, p.LastSize, p.Bid, p.Ask,
                           p.TotalVolume, p.Open, p.High, p.Low, p.Basis, p.BidSize, p.AskSize, p.TickId,
                           p.Close, p.Conditions, p.OpenInterest);
}

} // namespace

RC_GTEST_PROP(TickBatch, EntersTheSeriesAsItsTicksWouldOneByOne, ())
{
    CChartHistRequest batched, single;
    const int kind = *rc::gen::element(0, 1, 2, 2, 3, 6, NoRequestKind);
    const std::string beginDate = *rc::gen::element<std::string>("", "", "20140102", "x"),
                      endDate = *rc::gen::element<std::string>("", "20140103"),
                      beginTime = *rc::gen::element<std::string>("", "100000"),
                      endFilterTime = *rc::gen::element<std::string>("", "1", "100000");
    for (CChartHistRequest* request : {&batched, &single}) {
        request->SetRequestKind(kind);
        request->SetBeginDate(beginDate);
        request->SetEndDate(endDate);
        request->SetBeginTime(beginTime);
        request->SetEndFilterTime(endFilterTime);
    }
    for (int round = *rc::gen::inRange(1, 4); round > 0; --round) {
        const sTickBatch ticks = RandomBatch();
        batched.AppendTicks(ticks);
        for (int i = 0; i < ticks.Count; ++i)
            single.AppendPoint(ticks.Point(i));
        // A live trade between two blocks of the reply.
        sHIST_POINT live;
        live.Time = MakeTime({2014, 1, 2, 10, 0, 0});
        live.BidSize = 3;
        live.AskSize = 4;
        batched.AppendPoint(live);
        single.AppendPoint(live);
    }
    for (int field = 0; field < FieldCount; ++field)
        RC_ASSERT(batched.GetCount(field) == single.GetCount(field));
    for (int i = 0; i < single.GetCount(FieldTime); ++i)
        RC_ASSERT(Told(batched, i) == Told(single, i));
}

TEST(TickBatch, GrowsTheArraysInMidBatch)
{
    CChartHistRequest request;
    request.SetRequestKind(TicksByDatapoints);
    sTickBatch ticks;
    ticks.Count = 127; // no divisor of the step in which arrays grow
    for (int round = 0; round < 200; ++round) {
        for (int i = 0; i < ticks.Count; ++i) {
            ticks.Time[static_cast<std::size_t>(i)] = MakeTime({2014, 1, 2, 10, 0, 0});
            ticks.TickId[static_cast<std::size_t>(i)] = round * 127 + i;
        }
        request.AppendTicks(ticks);
    }
    for (int field : {0, 1, 6, 7, 8, 9, 10, 12, 13, 14, 15, 16})
        EXPECT_EQ(request.GetCount(field), 25400) << field;
    std::vector<std::int64_t> ids(25400);
    request.CopyIntegers(FieldTickId, 0, 25400, ids.data());
    for (int i = 0; i < 25400; ++i)
        ASSERT_EQ(ids[static_cast<std::size_t>(i)], i);
}

TEST(TickBatch, WaitingTicksAreStoredWhenTheLinesEnd)
{
    CSeriesFixture chart(TicksByDatapoints);
    for (int i = 0; i < 3; ++i)
        chart.LineOfMany(TickOf(chart, i));
    chart.EndOfLines();
    ASSERT_EQ(chart.Count(), 3);
    EXPECT_EQ(chart.Point(2).TickId, 2u);
    chart.EndOfLines();
    EXPECT_EQ(chart.Count(), 3);
}

TEST(TickBatch, NoMoreThanAFullBatchWaits)
{
    CSeriesFixture chart(TicksByDatapoints);
    for (int i = 0; i < 1000; ++i) {
        chart.LineOfMany(TickOf(chart, i));
        ASSERT_LT(i + 1 - chart.Count(), sTickBatch::Most);
    }
}

TEST(TickBatch, WaitingTicksStandBeforeTheReplysEndCounts)
{
    CSeriesFixture chart(TicksByDatapoints);
    chart.LineOfMany(TickOf(chart, 1));
    chart.Live(Trade("01/02/2014", "09:31:00.000", "7")); // kept, and applied at the end
    chart.LineOfMany(chart.Identifier(0) + ",!ENDMSG!,");
    EXPECT_TRUE(chart.Request().IsComplete());
    ASSERT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.Point(0).TickId, 1u);
    EXPECT_EQ(chart.Point(1).Last, 7);
}

TEST(TickBatch, AShortLineCostsItselfAlone)
{
    CSeriesFixture chart(TicksByDatapoints);
    chart.LineOfMany(TickOf(chart, 1));
    EXPECT_THROW(chart.LineOfMany(chart.Identifier(0) + ",2014-01-02 09:30:01.250,1"), std::invalid_argument);
    chart.LineOfMany(TickOf(chart, 2));
    chart.EndOfLines();
    ASSERT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.Point(1).TickId, 2u);
}

TEST(TickBatch, LinesOfTwoRequestsReachEachItsOwn)
{
    CSeriesFixture chart(TicksByDatapoints), other(TicksByDatapoints);
    for (int i = 0; i < 10; ++i)
        chart.LineOfMany(TickOf(i % 3 == 0 ? other : chart, i));
    chart.EndOfLines();
    EXPECT_EQ(chart.Count(), 6);
    ASSERT_EQ(other.Count(), 4);
    EXPECT_EQ(other.Point(3).TickId, 9u);
}

TEST(TickBatch, LinesOfAnotherKindKeepTheirPlace)
{
    // The request's kind was changed to bars while its reply of ticks is arriving.
    CSeriesFixture chart(IntervalsByDatapoints);
    chart.LineOfMany(TickOf(chart, 1));
    chart.LineOfMany(chart.Identifier(3) + ",2014-01-02 09:31:00,4,1,2,3,500,7");
    chart.LineOfMany(TickOf(chart, 2));
    chart.EndOfLines();
    ASSERT_EQ(chart.Count(), 3);
    EXPECT_EQ(chart.Point(0).LastSize, 100u);
    EXPECT_EQ(chart.Point(0).High, 0);
    EXPECT_EQ(chart.Point(1).High, 4);
    EXPECT_EQ(chart.Point(2).TotalVolume, 5000);
}

TEST(TickBatch, TicksBeforeADeadRequestsEndGoWithIt)
{
    CSeriesFixture chart(TicksByDatapoints);
    const int before = CountRequests();
    const std::string end = chart.Identifier(0) + ",!ENDMSG!,", tick = TickOf(chart, 1);
    chart.LineOfMany(tick);
    chart.Watches().Remove("SYM", chart.Request());
    GiveUpRequest(chart.TakeRequest());
    EXPECT_EQ(CountRequests(), before);
    chart.LineOfMany(tick);
    chart.LineOfMany(end);
    EXPECT_EQ(CountRequests(), before - 1);
    chart.EndOfLines();
}
