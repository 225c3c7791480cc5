#include "market/FeedTimestamp.h"

#include "platform/parse/DigitBlock.h"
#include "platform/parse/LeadingNumber.h"

#include <cstring>

namespace zantroq {

namespace {

int PartAt(std::string_view text, std::size_t at, std::size_t length)
{
    return at < text.size() ? TextToInt(text.substr(at, length)) : 0;
}

bool IsDigit(char c)
{
    return static_cast<unsigned char>(c - '0') < 10;
}

// The seconds of the day of eight characters HH:MM:SS, whose separators may be any character; -1 if there is
// no such time.
int ClockSeconds(const char* at)
{
    if constexpr (HasDigitBlocks) {
        constexpr std::uint64_t Parts = 0xFFFF00FFFF00FFFFu;
        const std::uint64_t block = LoadBlock(at) & Parts;
        const std::uint64_t pairs = JoinPairs(block);
        const int hour = pairs & 0xFF, minute = pairs >> 24 & 0xFF, second = pairs >> 48 & 0xFF;
        const bool exists = MarkNoDigits(block) == 0 && hour < 24 && minute < 60 && second < 60;
        return exists ? hour * 3600 + minute * 60 + second : -1;
    }
    const auto pair = [](const char* c) {
        return IsDigit(c[0]) && IsDigit(c[1]) ? (c[0] - '0') * 10 + (c[1] - '0') : 99;
    };
    const int hour = pair(at), minute = pair(at + 3), second = pair(at + 6);
    return hour < 24 && minute < 60 && second < 60 ? hour * 3600 + minute * 60 + second : -1;
}

std::uint16_t Milliseconds(std::string_view text)
{
    constexpr std::size_t At = 20;
    if (text.size() == At + 3 && IsDigit(text[At]) && IsDigit(text[At + 1]) && IsDigit(text[At + 2]))
        return static_cast<std::uint16_t>((text[At] - '0') * 100 + (text[At + 1] - '0') * 10 +
                                          (text[At + 2] - '0'));
    return static_cast<std::uint16_t>(PartAt(text, At, 3));
}

sCALENDAR_TIME DateParts(std::string_view text)
{
    return {PartAt(text, 0, 4), PartAt(text, 5, 2), PartAt(text, 8, 2), 0, 0, 0};
}

} // namespace

bool CFeedTimestamp::FindDay(std::string_view text, double& dayNumber)
{
    if (text.size() < DateLength)
        return false;
    if (!m_known || std::memcmp(m_date.data(), text.data(), DateLength) != 0) {
        const sTIME_W_MILLISECONDS day = MakeTime(DateParts(text));
        // The fractions of negative day numbers count backwards; such dates take the slow path.
        m_known = day.Status == TimeValid && day.Time >= 0;
        if (!m_known)
            return false;
        m_dayNumber = day.Time;
        m_clockKnown = false;
        std::memcpy(m_date.data(), text.data(), DateLength);
    }
    dayNumber = m_dayNumber;
    return true;
}

bool CFeedTimestamp::ReadClock(std::string_view text, double& time)
{
    double dayNumber = 0;
    if (!FindDay(text, dayNumber))
        return false;
    std::uint64_t clock;
    std::memcpy(&clock, text.data() + TimeOffset, sizeof clock);
    if (!m_clockKnown || clock != m_clock) {
        const int seconds = ClockSeconds(text.data() + TimeOffset);
        if (seconds < 0)
            return false;
        m_clockTime = dayNumber + seconds / 86400.0;
        m_clock = clock;
        m_clockKnown = true;
    }
    time = m_clockTime;
    return true;
}

void CFeedTimestamp::Read(std::string_view text, std::uint16_t milliseconds, sTIME_W_MILLISECONDS& time)
{
    if (text.size() >= TimeOffset + sizeof m_clock && ReadClock(text, time.Time)) {
        time.Status = TimeValid;
        time.Milliseconds = milliseconds;
        return;
    }
    sCALENDAR_TIME parts = DateParts(text);
    parts.Hour = PartAt(text, 11, 2);
    parts.Minute = PartAt(text, 14, 2);
    parts.Second = PartAt(text, 17, 2);
    time = MakeTime(parts, milliseconds);
}

void CFeedTimestamp::ReadTick(std::string_view text, sTIME_W_MILLISECONDS& time)
{
    Read(text, Milliseconds(text), time);
}

void CFeedTimestamp::ReadInterval(std::string_view text, sTIME_W_MILLISECONDS& time)
{
    Read(text, 0, time);
}

void CFeedTimestamp::ReadDay(std::string_view text, sTIME_W_MILLISECONDS& time)
{
    double dayNumber = 0;
    time =
        FindDay(text, dayNumber) ? sTIME_W_MILLISECONDS{dayNumber, TimeValid, 0} : MakeTime(DateParts(text));
}

} // namespace zantroq
