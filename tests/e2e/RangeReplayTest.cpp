// Zoom, scroll bar, short and missing replies in scripts.
#include "ScriptedChart.h"

namespace zantroq::test {
namespace {

const std::string DailyX = "type daily\nsymbol X\ndraw\nwait complete\n";

class RangeReplay : public CScriptedChart
{
protected:
    // first, last and shown of a drawn chart after some steps.
    std::vector<int> Range(const std::string& steps)
    {
        const json range = After(DailyX + steps).at("range");
        return {range.at("first"), range.at("last"), range.at("shown")};
    }
    std::vector<bool> ZoomButtons(const std::string& steps)
    {
        const json commands = After(DailyX + steps).at("commands");
        return {commands.at("777").at("enabled"), commands.at("778").at("enabled")};
    }
};

using Ints = std::vector<int>;
using Bools = std::vector<bool>;

} // namespace

TEST_F(RangeReplay, EachScrollCodeMovesAsItIsNamed)
{
    Serve(
        200,
        DayLine); // 120 displayed; the bar is at its limit 81, one after the last position that moves the view
    EXPECT_EQ(Range(""), (Ints{80, 199, 120}));
    EXPECT_EQ(Range("scroll line-left\nscroll line-left"), (Ints{79, 198, 120}));
    EXPECT_EQ(Range("scroll line-right"), (Ints{80, 199, 120}));
    EXPECT_EQ(Range("scroll left-end\nscroll line-left"), (Ints{0, 119, 120}));
    EXPECT_EQ(Range("scroll page-left"), (Ints{0, 119, 120}));
    EXPECT_EQ(Range("scroll left-end\nscroll line-right"), (Ints{1, 120, 120}));
    EXPECT_EQ(Range("scroll left-end\nscroll page-right"), (Ints{80, 199, 120}));
    EXPECT_EQ(Range("scroll left-end\nscroll right-end"), (Ints{80, 199, 120}));
}

TEST_F(RangeReplay, ADraggedThumbDrawsWhereItIsLetGoAndAnEndWithoutADragWhereItStood)
{
    Serve(200, DayLine);
    EXPECT_EQ(Range("scroll track 7"), (Ints{80, 199, 120}));
    EXPECT_EQ(Range("scroll track 7\nscroll end"), (Ints{7, 126, 120}));
    EXPECT_EQ(Range("scroll thumb 11"), (Ints{11, 130, 120}));
    EXPECT_EQ(Range("scroll thumb 11\nscroll end"), (Ints{11, 130, 120}));
}

TEST_F(RangeReplay, ScrollingSaysReadyAgain)
{
    Serve(200, DayLine);
    EXPECT_EQ(After(DailyX).at("status"), "200 datapoints available.  Displaying 120.");
    EXPECT_EQ(After(DailyX + "scroll left-end").at("status"), "Ready");
}

TEST_F(RangeReplay, ZoomGoesThroughThePointsListAndKeepsThePosition)
{
    Serve(200, DayLine);
    EXPECT_EQ(Range("command 777"), (Ints{81, 170, 90}));
    EXPECT_EQ(Range("command 777\ncommand 778"), (Ints{80, 199, 120}));
    EXPECT_EQ(Range("scroll left-end\ncommand 777\ncommand 777\ncommand 777"), (Ints{0, 29, 30}));
    EXPECT_EQ(Range("command 778"), (Ints{0, 199, 200})) << "the entry is 240, the series shorter";
    EXPECT_EQ(Range("command 778\ncommand 778\ncommand 777").at(2), 120)
        << "the first entry below the count, not the next one";
}

TEST_F(RangeReplay, ZoomButtonsStandByTheList)
{
    Serve(200, DayLine);
    EXPECT_EQ(ZoomButtons(""), (Bools{true, true}));
    EXPECT_EQ(ZoomButtons("command 778"), (Bools{true, false}));
    EXPECT_EQ(ZoomButtons("command 777\ncommand 777\ncommand 777"), (Bools{false, true}));
    const json before = After("").at("commands");
    EXPECT_EQ(before.at("777").at("enabled"), false);
    EXPECT_EQ(before.at("778").at("enabled"), false);
}

TEST_F(RangeReplay, ZoomInIsNotOfferedWithThirtyPointsOrLess)
{
    Serve(30, DayLine);
    EXPECT_FALSE(ZoomButtons("").at(0));
    EXPECT_EQ(Range("command 777"), (Ints{0, 29, 30}));
    Serve(31, DayLine);
    EXPECT_TRUE(ZoomButtons("").at(0));
    EXPECT_EQ(Range("command 777").at(2), 30);
}

TEST_F(RangeReplay, ThreePointsFillTheWindowWithoutAScrollBar)
{
    Serve(3, DayLine);
    const json state = After(DailyX);
    const json& range = state.at("range");
    EXPECT_EQ(range.at("first"), 0);
    EXPECT_EQ(range.at("last"), 2);
    EXPECT_EQ(range.at("shown"), 3);
    EXPECT_EQ(range.at("scrollPos"), 0);
    EXPECT_EQ(range.at("scrollVisible"), false);
    EXPECT_EQ(state.at("status"), "3 datapoints available.  Displaying 3.");
    EXPECT_EQ(state.at("panes").at(0).at("groups").at(0).at("series").at(0).at("y"), json({102, 103, 104}));
    EXPECT_EQ(state.at("layout").at("height").get<int>(),
              460 - state.at("layout").at("topOffset").get<int>() - 20);
}

TEST_F(RangeReplay, OnePointIsAChart)
{
    Serve(1, DayLine);
    const json state = After(DailyX);
    EXPECT_EQ(state.at("range").at("shown"), 1);
    EXPECT_EQ(state.at("status"), "1 datapoints available.  Displaying 1.");
    EXPECT_EQ(state.at("loading"), 0);
    for (const char* const code : {"line-left", "line-right", "page-left", "page-right", "right-end"})
        EXPECT_EQ(Range(std::string("scroll ") + code), (Ints{0, 0, 1})) << code;
}

TEST_F(RangeReplay, AnEmptyReplyIsDrawnAndSaysSo)
{
    Serve(0, DayLine);
    const json state = After(DailyX);
    EXPECT_EQ(state.at("status"), "0 datapoints available.  Displaying 120.");
    EXPECT_EQ(state.at("loading"), 0);
    EXPECT_EQ(state.at("range").at("count"), 0);
    EXPECT_EQ(state.at("commands").at("32780").at("enabled"), true);
}

TEST_F(RangeReplay, AReplyWithoutItsEndLeavesTheCountOfWhatCame)
{
    const std::pair<const char*, std::pair<Line, const char*>> kinds[]{
        {"tick", {TickLine, "Retrieving Tick Data (2 Ticks Received)"}},
        {"minute", {MinuteLine, "Retrieving Minute Data (2 Minutes Received)"}},
        {"daily", {DayLine, "Retrieving Day Data (2 Days Received)"}},
        {"weekly", {DayLine, "Retrieving Week Data (2 Weeks Received)"}},
        {"monthly", {DayLine, "Retrieving Month Data (2 Months Received)"}}};
    for (const auto& [type, wanted] : kinds) {
        Serve(2, wanted.first, false);
        const json state = After(std::string("type ") + type + "\nsymbol X\ndraw\nwait 900");
        EXPECT_EQ(state.at("status"), wanted.second);
        EXPECT_EQ(state.at("loading"), 1);
        EXPECT_EQ(state.at("commands").at("32780").at("enabled"), false);
    }
}

TEST_F(RangeReplay, AFeedThatNeverAnswersOrAnswersWithAnErrorLeavesTheLoadingText)
{
    const std::string loading = "type daily\nsymbol X\ndraw\nwait 700";
    EXPECT_EQ(After(loading).at("status"), "Retrieving Day Data (0 Days Received)");
    m_scripted.Lookup.SetResponder(
        [](std::string_view command) { return RequestId(command) + ",E,No such symbol,\r\n"; });
    EXPECT_EQ(After(loading).at("status"), "Retrieving Day Data (0 Days Received)");
}

TEST_F(RangeReplay, AFeedThatHangsUpLeavesTheChartAsItStands)
{
    Serve(1, DayLine, false);
    std::thread feed([this] {
        ASSERT_TRUE(AwaitTrue([&] { return QFile::exists(Path("1.json")); }));
        m_scripted.Lookup.CloseConnection();
    });
    const json state = After("type daily\nsymbol X\ndraw\nwait 900\nsnapshot 1.json\nwait 900");
    feed.join();
    EXPECT_EQ(state.at("status"), "Retrieving Day Data (1 Days Received)");
    EXPECT_EQ(state.at("loading"), 1);
}

TEST_F(RangeReplay, APortThatRefusesLeavesTheLoadingText)
{
    Set("LookupPort", QString::number(RefusingPort()), "Software\\Zantro\\Quovex\\Startup");
    EXPECT_EQ(After("type daily\nsymbol X\ndraw\nwait 700").at("status"),
              "Retrieving Day Data (0 Days Received)");
}

TEST_F(RangeReplay, TheSameSymbolAgainIsDroppedAndAskedForAnew)
{
    Serve(50, DayLine);
    EXPECT_EQ(After(DailyX + "draw\nwait complete").at("range").at("count"), 50);
    EXPECT_EQ(QString::fromStdString(m_scripted.Lookup.Received()).count("HDX,X,"), 2);
    EXPECT_TRUE(m_scripted.Level1.AwaitReceived("wX\r\nrX\r\nwX\r\n"));
}

TEST_F(RangeReplay, TheViewFollowsTradesAtTheEdgeAndStaysWhereItWasScrolledTo)
{
    Serve(200, TickLine);
    const auto trades = [this](const QString& file, int first) {
        ASSERT_TRUE(AwaitTrue([&] { return QFile::exists(Path(file)); }));
        for (int k = first; k < first + 5; ++k)
            m_scripted.Level1.Send(TradeLine("X", k));
    };
    std::thread market([&] {
        trades("1.json", 0);
        trades("2.json", 5);
        trades("3.json", 10);
    });
    const json end = After("type tick\nsymbol X\ndraw\nwait complete\nsnapshot 1.json\nwait 2500\n"
                           "snapshot 2.json\nscroll left-end\nwait 2500\nsnapshot 3.json\n"
                           "scroll right-end\nwait 2500");
    market.join();
    EXPECT_EQ(State("1.json").at("range").at("last"), 199);
    EXPECT_EQ(State("2.json").at("range").at("last"), 204);
    EXPECT_EQ(State("2.json").at("status"), "205 datapoints available.  Displaying 120.");
    EXPECT_EQ(State("3.json").at("range").at("first"), 0);
    EXPECT_EQ(State("3.json").at("range").at("count"), 210);
    EXPECT_EQ(State("3.json").at("status"), "Ready");
    EXPECT_EQ(end.at("range").at("last"), 214) << "the edge catches up with all missing points";
    EXPECT_EQ(end.at("status"), "215 datapoints available.  Displaying 120.");
}

} // namespace zantroq::test
