// Times as day numbers: days since 30 December 1899 00:00, with the time of day as the fraction. There is no
// time zone: each time is as the feed printed it. Pure functions, any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zantroq {

// A date and a time of day. Month 1 to 12, day 1 to 31.
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

// The time of a point.
struct sTIME_W_MILLISECONDS
{
    double Time = 0; // day number, in whole seconds
    std::int32_t Status = TimeValid;
    std::uint16_t Milliseconds = 0; // 0 to 999, not included in the day number
    bool operator==(const sTIME_W_MILLISECONDS&) const = default;
};

// Converts to a day number. Returns false and leaves `dayNumber` unchanged if a part is out of range (years
// 100 to 9999).
bool SystemTimeToVariantTime(const sCALENDAR_TIME& time, double& dayNumber);

// Converts back, rounded to the nearest second. Returns false if the day number is outside years 100 to 9999.
bool VariantTimeToSystemTime(double dayNumber, sCALENDAR_TIME& time);

// Makes a time record. Its status is valid only if converting the day number back yields the same six parts,
// otherwise invalid.
sTIME_W_MILLISECONDS MakeTime(const sCALENDAR_TIME& time, std::uint16_t milliseconds = 0);

// Formats with strftime in the "C" locale; at most 255 characters. A null time gives "", an invalid time
// "Invalid DateTime".
std::string FormatTime(const sTIME_W_MILLISECONDS& time, const char* format);

// Reads MM/DD/YYYY HH:MM:SS; an optional ".mmm" is ignored. Any other text gives status invalid.
sTIME_W_MILLISECONDS ParseDate(std::string_view text);

// True if `a` is later than `b`. Negative day numbers are first mirrored around their ceiling, so that their
// times of day compare like the times of positive numbers. False if either time is not valid.
bool IsAfter(const sTIME_W_MILLISECONDS& a, const sTIME_W_MILLISECONDS& b);

// The current date of this machine's clock and time zone as %Y%m%d.
std::string TodayText();

} // namespace zantroq
