#include "window/ManagerThreadFeed.h"

#include "market/ManagerThreadHolder.h"

#include <utility>

namespace zantroq {

void CManagerThreadFeed::WatchSymbol(CChartHistRequest& request)
{
    m_holder.WatchSymbol(request);
}

void CManagerThreadFeed::UnwatchSymbol(CChartHistRequest& request)
{
    m_holder.UnwatchSymbol(request);
}

void CManagerThreadFeed::SendHistoryRequest(CChartHistRequest& request)
{
    m_holder.SendHistoryRequest(request);
}

void CManagerThreadFeed::Release(std::unique_ptr<CChartHistRequest> request)
{
    GiveUpRequest(std::move(request));
}

} // namespace zantroq
