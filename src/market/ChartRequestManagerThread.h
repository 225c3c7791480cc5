// The process's one worker thread. It owns the two feed sockets, and all parsing and merging runs on it. It
// has no queue: commands are sent on the caller's thread, and results reach the window through the shared
// series, which the window polls. It never calls a window.
#pragma once

#include "market/FeedSockets.h"
#include "market/FeedStatus.h"
#include "market/HistoryReply.h"
#include "market/Level1Stream.h"
#include "market/WatchTable.h"
#include "market/ZantroPorts.h"
#include "platform/WorkerThread.h"

#include <future>
#include <memory>
#include <string_view>

namespace zantroq {

class CChartRequestManagerThread : public CWorkerThread
{
public:
    static constexpr std::uint32_t ProtocolSetupMessage = 0x406;

    explicit CChartRequestManagerThread(std::shared_ptr<ISettingsKey> feedKey);
    ~CChartRequestManagerThread() override;

    // Waits at most a second until both connections are made or refused and their first lines are sent, so
    // that commands sent next are not lost. Any other thread, once.
    void AwaitConnections();

    // Commands, called on the window's thread. They do not wait for an answer, and send errors are ignored.
    void SendHistoryRequest(CChartHistRequest& request);
    void WatchSymbol(CChartHistRequest& request);
    void UnwatchSymbol(CChartHistRequest& request);

    // Any thread.
    const CFeedStatus& Status() const { return m_status; }

    // Called by the sockets on this thread.
    void OnHistoryConnected(int errorCode);
    void OnConnectionLost(FeedPort port) { m_status.ConnectionLost(port); }
    void OnHistoryLine(std::string_view line) { m_history.OnLineOfMany(line); }
    void OnHistoryLinesDone() { m_history.EndOfLines(); }
    void OnLevel1Line(std::string_view line) { m_level1.OnLine(line); }

protected:
    void InitInstance() override;
    void ExitInstance() override;
    void OnThreadMessage(std::uint32_t message, std::int32_t first, std::int32_t second) override;

private:
    void SendLevel1(std::string_view text);
    void ConnectionDone();
    void BeginConnecting(CAsyncSocket& socket, FeedPort port, std::uint16_t number);

    CZantroPorts Ports;
    CFeedStatus m_status;
    CWatchTable m_watches;
    CLevel1Stream m_level1;
    CHistoryReply m_history;

    // Created by the constructor and closed by ExitInstance, so that other threads may send while this object
    // exists.
    const std::unique_ptr<CQVXLevel1Socket> Level1Socket;
    const std::unique_ptr<CQVXHistorySocket> HistorySocket;

    int m_connectionsDone = 0; // used on this thread only
    std::promise<void> m_connected;
};

} // namespace zantroq
