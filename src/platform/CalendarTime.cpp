#include "platform/CalendarTime.h"

#include <chrono>
#include <cmath>
#include <ctime>
#include <locale.h>

namespace zantroq {

namespace {

constexpr int SecondsPerDay = 86400;
// 30 December 1899, in days from 1 January 1970.
constexpr int EpochDay = -25569;
// Half a second in days, negative. At or below it, the time of day counts backwards.
constexpr double MirrorLimit = -5.787037037037037e-06;

bool InRange(int value, int least, int greatest)
{
    return value >= least && value <= greatest;
}

double MirrorNegative(double dayNumber)
{
    if (dayNumber > MirrorLimit)
        return dayNumber;
    const double ceiling = std::ceil(dayNumber);
    return ceiling - (dayNumber - ceiling);
}

// A locale independent of the process's; created once and never freed.
locale_t PlainLocale()
{
    static const locale_t plain = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return plain;
}

std::tm BrokenDown(const sCALENDAR_TIME& time)
{
    const std::chrono::sys_days day{std::chrono::year{time.Year} / time.Month / time.Day};
    const std::chrono::sys_days newYear{std::chrono::year{time.Year} / 1 / 1};
    std::tm broken{};
    broken.tm_year = time.Year - 1900;
    broken.tm_mon = time.Month - 1;
    broken.tm_mday = time.Day;
    broken.tm_hour = time.Hour;
    broken.tm_min = time.Minute;
    broken.tm_sec = time.Second;
    broken.tm_wday = static_cast<int>(std::chrono::weekday{day}.c_encoding());
    broken.tm_yday = static_cast<int>((day - newYear).count());
    broken.tm_isdst = 0;
    return broken;
}

// Reads exactly `count` digits at `at`; false if one of them is not a digit.
bool ReadDigits(std::string_view text, std::size_t at, std::size_t count, int& value)
{
    value = 0;
    for (std::size_t i = at; i < at + count; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return false;
        value = value * 10 + (text[i] - '0');
    }
    return true;
}

bool HasMilliseconds(std::string_view tail)
{
    int ignored = 0;
    return tail.size() == 4 && tail[0] == '.' && ReadDigits(tail, 1, 3, ignored);
}

} // namespace

bool SystemTimeToVariantTime(const sCALENDAR_TIME& time, double& dayNumber)
{
    if (!InRange(time.Year, 100, 9999) || !InRange(time.Month, 1, 12) || !InRange(time.Day, 1, 31) ||
        !InRange(time.Hour, 0, 23) || !InRange(time.Minute, 0, 59) || !InRange(time.Second, 0, 59))
        return false;
    // A day after the end of its month becomes a day of the next month; callers detect it by converting back.
    const std::chrono::sys_days day{std::chrono::year{time.Year} / time.Month / time.Day};
    const double whole = static_cast<double>(day.time_since_epoch().count() - EpochDay);
    const double fraction =
        (time.Hour * 3600 + time.Minute * 60 + time.Second) / static_cast<double>(SecondsPerDay);
    dayNumber = whole < 0 ? whole - fraction : whole + fraction;
    return true;
}

bool VariantTimeToSystemTime(double dayNumber, sCALENDAR_TIME& time)
{
    // Rough bounds keep the conversion to an integer defined; not-a-number fails here too.
    if (!(dayNumber > -700000.0 && dayNumber < 3000000.0))
        return false;
    const double whole = std::trunc(dayNumber);
    int days = static_cast<int>(whole);
    int seconds = static_cast<int>(std::floor(std::fabs(dayNumber - whole) * SecondsPerDay + 0.5));
    if (seconds == SecondsPerDay) {
        seconds = 0;
        ++days;
    }
    const std::chrono::year_month_day date{std::chrono::sys_days{std::chrono::days{days + EpochDay}}};
    const int year = static_cast<int>(date.year());
    if (!InRange(year, 100, 9999))
        return false;
    time.Year = year;
    time.Month = static_cast<int>(static_cast<unsigned>(date.month()));
    time.Day = static_cast<int>(static_cast<unsigned>(date.day()));
    time.Hour = seconds / 3600;
    time.Minute = seconds / 60 % 60;
    time.Second = seconds % 60;
    return true;
}

sTIME_W_MILLISECONDS MakeTime(const sCALENDAR_TIME& time, std::uint16_t milliseconds)
{
    sTIME_W_MILLISECONDS result{0, TimeInvalid, milliseconds};
    double dayNumber = 0;
    sCALENDAR_TIME back;
    if (SystemTimeToVariantTime(time, dayNumber) && VariantTimeToSystemTime(dayNumber, back) &&
        back == time) {
        result.Time = dayNumber;
        result.Status = TimeValid;
    }
    return result;
}

std::string FormatTime(const sTIME_W_MILLISECONDS& time, const char* format)
{
    if (time.Status == TimeNull)
        return {};
    sCALENDAR_TIME parts;
    if (time.Status != TimeValid || !VariantTimeToSystemTime(time.Time, parts))
        return "Invalid DateTime";
    const std::tm broken = BrokenDown(parts);
    char buffer[256];
    return std::string(buffer, ::strftime_l(buffer, sizeof buffer, format, &broken, PlainLocale()));
}

sTIME_W_MILLISECONDS ParseDate(std::string_view text)
{
    const sTIME_W_MILLISECONDS invalid{0, TimeInvalid, 0};
    constexpr std::size_t Length = 19; // MM/DD/YYYY HH:MM:SS
    if (text.size() < Length || (text.size() > Length && !HasMilliseconds(text.substr(Length))))
        return invalid;
    sCALENDAR_TIME parts;
    const bool read =
        ReadDigits(text, 0, 2, parts.Month) && text[2] == '/' && ReadDigits(text, 3, 2, parts.Day) &&
        text[5] == '/' && ReadDigits(text, 6, 4, parts.Year) && text[10] == ' ' &&
        ReadDigits(text, 11, 2, parts.Hour) && text[13] == ':' && ReadDigits(text, 14, 2, parts.Minute) &&
        text[16] == ':' && ReadDigits(text, 17, 2, parts.Second);
    return read ? MakeTime(parts) : invalid;
}

bool IsAfter(const sTIME_W_MILLISECONDS& a, const sTIME_W_MILLISECONDS& b)
{
    return a.Status == TimeValid && b.Status == TimeValid && MirrorNegative(a.Time) > MirrorNegative(b.Time);
}

std::string TodayText()
{
    const std::time_t now = std::time(nullptr);
    std::tm broken{};
    ::localtime_r(&now, &broken);
    char buffer[256];
    return std::string(buffer, ::strftime_l(buffer, sizeof buffer, "%Y%m%d", &broken, PlainLocale()));
}

} // namespace zantroq
