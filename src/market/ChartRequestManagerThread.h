// The one worker of the process: it owns the two feed sockets, and all parsing and merging runs on it. It has
// no queue of work: commands go out on the caller's thread, results come back through the shared series,
// which the window polls. It never calls into a window.
#pragma once

#include "market/FeedSockets.h"
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

    // Waits until both connections stand or were refused and their first lines went out, so that what is sent
    // next is not lost; at most a second. A window's thread.
    void AwaitConnections();

    // Commands, on the window's thread. Nothing waits for an answer, and a send that fails is not noticed.
    void SendHistoryRequest(CChartHistRequest& request);
    void WatchSymbol(CChartHistRequest& request);
    void UnwatchSymbol(CChartHistRequest& request);

    // From the sockets, on this thread.
    void OnHistoryConnected();
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

    CZantroPorts Ports;
    CWatchTable m_watches;
    CLevel1Stream m_level1;
    CHistoryReply m_history;

    // Made by the constructor and closed by ExitInstance, so that other threads may send as long as this
    // object lives.
    const std::unique_ptr<CQVXLevel1Socket> Level1Socket;
    const std::unique_ptr<CQVXHistorySocket> HistorySocket;

    int m_connectionsDone = 0; // on this thread
    std::promise<void> m_connected;
};

} // namespace zantroq
