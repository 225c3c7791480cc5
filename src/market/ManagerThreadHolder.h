// Owns the process's one worker and counts the chart controls that use it: the worker runs from the first
// control to the last. All functions belong to the host's window thread. The three commands do nothing while
// no worker runs.
#pragma once

#include "market/ChartRequestManagerThread.h"

#include <memory>

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
    int m_controlCount = 0;
};

// The holder of the process.
CManagerThreadHolder& ManagerThreadHolder();

} // namespace zantroq
