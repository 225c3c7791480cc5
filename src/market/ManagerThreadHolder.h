// Owns the process's one worker and counts the chart controls that use it: the worker runs from the first
// control to the last. All functions belong to the host's window thread. The three commands do nothing while
// no worker runs.
#pragma once

#include "market/ChartRequestManagerThread.h"

#include <memory>
#include <optional>
#include <string>

namespace zantroq {

class CManagerThreadHolder
{
public:
    // Call when a control's window has been created. The first call starts the worker with the ports of
    // `feedKey` (the feed's settings, or MakePortKey for a feed inside the process). The worker reads the key
    // on its own thread.
    void AddControl(std::shared_ptr<ISettingsKey> feedKey);

    // Call when a control's window is being destroyed. The last call unwatches `series`, which may be null,
    // and stops the worker.
    void RemoveControl(CChartHistRequest* series);

    int ControlCount() const { return m_controlCount; }
    bool Running() const { return ManagerThread != nullptr; }

    // Starts the worker if none runs, and waits at most a second until its connections are made or refused.
    void StartManagerThread(std::shared_ptr<ISettingsKey> feedKey);
    // Replaces the running worker by one with new connections to the feed, on the ports of this key, or of the
    // previous key if it is null. Nothing is watched and requested on it yet. Does nothing without a running
    // worker. Waits until the old worker has ended, and then like StartManagerThread.
    void Reconnect(std::shared_ptr<ISettingsKey> feedKey = nullptr);
    // The state of the connections, the last trade of a watched symbol, whether the feed announced that its
    // trades are simulated, and the feed's reason if it refused
    // the request.
    sFeedStatus FeedStatus() const;
    std::optional<sLastTrade> LastTrade(std::string_view symbol) const;
    bool IsSimulated(std::string_view symbol) const;
    std::optional<std::string> Refusal(const CChartHistRequest& request) const;

    // Stops and deletes the worker. Waits until it has ended.
    void StopManagerThread();

    // Clears Complete and sends the request's command. The reply fills the series.
    void SendHistoryRequest(CChartHistRequest& request);
    // Subscribes the request's symbol to live updates. Call once per request, before its command is sent;
    // unwatch it before its symbol changes or it is given up.
    void WatchSymbol(CChartHistRequest& request);
    void UnwatchSymbol(CChartHistRequest& request);

private:
    std::unique_ptr<CChartRequestManagerThread> ManagerThread;
    std::shared_ptr<ISettingsKey> m_feedKey; // of the running worker
    int m_controlCount = 0;
    int m_connections = 0; // workers started so far
};

// The holder of the process.
CManagerThreadHolder& ManagerThreadHolder();

} // namespace zantroq
