#include "market/ChartHistRequest.h"

#include <gtest/gtest.h>
#include <set>
#include <stdexcept>
#include <vector>

using namespace zantroq;

namespace {

sHIST_POINT PointAt(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    sHIST_POINT point;
    point.Time = MakeTime({year, month, day, hour, minute, second}, 5);
    point.Last = 101.25;
    point.LastSize = 100;
    point.Bid = 101.2;
    point.Ask = 101.3;
    point.TotalVolume = 5000000000;
    point.Open = 1;
    point.High = 4;
    point.Low = 0.5;
    point.Close = 2;
    point.Basis = "Cab";
    point.BidSize = 7;
    point.AskSize = 4294967295u;
    point.TickId = 77;
    point.Conditions = "";
    point.OpenInterest = 9;
    return point;
}

void Fill(CChartHistRequest& request, int kind, int count)
{
    request.SetRequestKind(kind);
    for (int i = 0; i < count; ++i)
        request.AppendPoint(PointAt(2014, 1, 2, 9, 30, i));
}

bool Admits(CChartHistRequest& request, const sHIST_POINT& point)
{
    request.SetRequestKind(TicksByDatapoints);
    const int before = request.GetCount(FieldTime);
    request.AppendPoint(point);
    return request.GetCount(FieldTime) > before;
}

const std::set<int> TickFields{0, 1, 6, 7, 8, 9, 10, 12, 13, 14, 15, 16};
const std::set<int> IntervalFields{0, 1, 2, 3, 4, 5, 12, 13};
const std::set<int> DayFields{0, 1, 2, 3, 4, 5, 11, 13};

} // namespace

TEST(HistoryRecords, ChartPointHasItsFixedShapeAndDefaults)
{
    EXPECT_EQ(sizeof(sHIST_DATA), 64u);
    const sHIST_DATA point;
    EXPECT_FALSE(point.Flag);
    EXPECT_EQ(point.Open + point.Close + point.High + point.Low + point.Volume, 0);
    EXPECT_EQ(FormatTime(point.Time, "%Y-%m-%d %H:%M:%S"), "1980-12-30 13:00:00");
    EXPECT_EQ(point.Time.Milliseconds, 0);
}

TEST(ChartHistRequest, StartsWithTheDefaultsOfANewRequest)
{
    const CChartHistRequest request;
    EXPECT_EQ(request.GetSymbol(), "");
    EXPECT_EQ(request.GetDatapoints(), 0);
    EXPECT_EQ(request.GetIntervalSeconds(), 0);
    EXPECT_EQ(request.GetDataDirection(), "0");
    EXPECT_EQ(request.GetRequestKind(), -1);
    EXPECT_EQ(request.GetPriceFormat(), 14);
    EXPECT_TRUE(request.IsAlive());
    EXPECT_FALSE(request.IsComplete() || request.UsesExchangeFormat() || request.HasBidAskUpdates() ||
                 request.HasExtendedTrades());
}

TEST(ChartHistRequest, KeepsWhatItsSettersAreGiven)
{
    CChartHistRequest request;
    request.SetSymbol("SYM");
    request.SetDatapoints(1);
    request.SetIntervalSeconds(2);
    request.SetDays(3);
    request.SetDataDirection("1");
    request.SetBeginDate("a");
    request.SetBeginTime("b");
    request.SetBeginFilterTime("c");
    request.SetEndDate("d");
    request.SetEndTime("e");
    request.SetEndFilterTime("f");
    EXPECT_EQ(request.GetSymbol() + request.GetDataDirection(), "SYM1");
    EXPECT_EQ(request.GetDatapoints() * 100 + request.GetIntervalSeconds() * 10 + request.GetDays(), 123);
    EXPECT_EQ(request.GetBeginDate() + request.GetBeginTime() + request.GetBeginFilterTime() +
                  request.GetEndDate() + request.GetEndTime() + request.GetEndFilterTime(),
              "abcdef");
}

TEST(ChartHistRequest, HandlesArePositiveAndNeverReused)
{
    std::set<std::int32_t> handles;
    for (int i = 0; i < 1000; ++i) {
        const CChartHistRequest request;
        EXPECT_GT(request.Handle(), 0);
        EXPECT_TRUE(handles.insert(request.Handle()).second);
    }
}

