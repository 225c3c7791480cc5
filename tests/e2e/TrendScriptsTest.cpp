// Draws every kind of trendline in the built chart with replayed mouse events, then scrolls, zooms, extends
// with live data and deletes it, and checks anchors, points, series and labels after each step.
#include "TrendScripts.h"

#include <algorithm>
#include <deque>

namespace zantroq::test {

using TrendScripts = CTrendScripts;

TEST_F(TrendScripts, EachKindStandsOnItsPointsThroughScrollingAndZooming)
{
    const sPlainPane pane = Begin();
    for (const sTrendTool& tool : TrendTools) {
        SCOPED_TRACE(tool.Kind);
        const std::string kind = tool.Kind;
        std::string steps = // by the menu
            Down({pane.Left + 5, pane.Top + 5}, 2) + "menu " + std::to_string(tool.Command) + "\n" +
            Snapshot(kind + "-armed") + Down(At(pane, tool.Points[0])) + Snapshot(kind + "-begun") +
            Move(At(pane, tool.Points[1])) + Snapshot(kind + "-moved") + Down(At(pane, tool.Points[1]));
        if (tool.Third)
            steps += Move(At(pane, tool.Points[2])) + Down(At(pane, tool.Points[2]));
        steps += Snapshot(kind + "-done") + "scroll line-left\nscroll line-left\n" +
                 Snapshot(kind + "-left") + "command 777\ncommand 777\n" + Snapshot(kind + "-near") +
                 "scroll right-end\n" + Snapshot(kind + "-end") + "command 778\ncommand 778\ncommand 778\n" +
                 Snapshot(kind + "-far");
        ASSERT_NO_FATAL_FAILURE(Play(steps));
        const sPlainTrend plain = PlainOf(tool, pane);
        EXPECT_EQ(State(kind + "-armed").at("trendState"), tool.FirstState);
        EXPECT_EQ(State(kind + "-armed").at("trends").size(), 0u);

        std::vector<int> numbers;
        for (int i = 0; i < tool.Series; ++i)
            numbers.push_back(4 + i);
        const json begun = State(kind + "-begun");
        ASSERT_EQ(begun.at("trends").size(), 1u);
        EXPECT_EQ(begun.at("trendState"), tool.FirstState + 1);
        const json& first = begun.at("trends").at(0);
        EXPECT_EQ(first.at("kind"), kind);
        EXPECT_EQ(first.at("startIndex"), plain.Start);
        EXPECT_EQ(first.at("endIndex"), plain.Start);
        EXPECT_NEAR(first.at("value").get<double>(), plain.Value, 1e-9);
        EXPECT_EQ(first.at("series"), numbers);
        EXPECT_EQ(first.at("width"), 1);
        const bool labelled = kind == "fibonacci-retracements";
        EXPECT_EQ(begun.at("panes").at(0).at("labels").size(), labelled ? 18u : 9u);
        for (const int number : numbers) {
            const json& symbol = SeriesOf(begun, number).at("symbol");
            EXPECT_EQ(symbol.at("shape"), 3);
            EXPECT_EQ(symbol.at("size"), 3);
            EXPECT_EQ(symbol.at("color"), 0xC0C0C0);
        }
        EXPECT_EQ(State(kind + "-moved").at("trends").at(0).at("endIndex"), plain.End);

        const json done = State(kind + "-done");
        EXPECT_EQ(done.at("trendState"), tool.FirstState) << "the mode stays armed";
        const json& line = done.at("trends").at(0);
        EXPECT_EQ(line.at("startIndex"), plain.Start);
        EXPECT_EQ(line.at("endIndex"), plain.End);
        if (kind != "horizontal") {
            EXPECT_NEAR(line.at("endValue").get<double>(), plain.EndValue, 1e-8);
        }
        EXPECT_EQ(line.contains("offset"), kind == "parallel");
        if (kind == "parallel") {
            EXPECT_NEAR(line.at("offset").get<double>(), plain.Offset, 1e-8);
        }
        EXPECT_EQ(line.contains("thirdIndex"), kind == "pitchfork");
        if (kind == "pitchfork") {
            EXPECT_EQ(line.at("thirdIndex"), plain.Third);
            EXPECT_NEAR(line.at("thirdValue").get<double>(), plain.ThirdValue, 1e-8);
        }
        if (labelled) {
            EXPECT_EQ(line.at("firstLabel"), 10);
        }
        for (const int number : numbers)
            EXPECT_EQ(SeriesOf(done, number).at("symbol").at("shape"), 1);

        for (const char* step : {"-done", "-left", "-near", "-end", "-far"}) {
            SCOPED_TRACE(step);
            const json state = State(kind + step);
            EXPECT_EQ(state.at("trends").at(0).at("startIndex"), plain.Start);
            EXPECT_EQ(state.at("trends").at(0).at("endIndex"), plain.End);
            EXPECT_EQ(state.at("trends").at(0).at("series"), numbers);
            EXPECT_EQ(state.at("status"), done.at("status")) << "an armed mode keeps its prompt";
            ASSERT_NO_FATAL_FAILURE(ExpectDrawn(state, state.at("trends").at(0), kind, plain));
        }
        EXPECT_NE(State(kind + "-left").at("range").at("first"), pane.First);
        EXPECT_LT(State(kind + "-near").at("range").at("shown"), pane.Shown);
        EXPECT_GT(State(kind + "-far").at("range").at("shown"), pane.Shown);
    }
}

TEST_F(TrendScripts, HalfDrawnLineSurvivesScrollingAndFollowsTheMouseAfterIt)
{
    const sPlainPane pane = Begin();
    const sTrendTool& tool = TrendTools[6];
    ASSERT_NO_FATAL_FAILURE(Play(Command(tool.Command) + Down(At(pane, tool.Points[0])) +
                                 "scroll line-left\ncommand 777\n" + Snapshot("scrolled") +
                                 Move({pane.Right - 40, pane.Bottom - 60}) + Snapshot("moved") +
                                 Down({pane.Left, pane.Top}) + Snapshot("done")));
    EXPECT_EQ(State("scrolled").at("trendState"), tool.FirstState + 1);
    const json moved = State("moved");
    const sPlainPane now(moved);
    sPlainTrend plain;
    plain.Start = pane.Index(At(pane, tool.Points[0]).X);
    plain.Value = pane.Y(At(pane, tool.Points[0]).Y);
    plain.MoveEnd(now, {pane.Right - 40, pane.Bottom - 60});
    EXPECT_EQ(moved.at("trends").at(0).at("endIndex"), plain.End);
    ExpectDrawn(moved, moved.at("trends").at(0), tool.Kind, plain);
    EXPECT_EQ(State("done").at("trends").at(0).at("endIndex"), plain.End) << "a click moves nothing";
    EXPECT_EQ(State("done").at("trendState"), tool.FirstState);
}

TEST_F(TrendScripts, LinesGoWhileOneIsHalfDrawnWithoutHarm)
{
    const sPlainPane pane = Begin();
    const std::string after =
        Move({pane.Left + 200, pane.Top + 90}) + Down({pane.Left + 200, pane.Top + 90}) +
        Move({pane.Left + 250, pane.Top + 70}) + Down({pane.Left + 250, pane.Top + 70}, 2);
    for (const sTrendTool& tool : TrendTools) {
        SCOPED_TRACE(tool.Kind);
        const std::string half =
            Command(tool.Command) + Down(At(pane, tool.Points[0])) + Move(At(pane, tool.Points[1]));
        ASSERT_NO_FATAL_FAILURE(Play(half + "answer yes\n" + Command(32783) + Snapshot("all") + after +
                                     Snapshot("after") + half + "draw\nwait complete\n" + Snapshot("drawn") +
                                     after + "menu none\n" + half + "set GRID 0\nwait complete\n" +
                                     Snapshot("set")));
        EXPECT_EQ(State("all").at("trends").size(), 0u);
        EXPECT_EQ(State("all").at("trendState"), tool.FirstState + 1) << "deleting all leaves the state";
        EXPECT_EQ(State("all").at("panes").at(0).at("labels").size(), 9u);
        EXPECT_EQ(State("after").at("trendState"), 0);
        EXPECT_EQ(State("drawn").at("trends").size(), 0u);
        EXPECT_EQ(State("drawn").at("trendState"), 0);
        EXPECT_EQ(State("set").at("trends").size(), 0u);
        EXPECT_EQ(State("set").at("trendState"), 0);
    }
}

TEST_F(TrendScripts, ColorWidthAndExtendableOfEachKindComeFromTheSettings)
{
    const sPlainPane pane = Begin();
    std::string steps;
    int value = 100;
    for (const sTrendTool& tool : TrendTools) {
        ++value;
        const std::string name = std::string("set \"") + tool.Setting + " Trendline ";
        steps += name + "Color\" " + std::to_string(value) + "\n" + name + "Width\" " +
                 std::to_string(value % 5 + 2) + "\n" + name + "Extendable\" 0\n";
    }
    steps += "wait complete\n";
    for (const sTrendTool& tool : TrendTools)
        steps += Command(tool.Command) + DrawSteps(tool, pane);
    ASSERT_NO_FATAL_FAILURE(Play(steps + Snapshot("a")));
    const json state = State("a");
    ASSERT_EQ(state.at("trends").size(), 7u);
    value = 100;
    for (std::size_t i = 0; i < 7; ++i) {
        const json& trend = state.at("trends").at(i);
        ++value;
        EXPECT_EQ(trend.at("kind"), TrendTools[i].Kind);
        EXPECT_EQ(trend.at("color"), value);
        EXPECT_EQ(trend.at("width"), value % 5 + 2);
        EXPECT_EQ(trend.at("extendable"), 0);
        for (const int number : trend.at("series").get<std::vector<int>>()) {
            EXPECT_EQ(SeriesOf(state, number).at("line").at("color"), value);
            EXPECT_EQ(SeriesOf(state, number).at("line").at("width"), value % 5 + 2);
        }
    }
    // A horizontal line that is not extendable ends at its second click.
    const json& y = SeriesOf(state, 4).at("y");
    const int end = state.at("trends").at(0).at("endIndex").get<int>() - sPlainPane(state).First;
    EXPECT_TRUE(y.at(static_cast<std::size_t>(end)).is_number());
    EXPECT_TRUE(y.at(static_cast<std::size_t>(end) + 1).is_null());
}

// The pool by its plain rule: released numbers first, the oldest first, otherwise the next new number.
struct sPlainPool
{
    std::deque<int> Free;
    int Next = 4;
    std::vector<int> Take(int count)
    {
        std::vector<int> taken;
        for (; count > 0; --count) {
            if (Free.empty()) {
                taken.push_back(Next++);
                continue;
            }
            taken.push_back(Free.front());
            Free.pop_front();
        }
        return taken;
    }
};

TEST_F(TrendScripts, DeletionInEveryOrderGivesSeriesAndLabelsBack)
{
    const sPlainPane pane = Begin();
    // Two retracements with another line between them; each is clicked at its right end, where no other line
    // is near.
    const sTrendTool lines[]{
        {"fibonacci-retracements", 32790, 13, 10, "", {{0.70, 0.95}, {0.75, 0.91}}, false},
        {"speed-resistance", 32788, 15, 3, "", {{0.1, 0.30}, {0.9, 0.33}}, false},
        {"fibonacci-retracements", 32790, 13, 10, "", {{0.80, 0.61}, {0.85, 0.57}}, false},
    };
    std::vector<int> order{0, 1, 2};
    do {
        std::string steps;
        for (const sTrendTool& tool : lines)
            steps += Command(tool.Command) + DrawSteps(tool, pane);
        steps += Command(32782) + Snapshot("0");
        for (std::size_t n = 0; n < 3; ++n) {
            const sTrendTool& tool = lines[static_cast<std::size_t>(order[n])];
            const int y = At(pane, tool.Points[order[n] == 1 ? 1 : 0]).Y;
            const int x = order[n] == 1 ? At(pane, tool.Points[1]).X : pane.Right - 30;
            steps += (n == 0 ? Down({x, y}) : "") + "answer yes\n" + Down({x, y}) +
                     Snapshot(std::to_string(n + 1));
        }
        steps += Command(32790) + DrawSteps(lines[0], pane) + Command(32784) +
                 DrawSteps(TrendTools[1], pane) + Snapshot("again");
        ASSERT_NO_FATAL_FAILURE(Play(steps));
        SCOPED_TRACE(std::to_string(order[0]) + std::to_string(order[1]) + std::to_string(order[2]));

        sPlainPool pool;
        std::map<int, std::vector<int>> series;
        for (int i = 0; i < 3; ++i)
            series[i] = pool.Take(lines[i].Series);
        for (std::size_t n = 0; n <= 3; ++n) {
            SCOPED_TRACE(n);
            if (n > 0) {
                const int gone = order[n - 1];
                pool.Free.insert(pool.Free.end(), series[gone].begin(), series[gone].end());
                series.erase(gone);
            }
            const json state = State(std::to_string(n));
            std::vector<std::vector<int>> wanted, found; // the snapshot has the speed lines last
            std::vector<int> labels;
            for (const int i : {0, 2, 1}) {
                if (series.count(i) == 0)
                    continue;
                wanted.push_back(series[i]);
                if (i != 1)
                    labels.push_back(10 + 9 * static_cast<int>(labels.size()));
            }
            std::vector<int> foundLabels;
            for (const json& trend : state.at("trends")) {
                found.push_back(trend.at("series"));
                if (trend.contains("firstLabel"))
                    foundLabels.push_back(trend.at("firstLabel"));
            }
            EXPECT_EQ(found, wanted);
            EXPECT_EQ(foundLabels, labels);
            const json& texts = state.at("panes").at(0).at("labels");
            EXPECT_EQ(texts.size(), 9 + 9 * labels.size());
            for (const int label : labels) {
                EXPECT_EQ(texts.at(static_cast<std::size_t>(label - 1)).at("text"), "0%");
                EXPECT_EQ(texts.at(static_cast<std::size_t>(label - 1)).at("shown"), true);
            }
            for (const int number : pool.Free)
                for (const json& y : SeriesOf(state, number).at("y"))
                    ASSERT_TRUE(y.is_null()) << "series " << number;
            EXPECT_EQ(state.at("trendState"), n == 3 ? 0 : 17);
            if (n == 3) {
                EXPECT_EQ(state.at("status"), "Ready");
            }
        }
        // The click without a queued answer was answered with no.
        const json boxes = State("3").at("boxes");
        ASSERT_EQ(boxes.size(), 4u);
        EXPECT_EQ(boxes.at(0),
                  (json{{"caption", ""}, {"text", "Delete flashing trendline?"}, {"answer", "no"}}));
        const json again = State("again");
        EXPECT_EQ(again.at("trends").at(1).at("series"), pool.Take(10));
        EXPECT_EQ(again.at("trends").at(0).at("series"), pool.Take(1));
        EXPECT_EQ(again.at("trends").at(1).at("firstLabel"), 10);
    } while (std::next_permutation(order.begin(), order.end()));
}

class LiveTrendScripts : public CTrendScripts, public testing::WithParamInterface<const char*>
{
};

TEST_P(LiveTrendScripts, LinesStayOnTheirPointsWhileNewOnesArrive)
{
    StartFeed({"--speed", "300"}); // market seconds a second: some minutes of bars while the script waits
    const std::string chart =
        std::string("resize 800 600\ntype ") + GetParam() + "\nsymbol SIM.CALM\ndraw\nwait complete\n";
    std::string steps = chart;
    // Positions are given in pixels, so prices depend on the time at which the chart was drawn.
    for (const sTrendTool& tool : TrendTools) {
        const sPixelPoint places[]{{300, 120}, {420, 90}, {200, 130}};
        steps += Command(tool.Command) + Down(places[0]) + Move(places[1]) + Down(places[1]);
        if (tool.Third)
            steps += Move(places[2]) + Down(places[2]);
    }
    steps += Down(sPixelPoint{300, 120}, 2) + Snapshot("before") + "wait 2500\n" + Snapshot("after");
    ASSERT_NO_FATAL_FAILURE(Play(steps, {}));
    const json before = State("before"), after = State("after");
    ASSERT_GT(after.at("range").at("count"), before.at("range").at("count"));
    EXPECT_GT(after.at("range").at("first"), before.at("range").at("first"))
        << "the window follows the live edge";
    ASSERT_EQ(before.at("trends").size(), 7u);
    EXPECT_EQ(after.at("trends"), before.at("trends"));
    for (const json& trend : after.at("trends")) {
        sPlainTrend plain;
        plain.Start = trend.at("startIndex");
        plain.End = trend.at("endIndex");
        plain.Value = trend.at("value");
        plain.EndValue = trend.at("endValue");
        plain.Offset = trend.value("offset", 0.0);
        plain.Third = trend.value("thirdIndex", 0);
        plain.ThirdValue = trend.value("thirdValue", 0.0);
        ASSERT_NO_FATAL_FAILURE(ExpectDrawn(after, trend, trend.at("kind"), plain));
    }
}

INSTANTIATE_TEST_SUITE_P(DataTypes, LiveTrendScripts, testing::Values("tick", "minute"));

} // namespace zantroq::test
