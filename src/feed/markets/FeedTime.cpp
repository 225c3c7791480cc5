#include "feed/markets/FeedTime.h"

#include "feed/markets/TextWriter.h"

#include <chrono>

namespace zantroq::feed {
namespace {

// Reads `count` characters at `at` as a number; false unless all are digits.
bool ReadDigits(std::string_view text, std::size_t at, std::size_t count, unsigned& number)
{
    if (at + count > text.size())
        return false;
    number = 0;
    for (std::size_t i = at; i < at + count; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return false;
        number = number * 10 + static_cast<unsigned>(text[i] - '0');
    }
    return true;
}

char* WriteYear(char* at, int year)
{
    at = WriteTwoDigits(at, static_cast<unsigned>(year / 100));
    return WriteTwoDigits(at, static_cast<unsigned>(year % 100));
}

bool ReadMilliseconds(std::string_view text, unsigned& milliseconds)
{
    milliseconds = 0;
    unsigned weight = 100;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return false;
        milliseconds += weight * static_cast<unsigned>(c - '0');
        weight /= 10;
    }
    return !text.empty();
}

} // namespace

sDATE DateOfDay(TFeedDay day)
{
    const std::chrono::year_month_day date{std::chrono::sys_days{std::chrono::days{day}}};
    return {static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
            static_cast<unsigned>(date.day())};
}

TFeedDay DayOfDate(int year, unsigned month, unsigned day)
{
    const std::chrono::sys_days days{std::chrono::year{year} / std::chrono::month{month} /
                                     std::chrono::day{day}};
    return static_cast<TFeedDay>(days.time_since_epoch().count());
}

int WeekdayOf(TFeedDay day)
{
    // 1 January 1970 was a Thursday.
    const int offset = (day + 3) % 7;
    return offset < 0 ? offset + 7 : offset;
}

TFeedDay NextWeekday(TFeedDay day)
{
    do
        ++day;
    while (WeekdayOf(day) > 4);
    return day;
}

bool ParseDay(std::string_view text, TFeedDay& day)
{
    unsigned year = 0, month = 0, dayOfMonth = 0;
    const bool dashed = text.size() == 10 && text[4] == '-' && text[7] == '-';
    if (!dashed && text.size() != 8)
        return false;
    if (!ReadDigits(text, 0, 4, year) || !ReadDigits(text, dashed ? 5 : 4, 2, month) ||
        !ReadDigits(text, dashed ? 8 : 6, 2, dayOfMonth))
        return false;
    const std::chrono::year_month_day date{std::chrono::year{static_cast<int>(year)},
                                           std::chrono::month{month}, std::chrono::day{dayOfMonth}};
    if (year < 100 || !date.ok())
        return false;
    day = DayOfDate(static_cast<int>(year), month, dayOfMonth);
    return true;
}

bool ParseTimeOfDay(std::string_view text, TFeedTime& timeOfDay)
{
    unsigned hour = 0, minute = 0, second = 0, milliseconds = 0;
    if (text.size() >= 5 && text[2] == ':') {
        if (!ReadDigits(text, 0, 2, hour) || !ReadDigits(text, 3, 2, minute))
            return false;
        if (text.size() > 5 && (text.size() < 8 || text[5] != ':' || !ReadDigits(text, 6, 2, second)))
            return false;
        if (text.size() > 8 && (text[8] != '.' || !ReadMilliseconds(text.substr(9), milliseconds)))
            return false;
    } else if (text.size() == 4 || text.size() == 6) {
        if (!ReadDigits(text, 0, 2, hour) || !ReadDigits(text, 2, 2, minute) ||
            (text.size() == 6 && !ReadDigits(text, 4, 2, second)))
            return false;
    } else
        return false;
    if (hour > 23 || minute > 59 || second > 59)
        return false;
    timeOfDay = ((hour * 60 + minute) * 60 + second) * MsPerSecond + milliseconds;
    return true;
}

bool ParseStamp(std::string_view text, TFeedTime& time)
{
    const std::size_t dayLength = text.size() > 4 && text[4] == '-' ? 10 : 8;
    TFeedDay day = 0;
    TFeedTime timeOfDay = 0;
    if (!ParseDay(text.substr(0, dayLength), day))
        return false;
    if (text.size() > dayLength) {
        if (text[dayLength] != ' ' && text[dayLength] != 'T')
            return false;
        if (!ParseTimeOfDay(text.substr(dayLength + 1), timeOfDay))
            return false;
    }
    time = StartOfDay(day) + timeOfDay;
    return true;
}

char* WriteDay(char* at, TFeedDay day)
{
    const sDATE date = DateOfDay(day);
    at = WriteYear(at, date.Year);
    *at++ = '-';
    at = WriteTwoDigits(at, date.Month);
    *at++ = '-';
    return WriteTwoDigits(at, date.Day);
}

char* WriteSeconds(char* at, TFeedTime timeOfDay)
{
    const auto seconds = static_cast<unsigned>(timeOfDay / MsPerSecond);
    at = WriteTwoDigits(at, seconds / 3600);
    *at++ = ':';
    at = WriteTwoDigits(at, seconds / 60 % 60);
    *at++ = ':';
    return WriteTwoDigits(at, seconds % 60);
}

char* WriteMilliseconds(char* at, TFeedTime timeOfDay)
{
    at = WriteSeconds(at, timeOfDay);
    const auto milliseconds = static_cast<unsigned>(timeOfDay % MsPerSecond);
    *at++ = '.';
    *at++ = static_cast<char>('0' + milliseconds / 100);
    return WriteTwoDigits(at, milliseconds % 100);
}

char* WriteMonthDayYear(char* at, TFeedDay day)
{
    const sDATE date = DateOfDay(day);
    at = WriteTwoDigits(at, date.Month);
    *at++ = '/';
    at = WriteTwoDigits(at, date.Day);
    *at++ = '/';
    return WriteYear(at, date.Year);
}

} // namespace zantroq::feed
