// What the conveniences change of the program's answers, and what they must not change.
#include "Programs.h"

#include <QImage>

#include <nlohmann/json.hpp>

namespace zantroq::test {
namespace {

using nlohmann::json;

class Conveniences : public CPrograms
{
protected:
    // The state that a run writes, and what it leaves in the settings.
    struct sOutcome
    {
        std::string State, Settings;
    };
    sOutcome Outcome(const QStringList& words)
    {
        const sRun run = Chart(words + QStringList{"--snapshot", "a.json"});
        EXPECT_EQ(run.ExitCode, 0) << run.Err;
        return {Bytes("a.json").toStdString(), Settings({"list"}).Out};
    }
    std::string Stored(const QString& name) { return Settings({"get", name}).Out; }
};

} // namespace

TEST_F(Conveniences, StateAndSettingsAreTheSameOnAndOff)
{
    for (const QStringList& words : {QStringList{"GOOG", "--data", "daily", "--feed", "embedded"},
                                     QStringList{"SIM.A", "--data", "minute", "--feed", "embedded"},
                                     QStringList{"SIM.A", "--feed", "embedded"}}) {
        const sOutcome on = Outcome(words + QStringList{"--conveniences", "on"});
        QFile::remove(Path("settings.db"));
        const sOutcome usual = Outcome(words);
        QFile::remove(Path("settings.db"));
        const sOutcome off = Outcome(words + QStringList{"--conveniences", "off"});
        QFile::remove(Path("settings.db"));
        EXPECT_EQ(on.State, off.State) << words.join(' ').toStdString();
        EXPECT_EQ(on.Settings, off.Settings) << words.join(' ').toStdString();
        EXPECT_EQ(on.State, usual.State) << "they are on unless told otherwise";
    }
}

TEST_F(Conveniences, TheFeedInsideShowsTheFinestTypeThatItHasAndStoresNothing)
{
    const json state = json::parse(Outcome({"GOOG", "--feed", "embedded"}).State);
    EXPECT_EQ(state.at("dataType"), 2);
    EXPECT_GT(state.at("range").at("count"), 1000 - 1);
    EXPECT_EQ(Stored("RequestDataType"), "0\n");
    Write("MIN.minute.csv", "time,open,high,low,close,volume\n2024-01-02 09:31:00,1,2,1,2,10\n");
    EXPECT_EQ(json::parse(Outcome({"MIN", "--feed", "embedded:."}).State).at("dataType"), 1);
    EXPECT_EQ(json::parse(Outcome({"SIM.A", "--feed", "embedded"}).State).at("dataType"), 0);
}

TEST_F(Conveniences, TheTypeThatWasUsedLastStaysWhereTheFeedHasIt)
{
    Outcome({"SIM.A", "--data", "weekly", "--feed", "embedded"});
    EXPECT_EQ(json::parse(Outcome({"GOOG", "--feed", "embedded"}).State).at("dataType"), 3);
}

TEST_F(Conveniences, BlanksAroundTheSymbolOfTheCommandLineCountForNothing)
{
    const json state = json::parse(Outcome({" GOOG ", "--feed", "embedded"}).State);
    EXPECT_EQ(state.at("symbol"), "GOOG");
    EXPECT_EQ(state.at("dataType"), 2);
}

TEST_F(Conveniences, PicturesCarryAStatusLineOnlyWithoutThem)
{
    const auto lowestRow = [this](const char* conveniences) {
        const sRun run = Chart({"GOOG", "--data", "daily", "--feed", "embedded", "--snapshot", "a.png",
                                "--conveniences", conveniences});
        EXPECT_EQ(run.ExitCode, 0) << run.Err;
        const QImage image(Path("a.png"));
        EXPECT_EQ(image.size(), QSize(620, 460));
        int ink = 0;
        for (int y = 442; y < 460; ++y)
            for (int x = 0; x < 620; ++x)
                ink += image.pixel(x, y) != image.pixel(0, 459) ? 1 : 0;
        return ink;
    };
    EXPECT_EQ(lowestRow("on"), 0);
    EXPECT_GT(lowestRow("off"), 100);
}

TEST_F(Conveniences, AnythingButOnAndOffIsRefused)
{
    const sRun run = Chart({"GOOG", "--conveniences", "maybe", "--snapshot", "a.png"});
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_EQ(run.Err, "zantroq-chart: --conveniences maybe: neither on nor off; use one of them\n");
}

} // namespace zantroq::test
