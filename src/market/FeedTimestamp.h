// The time stamps of history lines, YYYY-MM-DD HH:MM:SS.mmm, cut by position: whatever stands at a position
// is read as a number, and a part that is missing is 0. The last date is remembered, since a reply brings
// thousands of points of one day. One thread.
#pragma once

#include "platform/CalendarTime.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace zantroq {

class CFeedTimestamp
{
public:
    // Date, time of day and milliseconds. Status invalid when there is no such date or time. Field by field
    // into the record that is to hold it: a record handed back by value is put together from narrower stores,
    // and its first copy waits for them longer than all the rest takes.
    void ReadTick(std::string_view text, sTIME_W_MILLISECONDS& time);
    // Date and time of day.
    void ReadInterval(std::string_view text, sTIME_W_MILLISECONDS& time);
    // The date at 00:00:00, whatever follows it.
    void ReadDay(std::string_view text, sTIME_W_MILLISECONDS& time);

private:
    static constexpr std::size_t DateLength = 10, TimeOffset = 11;

    void Read(std::string_view text, std::uint16_t milliseconds, sTIME_W_MILLISECONDS& time);
    // The fast path: the day number with the time of day of a text of at least 19 characters. False when the
    // text needs the slow path.
    bool ReadClock(std::string_view text, double& time);
    bool FindDay(std::string_view text, double& dayNumber);

    std::array<char, DateLength> m_date{}; // as it stood in the text
    double m_dayNumber = 0;                // of m_date; positive, else the date is not remembered
    bool m_known = false;
    // Trades of one second follow each other: the time of day as it stood in the text, and with m_date its
    // time.
    std::uint64_t m_clock = 0;
    double m_clockTime = 0;
    bool m_clockKnown = false;
};

} // namespace zantroq
