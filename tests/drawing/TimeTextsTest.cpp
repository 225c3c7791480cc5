#include "drawing/TimeTexts.h"
#include "market/HistoryRecords.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

const sTIME_W_MILLISECONDS Morning = MakeTime({2014, 1, 2, 9, 30, 1}, 7);
const sTIME_W_MILLISECONDS Invalid{0, TimeInvalid, 0};

TEST(TimeTexts, DateHasSlashes)
{
    EXPECT_EQ(PointDateText(Morning), "2014/01/02");
}

TEST(TimeTexts, TimeFollowsTheDataType)
{
    EXPECT_EQ(PointTimeText(Morning, TickData, TimeDetail::Seconds), "09:30:01");
    EXPECT_EQ(PointTimeText(Morning, TickData, TimeDetail::Milliseconds), "09:30:01.007");
    EXPECT_EQ(PointTimeText(Morning, MinuteData, TimeDetail::Milliseconds), "09:30:01");
    EXPECT_EQ(PointTimeText(Morning, DailyData, TimeDetail::Milliseconds), "2014/01/02");
    EXPECT_EQ(PointTimeText(Morning, WeeklyData, TimeDetail::Seconds), "2014/01/02");
    EXPECT_EQ(PointTimeText(Morning, MonthlyData, TimeDetail::Seconds), "2014/01/02");
}

TEST(TimeTexts, MinuteLikeTimeEndsInMin)
{
    EXPECT_EQ(MinuteTimeText(Morning), "09:30:01min");
}

TEST(TimeTexts, MillisecondsHaveThreeDigits)
{
    EXPECT_EQ(ClockMillisecondsText(MakeTime({2014, 1, 2, 9, 30, 1}, 0)), "09:30:01.000");
    EXPECT_EQ(ClockMillisecondsText(MakeTime({2014, 1, 2, 9, 30, 1}, 999)), "09:30:01.999");
}

TEST(TimeTexts, InvalidTimeSaysSo)
{
    EXPECT_EQ(PointDateText(Invalid), "Invalid DateTime");
    EXPECT_EQ(PointTimeText(Invalid, TickData, TimeDetail::Milliseconds), "Invalid DateTime");
}

} // namespace
} // namespace zantroq
