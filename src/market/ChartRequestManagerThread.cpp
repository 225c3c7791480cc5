#include "market/ChartRequestManagerThread.h"

#include "market/HistoryCommand.h"
#include "market/Level1Command.h"

#include <cerrno>
#include <chrono>
#include <utility>

namespace zantroq {

CChartRequestManagerThread::CChartRequestManagerThread(std::shared_ptr<ISettingsKey> feedKey)
    : Ports(std::move(feedKey)),
      m_level1(m_watches, [this](std::string_view symbol) { SendLevel1(RemoveCommand(symbol)); }),
      m_history([this] { m_level1.ReplayPending(); }),
      Level1Socket(std::make_unique<CQVXLevel1Socket>(*this)),
      HistorySocket(std::make_unique<CQVXHistorySocket>(*this))
{
    m_level1.OnTrade = [this](std::string_view symbol, double price, std::int64_t size) {
        m_status.NoteTrade(symbol, price, size);
    };
    m_level1.OnSimulated = [this](std::string_view symbol) { m_status.NoteSimulated(symbol); };
    m_history.OnRefused = [this](std::int32_t handle, std::string_view reason) {
        m_status.NoteRefusal(handle, reason);
    };
}

CChartRequestManagerThread::~CChartRequestManagerThread()
{
    Stop();
}

void CChartRequestManagerThread::AwaitConnections()
{
    m_connected.get_future().wait_for(std::chrono::seconds(1));
}

void CChartRequestManagerThread::InitInstance()
{
    Level1Socket->Owner = this;
    BeginConnecting(*Level1Socket, FeedPort::Level1, Ports.Level1Port());
    HistorySocket->Owner = this;
    BeginConnecting(*HistorySocket, FeedPort::Lookup, Ports.LookupPort());
}

void CChartRequestManagerThread::BeginConnecting(CAsyncSocket& socket, FeedPort port, std::uint16_t number)
{
    m_status.Connecting(port, number);
    if (socket.Create()) {
        socket.Connect(number);
        return;
    }
    m_status.ConnectionMade(port, ENOBUFS);
    ConnectionDone();
}

void CChartRequestManagerThread::ExitInstance()
{
    Level1Socket->ShutDown();
    Level1Socket->Close();
    HistorySocket->ShutDown();
    HistorySocket->Close();
}

void CChartRequestManagerThread::OnThreadMessage(std::uint32_t message, std::int32_t errorCode, std::int32_t)
{
    if (message != ProtocolSetupMessage)
        return;
    m_status.ConnectionMade(FeedPort::Level1, errorCode);
    SendLevel1(Level1SetupText());
    ConnectionDone();
}

void CChartRequestManagerThread::OnHistoryConnected(int errorCode)
{
    m_status.ConnectionMade(FeedPort::Lookup, errorCode);
    ConnectionDone();
}

void CChartRequestManagerThread::ConnectionDone()
{
    if (++m_connectionsDone == 2)
        m_connected.set_value();
}

void CChartRequestManagerThread::SendHistoryRequest(CChartHistRequest& request)
{
    m_status.ForgetRefusal(request.Handle());
    BeginReply(request);
    HistorySocket->Send(HistoryRequestText(request));
}

void CChartRequestManagerThread::WatchSymbol(CChartHistRequest& request)
{
    const std::string symbol = request.GetSymbol();
    if (symbol.empty())
        return;
    m_watches.Add(symbol, EnterRequest(request));
    SendLevel1(WatchCommand(symbol));
}

void CChartRequestManagerThread::UnwatchSymbol(CChartHistRequest& request)
{
    const std::string symbol = request.GetSymbol();
    if (!symbol.empty() && m_watches.Remove(symbol, request) == CWatchTable::Removal::LastOne)
        SendLevel1(RemoveCommand(symbol));
}

void CChartRequestManagerThread::SendLevel1(std::string_view text)
{
    Level1Socket->Send(text);
}

} // namespace zantroq
