// The study panes of the whole program, from the feed's lines to the state file, compared bit for bit with
// the slow plain definition over the rows of the recording; the numbers of a state can be read back exactly.
#include "Programs.h"
#include "StudyStates.h"

#include "qt/GoldenPicture.h"

#include <chrono>
#include <cmath>
#include <sstream>

namespace zantroq::test {
namespace {

// The newest `count` rows of the shipped recording: date,open,high,low,close,volume,open_interest.
CBarSeries NewestDays(std::size_t count)
{
    std::ifstream file(std::string(ZANTROQ_DATA_FOLDER) + "/GOOG.daily.csv");
    std::vector<std::vector<double>> rows;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        std::vector<double> numbers;
        std::istringstream fields(line.substr(line.find(',') + 1));
        for (std::string field; std::getline(fields, field, ',');)
            numbers.push_back(std::stod(field));
        rows.push_back(numbers);
    }
    CBarSeries series;
    for (std::size_t i = rows.size() - std::min(count, rows.size()); i < rows.size(); ++i)
        series.Add(rows[i].at(0), rows[i].at(1), rows[i].at(2), rows[i].at(3),
                   static_cast<std::int64_t>(rows[i].at(4)));
    return series;
}

class Studies : public CPrograms
{
protected:
    json Play(const std::string& steps,
              const QStringList& words = {"--feed", "embedded", "--conveniences", "off"})
    {
        Write("script.txt", steps + "snapshot state.json\n");
        const sRun run = Chart(QStringList({"--replay", "script.txt"}) + words);
        EXPECT_EQ(run.ExitCode, 0) << run.Err;
        return run.ExitCode == 0 ? json::parse(Bytes("state.json").toStdString()) : json();
    }
    QImage Picture() const { return QImage(Path("state.png")).convertToFormat(QImage::Format_RGB32); }
    void ExpectPlain(const json& state, const CBarSeries& series, const sChartSettings& settings)
    {
        const json& panes = state.at("panes");
        const plain::sView view = ViewOf(state);
        ASSERT_EQ(series.Count(), state.at("range").at("count").get<int>());
        plain::sStates states;
        for (std::size_t pane = 1; pane < panes.size(); ++pane) {
            const int kind = panes.at(pane).at("study");
            SCOPED_TRACE("study " + std::to_string(kind));
            plain::sPane twin;
            twin.Draw(kind, series, settings, view, states);
            ExpectPane(panes.at(pane), twin);
        }
    }
    static sChartSettings Daily()
    {
        sChartSettings settings;
        settings.Request.DataType = 2;
        return settings;
    }
};

constexpr double FontsMayDiffer = 0.02; // largest share of texts in a window's pixels

const std::string DrawGoog = "type daily\nsymbol GOOG\ndraw\nwait complete\n";

} // namespace

TEST_F(Studies, EachShownAloneIsThePlainDefinitionOverTheRecording)
{
    const CBarSeries days = NewestDays(1000);
    for (int kind = 0; kind < 10; ++kind) {
        const json state = Play("resize 500 340\n" + StackSteps({kind}) + DrawGoog + "snapshot state.png\n");
        ASSERT_EQ(state.at("panes").size(), 2u);
        ASSERT_EQ(state.at("panes").at(1).at("study"), kind);
        ExpectPlain(state, days, Daily());
        CompareWithGolden(Picture(), QString("study-%1.png").arg(kind), FontsMayDiffer);
    }
}

TEST_F(Studies, AllTenInOneWindowAreThePlainDefinition)
{
    const json state = Play("resize 900 1200\n" + StackSteps({9, 8, 7, 6, 5, 4, 3, 2, 1, 0}) + DrawGoog +
                            "snapshot state.png\n");
    ASSERT_EQ(state.at("panes").size(), 11u);
    ExpectPlain(state, NewestDays(1000), Daily());
    CompareWithGolden(Picture(), "studies-all.png", FontsMayDiffer);
}

TEST_F(Studies, AChangeOfTheStackRedrawsTheNewStudies)
{
    const std::string wait = "wait complete\n"; // each change requests the series again
    const json state =
        Play(StackSteps({0}) + DrawGoog + "set \"Number of displayed study charts\" 2\n" + wait +
             "set \"Type of study chart 0\" 2\n" + wait + "set \"Type of study chart 1\" 4\n" + wait);
    ASSERT_EQ(state.at("panes").size(), 3u);
    EXPECT_EQ(state.at("panes").at(1).at("study"), 2);
    EXPECT_EQ(state.at("panes").at(2).at("study"), 4);
    ExpectPlain(state, NewestDays(1000), Daily());
}

