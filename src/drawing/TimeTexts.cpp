#include "drawing/TimeTexts.h"

#include "market/HistoryRecords.h"

namespace zantroq {

std::string PointDateText(const sTIME_W_MILLISECONDS& time)
{
    return FormatTime(time, "%Y/%m/%d");
}

std::string ClockText(const sTIME_W_MILLISECONDS& time)
{
    return FormatTime(time, "%H:%M:%S");
}

std::string ClockMillisecondsText(const sTIME_W_MILLISECONDS& time)
{
    std::string text = ClockText(time);
    if (time.Status != TimeValid)
        return text;
    const std::string milliseconds = std::to_string(time.Milliseconds);
    return text + "." + std::string(milliseconds.size() < 3 ? 3 - milliseconds.size() : 0, '0') +
           milliseconds;
}

std::string MinuteTimeText(const sTIME_W_MILLISECONDS& time)
{
    return FormatTime(time, "%H:%M:%Smin");
}

std::string PointTimeText(const sTIME_W_MILLISECONDS& time, int dataType, TimeDetail detail)
{
    if (dataType == TickData)
        return detail == TimeDetail::Milliseconds ? ClockMillisecondsText(time) : ClockText(time);
    return dataType == MinuteData ? ClockText(time) : PointDateText(time);
}

} // namespace zantroq
