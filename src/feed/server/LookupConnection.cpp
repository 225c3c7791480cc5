#include "feed/server/LookupConnection.h"

namespace zantroq::feed {

CLookupConnection::CLookupConnection(asio::ip::tcp::socket socket, CMarketCatalog& catalog, CWorkTurns& turns)
    : m_socket(std::move(socket)), m_turns(turns), m_session(catalog)
{
}

void CLookupConnection::Read()
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

void CLookupConnection::OnRead(std::error_code error, std::size_t count)
{
    // A client that has closed its sending half still gets its replies.
    if (error) {
        m_ended = true;
        return;
    }
    m_lines.Take(
        {m_received.data(), count},
        [&](std::string_view line) {
            m_hasSentLine = true;
            m_session.OnLine(line);
        },
        [&] { m_session.OnBadLine(); });
    if (m_session.PendingReplies() > 0)
        m_turns.Add(shared_from_this());
    ReadOn();
}

void CLookupConnection::ReadOn()
{
    if (m_session.PendingReplies() < MaxPendingReplies && !m_ended)
        Read();
}

WorkProgress CLookupConnection::Work(CWorkSlice& slice)
{
    // The end of the send adds this worker again.
    if (m_sending)
        return WorkProgress::Ended;
    if (m_peer.HasLeft()) {
        Close();
        return WorkProgress::Ended;
    }
    m_block.Clear();
    const WorkProgress progress = m_session.Write(m_block, BlockSize, slice);
    ReadOn();
    if (m_block.Size() == 0)
        return progress;
    SendBlock();
    return WorkProgress::Ended;
}

void CLookupConnection::SendBlock()
{
    m_sending = true;
    asio::async_write(m_socket, asio::buffer(m_block.Text().data(), m_block.Size()),
                      [self = shared_from_this()](std::error_code error, std::size_t) {
                          self->m_sending = false;
                          self->OnSent(error);
                      });
}

void CLookupConnection::OnSent(std::error_code error)
{
    if (error)
        Close();
    else if (m_session.PendingReplies() > 0)
        m_turns.Add(shared_from_this());
}

void CLookupConnection::Close()
{
    m_ended = true;
    m_session.DropReplies();
    std::error_code ignored;
    m_socket.close(ignored);
}

} // namespace zantroq::feed
