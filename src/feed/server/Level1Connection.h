// One connection of the level 1 port. Stays alive while an operation on it is pending. Feed thread only.
#pragma once

#include "feed/protocol/ClientLines.h"
#include "feed/protocol/Level1Session.h"
#include "feed/server/PeerWatch.h"
#include "feed/server/SilentClients.h"
#include "feed/server/WorkTurns.h"

#include <asio.hpp>

#include <array>
#include <memory>
#include <string>

namespace zantroq::feed {

class CLevel1Connection : public CWorker,
                          public IFeedConnection,
                          public std::enable_shared_from_this<CLevel1Connection>
{
public:
    // Catalog and turns must outlive the connection.
    CLevel1Connection(asio::ip::tcp::socket socket, CMarketCatalog& catalog, const sLIVE_OPTIONS& options,
                      CWorkTurns& turns);
    void Start() { Read(); }
    WorkProgress Work(CWorkSlice& slice) override;
    bool HasSentLine() const override { return m_hasSentLine; }
    void Close() override;

private:
    void Read();
    void ReadOn(); // reads unless too much is pending
    void OnRead(std::error_code error, std::size_t count);
    void SendPending();
    void OnSent(std::error_code error);
    void WaitForTrade();

    // In bytes. If a client does not read, its market pauses at this limit and no trade is lost.
    static constexpr std::size_t MaxPendingText = 256 * 1024;
    // At most this many lines of the client, plus the lines of one received block, wait for an answer.
    static constexpr std::size_t MaxPendingLines = 256;

    asio::ip::tcp::socket m_socket;
    CPeerWatch m_peer{m_socket};
    asio::steady_timer m_timer;
    CWorkTurns& m_turns;
    CLevel1Session m_session;
    CClientLines m_lines;
    std::string m_pending, m_underWay; // not sent yet; passed to the socket
    std::array<char, 4096> m_received;
    bool m_hasSentLine = false, m_sending = false, m_reading = false, m_closed = false;
};

} // namespace zantroq::feed
