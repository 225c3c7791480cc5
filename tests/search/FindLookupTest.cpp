// The shipped symbol lookup with a scripted port.
#include "search/FindLookup.h"

#include "SearchFakes.h"

#include "support/ScriptedFeed.h"

#include <csignal>
#include <gtest/gtest.h>

namespace zantroq {
namespace {

using namespace std::chrono_literals;
using test::AwaitTrue;
using test::CScriptedPort;
using TLines = std::vector<std::string>;

constexpr int ShortLimitMs = 200;

class FindLookup : public testing::Test
{
protected:
    std::unique_ptr<ISymbolLookup> Make(std::uint16_t port, int limitMs = BlockingLimitMs)
    {
        m_maker = std::make_unique<CFindLookupMaker>(MakePortKey(port, 1), m_thread,
                                                     [limitMs] { return MakeBlockingConnection(limitMs); });
        return m_maker->Make(m_events);
    }
    bool AwaitLines(std::size_t count)
    {
        return AwaitTrue([&] {
            m_thread.Run();
            return m_events.Lines.size() >= count;
        });
    }

    CScriptedPort m_port;
    test::CTestWindowThread m_thread;
    test::sRecordedEvents m_events;
    std::unique_ptr<CFindLookupMaker> m_maker;
};

} // namespace

TEST_F(FindLookup, ASearchIsOneLineAndItsAnswerComesOnTheWindowsThread)
{
    m_port.SetResponder([](std::string_view line) {
        return line == "FIND,1,d,goo,e,2 3" ? "1,GOOG,2,1,Google Inc.\r\n1,!ENDMSG!,\r\n" : "";
    });
    const auto lookup = Make(m_port.Port());
    ASSERT_NE(lookup, nullptr);
    lookup->Find("d", "goo", "e", "2 3", "");
    EXPECT_TRUE(m_events.Lines.empty());
    ASSERT_TRUE(AwaitLines(2));
    EXPECT_EQ(m_events.Lines, (TLines{"R GOOG,2,1,Google Inc.\r\n", "R !ENDMSG!,\r\n"}));
    EXPECT_EQ(m_port.Connections(), 1);
    EXPECT_TRUE(AwaitTrue([&] { return m_port.PeerClosed(); }));
}

TEST_F(FindLookup, AFeedThatIsNotRunningGivesNoObject)
{
    EXPECT_EQ(Make(test::RefusingPort()), nullptr);
}

TEST_F(FindLookup, EachSearchHasAConnectionOfItsOwn)
{
    m_port.SetResponder(
        [](std::string_view line) { return std::string(line.substr(5, 1)) + ",!ENDMSG!,\r\n"; });
    const auto lookup = Make(m_port.Port());
    lookup->Find("s", "a", "", "", "");
    ASSERT_TRUE(AwaitLines(1));
    lookup->Find("s", "b", "", "", "");
    ASSERT_TRUE(AwaitLines(2));
    EXPECT_EQ(m_port.Received(), "FIND,1,s,a,,\r\nFIND,2,s,b,,\r\n");
    EXPECT_EQ(m_port.Connections(), 2);
}

TEST_F(FindLookup, ANewSearchDropsTheOneUnderWay)
{
    const auto lookup = Make(m_port.Port());
    lookup->Find("s", "a", "", "", "");
    ASSERT_TRUE(m_port.AwaitReceived("FIND,1,s,a,,\r\n"));
    m_port.Send("1,A,1,1,x\r\n");
    m_port.SetResponder(
        [](std::string_view line) { return std::string(line.substr(5, 1)) + ",!ENDMSG!,\r\n"; });
    lookup->Find("s", "b", "", "", "");
    ASSERT_TRUE(AwaitLines(1));
    EXPECT_EQ(m_events.Lines, TLines{"R !ENDMSG!,\r\n"});
}

TEST_F(FindLookup, APeerThatClosesEarlyEndsTheSearchWithoutAnAnswer)
{
    const auto lookup = Make(m_port.Port());
    lookup->Find("s", "a", "", "", "");
    ASSERT_TRUE(m_port.AwaitReceived("FIND,1,s,a,,\r\n"));
    m_port.Send("1,A,1,1,x\r\n1,B,1");
    m_port.CloseConnection();
    ASSERT_TRUE(AwaitLines(2));
    EXPECT_EQ(m_events.Lines, (TLines{"R A,1,1,x\r\n", "-"}));
}

TEST_F(FindLookup, FiveSecondsWithoutAByteAreLikeAPeerThatClosed)
{
    const auto lookup = Make(m_port.Port(), ShortLimitMs);
    lookup->Find("s", "a", "", "", "");
    ASSERT_TRUE(AwaitLines(1));
    EXPECT_EQ(m_events.Lines, TLines{"-"});
}

TEST_F(FindLookup, AFeedThatHasGoneGivesNoAnswer)
{
    auto port = std::make_unique<CScriptedPort>();
    port->SetResponder([](std::string_view) { return "1,!ENDMSG!,\r\n"; });
    const auto lookup = Make(port->Port());
    lookup->Find("s", "a", "", "", "");
    ASSERT_TRUE(AwaitLines(1));
    port.reset();
    lookup->Find("s", "b", "", "", "");
    ASSERT_TRUE(AwaitLines(2));
    EXPECT_EQ(m_events.Lines.back(), "-");
}

// The window must not wait for a silent feed when the dialog closes.
TEST_F(FindLookup, AnObjectThatGoesWhileItWaitsGoesAtOnceAndSendsNoEvent)
{
    auto lookup = Make(m_port.Port());
    lookup->Find("s", "a", "", "", "");
    ASSERT_TRUE(m_port.AwaitReceived("FIND,1,s,a,,\r\n"));
    m_port.Send("1,A,1,1,x\r\n");
    const auto before = std::chrono::steady_clock::now();
    lookup.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - before, 4s);
    while (m_thread.Run()) {
    }
    EXPECT_TRUE(m_events.Lines.empty());
    EXPECT_TRUE(AwaitTrue([&] { return m_port.PeerClosed(); }));
}

