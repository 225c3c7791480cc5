#include "market/FeedStatus.h"

namespace zantroq {

namespace {

constexpr std::size_t MostRefusals = 256;

} // namespace

void CFeedStatus::Connecting(FeedPort port, std::uint16_t number)
{
    CLockGuard guard(m_lock);
    Of(port) = {PortState::Connecting, number};
}

void CFeedStatus::ConnectionMade(FeedPort port, int errorCode)
{
    CLockGuard guard(m_lock);
    Of(port).State = errorCode == 0 ? PortState::Connected : PortState::Refused;
}

void CFeedStatus::ConnectionLost(FeedPort port)
{
    CLockGuard guard(m_lock);
    Of(port).State = PortState::Lost;
}

sFeedStatus CFeedStatus::Read() const
{
    CLockGuard guard(m_lock);
    return {m_lookup, m_level1, 0};
}

void CFeedStatus::NoteRefusal(std::int32_t handle, std::string_view reason)
{
    CLockGuard guard(m_lock);
    m_refusals[handle] = reason;
    if (m_refusals.size() > MostRefusals)
        m_refusals.erase(m_refusals.begin());
}

void CFeedStatus::ForgetRefusal(std::int32_t handle)
{
    CLockGuard guard(m_lock);
    m_refusals.erase(handle);
}

std::optional<std::string> CFeedStatus::Refusal(std::int32_t handle) const
{
    CLockGuard guard(m_lock);
    const auto found = m_refusals.find(handle);
    return found == m_refusals.end() ? std::nullopt : std::optional(found->second);
}

void CFeedStatus::NoteTrade(std::string_view symbol, double price, std::int64_t size)
{
    CLockGuard guard(m_lock);
    const auto found = m_trades.find(symbol);
    if (found != m_trades.end())
        found->second = {price, size};
    else
        m_trades.emplace(symbol, sLastTrade{price, size});
}

std::optional<sLastTrade> CFeedStatus::LastTrade(std::string_view symbol) const
{
    CLockGuard guard(m_lock);
    const auto found = m_trades.find(symbol);
    return found == m_trades.end() ? std::nullopt : std::optional(found->second);
}

void CFeedStatus::NoteSimulated(std::string_view symbol)
{
    CLockGuard guard(m_lock);
    m_simulated.emplace(symbol);
}

bool CFeedStatus::IsSimulated(std::string_view symbol) const
{
    CLockGuard guard(m_lock);
    return m_simulated.contains(symbol);
}

} // namespace zantroq