TEST_F(Studies, ShownFromTheStartOfTheSeriesTheyLeaveTheirWarmUpEmpty)
{
    const json state = Play(StackSteps({1, 2, 3, 5, 7, 8}) + DrawGoog + "scroll left-end\n");
    ASSERT_EQ(state.at("range").at("first"), 0);
    ExpectPlain(state, NewestDays(1000), Daily());
}

// The trade prices and sizes are those that the price pane and the volume pane show.
TEST_F(Studies, LiveTicksContinueThePlainDefinition)
{
    Play(StackSteps({6, 1, 2, 3, 4, 7, 9}) +
         "type tick\nsymbol SIM.A\ndraw\nwait complete\nsnapshot before.json\nwait 4000\n");
    const json before = json::parse(Bytes("before.json").toStdString());
    const json after = json::parse(Bytes("state.json").toStdString());
    const int had = before.at("range").at("count"), has = after.at("range").at("count");
    ASSERT_GT(has, had) << "live ticks arrived";
    const auto y = [](const json& state, std::size_t pane) {
        return state.at("panes").at(pane).at("groups").at(0).at("series").at(0).at("y");
    };
    const json closes = y(after, 0), volumes = y(after, 1), momentum = y(after, 2), roc = y(after, 3),
               balance = y(after, 4);
    const sChartSettings settings;
    const int shown = static_cast<int>(closes.size());
    const int lag = settings.Studies.Periods[1], smooth = settings.Studies.Periods[3];
    const int fresh = std::min(has - had, shown - lag - 1);
    ASSERT_GT(fresh, 0);
    for (int point = shown - fresh; point < shown; ++point) {
        SCOPED_TRACE("point " + std::to_string(point + 1));
        const double now = NumberOf(closes.at(point)), then = NumberOf(closes.at(point - lag));
        EXPECT_TRUE(SameBits(NumberOf(momentum.at(point)), now - then)) << "in time, unlike a redrawn one";
        EXPECT_TRUE(SameBits(NumberOf(roc.at(point)), (now - then) / then * 100));
        double sum = 0;
        for (int j = point - smooth; j < point; ++j) {
            const double later = NumberOf(closes.at(j + 1)), earlier = NumberOf(closes.at(j));
            const double size = NumberOf(volumes.at(j + 1));
            sum += later > earlier ? size : later < earlier ? -size : 0;
        }
        EXPECT_TRUE(SameBits(NumberOf(balance.at(point)), sum));
    }
    // The panes share one x axis and continue the numbering after the points dropped at the left.
    const json& x = after.at("panes").at(2).at("groups").at(0).at("series").at(0).at("x");
    for (std::size_t i = 1; i < x.size(); ++i)
        EXPECT_EQ(x.at(i).get<double>(), x.at(i - 1).get<double>() + 1);
}

TEST_F(Studies, OddPeriodsOfTheSettingsFileDoNoHarm)
{
    for (const QString period : {"0", "-7", "100000", "999999999"}) {
        SCOPED_TRACE(period.toStdString());
        ASSERT_EQ(
            Chart({"--feed", "embedded", "--data", "daily", "--snapshot", "first.json", "GOOG"}).ExitCode, 0);
        QStringList periods;
        for (int kind = 0; kind < 10; ++kind)
            periods << period;
        for (const QString name : {"MACD Short Period", "MACD Long Period"})
            ASSERT_EQ(Settings({"set", "--", name, period}).ExitCode, 0);
        ASSERT_EQ(Settings({"set", "--", "STUDY AVG PERIOD", periods.join(QLatin1Char(','))}).ExitCode, 0);
        const auto begin = std::chrono::steady_clock::now();
        const json state = Play(StackSteps({0, 1, 2, 3, 4, 5, 6, 7, 8, 9}) + DrawGoog);
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(60));
        EXPECT_EQ(state.at("panes").size(), 11u);
        EXPECT_EQ(state.at("range").at("shown"), 120);
    }
}

} // namespace zantroq::test