TEST(ChartHistRequest, AnEmptySeriesHasNoPointToRead)
{
    CChartHistRequest request;
    EXPECT_EQ(request.GetCount(0), 0);
    EXPECT_EQ(request.GetLastIndex(0), -1);
    for (int kind = 0; kind <= 9; ++kind) {
        request.SetRequestKind(kind);
        sHIST_POINT point;
        sHIST_DATA chartPoint;
        EXPECT_THROW(request.GetPoint(0, point), std::invalid_argument) << kind;
        EXPECT_THROW(request.GetChartPoint(0, chartPoint), std::invalid_argument) << kind;
        EXPECT_THROW(request.UpdatePoint(0, point), std::invalid_argument) << kind;
    }
}

TEST(ChartHistRequest, WithoutAKindNothingIsStoredOrRead)
{
    CChartHistRequest request;
    request.AppendPoint(PointAt(2014, 1, 2));
    EXPECT_EQ(request.GetCount(0), 0);
    sHIST_POINT point;
    point.Last = 3;
    sHIST_DATA chartPoint;
    chartPoint.Close = 4;
    request.GetPoint(0, point);
    request.GetChartPoint(0, chartPoint);
    request.UpdatePoint(0, point);
    EXPECT_EQ(point.Last, 3);
    EXPECT_EQ(chartPoint.Close, 4);
}

TEST(ChartHistRequest, EachKindFillsItsArraysAndNoOthers)
{
    for (int kind = 0; kind <= 9; ++kind) {
        CChartHistRequest request;
        Fill(request, kind, 3);
        const auto& filled = IsTickKind(kind)       ? TickFields
                             : IsIntervalKind(kind) ? IntervalFields
                                                    : DayFields;
        for (int field = 0; field <= 16; ++field)
            EXPECT_EQ(request.GetCount(field), filled.count(field) ? 3 : 0)
                << "kind " << kind << " field " << field;
    }
}

TEST(ChartHistRequest, AFieldOutsideZeroToSixteenIsAnInvalidArgument)
{
    const CChartHistRequest request;
    EXPECT_THROW(request.GetCount(-1), std::invalid_argument);
    EXPECT_THROW(request.GetCount(17), std::invalid_argument);
    EXPECT_THROW(request.GetLastIndex(17), std::invalid_argument);
}

TEST(ChartHistRequest, ATickReadsBackWithOneBasisCharacter)
{
    CChartHistRequest request;
    Fill(request, TicksByDays, 2);
    sHIST_POINT point;
    request.GetPoint(1, point);
    EXPECT_EQ(point.Time, MakeTime({2014, 1, 2, 9, 30, 1}, 5));
    EXPECT_EQ(point.Last, 101.25);
    EXPECT_EQ(point.LastSize, 100u);
    EXPECT_EQ(point.Bid, 101.2);
    EXPECT_EQ(point.Ask, 101.3);
    EXPECT_EQ(point.BidSize, 7u);
    EXPECT_EQ(point.AskSize, 4294967295u);
    EXPECT_EQ(point.TotalVolume, 5000000000);
    EXPECT_EQ(point.TickId, 77u);
    EXPECT_EQ(point.Basis, "C");
    EXPECT_EQ(point.Conditions, "");
    EXPECT_EQ(point.Open + point.High + point.Low + point.Close + point.OpenInterest, 0);
}

TEST(ChartHistRequest, ConditionsStayWithTheirPoint)
{
    CChartHistRequest request;
    Fill(request, TicksByDays, 3);
    sHIST_POINT point = PointAt(2014, 1, 3);
    point.Conditions = "x";
    request.UpdatePoint(2, point);
    request.RemovePoint(0);
    sHIST_POINT back;
    request.GetPoint(1, back);
    EXPECT_EQ(back.Conditions, "x");
    request.GetPoint(0, back);
    EXPECT_EQ(back.Conditions, "");
    EXPECT_EQ(request.GetCount(FieldConditions), 2);
}

TEST(ChartHistRequest, IndexesAreClampedWhenAPointIsRead)
{
    CChartHistRequest request;
    Fill(request, IntervalsByDays, 3);
    sHIST_POINT point;
    request.GetPoint(-5, point);
    EXPECT_EQ(FormatTime(point.Time, "%S"), "00");
    sHIST_DATA chartPoint;
    request.GetChartPoint(99, chartPoint);
    EXPECT_EQ(FormatTime(chartPoint.Time, "%S"), "02");
}

