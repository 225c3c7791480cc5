#include "feed/server/Level1Connection.h"

namespace zantroq::feed {

CLevel1Connection::CLevel1Connection(asio::ip::tcp::socket socket, CMarketCatalog& catalog,
                                     const sLIVE_OPTIONS& options, CWorkTurns& turns)
    : m_socket(std::move(socket)),
      m_timer(m_socket.get_executor()),
      m_turns(turns),
      m_session(catalog, options)
{
}

void CLevel1Connection::Read()
{
    if (m_reading)
        return;
    m_reading = true;
    m_socket.async_read_some(asio::buffer(m_received),
                             [self = shared_from_this()](std::error_code error, std::size_t count) {
                                 self->m_reading = false;
                                 self->OnRead(error, count);
                             });
}

void CLevel1Connection::OnRead(std::error_code error, std::size_t count)
{
    if (error) {
        Close();
        return;
    }
    m_lines.Take(
        {m_received.data(), count},
        [&](std::string_view line) {
            m_hasSentLine = true;
            m_session.OnLine(line);
        },
        [&] { m_session.OnBadLine(); });
    if (m_session.HasPendingLines())
        m_turns.Add(shared_from_this());
    ReadOn();
}

void CLevel1Connection::ReadOn()
{
    if (!m_closed && m_pending.size() < MaxPendingText && m_session.PendingLines() < MaxPendingLines)
        Read();
}

WorkProgress CLevel1Connection::Work(CWorkSlice& slice)
{
    // While a send is pending, lines and trades wait; the end of the send adds this worker again.
    if (m_closed || m_sending)
        return WorkProgress::Ended;
    if (m_peer.HasLeft()) {
        Close();
        return WorkProgress::Ended;
    }
    const auto now = CLevel1Session::TClock::now();
    WorkProgress progress = m_session.AnswerLines(now, MaxPendingText, slice, m_pending);
    const WorkProgress trades = m_session.WriteDue(now, MaxPendingText, slice, m_pending);
    if (trades == WorkProgress::More)
        progress = trades;
    ReadOn();
    if (!m_pending.empty()) {
        SendPending();
        return WorkProgress::Ended;
    }
    WaitForTrade();
    return progress;
}

void CLevel1Connection::SendPending()
{
    m_underWay.swap(m_pending);
    m_pending.clear();
    m_sending = true;
    asio::async_write(m_socket, asio::buffer(m_underWay),
                      [self = shared_from_this()](std::error_code error, std::size_t) {
                          self->m_sending = false;
                          self->OnSent(error);
                      });
}

void CLevel1Connection::OnSent(std::error_code error)
{
    if (error) {
        Close();
        return;
    }
    ReadOn();
    if (m_session.HasPendingLines())
        m_turns.Add(shared_from_this());
    WaitForTrade();
}

void CLevel1Connection::WaitForTrade()
{
    CLevel1Session::TClock::time_point due;
    if (m_closed || m_sending || !m_session.NextDue(due))
        return;
    m_timer.expires_at(due);
    m_timer.async_wait([self = shared_from_this()](std::error_code error) {
        if (!error && !self->m_closed)
            self->m_turns.Add(self);
    });
}

void CLevel1Connection::Close()
{
    m_closed = true;
    m_timer.cancel();
    std::error_code ignored;
    m_socket.close(ignored);
}

} // namespace zantroq::feed
