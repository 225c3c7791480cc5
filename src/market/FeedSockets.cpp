#include "market/FeedSockets.h"

#include "market/ChartRequestManagerThread.h"
#include "market/HistoryCommand.h"

#include <new>
#include <stdexcept>

namespace zantroq {

void CQVXLineSocket::OnReceive(int errorCode)
{
    if (errorCode == 0) {
        const auto room = m_cutter.Room();
        const int received = Receive(room.data(), static_cast<int>(room.size()));
        if (received > 0) {
            m_cutter.Received(received, [this](std::string_view line) { GuardedLine(line); });
            OnLinesDone();
        } else if (!room.empty() && !IsOpen()) {
            OnLost();
        }
    } else {
        OnLost();
    }
    CAsyncSocket::OnReceive(errorCode);
}

void CQVXLineSocket::GuardedLine(std::string_view line)
{
    try {
        OnLine(line);
    } catch (const std::invalid_argument&) {
        // The line has too few fields, or its point no longer exists. Later lines and other charts are not
        // affected.
    } catch (const std::bad_alloc&) {
        // Memory is short; the series is unchanged.
    }
}

void CQVXHistorySocket::OnConnect(int errorCode)
{
    Send(SetClientNameLine);
    CQVXLookupSocket::OnConnect(errorCode);
    if (Owner)
        Owner->OnHistoryConnected(errorCode);
}

void CQVXHistorySocket::OnLost()
{
    if (Owner)
        Owner->OnConnectionLost(FeedPort::Lookup);
}

void CQVXHistorySocket::OnLine(std::string_view line)
{
    if (Owner)
        Owner->OnHistoryLine(line);
}

void CQVXHistorySocket::OnLinesDone()
{
    if (Owner)
        Owner->OnHistoryLinesDone();
}

void CQVXLevel1Socket::OnConnect(int errorCode)
{
    if (Owner)
        Owner->PostThreadMessage(CChartRequestManagerThread::ProtocolSetupMessage, errorCode, 0);
    CQVXStreamSocket::OnConnect(errorCode);
}

void CQVXLevel1Socket::OnLine(std::string_view line)
{
    if (Owner)
        Owner->OnLevel1Line(line);
}

void CQVXLevel1Socket::OnLost()
{
    if (Owner)
        Owner->OnConnectionLost(FeedPort::Level1);
}

} // namespace zantroq