TEST(ChartHistRequest, ChartPointsTakeTheirShapeFromTheKind)
{
    CChartHistRequest ticks, intervals, days;
    Fill(ticks, 0, 1);
    Fill(intervals, 3, 1);
    Fill(days, 6, 1);
    sHIST_DATA tick, interval, day;
    ticks.GetChartPoint(0, tick);
    intervals.GetChartPoint(0, interval);
    days.GetChartPoint(0, day);
    EXPECT_EQ(std::vector<double>({tick.Open, tick.High, tick.Low, tick.Close}),
              std::vector<double>(4, 101.25));
    EXPECT_EQ(tick.Volume, 100);
    EXPECT_EQ(std::vector<double>({interval.Open, interval.High, interval.Low, interval.Close}),
              (std::vector<double>{1, 4, 0.5, 2}));
    EXPECT_EQ(interval.Volume, 100);
    EXPECT_EQ(day.Close, 2);
    EXPECT_EQ(day.Volume, 0);
    EXPECT_FALSE(tick.Flag || interval.Flag || day.Flag);
}

TEST(ChartHistRequest, LookupsOutsideTheSeriesGiveZeroAndAFixedTime)
{
    CChartHistRequest request;
    Fill(request, 0, 2);
    for (const int outside : {-1, 2, 1000}) {
        EXPECT_EQ(FormatTime(request.GetTimeAt(outside), "%Y-%m-%d %H:%M:%S"), "1980-01-01 12:00:00");
        EXPECT_EQ(request.GetTimeAt(outside).Status, TimeValid);
        EXPECT_EQ(request.GetLastAt(outside), 0);
        EXPECT_EQ(request.GetSizeAt(outside), 0);
        EXPECT_EQ(request.GetTotalVolumeAt(outside), 0);
    }
    EXPECT_EQ(request.GetLastAt(1), 101.25);
    EXPECT_EQ(request.GetSizeAt(1), 100);
    EXPECT_EQ(request.GetTotalVolumeAt(1), 5000000000);
    // Not one of a tick's arrays.
    EXPECT_EQ(request.GetOpenAt(1) + request.GetCloseAt(1) + request.GetHighAt(1) + request.GetLowAt(1), 0);
}

TEST(ChartHistRequest, UpdateOverwritesOnePointWithoutTheRangeCheck)
{
    CChartHistRequest request;
    Fill(request, DailyByRange, 2);
    request.SetEndDate("20140103");
    sHIST_POINT point = PointAt(2015, 1, 1);
    point.Close = 8;
    request.UpdatePoint(1, point);
    EXPECT_EQ(request.GetCloseAt(0), 2);
    EXPECT_EQ(request.GetCloseAt(1), 8);
    EXPECT_EQ(FormatTime(request.GetTimeAt(1), "%Y"), "2015");
    EXPECT_THROW(request.UpdatePoint(2, point), std::invalid_argument);
    EXPECT_THROW(request.UpdatePoint(-1, point), std::invalid_argument);
}

