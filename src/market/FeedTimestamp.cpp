#include "market/FeedTimestamp.h"

#include "platform/NumberText.h"

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

// Two digits as a number, or -1.
int PlainPair(const char* at)
{
    return IsDigit(at[0]) && IsDigit(at[1]) ? (at[0] - '0') * 10 + (at[1] - '0') : -1;
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
        // Before 1900 the time of day is subtracted; such dates take the plain road.
        m_known = day.Status == TimeValid && day.Time >= 0;
        if (!m_known)
            return false;
        m_dayNumber = day.Time;
        std::memcpy(m_date.data(), text.data(), DateLength);
    }
    dayNumber = m_dayNumber;
    return true;
}

sTIME_W_MILLISECONDS CFeedTimestamp::Read(std::string_view text, bool withMilliseconds)
{
    const std::uint16_t milliseconds = withMilliseconds ? Milliseconds(text) : 0;
    double dayNumber = 0;
    if (text.size() >= 19 && FindDay(text, dayNumber)) {
        const int hour = PlainPair(&text[11]), minute = PlainPair(&text[14]), second = PlainPair(&text[17]);
        if (hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60)
            return {dayNumber + (hour * 3600 + minute * 60 + second) / 86400.0, TimeValid, milliseconds};
    }
    sCALENDAR_TIME parts = DateParts(text);
    parts.Hour = PartAt(text, 11, 2);
    parts.Minute = PartAt(text, 14, 2);
    parts.Second = PartAt(text, 17, 2);
    return MakeTime(parts, milliseconds);
}

sTIME_W_MILLISECONDS CFeedTimestamp::ReadDay(std::string_view text)
{
    double dayNumber = 0;
    if (FindDay(text, dayNumber))
        return {dayNumber, TimeValid, 0};
    return MakeTime(DateParts(text));
}

} // namespace zantroq
