// The date and the time of a point as texts, as the feed sent them, in the "C" locale. Pure functions, any
// thread.
#pragma once

#include "platform/CalendarTime.h"

#include <string>

namespace zantroq {

// The texts if there is no point at all.
inline constexpr const char* NoDateText = "1900/01/01";
inline constexpr const char* NoTimeText = "00:00:00";

enum class TimeDetail
{
    Seconds,
    Milliseconds // of ticks; all other data types have none
};

std::string PointDateText(const sTIME_W_MILLISECONDS& time); // "2014/01/02"

// Ticks "09:30:01", with milliseconds "09:30:01.250"; minutes "09:30:01"; daily, weekly, monthly the date.
// dataType is a DataType.
std::string PointTimeText(const sTIME_W_MILLISECONDS& time, int dataType, TimeDetail detail);

std::string ClockText(const sTIME_W_MILLISECONDS& time);             // "09:30:01"
std::string ClockMillisecondsText(const sTIME_W_MILLISECONDS& time); // "09:30:01.250"
std::string MinuteTimeText(const sTIME_W_MILLISECONDS& time);        // "09:30:01min"

} // namespace zantroq
