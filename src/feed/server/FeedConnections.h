// One connection of each port. Each keeps itself alive while something is under way on it; all run on the
// feed's thread.
#pragma once

#include "feed/protocol/Level1Session.h"
#include "feed/protocol/LineCutter.h"
#include "feed/protocol/LookupSession.h"

#include <asio.hpp>

#include <array>
#include <memory>

namespace zantroq::feed {

class CLookupConnection : public std::enable_shared_from_this<CLookupConnection>
{
public:
    CLookupConnection(asio::ip::tcp::socket socket, CMarketCatalog& catalog);
    void Start() { Read(); }

private:
    void Read();
    void ReadOn(); // unless too much is pending or the client has nothing more to say
    void Send();

    // Enough for a client that asks ahead; behind this, the client waits until replies have been taken.
    static constexpr std::size_t MaxPendingReplies = 256;
    static constexpr std::size_t BlockSize = 256 * 1024;

    asio::ip::tcp::socket m_socket;
    CLookupSession m_session;
    CLineCutter m_cutter;
    CTextBlock m_block;
    std::array<char, 8192> m_received;
    bool m_reading = false, m_sending = false, m_ended = false;
};

class CLevel1Connection : public std::enable_shared_from_this<CLevel1Connection>
{
public:
    CLevel1Connection(asio::ip::tcp::socket socket, CMarketCatalog& catalog, const sLIVE_OPTIONS& options);
    void Start() { Read(); }

private:
    void Read();
    void Send();
    void WaitForTrade();

    // A client that does not read loses no trade; its market waits. At most so much is ever held for it.
    static constexpr std::size_t MaxPendingText = 256 * 1024;

    asio::ip::tcp::socket m_socket;
    asio::steady_timer m_timer;
    CLevel1Session m_session;
    CLineCutter m_cutter;
    std::string m_pending, m_underWay; // to be sent next, being sent
    std::array<char, 4096> m_received;
    bool m_sending = false, m_reading = false, m_closed = false;
};

} // namespace zantroq::feed
