// Closes connections whose client never says anything, so that they cannot use up the descriptors of the
// process. Used on the feed's thread.
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
    // A client may be silent for `limit` after it has connected.
    CSilentClients(asio::io_context& context, std::chrono::milliseconds limit)
        : m_timer(context), m_limit(limit)
    {
    }

    void Add(const std::shared_ptr<IFeedConnection>& connection);
    // Closes the connection that has been silent for longest; false when there is none.
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
    std::deque<sENTRY> m_entries; // oldest first; those that have spoken or gone are passed over
    bool m_waiting = false;
};

} // namespace zantroq::feed
