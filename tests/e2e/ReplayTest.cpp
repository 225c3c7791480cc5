#include "Programs.h"

#include <nlohmann/json.hpp>

namespace zantroq::test {
namespace {

using nlohmann::json;

class Replay : public CPrograms
{
protected:
    sRun Play(const std::string& script, const QStringList& words = {"--feed", "embedded"})
    {
        Write("script.txt", script);
        return Chart(QStringList({"--replay", "script.txt"}) + words);
    }
    json State(const QString& name) const { return json::parse(Bytes(name).toStdString()); }
};

} // namespace

TEST_F(Replay, DrawsZoomsAndScrollsLikeAPerson)
{
    const sRun run = Play("# a day at the chart\n"
                          "type daily\nsymbol goog\ndraw\nwait complete\nsnapshot 1.json\n"
                          "command 777\ncommand 777\nsnapshot 2.json\n"
                          "scroll line-left\nsnapshot 3.json\nscroll left-end\nsnapshot 4.json\n"
                          "scroll track 10\nsnapshot 5.json\nscroll thumb 10\nsnapshot 6.json\n");
    ASSERT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_EQ(State("1.json").at("range").at("first"), 880);
    EXPECT_EQ(State("1.json").at("symbol"), "GOOG");
    EXPECT_EQ(State("2.json").at("range").at("shown"), 60);
    const int first = State("2.json").at("range").at("first");
    EXPECT_EQ(State("3.json").at("range").at("first"), first - 1);
    EXPECT_EQ(State("4.json").at("range").at("first"), 0);
    EXPECT_EQ(State("5.json").at("range").at("first"), 0) << "a dragged thumb draws only when it is let go";
    EXPECT_EQ(State("6.json").at("range").at("first"), 10);
}

TEST_F(Replay, ResizeMenuAndAnswers)
{
    const sRun run = Play("resize 800 600\ntype daily\nsymbol GOOG\ndraw\nwait complete\n"
                          "mouse down 342 2 5 5\nmenu 32793\nsnapshot 1.json\n"
                          "symbol \"\"\nanswer ok\ndraw\nsnapshot 2.json\n");
    ASSERT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_EQ(State("1.json").at("layout").at("maximizedIndex"), 1);
    EXPECT_EQ(State("1.json").at("panes").at(1).at("rect").at(2), 800);
    EXPECT_EQ(
        State("2.json").at("boxes"),
        json::array({{{"caption", "Warning"}, {"text", "Empty Symbol is not allowed"}, {"answer", "ok"}}}));
}

TEST_F(Replay, TheSymbolOfTheCommandLineIsDrawnFirst)
{
    const sRun run = Play("wait complete\nsnapshot 1.png\nsnapshot 1.json\n",
                          {"--feed", "embedded", "--data", "daily", "GOOG"});
    ASSERT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_EQ(State("1.json").at("range").at("count"), 1000);
    EXPECT_TRUE(Bytes("1.png").startsWith("\x89PNG"));
}

TEST_F(Replay, AWrongLineIsFoundBeforeTheFirstStep)
{
    const sRun run = Play("snapshot 1.json\nscroll sideways\n");
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_NE(run.Err.find("--replay script.txt: line 2"), std::string::npos) << run.Err;
    EXPECT_TRUE(Bytes("1.json").isEmpty());
}

TEST_F(Replay, AMissingScriptIsAUsageError)
{
    const sRun run = Chart({"--replay", "none.txt"});
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_NE(run.Err.find("--replay none.txt: cannot be read"), std::string::npos) << run.Err;
}

TEST_F(Replay, AWaitThatRunsOutEndsWithExitThree)
{
    const sRun run = Play("symbol NOSUCH\ndraw\nwait complete 1\nsnapshot 1.json\n");
    EXPECT_EQ(run.ExitCode, 3);
    EXPECT_EQ(run.Err,
              "zantroq-chart: --replay script.txt: line 3: wait complete: NOSUCH: the feed gave no "
              "complete reply in time (1 s); the embedded feed has no recording of it; name a folder "
              "that has one with --feed embedded:FOLDER\n");
    EXPECT_TRUE(Bytes("1.json").isEmpty());
}

TEST_F(Replay, AWaitForNothingSaysSo)
{
    for (const std::string script : {"wait complete 0.1\n", "symbol \"A,B\"\ndraw\nwait complete 0.1\n"}) {
        const sRun run = Play(script);
        EXPECT_EQ(run.ExitCode, 3);
        EXPECT_NE(
            run.Err.find("wait complete: no chart was asked for, and 0.1 s brought none; let symbol and "
                         "draw steps come before\n"),
            std::string::npos)
            << run.Err;
    }
}

TEST_F(Replay, AFileThatCannotBeWrittenEndsWithExitFour)
{
    const sRun run = Play("snapshot no/such/1.json\n");
    EXPECT_EQ(run.ExitCode, 4);
    EXPECT_NE(run.Err.find("line 1: no/such/1.json: cannot be written"), std::string::npos) << run.Err;
}

TEST_F(Replay, PrintWritesThePageAsPdf)
{
    const sRun run = Play("type daily\nsymbol GOOG\ndraw\nwait complete\nprint page.pdf\nsnapshot 1.json\n");
    ASSERT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_TRUE(Bytes("page.pdf").startsWith("%PDF-"));
    EXPECT_EQ(State("1.json").at("status"), "Ready");
    EXPECT_EQ(State("1.json").at("commands").at("776").at("enabled"), true);
    EXPECT_EQ(State("1.json").at("commands").at("32780").at("enabled"), true);
}

TEST_F(Replay, APageThatCannotBeWrittenEndsWithExitFour)
{
    const sRun run = Play("print no/such/page.pdf\n");
    EXPECT_EQ(run.ExitCode, 4);
    EXPECT_NE(run.Err.find("line 1: no/such/page.pdf: cannot be written ("), std::string::npos) << run.Err;
}

TEST_F(Replay, ThePrintCommandCountsAsCancelledWhereNobodySeesItsDialog)
{
    const sRun run = Play("snapshot 1.json\ncommand 776\nsnapshot 2.json\n");
    ASSERT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_EQ(Bytes("1.json"), Bytes("2.json"));
}

TEST_F(Replay, SettingsAreWrittenAsBySheet)
{
    const sRun run = Play("set GRID 0\nsnapshot 1.json\n");
    ASSERT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_EQ(Settings({"get", "GRID"}).Out, "0\n");
    EXPECT_EQ(State("1.json").at("commands").at("779").at("checked"), false);
}

} // namespace zantroq::test