TEST(ChartHistRequest, UpdateWritesEveryFieldOfTheKindAndNoOther)
{
    sHIST_POINT fresh = PointAt(2015, 6, 7, 8, 9, 10);
    fresh.Time.Milliseconds = 11;
    fresh.Last = 12;
    fresh.LastSize = 4000000013u;
    fresh.Bid = 14;
    fresh.Ask = 15;
    fresh.TotalVolume = 5000000016;
    fresh.Open = 17;
    fresh.High = 18;
    fresh.Low = 19;
    fresh.Basis = "Eba";
    fresh.BidSize = 4000000020u;
    fresh.AskSize = 21;
    fresh.TickId = 4000000022u;
    fresh.Close = 23;
    fresh.Conditions = "24";
    fresh.OpenInterest = 4000000025u;
    for (int kind = 0; kind <= 9; ++kind) {
        CChartHistRequest request;
        Fill(request, kind, 3);
        request.UpdatePoint(1, fresh);
        sHIST_POINT point; // what the kind does not hold stays as it was made
        request.GetPoint(1, point);
        const bool ticks = IsTickKind(kind), days = IsDayKind(kind);
        EXPECT_EQ(point.Time, fresh.Time);
        EXPECT_EQ(point.TotalVolume, 5000000016);
        EXPECT_EQ(point.Last, ticks ? 12 : 0);
        EXPECT_EQ(point.LastSize, days ? 0 : 4000000013u);
        EXPECT_EQ(point.Bid, ticks ? 14 : 0);
        EXPECT_EQ(point.Ask, ticks ? 15 : 0);
        EXPECT_EQ(point.Open, ticks ? 0 : 17);
        EXPECT_EQ(point.High, ticks ? 0 : 18);
        EXPECT_EQ(point.Low, ticks ? 0 : 19);
        EXPECT_EQ(point.Basis, ticks ? "E" : "");
        EXPECT_EQ(point.BidSize, ticks ? 4000000020u : 0);
        EXPECT_EQ(point.AskSize, ticks ? 21u : 0);
        EXPECT_EQ(point.TickId, ticks ? 4000000022u : 0);
        EXPECT_EQ(point.Close, ticks ? 0 : 23);
        EXPECT_EQ(point.Conditions, ticks ? "24" : "");
        EXPECT_EQ(point.OpenInterest, days ? 4000000025u : 0);
        sHIST_POINT before;
        request.GetPoint(0, before);
        EXPECT_NE(before.Time, fresh.Time);
    }
}

TEST(ChartHistRequest, AnUpdateThatFailsChangesNothing)
{
    CChartHistRequest request;
    Fill(request, IntervalsByDatapoints, 2);
    sHIST_POINT point = PointAt(2015, 1, 1);
    point.Close = 8;
    for (const int index : {2, -1})
        EXPECT_THROW(request.UpdatePoint(index, point), std::invalid_argument);
    EXPECT_EQ(request.GetCloseAt(1), 2);
    EXPECT_EQ(FormatTime(request.GetTimeAt(1), "%Y"), "2014");
}

TEST(ChartHistRequest, RemovingAPointKeepsTheArraysAligned)
{
    for (int kind = 0; kind <= 9; ++kind) {
        CChartHistRequest request;
        Fill(request, kind, 3);
        request.RemovePoint(1);
        EXPECT_EQ(FormatTime(request.GetTimeAt(0), "%S") + FormatTime(request.GetTimeAt(1), "%S"), "0002");
        for (int field = 0; field <= 16; ++field)
            EXPECT_TRUE(request.GetCount(field) == 0 || request.GetCount(field) == 2) << kind << ' ' << field;
        request.RemovePoint(2);
        request.RemovePoint(1000);
        EXPECT_EQ(request.GetCount(0), 2);
        EXPECT_THROW(request.RemovePoint(-1), std::invalid_argument);
    }
}

TEST(ChartHistRequest, ClearingEmptiesEveryArrayAndKeepsParametersAndFlags)
{
    CChartHistRequest request;
    Fill(request, 0, 5);
    request.SetSymbol("SYM");
    request.SetComplete(true);
    request.ClearSeries();
    for (int field = 0; field <= 16; ++field)
        EXPECT_EQ(request.GetCount(field), 0);
    EXPECT_EQ(request.GetSymbol(), "SYM");
    EXPECT_TRUE(request.IsComplete());
    Fill(request, 3, 2);
    request.ResetSeries();
    EXPECT_EQ(request.GetCount(0), 0);
}

TEST(ChartHistRequest, BulkReadsCopyWhatExists)
{
    CChartHistRequest request;
    Fill(request, 0, 3);
    double numbers[5] = {-1, -1, -1, -1, -1};
    EXPECT_EQ(request.CopyDoubles(FieldBid, 1, 5, numbers), 2);
    EXPECT_EQ(numbers[1], 101.2);
    EXPECT_EQ(numbers[2], -1);
    EXPECT_EQ(request.CopyDoubles(FieldOpen, 0, 5, numbers), 0);
    EXPECT_EQ(request.CopyDoubles(FieldLast, -1, 5, numbers), 0);
    EXPECT_EQ(request.CopyDoubles(FieldLast, 3, 5, numbers), 0);
    EXPECT_EQ(request.CopyDoubles(FieldLast, 0, -2, numbers), 0);
    std::int64_t integers[3];
    EXPECT_EQ(request.CopyIntegers(FieldTotalVolume, 0, 3, integers), 3);
    EXPECT_EQ(integers[2], 5000000000);
    EXPECT_EQ(request.CopyIntegers(FieldAskSize, 0, 1, integers), 1);
    EXPECT_EQ(integers[0], -1);
    sTIME_W_MILLISECONDS times[3];
    EXPECT_EQ(request.CopyTimes(2, 3, times), 1);
    EXPECT_EQ(times[0], request.GetTimeAt(2));
    EXPECT_THROW(request.CopyDoubles(FieldSize, 0, 1, numbers), std::invalid_argument);
    EXPECT_THROW(request.CopyIntegers(FieldLast, 0, 1, integers), std::invalid_argument);
}

