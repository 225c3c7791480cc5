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
