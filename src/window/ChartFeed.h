// What a chart window asks of the feed's worker. One worker serves all windows of the process; every call is
// made on the chart window's thread and none waits for an answer.
#pragma once

#include <memory>

namespace zantroq {

class CChartHistRequest;

class IChartFeed
{
public:
    virtual ~IChartFeed() = default;
    virtual void WatchSymbol(CChartHistRequest& request) = 0;
    virtual void UnwatchSymbol(CChartHistRequest& request) = 0;
    virtual void SendHistoryRequest(CChartHistRequest& request) = 0; // clears Complete
    // The window's last word on a request: marks it dead, frees it at once where no reply is on its way, and
    // leaves it to the worker otherwise, which frees it at the reply's end.
    virtual void Release(std::unique_ptr<CChartHistRequest> request) = 0;
};

// The check that a user is logged in, made once when a window starts.
class ILoginVerification
{
public:
    virtual ~ILoginVerification() = default;
    virtual bool Agrees() { return true; }
};

} // namespace zantroq
