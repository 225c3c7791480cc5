// Wall-clock times as day numbers: days from 30 December 1899 00:00, the fraction being the time of day.
// There is no time zone anywhere: a time is what the feed printed. Pure functions, any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zantroq {

// A broken-down time. Month 1 to 12, day 1 to 31.
struct sCALENDAR_TIME
{
    int Year = 0, Month = 0, Day = 0, Hour = 0, Minute = 0, Second = 0;
    bool operator==(const sCALENDAR_TIME&) const = default;
};

enum TimeStatus : std::int32_t
{
    TimeValid = 0,
    TimeInvalid = 1,
    TimeNull = 2
};

// The time record of every point.
struct sTIME_W_MILLISECONDS
{
    double Time = 0; // day number, to the second
    std::int32_t Status = TimeValid;
    std::uint16_t Milliseconds = 0; // 0 to 999, kept apart from the day number
    bool operator==(const sTIME_W_MILLISECONDS&) const = default;
};

// Day number of a broken-down time; false, and dayNumber untouched, when a part is out of its range (years
// 100 to 9999).
bool SystemTimeToVariantTime(const sCALENDAR_TIME& time, double& dayNumber);

// The other way, rounded to the nearest second; false when the day number is outside years 100 to 9999.
bool VariantTimeToSystemTime(double dayNumber, sCALENDAR_TIME& time);

// A time record from its parts: valid only if the conversion gives back the same six parts, else status
// invalid.
sTIME_W_MILLISECONDS MakeTime(const sCALENDAR_TIME& time, std::uint16_t milliseconds = 0);

// strftime over the broken-down form ("C" locale, at most 255 characters). A null time gives "", an invalid
// one "Invalid DateTime".
std::string FormatTime(const sTIME_W_MILLISECONDS& time, const char* format);

// MM/DD/YYYY HH:MM:SS with an optional ".mmm", which is ignored. Anything else gives status invalid.
sTIME_W_MILLISECONDS ParseDate(std::string_view text);

// True when a is later than b. Negative day numbers are first mirrored around their ceiling so that their
// time of day orders like that of positive ones. Either time not valid: false.
bool IsAfter(const sTIME_W_MILLISECONDS& a, const sTIME_W_MILLISECONDS& b);

// Today on this machine's own clock as %Y%m%d.
std::string TodayText();

} // namespace zantroq
