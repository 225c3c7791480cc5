#include "market/HistoryCommand.h"

#include "market/ChartHistRequest.h"

#include <initializer_list>

namespace zantroq {

namespace {

std::string Joined(std::initializer_list<std::string> fields)
{
    std::string line;
    for (const std::string& field : fields) {
        if (!line.empty())
            line += ',';
        line += field;
    }
    return line + '\n';
}

} // namespace

std::string HistoryCommand(const CChartHistRequest& request)
{
    const int kind = request.GetRequestKind();
    const std::string symbol = request.GetSymbol();
    const std::string points = std::to_string(request.GetDatapoints());
    const std::string seconds = std::to_string(request.GetIntervalSeconds());
    const std::string days = std::to_string(request.GetDays());
    const std::string begin = request.GetBeginDate() + ' ' + request.GetBeginTime();
    const std::string end = request.GetEndDate() + ' ' + request.GetEndTime();
    const std::string beginFilter = request.GetBeginFilterTime();
    const std::string endFilter = request.GetEndFilterTime();
    const std::string direction = request.GetDataDirection();
    const std::string identifier = std::to_string(kind) + std::to_string(request.Handle());
    switch (kind) {
    case TicksByDatapoints:
        return Joined({"HTX", symbol, points, direction, identifier});
    case TicksByDays:
        return Joined({"HTD", symbol, days, "", beginFilter, endFilter, direction, identifier});
    case TicksByRange:
        return Joined({"HTT", symbol, begin, end, "", beginFilter, endFilter, direction, identifier});
    case IntervalsByDatapoints:
        return Joined({"HIX", symbol, seconds, points, direction, identifier});
    case IntervalsByDays:
        return Joined({"HID", symbol, seconds, days, "", beginFilter, endFilter, direction, identifier});
    case IntervalsByRange:
        return Joined(
            {"HIT", symbol, seconds, begin, end, "", beginFilter, endFilter, direction, identifier});
    case DailyByDatapoints:
        return Joined({"HDX", symbol, points, direction, identifier});
    case DailyByRange:
        return Joined(
            {"HDT", symbol, request.GetBeginDate(), request.GetEndDate(), "", direction, identifier});
    case WeeklyByDatapoints:
        return Joined({"HWX", symbol, points, direction, identifier});
    case MonthlyByDatapoints:
        return Joined({"HMX", symbol, points, direction, identifier});
    default:
        return {};
    }
}

std::string HistoryRequestText(const CChartHistRequest& request)
{
    return SetProtocolLine + HistoryCommand(request);
}

} // namespace zantroq
