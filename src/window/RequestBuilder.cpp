#include "window/RequestBuilder.h"

#include "market/ChartHistRequest.h"
#include "window/WindowTexts.h"

#include <algorithm>

namespace zantroq {

namespace {

void SetDateRange(CChartHistRequest& request, const sRequestSettings& settings, std::size_t type)
{
    request.SetBeginDate(settings.BeginDates[type]);
    request.SetEndDate(settings.EndDates[type]);
}

void SetDateAndTimeRange(CChartHistRequest& request, const sRequestSettings& settings, std::size_t type)
{
    SetDateRange(request, settings, type);
    request.SetBeginTime(settings.BeginTimes[type]);
    request.SetEndTime(settings.EndTimes[type]);
}

void SetExtent(CChartHistRequest& request, const sRequestSettings& settings, int kind)
{
    switch (kind) {
    case TicksByDatapoints:
        request.SetDatapoints(settings.DatapointCounts[TickData]);
        break;
    case TicksByDays:
        request.SetDays(settings.DayCounts[TickData]);
        break;
    case TicksByRange:
        SetDateAndTimeRange(request, settings, TickData);
        break;
    case IntervalsByDatapoints:
        request.SetDatapoints(settings.DatapointCounts[MinuteData]);
        break;
    case IntervalsByDays:
        request.SetDays(settings.DayCounts[MinuteData]);
        break;
    case IntervalsByRange:
        SetDateAndTimeRange(request, settings, MinuteData);
        break;
    case DailyByDatapoints:
        request.SetDatapoints(settings.DatapointCounts[DailyData]);
        break;
    case DailyByRange:
        SetDateRange(request, settings, DailyData);
        break;
    case WeeklyByDatapoints:
        request.SetDatapoints(settings.DatapointCounts[WeeklyData]);
        break;
    case MonthlyByDatapoints:
        request.SetDatapoints(settings.DatapointCounts[MonthlyData]);
        break;
    default:
        break; // an unknown kind sends no command
    }
}

} // namespace

void FillRequest(CChartHistRequest& request, const sRequestSettings& settings, const std::string& symbol)
{
    const auto type = static_cast<std::size_t>(std::clamp<int>(settings.DataType, TickData, MonthlyData));
    const int kind = settings.RequestKinds[type];
    request.SetSymbol(symbol);
    request.SetRequestKind(kind);
    request.SetDataDirection("1"); // oldest first
    request.SetBeginFilterTime("");
    request.SetEndFilterTime("");
    request.SetBeginDate("");
    request.SetEndDate("");
    request.SetEndTime("");
    request.SetBeginTime("");
    if (IsIntervalKind(kind))
        request.SetIntervalSeconds(IntervalMinutesAt(settings.IntervalIndex) * 60);
    SetExtent(request, settings, kind);
    // Also if the command has no field for it: then the filter drops points on this side.
    if (settings.TimeFilterOn[type]) {
        request.SetBeginFilterTime(settings.BeginFilterTimes[type]);
        request.SetEndFilterTime(settings.EndFilterTimes[type]);
    }
    request.SetUseExchangeFormat(settings.UseExchangeFormat);
    request.SetExtendedTrades(settings.ExtendedTrades[type]);
}

} // namespace zantroq
