// A chart window with the real worker and a feed on two loopback ports.
#include "WindowFakes.h"

#include "market/ManagerThreadHolder.h"
#include "market/RequestTable.h"
#include "studies/StudyFactory.h"
#include "support/ScriptedFeed.h"
#include "window/ChartDlg.h"
#include "window/ManagerThreadFeed.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace zantroq {
namespace {

using namespace test;

std::string TickLine(const std::string& id, int k)
{
    char text[160];
    std::snprintf(text, sizeof text, "%s,2014-01-02 09:%02d:%02d.000,%d.25,100,%d,101.20,101.30,%d,C\r\n",
                  id.c_str(), 30 + k / 60, k % 60, 100 + k % 7, 5000 + k, k);
    return text;
}

std::string RequestId(std::string_view command)
{
    return std::string(command.substr(command.rfind(',') + 1));
}

std::string Reply(const std::string& id, int ticks)
{
    std::string text;
    for (int k = 0; k < ticks; ++k)
        text += TickLine(id, k);
    return text + id + ",!ENDMSG!,\r\n";
}

std::string Trade(const std::string& symbol, int k)
{
    char text[200];
    std::snprintf(
        text, sizeof text,
        "Q,%s,9000,50,110,90,101,102,1,1,10:%02d:%02d.000,0,100,99,01/02/2014,105.5,14,%d,1,1,1,C,01\r\n",
        symbol.c_str(), k / 60, k % 60, 1000 + k);
    return text;
}

struct sLiveFixture
{
    sLiveFixture() { Holder.AddControl(Feed.Key()); }
    ~sLiveFixture()
    {
        Window.reset();
        Holder.RemoveControl(nullptr);
    }
    void Open()
    {
        Window = std::make_unique<CChartDlg>(sChartDlgSetup{Desktop.Services(), *Key, Link, &Studies});
        Window->Initialise();
    }
    bool AwaitDrawn()
    {
        return AwaitTrue([this] {
            Window->OnTimer(ProgressTimer);
            return Window->CompleteAndDrawn();
        });
    }
    CScriptedFeed Feed;
    CManagerThreadHolder Holder;
    CManagerThreadFeed Link{Holder};
    sFakeDesktop Desktop;
    std::unique_ptr<ISettingsKey> Key = MakeMemorySettingsKey();
    CStudyFactory Studies;
    std::unique_ptr<CChartDlg> Window;
};

TEST(LiveChart, GoesFromASymbolToAViewThatFollowsTrades)
{
    sLiveFixture live;
    live.Feed.Lookup.SetResponder([](std::string_view line) {
        return line.starts_with("HTX,") ? Reply(RequestId(line), 500) : std::string();
    });
    live.Open();
    live.Window->SetSymbol("SIM.A");
    ASSERT_TRUE(live.AwaitDrawn());
    EXPECT_EQ(live.Window->StatusPart(0), "500 datapoints available.  Displaying 120.");
    ASSERT_TRUE(live.Feed.Level1.AwaitReceived("wSIM.A\r\n"));
    for (int k = 0; k < 40; ++k)
        live.Feed.Level1.Send(Trade("SIM.A", k));
    ASSERT_TRUE(AwaitTrue([&live] {
        live.Window->OnTimer(ProgressTimer);
        return live.Window->Range().knownCount == 540;
    }));
    EXPECT_EQ(live.Window->Range().last, 539);
    EXPECT_EQ(live.Window->StatusPart(0), "540 datapoints available.  Displaying 120.");
    EXPECT_EQ(live.Window->Pane(0).PaneGroups(1).PaneData().PointY(1, 120), 105.5);
}

TEST(LiveChart, ASecondSymbolUnwatchesTheFirst)
{
    sLiveFixture live;
    live.Feed.Lookup.SetResponder([](std::string_view line) {
        return line.starts_with("HTX,") ? Reply(RequestId(line), 10) : std::string();
    });
    live.Open();
    live.Window->SetSymbol("A");
    ASSERT_TRUE(live.AwaitDrawn());
    live.Window->SetSymbol("B");
    ASSERT_TRUE(live.AwaitDrawn());
    EXPECT_TRUE(live.Feed.Level1.AwaitReceived("rA\r\nwB\r\n"));
    EXPECT_EQ(live.Window->Range().knownCount, 10);
}

TEST(LiveChart, AWindowThatClosesDuringALoadLeavesItsSeriesToTheReplysEnd)
{
    sLiveFixture live;
    live.Open();
    live.Window->SetSymbol("A");
    ASSERT_TRUE(live.Feed.Lookup.AwaitReceived("HTX,A,"));
    const int before = CountRequests();
    const std::string id = "0" + std::to_string(live.Window->Series()->Handle());
    live.Feed.Lookup.Send(TickLine(id, 0));
    live.Window.reset();
    EXPECT_EQ(CountRequests(), before);
    live.Feed.Lookup.Send(Reply(id, 50));
    EXPECT_TRUE(AwaitTrue([before] { return CountRequests() == before - 1; }));
}

TEST(LiveChart, CommandsAndLinesMayMeetAtAnyMoment)
{
    sLiveFixture live;
    live.Feed.Lookup.SetResponder([](std::string_view line) {
        return line.starts_with("HTX,") ? Reply(RequestId(line), 300) : std::string();
    });
    live.Open();
    for (int round = 0; round < 20; ++round) {
        live.Window->SetSymbol("S" + std::to_string(round % 3));
        for (int k = 0; k < 5; ++k) {
            live.Feed.Level1.Send(Trade("S" + std::to_string(round % 3), k));
            live.Window->OnTimer(ProgressTimer);
            live.Window->OnCommand(k % 2 == 0 ? CommandZoomIn : CommandZoomOut);
            live.Window->OnHScroll(ScrollCode::PageLeft, 0);
            live.Window->OnChartMouseMove(FirstPaneControl, 0, 0, 100 + k, 80);
        }
    }
    ASSERT_TRUE(live.AwaitDrawn());
    // The end of an older reply may have completed the chart before the newest reply is all there.
    EXPECT_TRUE(AwaitTrue([&live] { return live.Window->Series()->GetCount(FieldTime) >= 300; }));
}

} // namespace
} // namespace zantroq
