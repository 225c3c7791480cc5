// The interface of the feed's worker for a chart window. One worker serves all windows of the process. Every
// function is called on the chart window's thread, and none waits for an answer.
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
    // Gives up a request: marks it dead and frees it at once, or, if a reply is still arriving, lets the
    // worker free it at the end of the reply.
    virtual void Release(std::unique_ptr<CChartHistRequest> request) = 0;
};

// The check that a user is logged in, done once when a window starts.
class ILoginVerification
{
public:
    virtual ~ILoginVerification() = default;
    virtual bool Agrees() { return true; }
};

} // namespace zantroq
