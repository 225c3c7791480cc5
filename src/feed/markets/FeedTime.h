// Times of the feed: milliseconds since 1 January 1970 00:00:00 of the wall clock, without time zone. Days
// are counted from the same date. Years 100 to 9999. Pure functions, any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zantroq::feed {

using TFeedTime = std::int64_t; // milliseconds
using TFeedDay = std::int32_t;  // days

inline constexpr TFeedTime MsPerSecond = 1000;
inline constexpr TFeedTime MsPerDay = 86'400'000;

struct sDATE
{
    int Year = 0;
    unsigned Month = 0, Day = 0;
};

sDATE DateOfDay(TFeedDay day);
TFeedDay DayOfDate(int year, unsigned month, unsigned day);

inline TFeedDay DayOf(TFeedTime time)
{
    return static_cast<TFeedDay>(time >= 0 ? time / MsPerDay : -((-time + MsPerDay - 1) / MsPerDay));
}
inline TFeedTime TimeOfDay(TFeedTime time)
{
    return time - DayOf(time) * MsPerDay;
}
inline TFeedTime StartOfDay(TFeedDay day)
{
    return day * MsPerDay;
}

// The day of a bar that is stamped with its end: a bar stamped midnight belongs to the day before.
inline TFeedDay DayOfBarEnd(TFeedTime stamp)
{
    return DayOf(stamp - 1);
}

// 0 Monday to 6 Sunday.
int WeekdayOf(TFeedDay day);
TFeedDay NextWeekday(TFeedDay day); // the first Monday to Friday after `day`

// Reads YYYY-MM-DD or YYYYMMDD. Returns false and leaves `day` unchanged for any other text and for dates
// that do not exist.
bool ParseDay(std::string_view text, TFeedDay& day);
// Reads HHMMSS, HHMM, HH:MM, HH:MM:SS or HH:MM:SS with one to three digits of a second (further digits are
// ignored). 24:00:00 is not accepted.
bool ParseTimeOfDay(std::string_view text, TFeedTime& timeOfDay);
// Reads a day, a blank or "T", and a time of day. A day alone means its midnight.
bool ParseStamp(std::string_view text, TFeedTime& time);

// Each function writes at `at` and returns the end. Formats: YYYY-MM-DD, HH:MM:SS, HH:MM:SS.mmm.
char* WriteDay(char* at, TFeedDay day);
char* WriteSeconds(char* at, TFeedTime timeOfDay);
char* WriteMilliseconds(char* at, TFeedTime timeOfDay);
// MM/DD/YYYY.
char* WriteMonthDayYear(char* at, TFeedDay day);

} // namespace zantroq::feed
