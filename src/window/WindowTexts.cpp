#include "window/WindowTexts.h"

#include "drawing/NumberTexts.h"

#include <array>

namespace zantroq {

namespace {

constexpr std::size_t SymbolLength = 30;

bool StartsCharacter(char c) // of UTF-8 text
{
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

} // namespace

std::string DataTypeName(int dataType)
{
    static constexpr std::array<const char*, 5> Names{"Tick", "Minute", "Daily", "Weekly", "Monthly"};
    return dataType >= 0 && dataType < 5 ? Names[static_cast<std::size_t>(dataType)] : "";
}

int IntervalMinutesAt(int intervalIndex)
{
    const bool listed = intervalIndex >= 0 && intervalIndex < static_cast<int>(IntervalMinutes.size());
    return listed ? IntervalMinutes[static_cast<std::size_t>(intervalIndex)] : 1;
}

std::string RetrievingText(int dataType, int count)
{
    static constexpr std::array<std::array<const char*, 2>, 5> Words{
        {{"Tick", "Ticks"}, {"Minute", "Minutes"}, {"Day", "Days"}, {"Week", "Weeks"}, {"Month", "Months"}}};
    if (dataType < 0 || dataType >= 5)
        return "";
    const auto& [one, many] = Words[static_cast<std::size_t>(dataType)];
    return std::string("Retrieving ") + one + " Data (" + std::to_string(count) + " " + many + " Received)";
}

std::string ChartCaption(const sRequestSettings& request)
{
    const std::string name = DataTypeName(request.DataType);
    if (request.DataType != MinuteData)
        return name;
    return std::to_string(IntervalMinutesAt(request.IntervalIndex)) + " - " + name;
}

std::string TitleLine(const sRequestSettings& request, const std::string& symbol)
{
    if (request.DataType != MinuteData || symbol.empty())
        return symbol;
    return std::to_string(IntervalMinutesAt(request.IntervalIndex)) + " - " + symbol;
}

std::string WindowTitle(const std::string& symbol)
{
    return symbol + " - Chart";
}

std::string TickDeletionText(const sHIST_DATA& point, const std::string& minuteTime, const std::string& date)
{
    std::string text = "Do you really want to delete this tick?\n\nPrice: " + FixedText(point.Close, 2);
    if (point.Volume != 0)
        text += "\nVolume: " + ThousandsText(point.Volume);
    return text + "\nTime: " + minuteTime + " on " + date;
}

std::string IntervalDeletionText(int dataType, const std::string& prices, const std::string& time,
                                 const std::string& date)
{
    std::string when;
    switch (dataType) {
    case MinuteData:
        when = "Time: " + time + " on " + date;
        break;
    case DailyData:
        when = "Date: " + date;
        break;
    case WeeklyData:
        when = "Week ending: " + date;
        break;
    default:
        when = "Month ending: " + date;
        break;
    }
    return "Do you really want to delete this interval?\n\n" + prices + "\n" + when + "\n";
}

std::string SymbolBoxText(const std::string& typed, TypedOver over)
{
    std::string text;
    std::size_t characters = 0;
    for (const char c : typed) {
        if (StartsCharacter(c) && ++characters > SymbolLength && over == TypedOver::Nothing)
            break;
        text += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
    return text;
}

std::string SymbolFromKey(int code)
{
    if (code >= 0x20 && code <= 0x6f)
        return SymbolBoxText(std::string(1, static_cast<char>(code)));
    // The two codes above 7 bits are characters of that number, in UTF-8.
    if (code == 0xba)
        return "\xC2\xBA";
    if (code == -1)
        return "\xC3\xBF";
    return "";
}

} // namespace zantroq
