// Commands during the drawing of a trendline, and lines that stay while the chart is scrolled, zoomed and
// extended by live trades in one session.
#include "ScriptedChart.h"
#include "TrendScripts.h"

namespace zantroq::test {
namespace {

// The steps and expectations of trend scripts, for a chart on a scripted feed.
struct sTrendSteps : CTrendScripts
{
    using CTrendScripts::At;
    using CTrendScripts::Command;
    using CTrendScripts::Down;
    using CTrendScripts::DrawSteps;
    using CTrendScripts::ExpectDrawn;
    using CTrendScripts::Move;
    using CTrendScripts::PlainOf;
    using CTrendScripts::SeriesOf;
    using CTrendScripts::Snapshot;
};

// Starts a tool, clicks its first point and moves the mouse to the second.
std::string Half(const sTrendTool& tool, const sPlainPane& pane)
{
    return sTrendSteps::Command(tool.Command) + sTrendSteps::Down(sTrendSteps::At(pane, tool.Points[0])) +
           sTrendSteps::Move(sTrendSteps::At(pane, tool.Points[1]));
}

std::vector<int> Numbers(int count)
{
    std::vector<int> numbers;
    for (int i = 0; i < count; ++i)
        numbers.push_back(4 + i);
    return numbers;
}

std::string Drawn(const std::string& type)
{
    return "resize 800 600\ntype " + type + "\nsymbol X\ndraw\nwait complete\n";
}

class HalfDrawnTrend : public CScriptedChart
{
protected:
    // Draws a chart and deletes its fifth point, starts a line, restores the points, continues with the
    // removed line, and draws another line of the same kind.
    void RestoreWhileHalfDrawn(const std::string& type, int command, double value, const sTrendTool& tool)
    {
        const std::string remove = Drawn(type) + "answer yes\nmouse down 341 2 " +
                                   PixelOf(After(Drawn(type)).at("panes").at(0), 5, value) + "\n";
        const sPlainPane pane(After(remove));
        const sPixelPoint end = sTrendSteps::At(pane, tool.Points[1]);
        const std::string clicks = sTrendSteps::Down(end) + (tool.Third ? sTrendSteps::Down(end) : "");
        After(remove + Half(tool, pane) + "snapshot half.json\nanswer yes\n" + sTrendSteps::Command(command) +
              "wait complete\nsnapshot restored.json\n" + sTrendSteps::Move(end) + clicks +
              "snapshot clicked.json\n" + sTrendSteps::DrawSteps(tool, pane) + "snapshot again.json\n" +
              Half(tool, pane) + "answer yes\n" + sTrendSteps::Command(command) + sTrendSteps::Down(end, 2));

        const json half = State("half.json"), restored = State("restored.json"),
                   clicked = State("clicked.json"), again = State("again.json");
        EXPECT_EQ(half.at("range").at("count"), 19);
        ASSERT_EQ(half.at("trends").size(), 1u);
        EXPECT_EQ(half.at("trendState"), tool.FirstState + 1);

        EXPECT_EQ(restored.at("range").at("count"), 20);
        EXPECT_EQ(restored.at("trends"), json::array());
        EXPECT_EQ(restored.at("trendState"), tool.FirstState + 1) << "the machine waits on";
        EXPECT_EQ(restored.at("status"), half.at("status")) << "a prompt is not written over";
        for (const json& series : restored.at("panes").at(0).at("groups").at(1).at("series"))
            for (const json& y : series.at("y"))
                ASSERT_TRUE(y.is_null());
        EXPECT_EQ(restored.at("panes").at(0).at("labels").size(), 9u);

        EXPECT_EQ(clicked.at("trends"), json::array()) << "there is no line to finish";
        EXPECT_EQ(clicked.at("trendState"), tool.FirstState);

        ASSERT_EQ(again.at("trends").size(), 1u);
        const json& trend = again.at("trends").at(0);
        EXPECT_EQ(trend.at("series"), Numbers(tool.Series));
        sTrendSteps::ExpectDrawn(again, trend, tool.Kind, sTrendSteps::PlainOf(tool, sPlainPane(restored)));

        // No point is deleted any more, so the second restore asks nothing; the right click removes the line.
        const json last = State("end.json");
        EXPECT_EQ(last.at("boxes").size(), 2u);
        EXPECT_EQ(last.at("trendState"), 0);
        EXPECT_EQ(last.at("status"), "Ready");
        EXPECT_EQ(last.at("trends"), again.at("trends"));
    }
};

} // namespace

TEST_F(HalfDrawnTrend, RestoringIntervalsTakesTheLineAndLeavesTheModeAsItIs)
{
    Serve(20, DayLine);
    for (const sTrendTool& tool : TrendTools) {
        SCOPED_TRACE(tool.Kind);
        ASSERT_NO_FATAL_FAILURE(RestoreWhileHalfDrawn("daily", 32787, 104.5, tool));
    }
}

TEST_F(HalfDrawnTrend, RestoringTicksTakesTheLineAndLeavesTheModeAsItIs)
{
    Serve(20, TickLine);
    ASSERT_NO_FATAL_FAILURE(RestoreWhileHalfDrawn("tick", 32777, 104.25, TrendTools[2]));
}

TEST_F(HalfDrawnTrend, DeletionModeLeavesItInItsListWithItsMarksAndFindsIt)
{
    Serve(200, DayLine);
    const sPlainPane pane(After(Drawn("daily")));
    for (const sTrendTool& tool : TrendTools) {
        SCOPED_TRACE(tool.Kind);
        const std::string click = sTrendSteps::Down(sTrendSteps::At(pane, tool.Points[0]));
        After(Drawn("daily") + Half(tool, pane) + sTrendSteps::Command(32782) +
              "snapshot armed.json\nanswer no\n" + click + "snapshot kept.json\nanswer yes\n" + click +
              "snapshot deleted.json\n" + sTrendSteps::Command(tool.Command) +
              sTrendSteps::DrawSteps(tool, pane));
        const json armed = State("armed.json"), kept = State("kept.json"), deleted = State("deleted.json"),
                   again = State("end.json");
        ASSERT_EQ(armed.at("trends").size(), 1u);
        EXPECT_EQ(armed.at("trendState"), 17);
        EXPECT_EQ(armed.at("status"), "Click on a trendline to delete (Right click to cancel)");
        ASSERT_EQ(kept.at("trends").size(), 1u);
        EXPECT_EQ(kept.at("trendState"), 17);
        EXPECT_EQ(kept.at("boxes").size(), 1u);
        for (const int number : Numbers(tool.Series)) {
            EXPECT_EQ(sTrendSteps::SeriesOf(armed, number).at("symbol").at("shape"), 3);
            EXPECT_EQ(sTrendSteps::SeriesOf(kept, number).at("symbol").at("shape"), 1);
        }
        EXPECT_EQ(deleted.at("trends"), json::array());
        EXPECT_EQ(deleted.at("trendState"), 0);
        EXPECT_EQ(deleted.at("status"), "Ready");
        EXPECT_EQ(deleted.at("panes").at(0).at("labels").size(), 9u);
        ASSERT_EQ(again.at("trends").size(), 1u);
        EXPECT_EQ(again.at("trends").at(0).at("series"), Numbers(tool.Series)) << "the numbers given back";
        sTrendSteps::ExpectDrawn(again, again.at("trends").at(0), tool.Kind,
                                 sTrendSteps::PlainOf(tool, pane));
    }
}

TEST_F(HalfDrawnTrend, AnotherToolLeavesItInItsListAndDrawsBesideIt)
{
    Serve(200, DayLine);
    const sPlainPane pane(After(Drawn("daily")));
    const sTrendTool &left = TrendTools[3], &next = TrendTools[1];
    const json state = After(Drawn("daily") + Half(left, pane) + sTrendSteps::Command(next.Command) +
                             sTrendSteps::DrawSteps(next, pane) +
                             sTrendSteps::Down(sTrendSteps::At(pane, next.Points[0]), 2));
    EXPECT_EQ(state.at("trendState"), 0);
    ASSERT_EQ(state.at("trends").size(), 2u);
    EXPECT_EQ(state.at("trends").at(0).at("kind"), "sloping");
    EXPECT_EQ(state.at("trends").at(0).at("series"), json({8}));
    EXPECT_EQ(state.at("trends").at(1).at("kind"), "pitchfork");
    EXPECT_EQ(sTrendSteps::SeriesOf(state, 4).at("symbol").at("shape"), 3);
    EXPECT_EQ(sTrendSteps::SeriesOf(state, 8).at("symbol").at("shape"), 1);
    sTrendSteps::ExpectDrawn(state, state.at("trends").at(0), next.Kind, sTrendSteps::PlainOf(next, pane));
}

TEST_F(HalfDrawnTrend, FinishedLinesStandWhileTheChartIsScrolledZoomedAndExtended)
{
    Serve(300, TickLine);
    const sPlainPane pane(After(Drawn("tick")));
    std::string steps = Drawn("tick");
    for (const sTrendTool& tool : TrendTools)
        steps += sTrendSteps::Command(tool.Command) + sTrendSteps::DrawSteps(tool, pane);
    steps += sTrendSteps::Down({300, 120}, 2); // no mode is active
    const std::vector<const char*> names{"drawn", "scrolled",  "scrolled-live", "far",
                                         "edge",  "edge-live", "near"};
    const auto trades = [this](const QString& file, int first) {
        if (!AwaitTrue([&] { return QFile::exists(Path(file)); }))
            return;
        for (int k = first; k < first + 8; ++k)
            m_scripted.Level1.Send(TradeLine("X", k));
    };
    std::thread market([&] {
        trades("scrolled.json", 0);
        trades("edge.json", 8);
    });
    After(steps +
          "snapshot drawn.json\nscroll thumb 150\nsnapshot scrolled.json\nwait 2200\n"
          "snapshot scrolled-live.json\ncommand 778\ncommand 778\nsnapshot far.json\nscroll right-end\n"
          "snapshot edge.json\nwait 2200\nsnapshot edge-live.json\n"
          "command 777\ncommand 777\ncommand 777\nscroll right-end\nsnapshot near.json\n");
    market.join();
    const auto range = [this](const char* name) { return State(QString(name) + ".json").at("range"); };
    EXPECT_EQ(range("drawn").at("last"), 299);
    EXPECT_EQ(range("scrolled").at("first"), 150);
    EXPECT_EQ(range("scrolled-live").at("count"), 308);
    EXPECT_EQ(range("scrolled-live").at("first"), 150) << "a scrolled chart stays";
    EXPECT_GT(range("far").at("shown"), range("drawn").at("shown"));
    EXPECT_EQ(range("edge").at("last"), 307);
    EXPECT_EQ(range("edge-live").at("last"), 315);
    EXPECT_LT(range("near").at("shown"), range("drawn").at("shown"));

    const json drawn = State("drawn.json").at("trends");
    ASSERT_EQ(drawn.size(), 7u);
    for (const char* const name : names) {
        SCOPED_TRACE(name);
        const json state = State(QString(name) + ".json");
        ASSERT_EQ(state.at("trends"), drawn) << "no anchor moves";
        for (std::size_t i = 0; i < 7; ++i) {
            const sTrendTool& tool = TrendTools[i];
            ASSERT_EQ(drawn.at(i).at("kind"), tool.Kind);
            ASSERT_NO_FATAL_FAILURE(
                sTrendSteps::ExpectDrawn(state, drawn.at(i), tool.Kind, sTrendSteps::PlainOf(tool, pane)));
        }
    }
}

} // namespace zantroq::test
