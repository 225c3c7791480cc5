// Reads the time stamps of history lines, YYYY-MM-DD HH:MM:SS.mmm, by character position. Characters are
// converted to numbers without validation of separators; a missing part is 0. Caches the last date, because a
// reply has thousands of points of the same day. One thread.
#pragma once

#include "platform/CalendarTime.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace zantroq {

class CFeedTimestamp
{
public:
    // Reads date, time of day and milliseconds into `time`; its status is invalid if the date or time does
    // not exist. Writes into the caller's record: returning the record by value costs a store-forwarding
    // stall that takes longer than all the rest.
    void ReadTick(std::string_view text, sTIME_W_MILLISECONDS& time);
    // Reads date and time of day.
    void ReadInterval(std::string_view text, sTIME_W_MILLISECONDS& time);
    // Reads the date, at 00:00:00, and ignores the rest.
    void ReadDay(std::string_view text, sTIME_W_MILLISECONDS& time);

private:
    static constexpr std::size_t DateLength = 10, TimeOffset = 11;

    void Read(std::string_view text, std::uint16_t milliseconds, sTIME_W_MILLISECONDS& time);
    // Fast path for a text of at least 19 characters: sets `time` to day number plus time of day. Returns
    // false if the text needs the slow path.
    bool ReadClock(std::string_view text, double& time);
    bool FindDay(std::string_view text, double& dayNumber);

    std::array<char, DateLength> m_date{}; // the cached date as text
    double m_dayNumber = 0; // day number of m_date; a date with a negative day number is not cached
    bool m_known = false;
    // The cached time of day as text, and its day number together with m_date: consecutive trades often share
    // their second.
    std::uint64_t m_clock = 0;
    double m_clockTime = 0;
    bool m_clockKnown = false;
};

} // namespace zantroq
