// The records of a point and the ten kinds of history request. Plain data.
#pragma once

#include "platform/CalendarTime.h"

#include <cstdint>
#include <string>

namespace zantroq {

// The kinds of request. The number is also the first digit of the identifier on the wire.
enum RequestKind : std::int32_t
{
    NoRequestKind = -1,
    TicksByDatapoints = 0,     // HTX
    TicksByDays = 1,           // HTD
    TicksByRange = 2,          // HTT
    IntervalsByDatapoints = 3, // HIX
    IntervalsByDays = 4,       // HID
    IntervalsByRange = 5,      // HIT
    DailyByDatapoints = 6,     // HDX
    DailyByRange = 7,          // HDT
    WeeklyByDatapoints = 8,    // HWX
    MonthlyByDatapoints = 9    // HMX
};

constexpr bool IsTickKind(int kind)
{
    return kind >= 0 && kind <= 2;
}
constexpr bool IsIntervalKind(int kind)
{
    return kind >= 3 && kind <= 5;
}
constexpr bool IsDayKind(int kind)
{
    return kind >= 6 && kind <= 9;
}
// True if points of both kinds are stored in the same arrays of a series.
constexpr bool FillSameArrays(int a, int b)
{
    return IsTickKind(a) == IsTickKind(b) && IsIntervalKind(a) == IsIntervalKind(b) &&
           IsDayKind(a) == IsDayKind(b);
}

// The data types that the user can choose.
enum DataType : std::int32_t
{
    TickData = 0,
    MinuteData = 1,
    DailyData = 2,
    WeeklyData = 3,
    MonthlyData = 4
};

// 30 December 1980 13:00:00: the time of a default-constructed chart point, which panes may see past the end
// of a series.
inline constexpr double DefaultPointTime = 29585.0 + 13.0 / 24.0;

// A point as panes see it.
struct sHIST_DATA
{
    bool Flag = false; // true: the point is deleted and not drawn
    double Open = 0, Close = 0, High = 0, Low = 0;
    std::int32_t Volume = 0;
    sTIME_W_MILLISECONDS Time{DefaultPointTime, TimeValid, 0};
};

// A point as the feed sent it.
struct sHIST_POINT
{
    sTIME_W_MILLISECONDS Time;
    double Last = 0;
    std::uint32_t LastSize = 0; // of an interval bar: the volume of its period
    double Bid = 0, Ask = 0;
    std::int64_t TotalVolume = 0;
    double Open = 0, High = 0, Low = 0;
    std::string Basis;
    std::uint32_t BidSize = 0, AskSize = 0;
    std::uint32_t TickId = 0;
    double Close = 0;
    std::string Conditions;
    std::uint32_t OpenInterest = 0;
};

} // namespace zantroq
