#include "feed/server/SilentClients.h"

namespace zantroq::feed {

void CSilentClients::Add(const std::shared_ptr<IFeedConnection>& connection)
{
    m_entries.push_back({connection, TClock::now() + m_limit});
    Wait();
}

bool CSilentClients::CloseOldest()
{
    while (!m_entries.empty())
        if (CloseFirst())
            return true;
    return false;
}

// Removes the first entry; true if that closed a connection.
bool CSilentClients::CloseFirst()
{
    const auto connection = m_entries.front().Connection.lock();
    m_entries.pop_front();
    if (!connection || connection->HasSentLine())
        return false;
    connection->Close();
    return true;
}

void CSilentClients::Wait()
{
    if (m_waiting || m_entries.empty())
        return;
    m_waiting = true;
    m_timer.expires_at(m_entries.front().End);
    m_timer.async_wait([this](std::error_code error) {
        m_waiting = false;
        if (error)
            return;
        while (!m_entries.empty() && m_entries.front().End <= TClock::now())
            CloseFirst();
        Wait();
    });
}

} // namespace zantroq::feed
