#include "conveniences/FeedWatch.h"

#include <gtest/gtest.h>

namespace zantroq::test {
namespace {

sFeedStatus Feed(PortState lookup, PortState level1, int connection = 1)
{
    return {{lookup, 9100}, {level1, 5009}, connection};
}

sFeedStatus Standing(int connection = 1)
{
    return Feed(PortState::Connected, PortState::Connected, connection);
}

// A live chart of GOOG, by ticks.
sFeedObservation Chart(const sFeedStatus& feed, double now = 0)
{
    sFeedObservation seen;
    seen.Feed = feed;
    seen.Now = now;
    seen.TimeOfDay = "14:03:10";
    seen.Symbol = "GOOG";
    seen.Points = 100;
    return seen;
}

sFeedObservation Loading(double now, int points)
{
    sFeedObservation seen = Chart(Standing(), now);
    seen.Loading = true;
    seen.Points = points;
    return seen;
}

sFeedObservation Refused(ProbeState probe, int probeType = 0)
{
    sFeedObservation seen = Loading(0, 0);
    seen.Refused = true;
    seen.Probe = probe;
    seen.ProbeType = probeType;
    return seen;
}

} // namespace

TEST(FeedWatch, AFeedThatStandsNeedsNoWords)
{
    CFeedWatch watch;
    const sFeedView view = watch.Observe(Chart(Standing()));
    EXPECT_EQ(view.Strip, sStrip());
    EXPECT_FALSE(view.PricesStale);
    EXPECT_FALSE(view.Connect || view.AskAgain || view.Probe);
}

TEST(FeedWatch, NothingIsSaidWhileTheConnectionIsBeingMade)
{
    CFeedWatch watch;
    EXPECT_EQ(watch.Observe(Chart(Feed(PortState::Connecting, PortState::Connecting))).Strip, sStrip());
}

TEST(FeedWatch, NobodyOnThePortIsNamedWithItsAddress)
{
    CFeedWatch watch;
    const sStrip strip = watch.Observe(Chart(Feed(PortState::Refused, PortState::Refused))).Strip;
    EXPECT_EQ(strip.Sentence, "There is no feed on 127.0.0.1:9100.");
    EXPECT_EQ(strip.Button, "Retry");
    EXPECT_EQ(strip.Action, StripAction::Connect);
}

TEST(FeedWatch, TheRefusingPortOfTheTwoIsTheOneThatIsNamed)
{
    CFeedWatch watch;
    EXPECT_EQ(watch.Observe(Chart(Feed(PortState::Connected, PortState::Refused))).Strip.Sentence,
              "There is no feed on 127.0.0.1:5009.");
}

TEST(FeedWatch, AHostWithRecordingsOffersThemWhereNoFeedWasEverThere)
{
    CFeedWatch watch;
    watch.CanUseRecordings = true;
    const sStrip strip = watch.Observe(Chart(Feed(PortState::Refused, PortState::Refused))).Strip;
    EXPECT_EQ(strip.Button, "Use the recorded market");
    EXPECT_EQ(strip.Action, StripAction::UseRecordedMarket);
}

TEST(FeedWatch, ALostFeedIsSaidWithItsTimeAndMakesThePricesStale)
{
    for (const sFeedStatus& lost :
         {Feed(PortState::Lost, PortState::Connected), Feed(PortState::Connected, PortState::Lost),
          Feed(PortState::Lost, PortState::Lost)}) {
        CFeedWatch watch;
        watch.CanUseRecordings = true; // a genuine market is not to be replaced by a recorded one
        watch.Observe(Chart(Standing()));
        sFeedView view = watch.Observe(Chart(lost));
        EXPECT_EQ(view.Strip.Sentence, "The feed was lost at 14:03:10; prices stand.");
        EXPECT_EQ(view.Strip.Button, "Reconnect");
        EXPECT_EQ(view.Strip.Action, StripAction::Connect);
        EXPECT_TRUE(view.PricesStale);

        sFeedObservation later = Chart(lost, 60);
        later.TimeOfDay = "14:04:10";
        EXPECT_EQ(watch.Observe(later).Strip, view.Strip) << "the time is that of the loss";
    }
}

TEST(FeedWatch, AFeedThatWasLostBeforeTheFirstLookIsSaidToBeLost)
{
    CFeedWatch watch;
    EXPECT_EQ(watch.Observe(Chart(Feed(PortState::Lost, PortState::Lost))).Strip.Button, "Reconnect");
}

TEST(FeedWatch, AnAttemptThatFailsKeepsTheTimeOfTheLoss)
{
    CFeedWatch watch;
    watch.Observe(Chart(Standing()));
    watch.Observe(Chart(Feed(PortState::Lost, PortState::Lost)));
    sFeedObservation retried = Chart(Feed(PortState::Refused, PortState::Refused, 2), 5);
    retried.TimeOfDay = "14:03:15";
    const sFeedView view = watch.Observe(retried);
    EXPECT_EQ(view.Strip.Sentence, "The feed was lost at 14:03:10; prices stand.");
    EXPECT_TRUE(view.PricesStale);
}

TEST(FeedWatch, AnIdleWindowHasNoPricesToBeStale)
{
    CFeedWatch watch;
    sFeedObservation idle = Chart(Standing());
    idle.Symbol.clear();
    watch.Observe(idle);
    idle.Feed = Feed(PortState::Lost, PortState::Lost);
    EXPECT_FALSE(watch.Observe(idle).PricesStale);
}

TEST(FeedWatch, ANewConnectionAsksOnceForTheChart)
{
    CFeedWatch watch;
    watch.Observe(Chart(Standing(1)));
    watch.Observe(Chart(Feed(PortState::Lost, PortState::Lost, 1)));
    EXPECT_FALSE(watch.Observe(Chart(Feed(PortState::Connecting, PortState::Connected, 2))).AskAgain);
    sFeedView view = watch.Observe(Chart(Standing(2)));
    EXPECT_TRUE(view.AskAgain);
    EXPECT_FALSE(view.PricesStale);
    EXPECT_EQ(view.Strip, sStrip());
    EXPECT_FALSE(watch.Observe(Chart(Standing(2))).AskAgain);
}

TEST(FeedWatch, AnIdleWindowAsksForNothingOnANewConnection)
{
    CFeedWatch watch;
    sFeedObservation idle = Chart(Feed(PortState::Refused, PortState::Refused, 1));
    idle.Symbol.clear();
    watch.Observe(idle);
    idle.Feed = Standing(2);
    EXPECT_FALSE(watch.Observe(idle).AskAgain);
    EXPECT_FALSE(watch.Observe(Chart(Standing(2))).AskAgain) << "the chart was asked for on this connection";
}

TEST(FeedWatch, ConnectsByItselfOnlyWhereThatIsSwitchedOn)
{
    for (const bool byItself : {false, true}) {
        CFeedWatch watch;
        watch.ReconnectByItself = byItself;
        const sFeedStatus lost = Feed(PortState::Lost, PortState::Lost);
        watch.Observe(Chart(Standing(), 0));
        EXPECT_FALSE(watch.Observe(Chart(lost, 10)).Connect);
        EXPECT_FALSE(watch.Observe(Chart(lost, 10.9)).Connect);
        EXPECT_EQ(watch.Observe(Chart(lost, 11)).Connect, byItself);
    }
}

TEST(FeedWatch, AFailedAttemptIsFollowedByTheNextAfterTwoSeconds)
{
    CFeedWatch watch;
    watch.ReconnectByItself = true;
    watch.Observe(Chart(Feed(PortState::Refused, PortState::Refused, 1), 0));
    ASSERT_TRUE(watch.Observe(Chart(Feed(PortState::Refused, PortState::Refused, 1), 1)).Connect);
    const sFeedStatus again = Feed(PortState::Refused, PortState::Refused, 2);
    EXPECT_FALSE(watch.Observe(Chart(again, 1.25)).Connect);
    EXPECT_FALSE(watch.Observe(Chart(again, 3.2)).Connect);
    EXPECT_TRUE(watch.Observe(Chart(again, 3.25)).Connect);
}

TEST(FeedWatch, APortThatBringsNothingForTenSecondsIsSaidToBeSilent)
{
    CFeedWatch watch;
    EXPECT_EQ(watch.Observe(Loading(0, 0)).Strip, sStrip());
    EXPECT_EQ(watch.Observe(Loading(9.9, 0)).Strip, sStrip());
    const sStrip strip = watch.Observe(Loading(10, 0)).Strip;
    EXPECT_EQ(strip.Sentence, "The feed on 127.0.0.1:9100 has not answered for 10 seconds.");
    EXPECT_EQ(strip.Button, "Retry");
}

TEST(FeedWatch, ASlowLoadIsNotSilent)
{
    CFeedWatch watch;
    for (int second = 0; second < 100; second += 9)
        EXPECT_EQ(watch.Observe(Loading(second, second)).Strip, sStrip()) << second;
}

TEST(FeedWatch, TheWaitBeginsAnewWithEachLoad)
{
    CFeedWatch watch;
    watch.Observe(Loading(0, 0));
    watch.Observe(Chart(Standing(), 9));
    EXPECT_EQ(watch.Observe(Loading(11, 0)).Strip, sStrip());
    EXPECT_NE(watch.Observe(Loading(21, 0)).Strip, sStrip());
}

TEST(FeedWatch, ARefusedChartIsLookedInto)
{
    CFeedWatch watch;
    const sFeedView view = watch.Observe(Refused(ProbeState::Open));
    EXPECT_TRUE(view.Probe);
    EXPECT_EQ(view.Strip.Sentence, "GOOG has no ticks here.");
    EXPECT_EQ(view.Strip.Button, "");
}

TEST(FeedWatch, ASymbolWithoutAnyDataIsUnknown)
{
    CFeedWatch watch;
    const sStrip strip = watch.Observe(Refused(ProbeState::Nothing)).Strip;
    EXPECT_EQ(strip.Sentence, "The feed knows no GOOG.");
    EXPECT_EQ(strip.Button, "");
}

TEST(FeedWatch, ASymbolWithOtherDataOffersIt)
{
    CFeedWatch watch;
    sStrip strip = watch.Observe(Refused(ProbeState::Found, 2)).Strip;
    EXPECT_EQ(strip.Sentence, "GOOG has no ticks here, it has days.");
    EXPECT_EQ(strip.Button, "Show daily");
    EXPECT_EQ(strip.Action, StripAction::ShowDataType);
    EXPECT_EQ(strip.DataType, 2);
    strip = watch.Observe(Refused(ProbeState::Found, 1)).Strip;
    EXPECT_EQ(strip.Sentence, "GOOG has no ticks here, it has minutes.");
    EXPECT_EQ(strip.Button, "Show minutes");
}

TEST(FeedWatch, ARangeWithoutPointsIsNotASymbolWithoutPoints)
{
    CFeedWatch watch;
    const sStrip strip = watch.Observe(Refused(ProbeState::Found, 0)).Strip;
    EXPECT_EQ(strip.Sentence, "GOOG has no ticks in the range that was asked for.");
    EXPECT_EQ(strip.Button, "");
}

TEST(FeedWatch, SettingsThatWaitAreSaidWhenNothingElseIsWrong)
{
    CFeedWatch watch;
    sFeedObservation seen = Chart(Standing());
    seen.SettingsWaiting = true;
    EXPECT_EQ(watch.Observe(seen).Strip.Sentence,
              "The settings could not be kept: the settings file cannot be written.");
    seen.Feed = Feed(PortState::Lost, PortState::Lost);
    EXPECT_EQ(watch.Observe(seen).Strip.Button, "Reconnect");
}

TEST(FeedWatch, ASimulatedMarketIsSaidWhenNothingIsWrong)
{
    CFeedWatch watch;
    sFeedObservation seen = Chart(Standing());
    seen.Simulated = true;
    EXPECT_EQ(watch.Observe(seen).Strip.Sentence, "GOOG: simulated live trades, not a genuine market.");
    seen.Feed = Feed(PortState::Lost, PortState::Lost);
    EXPECT_EQ(watch.Observe(seen).Strip.Button, "Reconnect");
}

} // namespace zantroq::test
