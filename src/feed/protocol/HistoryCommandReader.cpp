#include "feed/protocol/HistoryCommandReader.h"

#include "feed/markets/CsvLine.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace zantroq::feed {
namespace {

// The fields after each command word, a letter each: s symbol, i interval, n datapoints, d days, b and e
// range ends with times, B and E range ends without, - left empty, f and g filter ends, o direction, #
// identifier.
struct sTEMPLATE
{
    std::string_view Word;
    HistoryData Data;
    std::string_view Fields;
};

constexpr sTEMPLATE Templates[] = {
    {"HTX", HistoryData::Ticks, "sno#"},         {"HTD", HistoryData::Ticks, "sd-fgo#"},
    {"HTT", HistoryData::Ticks, "sbe-fgo#"},     {"HIX", HistoryData::Intervals, "sino#"},
    {"HID", HistoryData::Intervals, "sid-fgo#"}, {"HIT", HistoryData::Intervals, "sibe-fgo#"},
    {"HDX", HistoryData::Daily, "sno#"},         {"HDT", HistoryData::Daily, "sBE-o#"},
    {"HWX", HistoryData::Weekly, "sno#"},        {"HMX", HistoryData::Monthly, "sno#"},
};

// More days than the calendar has, so that larger counts cannot overflow.
constexpr std::int64_t MostDays = 10'000'000;

bool ReadWhole(std::string_view text, std::int64_t& number)
{
    if (text.empty())
        return true;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() && read.ptr == text.data() + text.size() && number >= 0;
}

// Reads a range end: a date, or a date, a blank and a time. Blanks alone leave the range open.
bool ReadRangeEnd(std::string_view text, bool isEnd, std::optional<TFeedTime>& bound)
{
    text = TrimBlanks(text);
    if (text.empty())
        return true;
    TFeedTime time = 0;
    if (!ParseStamp(text, time))
        return false;
    const bool hasTime = text.find(' ') != std::string_view::npos;
    if (isEnd)
        time += hasTime ? MsPerSecond - 1 - TimeOfDay(time) % MsPerSecond : MsPerDay - 1;
    bound = time;
    return true;
}

bool ReadFilterEnd(std::string_view text, TFeedTime wholeSecond, TFeedTime& bound)
{
    if (text.empty())
        return true;
    if (!ParseTimeOfDay(text, bound))
        return false;
    bound = bound / MsPerSecond * MsPerSecond + wholeSecond;
    return true;
}

bool ReadField(char letter, std::string_view text, sHISTORY_COMMAND& command)
{
    switch (letter) {
    case 's':
        command.Symbol = TrimBlanks(text);
        return !command.Symbol.empty();
    case 'i':
        return !text.empty() && ReadWhole(text, command.IntervalSeconds);
    case 'n':
        return ReadWhole(text, command.Datapoints);
    case 'd':
        if (!ReadWhole(text, command.Days))
            return false;
        command.Days = std::min(command.Days, MostDays);
        return true;
    case 'b':
    case 'B':
        return ReadRangeEnd(text, false, command.Begin);
    case 'e':
    case 'E':
        return ReadRangeEnd(text, true, command.End);
    case 'f':
        return ReadFilterEnd(text, 0, command.FilterBegin);
    case 'g':
        return ReadFilterEnd(text, MsPerSecond - 1, command.FilterEnd);
    case 'o':
        command.OldestFirst = text == "1";
        return text.empty() || text == "0" || text == "1";
    case '#':
        command.Id = text;
        return !text.empty();
    default:
        return text.empty();
    }
}

} // namespace

CommandReading ReadHistoryCommand(const std::vector<std::string_view>& fields, sHISTORY_COMMAND& command)
{
    for (const sTEMPLATE& shape : Templates) {
        if (fields[0] != shape.Word)
            continue;
        command = {};
        command.Data = shape.Data;
        if (fields.size() < shape.Fields.size() + 1)
            return CommandReading::Malformed;
        for (std::size_t i = 1; i < fields.size(); ++i) {
            const bool extra = i > shape.Fields.size();
            if (extra ? !fields[i].empty() : !ReadField(shape.Fields[i - 1], fields[i], command))
                return CommandReading::Malformed;
        }
        return CommandReading::Command;
    }
    return CommandReading::NotHistory;
}

} // namespace zantroq::feed
