#include "platform/CalendarTime.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace zantroq;

namespace {

sTIME_W_MILLISECONDS Valid(double dayNumber)
{
    return {dayNumber, TimeValid, 0};
}

sCALENDAR_TIME PartsOf(double dayNumber)
{
    sCALENDAR_TIME parts;
    EXPECT_TRUE(VariantTimeToSystemTime(dayNumber, parts)) << dayNumber;
    return parts;
}

} // namespace

TEST(CalendarTime, DayNumbersCountFrom30December1899)
{
    EXPECT_EQ(MakeTime({1899, 12, 30, 0, 0, 0}), Valid(0));
    EXPECT_EQ(MakeTime({1899, 12, 31, 0, 0, 0}), Valid(1));
    EXPECT_EQ(MakeTime({1900, 1, 1, 12, 0, 0}), Valid(2.5));
    EXPECT_EQ(MakeTime({2014, 1, 2, 0, 0, 0}), Valid(41641));
    EXPECT_EQ(MakeTime({1980, 12, 30, 13, 0, 0}), Valid(29585.0 + 13.0 / 24.0));
    EXPECT_EQ(MakeTime({9999, 12, 31, 0, 0, 0}), Valid(2958465));
    EXPECT_EQ(MakeTime({100, 1, 1, 0, 0, 0}), Valid(-657434));
}

TEST(CalendarTime, TimeOfDayOfANegativeDayNumberIsTheSizeOfItsFraction)
{
    EXPECT_EQ(MakeTime({1899, 12, 29, 6, 0, 0}), Valid(-1.25));
    EXPECT_EQ(PartsOf(-1.25), (sCALENDAR_TIME{1899, 12, 29, 6, 0, 0}));
    EXPECT_EQ(PartsOf(-0.25), (sCALENDAR_TIME{1899, 12, 30, 6, 0, 0}));
}

TEST(CalendarTime, BrokenDownTimeIsRoundedToTheSecond)
{
    const double second = 1.0 / 86400;
    EXPECT_EQ(PartsOf(41641 + 0.4 * second), (sCALENDAR_TIME{2014, 1, 2, 0, 0, 0}));
    EXPECT_EQ(PartsOf(41641 + 0.6 * second), (sCALENDAR_TIME{2014, 1, 2, 0, 0, 1}));
    EXPECT_EQ(PartsOf(41642 - 0.4 * second), (sCALENDAR_TIME{2014, 1, 3, 0, 0, 0}));
    EXPECT_EQ(PartsOf(-1 - 86399.7 * second), (sCALENDAR_TIME{1899, 12, 30, 0, 0, 0}));
}

TEST(CalendarTime, EverySecondOfADayComesBackAsItWas)
{
    for (const int year : {1899, 1970, 2014, 9999})
        for (int second = 0; second < 86400; ++second) {
            const sCALENDAR_TIME parts{year, 7, 4, second / 3600, second / 60 % 60, second % 60};
            const sTIME_W_MILLISECONDS time = MakeTime(parts, 7);
            ASSERT_EQ(time.Status, TimeValid);
            ASSERT_EQ(time.Milliseconds, 7);
            ASSERT_EQ(PartsOf(time.Time), parts);
        }
}

TEST(CalendarTime, EveryDayOfFourHundredYearsFollowsTheOneBefore)
{
    static constexpr int Lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    double expected = 36526; // 1 January 2000
    for (int year = 2000; year < 2400; ++year)
        for (int month = 1; month <= 12; ++month) {
            const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
            const int days = Lengths[month - 1] + (month == 2 && leap ? 1 : 0);
            for (int day = 1; day <= 31; ++day) {
                const sTIME_W_MILLISECONDS time = MakeTime({year, month, day, 0, 0, 0});
                ASSERT_EQ(time.Status, day <= days ? TimeValid : TimeInvalid)
                    << year << '-' << month << '-' << day;
                if (day <= days) {
                    ASSERT_EQ(time.Time, expected++);
                }
            }
        }
}

TEST(CalendarTime, PartsOutsideTheirRangeAreInvalid)
{
    const std::vector<sCALENDAR_TIME> wrong{
        {99, 1, 1, 0, 0, 0},    {10000, 1, 1, 0, 0, 0}, {2014, 0, 1, 0, 0, 0},  {2014, 13, 1, 0, 0, 0},
        {2014, 1, 0, 0, 0, 0},  {2014, 1, 32, 0, 0, 0}, {2014, 1, 1, 24, 0, 0}, {2014, 1, 1, -1, 0, 0},
        {2014, 1, 1, 0, 60, 0}, {2014, 1, 1, 0, 0, 60}, {2014, 2, 29, 0, 0, 0}, {2014, 4, 31, 0, 0, 0}};
    for (const sCALENDAR_TIME& parts : wrong)
        EXPECT_EQ(MakeTime(parts).Status, TimeInvalid)
            << parts.Year << '-' << parts.Month << '-' << parts.Day;
}

