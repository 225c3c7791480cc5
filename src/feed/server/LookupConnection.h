// One connection of the lookup port. Stays alive while an operation on it is pending. Feed thread only.
#pragma once

#include "feed/protocol/ClientLines.h"
#include "feed/protocol/LookupSession.h"
#include "feed/server/PeerWatch.h"
#include "feed/server/SilentClients.h"
#include "feed/server/WorkTurns.h"

#include <asio.hpp>

#include <array>
#include <memory>

namespace zantroq::feed {

class CLookupConnection : public CWorker,
                          public IFeedConnection,
                          public std::enable_shared_from_this<CLookupConnection>
{
public:
    // Catalog and turns must outlive the connection.
    CLookupConnection(asio::ip::tcp::socket socket, CMarketCatalog& catalog, CWorkTurns& turns);
    void Start() { Read(); }
    WorkProgress Work(CWorkSlice& slice) override;
    bool HasSentLine() const override { return m_hasSentLine; }
    void Close() override;

private:
    void Read();
    void OnRead(std::error_code error, std::size_t count);
    void ReadOn(); // reads unless too much is pending or the client closed its side
    void SendBlock();
    void OnSent(std::error_code error);

    // Enough for a client that sends commands ahead. With more replies pending, the connection stops reading
    // until the client has taken some.
    static constexpr std::size_t MaxPendingReplies = 256;
    static constexpr std::size_t BlockSize = 256 * 1024;

    asio::ip::tcp::socket m_socket;
    CPeerWatch m_peer{m_socket};
    CWorkTurns& m_turns;
    CLookupSession m_session;
    CClientLines m_lines;
    CTextBlock m_block;
    std::array<char, 8192> m_received;
    bool m_hasSentLine = false, m_reading = false, m_sending = false, m_ended = false;
};

} // namespace zantroq::feed
