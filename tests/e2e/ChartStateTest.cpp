// The state that the chart writes, compared with the recording, over the two real ports.
#include "Programs.h"

#include <nlohmann/json.hpp>

#include <sstream>
#include <vector>

namespace zantroq::test {
namespace {

using nlohmann::json;

struct sDay
{
    double Open, High, Low, Close, Volume;
};

// A plain reader of the shipped recording: date,open,high,low,close,volume,open_interest.
std::vector<sDay> ShippedDays()
{
    std::ifstream file(std::string(ZANTROQ_DATA_FOLDER) + "/GOOG.daily.csv");
    std::vector<sDay> days;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        std::vector<double> numbers;
        std::istringstream fields(line.substr(line.find(',') + 1));
        for (std::string field; std::getline(fields, field, ',');)
            numbers.push_back(std::stod(field));
        days.push_back({numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3), numbers.at(4)});
    }
    return days;
}

class ChartState : public CProgramsWithFeed
{
protected:
    json State(const QStringList& words)
    {
        const sRun run = Chart(words + QStringList({"--snapshot", "a.json"}));
        EXPECT_EQ(run.ExitCode, 0) << run.Err;
        return run.ExitCode == 0 ? json::parse(Bytes("a.json").toStdString()) : json();
    }
};

} // namespace

TEST_F(ChartState, TheShownPointsAreTheNewestOfTheRecording)
{
    StartFeed();
    const json state = State({"GOOG", "--data", "daily"});
    const std::vector<sDay> days = ShippedDays();
    ASSERT_GE(days.size(), 1000u);
    const int count = state.at("range").at("count");
    const int shown = state.at("range").at("shown");
    EXPECT_EQ(count, 1000) << "datapoints asked for";
    EXPECT_EQ(shown, 120);
    EXPECT_EQ(state.at("range").at("first"), count - shown);
    EXPECT_EQ(state.at("range").at("last"), count - 1);
    const json& group = state.at("panes").at(0).at("groups").at(0);
    for (int point = 0; point < shown; ++point) {
        const sDay& day = days.at(days.size() - static_cast<std::size_t>(shown - point));
        const double wanted[]{day.High, day.Low, day.Open, day.Close};
        for (std::size_t series = 0; series < 4; ++series)
            EXPECT_EQ(group.at("series").at(series).at("y").at(static_cast<std::size_t>(point)).get<double>(),
                      wanted[series])
                << "series " << series << ", point " << point;
        EXPECT_EQ(group.at("series").at(0).at("x").at(static_cast<std::size_t>(point)).get<double>(),
                  point + 1);
    }
}

TEST_F(ChartState, TextsAreThoseOfTheWindow)
{
    StartFeed();
    const json state = State({"GOOG", "--data", "daily"});
    EXPECT_EQ(state.at("symbol"), "GOOG");
    EXPECT_EQ(state.at("title"), "GOOG - Chart");
    EXPECT_EQ(state.at("caption"), "Daily");
    EXPECT_EQ(state.at("status"), "1000 datapoints available.  Displaying 120.");
    EXPECT_EQ(state.at("statusParts").at(1), "GOOG");
    EXPECT_EQ(state.at("loading"), 0);
    EXPECT_EQ(state.at("dataType"), 2);
    EXPECT_EQ(state.at("commands").at("777").at("enabled"), true);
    EXPECT_EQ(state.at("commands").at("779").at("checked"), true);
    EXPECT_EQ(state.at("boxes"), json::array());
}

TEST_F(ChartState, TheLayoutFollowsTheClientSize)
{
    const json state = State({"GOOG", "--data", "daily", "--feed", "embedded", "--size", "900x700"});
    const json& layout = state.at("layout");
    const int room = 700 - layout.at("topOffset").get<int>() - 37; // with the scroll bar
    EXPECT_EQ(layout.at("height"), room);
    EXPECT_EQ(layout.at("studyCount"), 1);
    EXPECT_EQ(layout.at("bottoms").back(), room);
    // The lower pane takes its fraction of the room, rounded; the first one what is left.
    const int lower = static_cast<int>(room * (1.0 - layout.at("bounds").at(1).get<double>()) + 0.5);
    EXPECT_EQ(layout.at("bottoms").at(1), room - lower);
    EXPECT_EQ(state.at("panes").at(0).at("rect"), json({0, layout.at("topOffset"), 900, room - lower}));
}

TEST_F(ChartState, OptionsApplyBeforeTheSymbolAndAreKept)
{
    const json state = State({"SIM.A", "--data", "minute", "--interval", "5", "--feed", "embedded"});
    EXPECT_EQ(state.at("dataType"), 1);
    EXPECT_EQ(state.at("intervalMinutes"), 5);
    EXPECT_EQ(state.at("caption"), "5 - Minute");
    EXPECT_EQ(state.at("statusParts").at(1), "5 - SIM.A");
    const json next = State({"SIM.A", "--feed", "embedded"});
    EXPECT_EQ(next.at("caption"), "5 - Minute") << "as if chosen in the boxes";
}

TEST_F(ChartState, RecordingsOfAFolderAreServedBesideTheShippedOnes)
{
    Write("OWN.daily.csv",
          "date,open,high,low,close,volume,open_interest\n"
          "2020-01-02,10,12,9,11,100,0\n2020-01-03,11,13,10,12,200,0\n2020-01-06,12,14,11,13,300,0\n");
    const json state = State({"OWN", "--data", "daily", "--feed", "embedded:" + m_folder.path()});
    EXPECT_EQ(state.at("range").at("count"), 3);
    EXPECT_EQ(state.at("range").at("shown"), 3);
    EXPECT_EQ(state.at("range").at("scrollVisible"), false);
    EXPECT_EQ(state.at("status"), "3 datapoints available.  Displaying 3.");
    EXPECT_EQ(state.at("panes").at(0).at("groups").at(0).at("series").at(0).at("y"),
              json({12.0, 13.0, 14.0}));
}

TEST_F(ChartState, SettlingTakesLiveTrades)
{
    StartFeed({"--simulate", "--speed", "50"});
    const json state = State({"GOOG", "--data", "daily", "--settle", "3000"});
    EXPECT_EQ(state.at("range").at("count"), 1001) << "today's bar stands behind the recording";
    EXPECT_EQ(state.at("status"), "1001 datapoints available.  Displaying 120.");
}

TEST_F(ChartState, TheDarkColorsOfTheDocumentsAreTaken)
{
    const sRun import = Settings({"import", QString(ZANTROQ_DOCS_FOLDER) + "/dark-chart.json"});
    ASSERT_EQ(import.ExitCode, 0) << import.Err;
    const json state = State({"GOOG", "--data", "daily", "--feed", "embedded"});
    constexpr int Back = 0x1F1A16; // #161a1f with red in the low byte
    for (const json& pane : state.at("panes"))
        EXPECT_EQ(pane.at("interior").at("background"), Back);
}

} // namespace zantroq::test
