// When to connect again to a feed that is away: 1, 2 and 5 seconds after the connection was lost or an attempt
// failed, and then every 10 seconds. Times are seconds of any clock that never goes back. One thread.
#pragma once

#include <optional>

namespace zantroq {

class CReconnection
{
public:
    // The feed was found away: the first attempt is due in a second. Called again before Reset, it changes
    // nothing.
    void FeedAway(double now);
    void AttemptFailed(double now);
    void Reset(); // the feed is there

    bool IsDue(double now) const { return m_due && now >= *m_due; }

private:
    std::optional<double> m_due; // empty: the feed is there
    int m_failed = 0;            // attempts since the feed went away
};

} // namespace zantroq
