#include "conveniences/Reconnection.h"

#include <algorithm>
#include <array>

namespace zantroq {

namespace {

constexpr std::array Delays{1.0, 2.0, 5.0, 10.0}; // seconds; the last one repeats

double DelayAfter(int failed)
{
    return Delays[std::min(static_cast<std::size_t>(failed), Delays.size() - 1)];
}

} // namespace

void CReconnection::FeedAway(double now)
{
    if (!m_due)
        m_due = now + DelayAfter(0);
}

void CReconnection::AttemptFailed(double now)
{
    m_due = now + DelayAfter(++m_failed);
}

void CReconnection::Reset()
{
    m_due.reset();
    m_failed = 0;
}

} // namespace zantroq
