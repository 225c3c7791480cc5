// What is known about the feed's two connections and about requests that the feed refused. The worker writes
// it, windows read it. Nothing of the chart depends on it; it exists so that a user can be informed. Any
// thread.
#pragma once

#include "platform/Lock.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace zantroq {

enum class FeedPort
{
    Lookup,
    Level1
};

enum class PortState
{
    Connecting,
    Connected,
    Refused, // nobody listens on the port, or there was no socket to be had
    Lost     // was connected; the feed has closed, or the connection broke
};

struct sPortStatus
{
    PortState State = PortState::Connecting;
    std::uint16_t Port = 0;
    bool operator==(const sPortStatus&) const = default;
};

struct sFeedStatus
{
    sPortStatus Lookup, Level1;
    int Connection = 0; // counts the connections of this process to a feed, from 1; 0: none was begun
    bool operator==(const sFeedStatus&) const = default;

    bool Connected() const
    {
        return Lookup.State == PortState::Connected && Level1.State == PortState::Connected;
    }
};

struct sLastTrade
{
    double Price = 0;
    std::int64_t Size = 0;
    bool operator==(const sLastTrade&) const = default;
};

class CFeedStatus
{
public:
    void Connecting(FeedPort port, std::uint16_t number);
    void ConnectionMade(FeedPort port, int errorCode); // 0: connected
    void ConnectionLost(FeedPort port);
    sFeedStatus Read() const; // Connection is 0

    // The feed answered a request with an error line. Kept until the request is sent again, for the 256
    // requests with the highest handles.
    void NoteRefusal(std::int32_t handle, std::string_view reason);
    void ForgetRefusal(std::int32_t handle);
    std::optional<std::string> Refusal(std::int32_t handle) const;

    // The last trade that the feed reported of a symbol; empty before the first one.
    void NoteTrade(std::string_view symbol, double price, std::int64_t size);
    std::optional<sLastTrade> LastTrade(std::string_view symbol) const;
    // The feed announced that the symbol's trades are simulated.
    void NoteSimulated(std::string_view symbol);
    bool IsSimulated(std::string_view symbol) const;

private:
    sPortStatus& Of(FeedPort port) REQUIRES(m_lock) { return port == FeedPort::Lookup ? m_lookup : m_level1; }

    mutable CLock m_lock;
    sPortStatus m_lookup GUARDED_BY(m_lock), m_level1 GUARDED_BY(m_lock);
    std::map<std::int32_t, std::string> m_refusals GUARDED_BY(m_lock);          // by handle
    std::map<std::string, sLastTrade, std::less<>> m_trades GUARDED_BY(m_lock); // by symbol
    std::set<std::string, std::less<>> m_simulated GUARDED_BY(m_lock);
};

} // namespace zantroq
