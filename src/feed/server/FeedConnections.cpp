#include "feed/server/FeedConnections.h"

namespace zantroq::feed {

CLookupConnection::CLookupConnection(asio::ip::tcp::socket socket, CMarketCatalog& catalog)
    : m_socket(std::move(socket)), m_session(catalog)
{
}

void CLookupConnection::Read()
{
    if (m_reading)
        return;
    m_reading = true;
    m_socket.async_read_some(asio::buffer(m_received), [self = shared_from_this()](std::error_code error,
                                                                                   std::size_t count) {
        self->m_reading = false;
        // A client that has closed its sending half still gets what it asked for.
        if (error) {
            self->m_ended = true;
            return;
        }
        self->m_cutter.Take(
            {self->m_received.data(), count}, [&](std::string_view line) { self->m_session.OnLine(line); },
            [&] { self->m_session.OnBadLine(); });
        self->Send();
        self->ReadOn();
    });
}

void CLookupConnection::ReadOn()
{
    if (m_session.PendingReplies() < MaxPendingReplies && !m_ended)
        Read();
}

void CLookupConnection::Send()
{
    if (m_sending)
        return;
    m_block.Clear();
    m_session.Write(m_block, BlockSize);
    if (m_block.Size() == 0)
        return;
    m_sending = true;
    asio::async_write(m_socket, asio::buffer(m_block.Text().data(), m_block.Size()),
                      [self = shared_from_this()](std::error_code error, std::size_t) {
                          self->m_sending = false;
                          if (error) {
                              std::error_code ignored;
                              self->m_socket.close(ignored);
                              return;
                          }
                          self->Send();
                          self->ReadOn();
                      });
}

CLevel1Connection::CLevel1Connection(asio::ip::tcp::socket socket, CMarketCatalog& catalog,
                                     const sLIVE_OPTIONS& options)
    : m_socket(std::move(socket)), m_timer(m_socket.get_executor()), m_session(catalog, options)
{
}

void CLevel1Connection::Read()
{
    if (m_reading)
        return;
    m_reading = true;
    m_socket.async_read_some(
        asio::buffer(m_received), [self = shared_from_this()](std::error_code error, std::size_t count) {
            self->m_reading = false;
            if (error) {
                self->m_closed = true;
                self->m_timer.cancel();
                return;
            }
            const auto now = CLevel1Session::TClock::now();
            self->m_cutter.Take(
                {self->m_received.data(), count},
                [&](std::string_view line) { self->m_session.OnLine(line, now, self->m_pending); },
                [&] { self->m_pending += SyntaxError; });
            self->Send();
            self->WaitForTrade();
            if (self->m_pending.size() < MaxPendingText)
                self->Read();
        });
}

void CLevel1Connection::Send()
{
    if (m_sending || m_closed || m_pending.empty())
        return;
    m_underWay.swap(m_pending);
    m_pending.clear();
    m_sending = true;
    asio::async_write(m_socket, asio::buffer(m_underWay),
                      [self = shared_from_this()](std::error_code error, std::size_t) {
                          self->m_sending = false;
                          if (error) {
                              self->m_closed = true;
                              self->m_timer.cancel();
                              std::error_code ignored;
                              self->m_socket.close(ignored);
                              return;
                          }
                          self->Send();
                          self->WaitForTrade();
                          self->Read();
                      });
}

void CLevel1Connection::WaitForTrade()
{
    // While a send is under way the trades wait for it: its end calls here again.
    CLevel1Session::TClock::time_point due;
    if (m_closed || m_sending || !m_session.NextDue(due))
        return;
    m_timer.expires_at(due);
    m_timer.async_wait([self = shared_from_this()](std::error_code error) {
        if (error || self->m_closed || self->m_sending)
            return;
        self->m_session.WriteDue(CLevel1Session::TClock::now(), MaxPendingText, self->m_pending);
        self->Send();
        self->WaitForTrade();
    });
}

} // namespace zantroq::feed
