// Holds the process's one worker and counts the chart controls that need it: it lives from the first control
// to the last. Belongs to the host's window thread; so do the three commands, which do nothing while no
// worker runs.
#pragma once

#include "market/ChartRequestManagerThread.h"

#include <memory>

namespace zantroq {

class CManagerThreadHolder
{
public:
    // A control's window has been created; the first one starts the worker on the ports of this key (the
    // feed's settings, or MakePortKey for a feed inside the process). The key is used on the worker.
    void AddControl(std::shared_ptr<ISettingsKey> feedKey);

    // A control's window is being destroyed; the last one unwatches its series, which may be null, and stops
    // the worker.
    void RemoveControl(CChartHistRequest* series);

    int ControlCount() const { return m_controlCount; }
    bool Running() const { return ManagerThread != nullptr; }

    // Starts the worker if there is none, and waits until its connections stand or were refused (at most a
    // second).
    void StartManagerThread(std::shared_ptr<ISettingsKey> feedKey);
    // Stops and deletes the worker. Waits until it has ended, however long that takes.
    void StopManagerThread();

    // Clears Complete and sends the request's command. The feed's reply fills the series.
    void SendHistoryRequest(CChartHistRequest& request);
    // Subscribes the request's symbol to live updates. A request watches its symbol once, before its command
    // goes out, and must be unwatched before its symbol changes or it is given up.
    void WatchSymbol(CChartHistRequest& request);
    void UnwatchSymbol(CChartHistRequest& request);

private:
    std::unique_ptr<CChartRequestManagerThread> ManagerThread;
    int m_controlCount = 0;
};

// The process's holder.
CManagerThreadHolder& ManagerThreadHolder();

} // namespace zantroq
