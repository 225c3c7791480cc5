// One connection of the level 1 port. Keeps itself alive while something is under way on it; runs on the
// feed's thread.
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
    void ReadOn(); // unless too much is pending
    void OnRead(std::error_code error, std::size_t count);
    void SendPending();
    void OnSent(std::error_code error);
    void WaitForTrade();

    // A client that does not read loses no trade; its market waits. At most so much is ever held for it.
    static constexpr std::size_t MaxPendingText = 256 * 1024;
    // And at most so many of its lines, or one block of them more, wait to be answered.
    static constexpr std::size_t MaxPendingLines = 256;

    asio::ip::tcp::socket m_socket;
    CPeerWatch m_peer{m_socket};
    asio::steady_timer m_timer;
    CWorkTurns& m_turns;
    CLevel1Session m_session;
    CClientLines m_lines;
    std::string m_pending, m_underWay; // to be sent next, being sent
    std::array<char, 4096> m_received;
    bool m_hasSentLine = false, m_sending = false, m_reading = false, m_closed = false;
};

} // namespace zantroq::feed
