#include "conveniences/Reconnection.h"

#include <gtest/gtest.h>

namespace zantroq::test {

TEST(Reconnection, IsNeverDueWhileTheFeedIsThere)
{
    const CReconnection reconnection;
    EXPECT_FALSE(reconnection.IsDue(1e9));
}

TEST(Reconnection, TriesAfterOneTwoFiveAndThenEveryTenSeconds)
{
    CReconnection reconnection;
    double now = 100;
    reconnection.FeedAway(now);
    for (const double delay : {1.0, 2.0, 5.0, 10.0, 10.0, 10.0}) {
        EXPECT_FALSE(reconnection.IsDue(now + delay - 0.01)) << delay;
        now += delay;
        EXPECT_TRUE(reconnection.IsDue(now)) << delay;
        reconnection.AttemptFailed(now);
    }
}

TEST(Reconnection, SeeingTheFeedAwayAgainDoesNotPutTheAttemptOff)
{
    CReconnection reconnection;
    reconnection.FeedAway(0);
    reconnection.FeedAway(0.9);
    EXPECT_TRUE(reconnection.IsDue(1));
}

TEST(Reconnection, BeginsWithOneSecondAgainAfterASuccess)
{
    CReconnection reconnection;
    reconnection.FeedAway(0);
    reconnection.AttemptFailed(1);
    reconnection.Reset();
    EXPECT_FALSE(reconnection.IsDue(100));
    reconnection.FeedAway(100);
    EXPECT_TRUE(reconnection.IsDue(101));
}

} // namespace zantroq::test