TEST(RangeCheck, BothEndsAreInside)
{
    CChartHistRequest request;
    request.SetBeginDate("20140102");
    request.SetEndDate("20140103");
    request.SetBeginTime("093000");
    request.SetEndTime("160000");
    EXPECT_TRUE(Admits(request, PointAt(2014, 1, 2, 9, 30, 0)));
    EXPECT_TRUE(Admits(request, PointAt(2014, 1, 3, 16, 0, 0)));
    EXPECT_FALSE(Admits(request, PointAt(2014, 1, 1, 12, 0, 0)));
    EXPECT_FALSE(Admits(request, PointAt(2014, 1, 4, 12, 0, 0)));
    EXPECT_FALSE(Admits(request, PointAt(2014, 1, 2, 9, 29, 59)));
    EXPECT_FALSE(Admits(request, PointAt(2014, 1, 3, 16, 0, 1)));
}

TEST(RangeCheck, TimesOfDayCutEveryDayOfTheRange)
{
    CChartHistRequest request;
    request.SetBeginDate("20140102");
    request.SetEndDate("20140106");
    request.SetBeginTime("093000");
    request.SetEndTime("160000");
    EXPECT_FALSE(Admits(request, PointAt(2014, 1, 3, 8, 0, 0)));
    EXPECT_FALSE(Admits(request, PointAt(2014, 1, 3, 17, 0, 0)));
    EXPECT_TRUE(Admits(request, PointAt(2014, 1, 3, 12, 0, 0)));
}

TEST(RangeCheck, TheTighterOfTwoTimeBoundsWins)
{
    CChartHistRequest request;
    request.SetBeginTime("090000");
    request.SetBeginFilterTime("100000");
    request.SetEndTime("150000");
    request.SetEndFilterTime("160000");
    EXPECT_FALSE(Admits(request, PointAt(2014, 1, 2, 9, 30, 0)));
    EXPECT_TRUE(Admits(request, PointAt(2014, 1, 2, 10, 0, 0)));
    EXPECT_FALSE(Admits(request, PointAt(2014, 1, 2, 15, 30, 0)));
}

TEST(RangeCheck, DateBoundsAloneAdmitAnyTime)
{
    CChartHistRequest request;
    request.SetBeginDate("20140102");
    request.SetEndDate("20140102");
    EXPECT_TRUE(Admits(request, PointAt(2014, 1, 2, 0, 0, 0)));
    EXPECT_TRUE(Admits(request, PointAt(2014, 1, 2, 23, 59, 59)));
}

TEST(RangeCheck, BoundsOfOtherFormsCompareAsTexts)
{
    CChartHistRequest request;
    request.SetBeginDate("2014");
    EXPECT_TRUE(Admits(request, PointAt(2014, 1, 2)));
    EXPECT_FALSE(Admits(request, PointAt(2013, 12, 31)));
    request.SetBeginDate("");
    request.SetEndDate("201401021");
    EXPECT_TRUE(Admits(request, PointAt(2014, 1, 2)));
    EXPECT_FALSE(Admits(request, PointAt(2014, 1, 3)));
}

TEST(RangeCheck, AnInvalidTimeComparesByItsText)
{
    sHIST_POINT invalid = PointAt(2014, 1, 2);
    invalid.Time.Status = TimeInvalid;
    CChartHistRequest request;
    EXPECT_TRUE(Admits(request, invalid));
    request.SetBeginDate("20140102");
    EXPECT_TRUE(Admits(request, invalid)); // "I" is above every digit
    request.SetEndDate("20140102");
    EXPECT_FALSE(Admits(request, invalid));
    sHIST_POINT null = invalid;
    null.Time.Status = TimeNull;
    request.SetBeginDate("");
    EXPECT_TRUE(Admits(request, null)); // the empty text is below every bound
    request.SetBeginTime("000000");
    EXPECT_FALSE(Admits(request, null));
}

