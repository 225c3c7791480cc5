// The time stamps of history lines, YYYY-MM-DD HH:MM:SS.mmm, cut by position: whatever stands at a position
// is read as a number, and a part that is missing is 0. The last date is remembered, since a reply brings
// thousands of points of one day. One thread.
#pragma once

#include "platform/CalendarTime.h"

#include <array>
#include <string_view>

namespace zantroq {

class CFeedTimestamp
{
public:
    // Date, time of day and milliseconds. Status invalid when there is no such date or time.
    sTIME_W_MILLISECONDS ReadTick(std::string_view text) { return Read(text, true); }
    // Date and time of day.
    sTIME_W_MILLISECONDS ReadInterval(std::string_view text) { return Read(text, false); }
    // The date at 00:00:00, whatever follows it.
    sTIME_W_MILLISECONDS ReadDay(std::string_view text);

private:
    static constexpr std::size_t DateLength = 10;

    sTIME_W_MILLISECONDS Read(std::string_view text, bool withMilliseconds);
    bool FindDay(std::string_view text, double& dayNumber);

    std::array<char, DateLength> m_date{}; // as it stood in the text
    double m_dayNumber = 0;                // of m_date; positive, else the date is not remembered
    bool m_known = false;
};

} // namespace zantroq
