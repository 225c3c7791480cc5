// Deleting points with a right click, live data after that, and restoring the points.
#include "ScriptedChart.h"

namespace zantroq::test {
namespace {

class PointsReplay : public CScriptedChart
{
protected:
    // Steps that draw a chart of a type and right-click a point of it, found in a first run.
    std::string Drawn(const std::string& type)
    {
        return "type " + type + "\nsymbol X\ndraw\nwait complete\n";
    }
    std::string Press(const std::string& type, int point, double value, int button = 2, int aside = 0)
    {
        const json pane = After(Drawn(type)).at("panes").at(0);
        std::string pixel = PixelOf(pane, point, value);
        if (aside != 0)
            pixel = std::to_string(std::stoi(pixel) + aside) + pixel.substr(pixel.find(' '));
        return "mouse down 341 " + std::to_string(button) + " " + pixel + "\n";
    }
    static int Series(const json& state) // points of the price pane's first series
    {
        return state.at("panes").at(0).at("groups").at(0).at("series").at(0).at("pointCount");
    }
    static json Box(const char* caption, const std::string& text, const char* answer)
    {
        return json({{"caption", caption}, {"text", text}, {"answer", answer}});
    }
};

// Bar 4 of the day line, from 0: open 104, high 106, low 103, close 105.
const std::string FourthBar =
    "Do you really want to delete this interval?\n\nHi: 106.0000, Low: 103.0000, Open: 104.0000, Close: "
    "105.0000\n";

} // namespace

TEST_F(PointsReplay, ADayIsAskedForAndGoesWithYes)
{
    Serve(20, DayLine);
    const json state = After(Drawn("daily") + "answer yes\n" + Press("daily", 5, 104.5));
    EXPECT_EQ(state.at("boxes"),
              json::array({Box("Interval deletion", FourthBar + "Date: 2014/01/05\n", "yes")}));
    EXPECT_EQ(state.at("range").at("count"), 19);
    EXPECT_EQ(state.at("range").at("shown"), 19);
    EXPECT_EQ(Series(state), 19);
    EXPECT_EQ(state.at("panes").at(0).at("groups").at(0).at("series").at(0).at("y").at(4), 107)
        << "every point behind it has moved down";
}

TEST_F(PointsReplay, WithNoAndWithoutAnAnswerNothingChanges)
{
    Serve(20, DayLine);
    const std::string press = Press("daily", 5, 104.5);
    for (const char* const answer : {"answer no\n", ""}) {
        const json state = After(Drawn("daily") + answer + press);
        EXPECT_EQ(state.at("boxes").at(0).at("answer"), "no");
        EXPECT_EQ(state.at("range").at("count"), 20);
        EXPECT_EQ(state.at("commands").at("32787").at("enabled"), false);
    }
}

TEST_F(PointsReplay, EachTypeOfBarNamesItsTime)
{
    Serve(20, DayLine);
    EXPECT_EQ(After(Drawn("weekly") + Press("weekly", 5, 104.5)).at("boxes").at(0).at("text"),
              FourthBar + "Week ending: 2014/01/05\n");
    EXPECT_EQ(After(Drawn("monthly") + Press("monthly", 5, 104.5)).at("boxes").at(0).at("text"),
              FourthBar + "Month ending: 2014/01/05\n");
    Serve(20, MinuteLine);
    EXPECT_EQ(After(Drawn("minute") + Press("minute", 5, 104.5)).at("boxes").at(0).at("text"),
              "Do you really want to delete this interval?\n\nHi: 106.0000, Low: 103.0000, Open: 104.0000, "
              "Close: 105.0000\nTime: 10:04:00 on 2014/01/02\n");
}

TEST_F(PointsReplay, ATickNamesItsVolumeWhereItHasOne)
{
    Serve(20, TickLine);
    EXPECT_EQ(After(Drawn("tick") + Press("tick", 5, 104.25)).at("boxes"),
              json::array({Box("Tick deletion",
                               "Do you really want to delete this tick?\n\nPrice: 104.25\nVolume: 1,500\n"
                               "Time: 09:30:04min on 2014/01/02",
                               "no")}));
    EXPECT_EQ(After(Drawn("tick") + Press("tick", 6, 105.25)).at("boxes").at(0).at("text"),
              "Do you really want to delete this tick?\n\nPrice: 105.25\nTime: 09:30:05min on 2014/01/02");
}

TEST_F(PointsReplay, TenPixelsAwayTheMenuOpensInstead)
{
    Serve(3, DayLine); // few bars, far from each other
    const json state = After(Drawn("daily") + Press("daily", 2, 102.5, 2, 12) + "menu 32793");
    EXPECT_EQ(state.at("boxes"), json::array());
    EXPECT_EQ(state.at("layout").at("maximizedIndex"), 0);
    EXPECT_EQ(After(Drawn("daily") + Press("daily", 2, 102.5, 2, 8)).at("boxes").size(), 1u);
}

TEST_F(PointsReplay, AfterADeletionThePositionStaysAndOnePointMoreShowsOnTheLeft)
{
    Serve(200, DayLine);
    const std::string drawn = Drawn("daily") + "scroll thumb 40\n"; // 40 to 159
    const json before = After(drawn);
    ASSERT_EQ(before.at("range").at("last"), 159);
    // Point 110 is day 149, from 0: high 111, low 108.
    const json after =
        After(drawn + "answer yes\nmouse down 341 2 " + PixelOf(before.at("panes").at(0), 110, 109.5));
    EXPECT_EQ(after.at("range").at("count"), 199);
    EXPECT_EQ(after.at("range").at("scrollPos"), 40);
    EXPECT_EQ(after.at("range").at("first"), 40);
    EXPECT_EQ(after.at("panes").at(0).at("groups").at(0).at("series").at(0).at("y").at(0), 102);
}

TEST_F(PointsReplay, NewPointsWaitUntilTheyMakeUpForTheDeletedOnes)
{
    Serve(12, TickLine);
    const std::string first = "answer yes\n" + Press("tick", 5, 104.25);
    // With ten points or eleven a press on the fifth finds it at its own place; ticks 4 and 5 are deleted.
    const json once = After(Drawn("tick") + first);
    const std::string second =
        "answer yes\nmouse down 341 2 " + PixelOf(once.at("panes").at(0), 5, 105.25) + "\n";
    const auto trade = [this](const QString& file, int k) {
        ASSERT_TRUE(AwaitTrue([&] { return QFile::exists(Path(file)); }));
        m_scripted.Level1.Send(TradeLine("X", k));
    };
    std::thread market([&] {
        trade("1.json", 0);
        trade("2.json", 1);
        trade("3.json", 2);
    });
    const json end = After(Drawn("tick") + first + second + "snapshot 1.json\nwait 2000\nsnapshot 2.json\n" +
                           "wait 2000\nsnapshot 3.json\nwait 2000");
    market.join();
    EXPECT_EQ(State("1.json").at("range").at("count"), 10);
    EXPECT_EQ(Series(State("1.json")), 10);
    EXPECT_EQ(State("2.json").at("range").at("count"), 11);
    EXPECT_EQ(Series(State("2.json")), 10) << "11 points are fewer than the 12 once known";
    EXPECT_EQ(State("2.json").at("status"), State("1.json").at("status"));
    EXPECT_EQ(State("3.json").at("status"), "12 datapoints available.  Displaying 10.")
        << "as many as once known: the chart follows again";
    EXPECT_EQ(end.at("range").at("count"), 13);
    EXPECT_EQ(end.at("range").at("last"), 12);
    EXPECT_EQ(Series(end), 13);
}

TEST_F(PointsReplay, RestoringAsksTheFeedAgain)
{
    Serve(20, DayLine);
    const std::string remove = Drawn("daily") + "answer yes\n" + Press("daily", 5, 104.5);
    json state = After(remove);
    EXPECT_EQ(state.at("commands").at("32787").at("enabled"), true);
    EXPECT_EQ(state.at("commands").at("32777").at("enabled"), false);

    state = After(remove + "answer no\ncommand 32787\n");
    EXPECT_EQ(state.at("boxes").at(1), Box("Restoring intervals", "Restore deleted intervals?", "no"));
    EXPECT_EQ(state.at("range").at("count"), 19);

    // Beside the points, in the left margin: the menu.
    state = After(remove + "answer yes\nmouse down 341 2 3 3\nmenu 32787\nwait complete");
    EXPECT_EQ(state.at("boxes").at(1), Box("Restoring intervals", "Restore deleted intervals?", "yes"));
    EXPECT_EQ(state.at("range").at("count"), 20);
    EXPECT_EQ(state.at("symbol"), "X");
    EXPECT_EQ(state.at("title"), "X - Chart");
    EXPECT_EQ(state.at("commands").at("32787").at("enabled"), false) << "nothing is deleted any more";
}

TEST_F(PointsReplay, DeletedTicksComeBackTheSameWay)
{
    Serve(20, TickLine);
    const std::string remove = Drawn("tick") + "answer yes\n" + Press("tick", 5, 104.25);
    const json state = After(remove + "answer yes\ncommand 32777\nwait complete");
    EXPECT_EQ(state.at("boxes").at(1), Box("Restoring ticks", "Restore deleted ticks?", "yes"));
    EXPECT_EQ(state.at("range").at("count"), 20);
}

TEST_F(PointsReplay, RestoringWithoutADeletionDoesNothing)
{
    Serve(20, DayLine);
    const json state = After(Drawn("daily") + "answer yes\ncommand 32787\nanswer yes\ncommand 32777");
    EXPECT_EQ(state.at("boxes"), json::array());
}

TEST_F(PointsReplay, AClickShowsTheReadoutAndOneAsideHidesIt)
{
    Serve(3, DayLine);
    const auto readout = [this](const std::string& steps) {
        return After(Drawn("daily") + steps).at("panes").at(0).at("labels").at(0);
    };
    const std::string click = Press("daily", 2, 102.5, 1);
    json label = readout(click);
    EXPECT_EQ(label.at("shown"), true);
    EXPECT_EQ(label.at("data"), json({2, 103}));
    label = readout(click + Press("daily", 2, 102.5, 1, 14));
    EXPECT_EQ(label.at("shown"), false);
}

TEST_F(PointsReplay, TheMarkerFollowsTheMouseOverEveryPaneUnlessItIsSwitchedOff)
{
    Serve(20, DayLine);
    const json pane = After(Drawn("daily")).at("panes").at(0);
    const std::string move = "mouse move 341 0 " + PixelOf(pane, 7, 106) + "\n";
    json state = After(Drawn("daily") + move);
    EXPECT_EQ(state.at("range").at("selectedPoint"), 7);
    for (const json& each : state.at("panes"))
        EXPECT_EQ(each.at("marker").at("point"), 7);
    const std::string x = PixelOf(pane, 12, 106);
    state = After(Drawn("daily") + "mouse move 342 0 " + x.substr(0, x.find(' ')) + " 60");
    EXPECT_EQ(state.at("range").at("selectedPoint"), 12);
    state = After(Drawn("daily") + "command 32794\n" + move);
    EXPECT_EQ(state.at("range").at("selectedPoint"), -1000000);
    EXPECT_EQ(state.at("commands").at("32794").at("checked"), false);
    EXPECT_EQ(Stored("Show Price Bar"), "0");
}

TEST_F(PointsReplay, AnEmptySeriesMarksAndDeletesNothing)
{
    Serve(0, DayLine);
    const json state = After(Drawn("daily") + "mouse move 341 0 200 100\nmouse down 341 1 200 100\n"
                                              "mouse down 341 2 200 100\nmenu none");
    EXPECT_EQ(state.at("range").at("selectedPoint"), -1000000);
    EXPECT_EQ(state.at("boxes"), json::array());
}

} // namespace zantroq::test
