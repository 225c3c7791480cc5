// Closes connections whose client never sends a line, so that they cannot use up the descriptors of the
// process. Feed thread only.
#pragma once

#include <asio.hpp>

#include <chrono>
#include <deque>
#include <memory>

namespace zantroq::feed {

class IFeedConnection
{
public:
    virtual ~IFeedConnection() = default;
    virtual bool HasSentLine() const = 0;
    // Closes the socket at once and drops all work.
    virtual void Close() = 0;
};

class CSilentClients
{
public:
    // `limit`: time that a client has after it connected to send its first line.
    CSilentClients(asio::io_context& context, std::chrono::milliseconds limit)
        : m_timer(context), m_limit(limit)
    {
    }

    void Add(const std::shared_ptr<IFeedConnection>& connection);
    // Closes the connection that has been silent longest. Returns false if no connection is silent.
    bool CloseOldest();

private:
    using TClock = std::chrono::steady_clock;
    struct sENTRY
    {
        std::weak_ptr<IFeedConnection> Connection;
        TClock::time_point End;
    };

    bool CloseFirst();
    void Wait();

    asio::steady_timer m_timer;
    const std::chrono::milliseconds m_limit;
    std::deque<sENTRY>
        m_entries; // Oldest first; entries of clients that have sent a line or gone are skipped.
    bool m_waiting = false;
};

} // namespace zantroq::feed
