#include "market/ManagerThreadHolder.h"

#include "market/RequestTable.h"

#include <utility>

namespace zantroq {

void CManagerThreadHolder::AddControl(std::shared_ptr<ISettingsKey> feedKey)
{
    if (++m_controlCount == 1)
        StartManagerThread(std::move(feedKey));
}

void CManagerThreadHolder::RemoveControl(CChartHistRequest* series)
{
    if (--m_controlCount != 0)
        return;
    if (series)
        UnwatchSymbol(*series);
    StopManagerThread();
}

void CManagerThreadHolder::StartManagerThread(std::shared_ptr<ISettingsKey> feedKey)
{
    if (ManagerThread)
        return;
    ++m_connections;
    m_feedKey = feedKey;
    ManagerThread = std::make_unique<CChartRequestManagerThread>(std::move(feedKey));
    ManagerThread->Start();
    ManagerThread->AwaitConnections();
}

void CManagerThreadHolder::StopManagerThread()
{
    if (!ManagerThread)
        return;
    ManagerThread->Stop();
    ManagerThread.reset();
    FreeGivenUpRequests();
}

void CManagerThreadHolder::Reconnect(std::shared_ptr<ISettingsKey> feedKey)
{
    if (!ManagerThread)
        return;
    if (!feedKey)
        feedKey = m_feedKey;
    StopManagerThread();
    StartManagerThread(std::move(feedKey));
}

sFeedStatus CManagerThreadHolder::FeedStatus() const
{
    if (!ManagerThread)
        return {};
    sFeedStatus status = ManagerThread->Status().Read();
    status.Connection = m_connections;
    return status;
}

std::optional<sLastTrade> CManagerThreadHolder::LastTrade(std::string_view symbol) const
{
    return ManagerThread ? ManagerThread->Status().LastTrade(symbol) : std::nullopt;
}

bool CManagerThreadHolder::IsSimulated(std::string_view symbol) const
{
    return ManagerThread && ManagerThread->Status().IsSimulated(symbol);
}

std::optional<std::string> CManagerThreadHolder::Refusal(const CChartHistRequest& request) const
{
    return ManagerThread ? ManagerThread->Status().Refusal(request.Handle()) : std::nullopt;
}

void CManagerThreadHolder::SendHistoryRequest(CChartHistRequest& request)
{
    if (ManagerThread)
        ManagerThread->SendHistoryRequest(request);
}

void CManagerThreadHolder::WatchSymbol(CChartHistRequest& request)
{
    if (ManagerThread)
        ManagerThread->WatchSymbol(request);
}

void CManagerThreadHolder::UnwatchSymbol(CChartHistRequest& request)
{
    if (ManagerThread)
        ManagerThread->UnwatchSymbol(request);
}

CManagerThreadHolder& ManagerThreadHolder()
{
    static CManagerThreadHolder holder;
    return holder;
}

} // namespace zantroq
