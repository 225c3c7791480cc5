// Connects the chart window to the process's one worker. Chart window's thread.
#pragma once

#include "window/ChartFeed.h"

namespace zantroq {

class CManagerThreadHolder;

class CManagerThreadFeed : public IChartFeed
{
public:
    // The holder must outlive the feed.
    explicit CManagerThreadFeed(CManagerThreadHolder& holder) : m_holder(holder) {}

    void WatchSymbol(CChartHistRequest& request) override;
    void UnwatchSymbol(CChartHistRequest& request) override;
    void SendHistoryRequest(CChartHistRequest& request) override;
    void Release(std::unique_ptr<CChartHistRequest> request) override;

private:
    CManagerThreadHolder& m_holder;
};

} // namespace zantroq
