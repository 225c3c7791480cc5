// Parameters and flags of a request; its series is in ChartHistSeries.cpp.
#include "market/ChartHistRequest.h"

#include "market/RequestTable.h"

#include <stdexcept>
#include <utility>

namespace zantroq {

namespace {

std::int32_t NextHandle()
{
    static std::atomic<std::int32_t> last{0};
    const std::int32_t handle = last.fetch_add(1) + 1;
    if (handle <= 0)
        throw std::runtime_error("no request handle left in this process");
    return handle;
}

} // namespace

CChartHistRequest::CChartHistRequest() : m_handle(NextHandle())
{
    ResetSeries();
}

CChartHistRequest::~CChartHistRequest()
{
    ForgetRequest(m_handle);
}

void CChartHistRequest::SetText(std::string& member, std::string text)
{
    CLockGuard guard(DataLock);
    member = std::move(text);
}

void CChartHistRequest::SetBound(CSeriesBound& bound, std::string text)
{
    CLockGuard guard(DataLock);
    bound.Set(std::move(text));
    Bounds.Update();
}

void CChartHistRequest::SetSymbol(std::string symbol) NO_THREAD_SAFETY_ANALYSIS
{
    SetText(Symbol, std::move(symbol));
}
void CChartHistRequest::SetDataDirection(std::string direction) NO_THREAD_SAFETY_ANALYSIS
{
    SetText(DataDirection, std::move(direction));
}
void CChartHistRequest::SetBeginDate(std::string date) NO_THREAD_SAFETY_ANALYSIS
{
    SetBound(Bounds.BeginDate, std::move(date));
}
void CChartHistRequest::SetBeginTime(std::string time) NO_THREAD_SAFETY_ANALYSIS
{
    SetBound(Bounds.BeginTime, std::move(time));
}
void CChartHistRequest::SetBeginFilterTime(std::string time) NO_THREAD_SAFETY_ANALYSIS
{
    SetBound(Bounds.BeginFilterTime, std::move(time));
}
void CChartHistRequest::SetEndDate(std::string date) NO_THREAD_SAFETY_ANALYSIS
{
    SetBound(Bounds.EndDate, std::move(date));
}
void CChartHistRequest::SetEndTime(std::string time) NO_THREAD_SAFETY_ANALYSIS
{
    SetBound(Bounds.EndTime, std::move(time));
}
void CChartHistRequest::SetEndFilterTime(std::string time) NO_THREAD_SAFETY_ANALYSIS
{
    SetBound(Bounds.EndFilterTime, std::move(time));
}

void CChartHistRequest::SetDatapoints(std::int32_t count)
{
    CLockGuard guard(DataLock);
    Datapoints = count;
}
void CChartHistRequest::SetIntervalSeconds(std::int32_t seconds)
{
    CLockGuard guard(DataLock);
    IntervalSeconds = seconds;
}
void CChartHistRequest::SetDays(std::int32_t days)
{
    CLockGuard guard(DataLock);
    Days = days;
}
void CChartHistRequest::SetRequestKind(std::int32_t kind)
{
    CLockGuard guard(DataLock);
    if (!FillSameArrays(Kind, kind))
        Empty(); // otherwise the arrays of the new kind would differ in length
    Kind = kind;
}
void CChartHistRequest::SetNotifyWindow(void* window)
{
    CLockGuard guard(DataLock);
    NotifyWindow = window;
}

// Only the window's thread writes the texts, so its own reads need no lock.
std::string CChartHistRequest::GetSymbol() const NO_THREAD_SAFETY_ANALYSIS
{
    return Symbol;
}
std::string CChartHistRequest::GetDataDirection() const NO_THREAD_SAFETY_ANALYSIS
{
    return DataDirection;
}
std::string CChartHistRequest::GetBeginDate() const NO_THREAD_SAFETY_ANALYSIS
{
    return Bounds.BeginDate.Text();
}
std::string CChartHistRequest::GetBeginTime() const NO_THREAD_SAFETY_ANALYSIS
{
    return Bounds.BeginTime.Text();
}
std::string CChartHistRequest::GetBeginFilterTime() const NO_THREAD_SAFETY_ANALYSIS
{
    return Bounds.BeginFilterTime.Text();
}
std::string CChartHistRequest::GetEndDate() const NO_THREAD_SAFETY_ANALYSIS
{
    return Bounds.EndDate.Text();
}
std::string CChartHistRequest::GetEndTime() const NO_THREAD_SAFETY_ANALYSIS
{
    return Bounds.EndTime.Text();
}
std::string CChartHistRequest::GetEndFilterTime() const NO_THREAD_SAFETY_ANALYSIS
{
    return Bounds.EndFilterTime.Text();
}

std::int32_t CChartHistRequest::GetDatapoints() const
{
    return Datapoints;
}
std::int32_t CChartHistRequest::GetIntervalSeconds() const
{
    return IntervalSeconds;
}
std::int32_t CChartHistRequest::GetDays() const
{
    return Days;
}
std::int32_t CChartHistRequest::GetRequestKind() const
{
    return Kind;
}

void CChartHistRequest::SetComplete(bool complete)
{
    Complete = complete;
}
bool CChartHistRequest::IsComplete() const
{
    return Complete;
}
void CChartHistRequest::SetPriceFormat(std::int32_t code)
{
    PriceFormat = code;
}
void CChartHistRequest::SetUseExchangeFormat(bool use)
{
    UseExchangeFormat = use;
}
bool CChartHistRequest::UsesExchangeFormat() const
{
    return UseExchangeFormat;
}
void CChartHistRequest::MarkDead()
{
    Alive = false;
}
bool CChartHistRequest::HasBidAskUpdates() const
{
    return BidAskUpdates;
}
void CChartHistRequest::SetExtendedTrades(bool extended)
{
    ExtendedTrades = extended;
}

bool CChartHistRequest::AcceptsUpdates() const
{
    CLockGuard guard(DataLock);
    const bool openEnd = Bounds.EndDate.Empty() && Bounds.EndTime.Empty();
    switch (Kind) {
    case TicksByDatapoints:
    case IntervalsByDatapoints:
    case DailyByDatapoints:
        return true;
    case TicksByDays:
        return Bounds.EndFilterTime.Empty();
    case TicksByRange:
        return openEnd && Bounds.EndFilterTime.Empty();
    case IntervalsByDays:
        return (Bounds.BeginFilterTime.Empty() && Bounds.EndFilterTime.Empty()) || openEnd;
    case IntervalsByRange:
        return openEnd;
    case DailyByRange:
        return Bounds.EndDate.Empty();
    default:
        return false;
    }
}

} // namespace zantroq