TEST(CalendarTime, DayNumbersOutsideTheCalendarDoNotConvert)
{
    sCALENDAR_TIME parts{1, 2, 3, 4, 5, 6};
    for (const double number : {-657435.0, 2958466.0, 1e300, -1e300, std::numeric_limits<double>::quiet_NaN(),
                                std::numeric_limits<double>::infinity()}) {
        EXPECT_FALSE(VariantTimeToSystemTime(number, parts)) << number;
        EXPECT_EQ(parts, (sCALENDAR_TIME{1, 2, 3, 4, 5, 6}));
    }
}

TEST(CalendarTime, FormatsWithTheStandardConversions)
{
    const sTIME_W_MILLISECONDS time = MakeTime({2014, 1, 2, 9, 30, 1});
    EXPECT_EQ(FormatTime(time, "%Y%m%d"), "20140102");
    EXPECT_EQ(FormatTime(time, "%H%M%S"), "093001");
    EXPECT_EQ(FormatTime(time, "%m/%d/%Y"), "01/02/2014");
    EXPECT_EQ(FormatTime(time, "%a %b %j"), "Thu Jan 002");
    EXPECT_EQ(FormatTime(time, ""), "");
}

TEST(CalendarTime, NullAndInvalidTimesHaveTextsOfTheirOwn)
{
    EXPECT_EQ(FormatTime({41641, TimeNull, 0}, "%Y%m%d"), "");
    EXPECT_EQ(FormatTime({41641, TimeInvalid, 0}, "%Y%m%d"), "Invalid DateTime");
    EXPECT_EQ(FormatTime(Valid(4e6), "%Y%m%d"), "Invalid DateTime");
}

TEST(CalendarTime, ParsesTheFeedsDateAndIgnoresMilliseconds)
{
    const sTIME_W_MILLISECONDS expected = MakeTime({2014, 1, 2, 22, 30, 5});
    EXPECT_EQ(ParseDate("01/02/2014 22:30:05"), expected);
    EXPECT_EQ(ParseDate("01/02/2014 22:30:05.250"), expected);
}

TEST(CalendarTime, AnyOtherDateTextIsInvalid)
{
    for (const char* text : {"", "01/02/2014", "01/02/2014 22:30", "1/2/2014 22:30:05", "01-02-2014 22:30:05",
                             "01/02/2014 22:30:05.", "01/02/2014 22:30:05.2", "01/02/2014 22:30:05.2500",
                             "01/02/2014 22:30:05.25x", "13/02/2014 22:30:05", "02/30/2014 22:30:05",
                             "01/02/2014 24:00:00", "01/02/2014 22:30:05t", "aa/bb/cccc dd:ee:ff"})
        EXPECT_EQ(ParseDate(text).Status, TimeInvalid) << text;
}

TEST(CalendarTime, LaterComparesOnlyValidTimes)
{
    EXPECT_TRUE(IsAfter(Valid(2), Valid(1)));
    EXPECT_FALSE(IsAfter(Valid(1), Valid(1)));
    EXPECT_FALSE(IsAfter(Valid(1), Valid(2)));
    EXPECT_FALSE(IsAfter({2, TimeInvalid, 0}, Valid(1)));
    EXPECT_FALSE(IsAfter(Valid(2), {1, TimeNull, 0}));
}

TEST(CalendarTime, LaterFollowsTheTimeOfDayOfNegativeDayNumbers)
{
    // -1.75 is 29 December 1899 18:00, later than -1.25, which is 06:00 of that day.
    EXPECT_TRUE(IsAfter(Valid(-1.75), Valid(-1.25)));
    EXPECT_FALSE(IsAfter(Valid(-1.25), Valid(-1.75)));
    EXPECT_TRUE(IsAfter(Valid(-1.25), Valid(-2.25)));
    EXPECT_TRUE(IsAfter(Valid(0.5), Valid(-1.75)));
}

TEST(CalendarTime, TodayIsEightDigits)
{
    const std::string today = TodayText();
    EXPECT_EQ(today.size(), 8u);
    EXPECT_EQ(today.find_first_not_of("0123456789"), std::string::npos);
}