TEST(GrowableArray, GrowsByItsStep)
{
    CGrowableArray<int> array;
    array.SetGrowStep(10000);
    array.Add(1);
    EXPECT_EQ(array.Capacity(), 10000);
    array.SetCount(10001);
    EXPECT_EQ(array.Capacity(), 20000);
    array.SetCount(50000);
    EXPECT_EQ(array.Capacity(), 50000);
    EXPECT_EQ(array[0], 1);
    EXPECT_EQ(array[49999], 0);
    array.SetCount(0);
    EXPECT_EQ(array.Capacity(), 0);
}

TEST(GrowableArray, WithoutAStepGrowsByAnEighthWithinLimits)
{
    CGrowableArray<int> array;
    array.Add(0);
    EXPECT_EQ(array.Capacity(), 4);
    array.SetCount(80);
    array.Add(0); // 80 / 8
    EXPECT_EQ(array.Capacity(), 90);
    array.SetCount(100000);
    array.Add(0); // at most 1,024
    EXPECT_EQ(array.Capacity(), 101024);
}

TEST(GrowableArray, KeepsItsElementsThroughEveryGrowth)
{
    CGrowableArray<std::int64_t> array;
    array.SetGrowStep(10000);
    for (int i = 0; i < 500000; ++i)
        array.Add(i * 3LL);
    for (int i = 0; i < 500000; i += 1000)
        ASSERT_EQ(array[i], i * 3LL);
    array.RemoveAt(0);
    EXPECT_EQ(array[0], 3);
    EXPECT_EQ(array.Count(), 499999);
}

TEST(GrowableArray, IndexesOutsideAreInvalidArguments)
{
    CGrowableArray<int> array;
    EXPECT_THROW(array[0], std::invalid_argument);
    array.Add(1);
    EXPECT_THROW(array[1], std::invalid_argument);
    EXPECT_THROW(array[-1], std::invalid_argument);
    EXPECT_THROW(array.SetAt(1, 0), std::invalid_argument);
    EXPECT_THROW(array.RemoveAt(1), std::invalid_argument);
    EXPECT_THROW(array.SetCount(-1), std::invalid_argument);
}

// The rest of an unwanted reply may arrive between the clearing and the new kind.
TEST(ChartHistRequest, AKindThatFillsOtherArraysBeginsWithEmptyOnes)
{
    constexpr int kinds[] = {TicksByDatapoints, IntervalsByDatapoints, DailyByDatapoints};
    for (const int before : kinds)
        for (const int after : kinds) {
            CChartHistRequest request;
            sHIST_POINT point;
            request.SetRequestKind(before);
            for (int i = 0; i < 12000; ++i)
                request.AppendPoint(point);
            request.SetRequestKind(after);
            const int kept = before == after ? 12000 : 0;
            EXPECT_EQ(request.GetCount(FieldTime), kept) << before << " to " << after;
            EXPECT_EQ(request.GetCount(FieldTotalVolume), kept) << before << " to " << after;
            for (int i = 0; i < 20000; ++i)
                request.AppendPoint(point);
            const int count = kept + 20000;
            EXPECT_EQ(request.GetCount(FieldTime), count) << before << " to " << after;
            for (const int field : after == TicksByDatapoints
                                       ? std::vector<int>{FieldLast, FieldSize, FieldConditions}
                                   : after == IntervalsByDatapoints
                                       ? std::vector<int>{FieldOpen, FieldClose, FieldSize}
                                       : std::vector<int>{FieldOpen, FieldClose, FieldOpenInterest})
                EXPECT_EQ(request.GetCount(field), count) << before << " to " << after << ", field " << field;
            sHIST_DATA last;
            EXPECT_NO_THROW(request.GetChartPoint(count - 1, last));
        }
}

TEST(ChartHistRequest, AnotherKindOfTheSameArraysKeepsThem)
{
    CChartHistRequest request;
    sHIST_POINT point;
    request.SetRequestKind(DailyByDatapoints);
    request.AppendPoint(point);
    request.SetRequestKind(WeeklyByDatapoints);
    EXPECT_EQ(request.GetCount(FieldTime), 1);
}