TEST_F(FindLookup, AnAnswerCutAtEachByteIsTheSame)
{
    const std::string answer = "1,A,1,1,x\r\n1,!ENDMSG!,\r\n";
    std::vector<std::size_t> cuts(answer.size());
    for (std::size_t i = 0; i < cuts.size(); ++i)
        cuts[i] = i;
    const auto lookup = Make(m_port.Port());
    lookup->Find("s", "a", "", "", "");
    ASSERT_TRUE(m_port.AwaitReceived("FIND"));
    std::thread sender([&] { m_port.SendCut(answer, cuts); });
    EXPECT_TRUE(AwaitLines(2));
    sender.join();
    EXPECT_EQ(m_events.Lines, (TLines{"R A,1,1,x\r\n", "R !ENDMSG!,\r\n"}));
}

// One block at a time waits for the window, however fast the feed sends.
TEST_F(FindLookup, AFeedThatSendsWithoutAnEndWaitsForTheWindow)
{
    auto lookup = Make(m_port.Port());
    lookup->Find("s", "a", "", "", "");
    ASSERT_TRUE(m_port.AwaitReceived("FIND"));
    std::string rows;
    while (rows.size() < 300'000)
        rows += "1,A,1,1,a row like any other\r\n";
    std::thread sender([&] { m_port.Send(rows); });
    std::size_t most = 0, before = 0;
    while (m_events.Lines.size() * 30 < rows.size()) {
        m_thread.Run();
        most = std::max(most, m_events.Lines.size() - before);
        before = m_events.Lines.size();
    }
    sender.join();
    EXPECT_LE(most * 30, 65'535u + 30);
}

} // namespace zantroq
