// The controls of a process and the worker that they share, and what remains after the last control.
#include "ControlFixture.h"

#include "market/RequestTable.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <vector>

namespace zantroq::test {
namespace {

class Controls : public CControlFixture
{
};

int EntriesOf(const char* folder)
{
    int entries = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder))
        ++entries;
    return entries;
}

// What a process can leave open: threads and file handles, sockets included.
struct sHeld
{
    int Threads = EntriesOf("/proc/self/task");
    int Handles = EntriesOf("/proc/self/fd");
    int Requests = CountRequests();
    bool operator==(const sHeld&) const = default;
};

std::ostream& operator<<(std::ostream& out, const sHeld& held)
{
    return out << held.Threads << " threads, " << held.Handles << " handles, " << held.Requests
               << " requests";
}

} // namespace

TEST_F(Controls, ShareOneWorkerFromTheFirstToTheLast)
{
    EXPECT_FALSE(ManagerThreadHolder().Running());
    auto first = Make();
    EXPECT_EQ(ManagerThreadHolder().ControlCount(), 1);
    EXPECT_TRUE(ManagerThreadHolder().Running());
    auto second = Make();
    EXPECT_EQ(ManagerThreadHolder().ControlCount(), 2);
    second->SetStockSymbol("AAA");
    ASSERT_TRUE(AwaitDrawn(*second));
    EXPECT_EQ(m_feed.Lookup.Connections(), 1);
    EXPECT_EQ(m_feed.Level1.Connections(), 1);
    first.reset();
    EXPECT_TRUE(ManagerThreadHolder().Running());
    EXPECT_FALSE(m_feed.Lookup.PeerClosed());
    second.reset();
    EXPECT_EQ(ManagerThreadHolder().ControlCount(), 0);
    EXPECT_FALSE(ManagerThreadHolder().Running());
    EXPECT_TRUE(PumpUntil([this] { return m_feed.Lookup.PeerClosed() && m_feed.Level1.PeerClosed(); }));
}

TEST_F(Controls, ALaterControlStartsTheWorkerAfresh)
{
    Make().reset();
    const auto later = Make();
    later->SetStockSymbol("AAA");
    EXPECT_TRUE(AwaitDrawn(*later));
    EXPECT_EQ(m_feed.Lookup.Connections(), 2);
}

TEST_F(Controls, ClosingOneLeavesTheOthersUpdatesRunning)
{
    auto closed = Make();
    const auto other = Make();
    closed->SetStockSymbol("AAA");
    other->SetStockSymbol("AAA");
    ASSERT_TRUE(AwaitDrawn(*closed));
    ASSERT_TRUE(AwaitDrawn(*other));
    closed.reset();
    for (int k = 0; k < 5; ++k)
        m_feed.Level1.Send(TradeLine("AAA", k));
    EXPECT_TRUE(PumpUntil([&] { return Points(*other) == 35; }));
}

TEST_F(Controls, TheLastOneUnwatchesItsSymbolBeforeTheConnectionsClose)
{
    auto control = Make();
    control->SetStockSymbol("AAA");
    ASSERT_TRUE(AwaitDrawn(*control));
    control.reset();
    EXPECT_TRUE(m_feed.Level1.AwaitReceived("wAAA\r\nrAAA\r\n"));
}

// At its end the window unwatches its series only if the symbol box has a text.
TEST_F(Controls, TheLastOneUnwatchesItsSymbolAlsoFromAnEmptiedBox)
{
    auto control = Make();
    control->SetStockSymbol("AAA");
    ASSERT_TRUE(AwaitDrawn(*control));
    control->SetStockSymbol("");
    control.reset();
    EXPECT_TRUE(m_feed.Level1.AwaitReceived("wAAA\r\nrAAA\r\n"));
}

TEST_F(Controls, TenWindowsDrawTheirSymbols)
{
    std::vector<std::unique_ptr<CChartCtrl>> windows;
    for (int k = 0; k < 10; ++k) {
        windows.push_back(Make());
        windows.back()->resize(400, 300);
        windows.back()->show();
        windows.back()->SetStockSymbol(QString("S%1").arg(k));
    }
    for (int k = 0; k < 10; ++k) {
        ASSERT_TRUE(AwaitDrawn(*windows[static_cast<std::size_t>(k)])) << k;
        EXPECT_EQ(windows[static_cast<std::size_t>(k)]->windowTitle(), QString("S%1 - Chart").arg(k));
    }
    EXPECT_EQ(m_feed.Lookup.Connections(), 1);
}

TEST_F(Controls, ClosedInAnyOrderLeaveNothingBehind)
{
    // An idle control, a control with a chart, and a control that is loading.
    const std::array<const char*, 3> symbols{"", "AAA", "SLOW"};
    const auto open = [&] {
        std::array<std::unique_ptr<CChartCtrl>, 3> controls;
        for (std::size_t i = 0; i < controls.size(); ++i) {
            controls[i] = Make();
            controls[i]->show();
            if (*symbols[i] != '\0')
                controls[i]->SetStockSymbol(symbols[i]);
        }
        EXPECT_TRUE(AwaitDrawn(*controls[1]));
        EXPECT_TRUE(m_feed.Lookup.AwaitReceived("HTX,SLOW,"));
        return controls;
    };
    {
        const auto first = open(); // everything that the toolkit keeps is open from here on
    }
    ASSERT_TRUE(PumpUntil([this] { return m_feed.Lookup.PeerClosed() && m_feed.Level1.PeerClosed(); }));
    // The feed of this test keeps its side of closed connections: two handles per round.
    int rounds = 0;
    const sHeld before;
    std::array<std::size_t, 3> order{0, 1, 2};
    do {
        auto controls = open();
        for (const std::size_t next : order)
            controls[next].reset();
        ++rounds;
        sHeld expected = before;
        EXPECT_TRUE(PumpUntil([&] { return sHeld() == expected; })) << sHeld() << " instead of " << expected;
    } while (std::next_permutation(order.begin(), order.end()));
    EXPECT_EQ(rounds, 6);
}

TEST_F(Controls, ASeriesThatStillLoadedIsFreedWhenItsReplyCanNoLongerCome)
{
    const int before = CountRequests();
    auto control = Make();
    control->SetStockSymbol("SLOW");
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived("HTX,SLOW,"));
    control.reset();
    EXPECT_EQ(CountRequests(), before);
}

TEST_F(Controls, WithoutAFeedAControlKeepsItsLoadingTextAndGoesQuietly)
{
    sChartCtrlSetup setup;
    setup.ChartKey = m_key;
    setup.FeedKey = MakePortKey(RefusingPort(), RefusingPort());
    setup.Popups = false;
    auto control = CChartBody::MakeControl(nullptr, setup);
    control->show();
    control->SetStockSymbol("AAA");
    EXPECT_TRUE(PumpUntil(
        [&] { return Window(*control).StatusPart(0) == "Retrieving Tick Data (0 Ticks Received)"; }));
    control.reset();
    EXPECT_FALSE(ManagerThreadHolder().Running());
}

} // namespace zantroq::test
