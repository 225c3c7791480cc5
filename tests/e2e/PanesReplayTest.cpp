// Panes: maximize, minimize, restore and border drags with what is stored after each, axes, grid and scale.
#include "ScriptedChart.h"

namespace zantroq::test {
namespace {

const std::string DailyX = "type daily\nsymbol X\ndraw\nwait complete\n";

class PanesReplay : public CScriptedChart
{
protected:
    // The pane command in the menu of a right press beside the points; the program ends after it.
    json Pick(int control, int command)
    {
        return After(DailyX + "mouse down " + std::to_string(control) + " 2 3 3\nmenu " +
                     std::to_string(command));
    }
    // Maximized pane, then each pane's minimised state, as stored.
    std::string States(int panes)
    {
        std::string text = Stored("Maximized Chart Index");
        for (int pane = 0; pane < panes; ++pane)
            text += " " + Stored("Chart " + QString::number(pane) + " Minimized");
        return text;
    }
    void ShowStudies(const std::vector<int>& studies)
    {
        const int count = static_cast<int>(studies.size());
        Set("Number of displayed study charts", QString::number(count));
        for (int k = 0; k < count; ++k) {
            Set(QString("Type of study chart %1").arg(k),
                QString::number(studies[static_cast<std::size_t>(k)]));
            Set(QString("Top of chart %1").arg(k + 1), QString::number((k + 1.0) / (count + 1)));
        }
        Set(QString("Top of chart %1").arg(count + 1), "1");
    }
    static std::string Drag(int border, int from, int to, const json& state)
    {
        const json& bottoms = state.at("layout").at("bottoms");
        const int top = bottoms.at(static_cast<std::size_t>(border - 1));
        const std::string pane = std::to_string(340 + border);
        const std::string start = " 100 " + std::to_string(from - top);
        const std::string end = " 100 " + std::to_string(to - top);
        return "mouse move " + pane + " 0" + start + "\nmouse down " + pane + " 1" + start + "\nmouse move " +
               pane + " 1" + end + "\nmouse up " + pane + " 1" + end + "\n";
    }
    json AfterDrag(int border, int to)
    {
        const json state = After(DailyX);
        const int from = state.at("layout").at("bottoms").at(static_cast<std::size_t>(border));
        return After(DailyX + Drag(border, from, to, state));
    }
};

enum : int
{
    Restore = 32791,
    Minimize = 32792,
    Maximize = 32793
};

} // namespace

TEST_F(PanesReplay, TwoPanesAreMaximizedMinimizedAndRestored)
{
    Serve(60, DayLine);
    Pick(342, Maximize);
    EXPECT_EQ(States(2), "1 0 0");
    Pick(342, Restore); // both panes are normal, so the chosen pane is maximized
    EXPECT_EQ(States(2), "999 0 0");
    Pick(341, Minimize); // one pane remains and fills the height
    EXPECT_EQ(States(2), "1 1 0");
    Pick(341, Restore); // two panes, the other maximized: both become normal
    EXPECT_EQ(States(2), "999 0 0");
    Pick(341, Maximize);
    EXPECT_EQ(States(2), "0 0 0");
    Pick(341, Minimize); // the maximized pane: the other pane fills the height
    EXPECT_EQ(States(2), "1 1 0");
    const json state = Pick(342, Restore); // at most one is normal: all become normal
    EXPECT_EQ(States(2), "999 0 0");
    EXPECT_EQ(state.at("layout").at("bottoms").at(1).get<int>(),
              state.at("layout").at("height").get<int>() -
                  static_cast<int>(0.34 * state.at("layout").at("height").get<int>() + 0.5));
}

TEST_F(PanesReplay, FourPanesKeepTheirStates)
{
    Serve(60, DayLine);
    ShowStudies({0, 3, 6});
    json state = Pick(343, Minimize);
    EXPECT_EQ(States(4), "999 0 0 1 0");
    EXPECT_EQ(state.at("panes").at(2).at("rect").at(3), 16);
    state = Pick(344, Maximize);
    EXPECT_EQ(States(4), "3 0 0 1 0");
    for (const std::size_t pane : {0, 1, 2})
        EXPECT_EQ(state.at("panes").at(pane).at("rect").at(3), 16) << pane;
    Pick(342, Restore); // another pane is maximized: these two become normal, all others minimised
    EXPECT_EQ(States(4), "999 1 0 1 0");
    Pick(342, Minimize);
    EXPECT_EQ(States(4), "3 1 1 1 0");
    Pick(344, Restore);
    EXPECT_EQ(States(4), "999 0 0 0 0");
}

TEST_F(PanesReplay, ItemsThatAreNotOfferedDoNothing)
{
    Serve(60, DayLine);
    Pick(341, Restore);
    EXPECT_EQ(States(2), "999 (missing) (missing)") << "as a fresh window leaves them";
    Set("Number of displayed study charts", "0");
    for (const int command : {Maximize, Minimize, Restore})
        Pick(341, command);
    EXPECT_EQ(States(1), "999 (missing)");
    const json state = After(DailyX);
    EXPECT_EQ(state.at("panes").size(), 1u);
    EXPECT_EQ(state.at("panes").at(0).at("rect").at(3), state.at("layout").at("height"))
        << "the price pane takes all of the room";
}

TEST_F(PanesReplay, AMenuThatIsClosedOrOfAnotherPressIsNotThereToPickFrom)
{
    Serve(60, DayLine);
    for (const std::string closed : {"menu none\n", "mouse down 342 1 3 60\n"}) {
        const sRun run = Play(DailyX + "mouse down 342 2 3 3\n" + closed + "menu 32793\n");
        EXPECT_EQ(run.ExitCode, 0);
        EXPECT_NE(run.Err.find("menu 32793: no context menu is open; open one by a right mouse down in the "
                               "step before"),
                  std::string::npos)
            << run.Err;
        EXPECT_EQ(States(2), "999 (missing) (missing)");
    }
}

TEST_F(PanesReplay, ADraggedBorderIsStoredAsAShare)
{
    Serve(60, DayLine);
    const json state = AfterDrag(1, 180);
    EXPECT_EQ(state.at("layout").at("bottoms").at(1), 180);
    const double height = state.at("layout").at("height");
    EXPECT_NEAR(std::stod(Stored("Top of chart 1")), 180 / height, 1e-6);
    EXPECT_EQ(States(2), "999 0 0");
    EXPECT_NEAR(After(DailyX).at("layout").at("bottoms").at(1).get<int>(), 180, 1) << "a new window";
}

TEST_F(PanesReplay, ABorderStopsSixteenPixelsFromItsNeighbourAndMinimizesThatPane)
{
    Serve(60, DayLine);
    json state = AfterDrag(1, 2000);
    const int height = state.at("layout").at("height");
    EXPECT_EQ(state.at("layout").at("bottoms").at(1), height - 16);
    EXPECT_EQ(States(2), "0 0 1") << "the one that is left takes the room";
    EXPECT_EQ(Stored("Top of chart 1"), "0.660000") << "the shares stay for the way back";
    state = AfterDrag(1, 200); // out of the maximized state by the border
    EXPECT_EQ(States(2), "999 0 0");
    EXPECT_EQ(state.at("layout").at("bottoms").at(1), 200);
    state = AfterDrag(1, -50);
    EXPECT_EQ(state.at("layout").at("bottoms").at(1), 16);
    EXPECT_EQ(States(2), "1 1 0");
}

TEST_F(PanesReplay, APressAwayFromABorderDragsNothing)
{
    Serve(60, DayLine);
    const json before = After(DailyX);
    const int border = before.at("layout").at("bottoms").at(1);
    const json after = After(DailyX + Drag(1, border - 4, 100, before));
    EXPECT_EQ(after.at("layout").at("bottoms"), before.at("layout").at("bottoms"));
}

TEST_F(PanesReplay, AWindowWithoutRoomForAllPanesGoesByTheShares)
{
    Serve(60, DayLine);
    Set("Maximized Chart Index", "1");
    Set("Chart 0 Minimized", "1");
    const json state = After(DailyX + "resize 620 80");
    const int height = state.at("layout").at("height");
    ASSERT_LT(height, 32);
    EXPECT_EQ(state.at("layout").at("bottoms").at(1), static_cast<int>(height * 0.66 + 0.5));
    EXPECT_EQ(state.at("layout").at("bottoms").at(2), height);
}

TEST_F(PanesReplay, TheValueAxisStandsOnTheSideThatIsSet)
{
    Serve(60, DayLine);
    const json left = After(DailyX); // outlives the loop over a part of it
    for (const json& pane : left.at("panes"))
        EXPECT_TRUE(pane.at("axes").at("y").at("shown").get<bool>());
    const json right = After(DailyX + "set \"Y Axis Orientation\" 1\nwait complete");
    for (const json& pane : right.at("panes")) {
        EXPECT_FALSE(pane.at("axes").at("y").at("shown").get<bool>());
        EXPECT_TRUE(pane.at("axes").at("y2").at("shown").get<bool>());
        EXPECT_GT(pane.at("plot").at("right"), pane.at("plot").at("left"));
    }
}

TEST_F(PanesReplay, TheGridFlipsAndIsKept)
{
    Serve(60, DayLine);
    const auto spacing = [](const json& state) {
        return state.at("panes").at(1).at("axes").at("x").at("gridSpacing").get<double>();
    };
    EXPECT_GT(spacing(After(DailyX)), 0);
    json state = After(DailyX + "command 779");
    EXPECT_EQ(spacing(state), 0);
    EXPECT_EQ(state.at("status"), "Ready");
    EXPECT_EQ(Stored("GRID"), "0");
    state = After(DailyX);
    EXPECT_EQ(state.at("commands").at("779").at("checked"), false);
    EXPECT_EQ(spacing(state), 0);
    EXPECT_GT(spacing(After(DailyX + "command 779")), 0);
    EXPECT_EQ(Stored("GRID"), "1");
}

TEST_F(PanesReplay, AFixedScaleStaysUntilTheChartIsDrawnAnew)
{
    // Rising days, so that a free scale moves with the view.
    Serve(200, [](const std::string& id, int k) {
        char text[120];
        std::snprintf(text, sizeof text, "%s,2014-%02d-%02d,%d,%d,%d,%d,1000,0\r\n", id.c_str(), 1 + k / 28,
                      1 + k % 28, 100 + k, 90 + k, 95 + k, 96 + k);
        return std::string(text);
    });
    const auto axis = [](const json& state) {
        const json& y = state.at("panes").at(0).at("axes").at("y");
        return std::pair<double, double>(y.at("viewLow"), y.at("viewHigh"));
    };
    const auto right = axis(After(DailyX)), left = axis(After(DailyX + "scroll left-end"));
    EXPECT_LT(left.first, right.first);
    EXPECT_LT(left.second, right.second);
    const std::string fixed = "set \"Price Bar Show/Hide\" 1\n" + DailyX;
    const auto whole = axis(After(fixed));
    EXPECT_LE(whole.first, 90) << "fitted to the whole series once";
    EXPECT_GE(whole.second, 299);
    EXPECT_EQ(axis(After(fixed + "scroll left-end")), whole) << "and left there";
}

} // namespace zantroq::test
