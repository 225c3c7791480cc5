// All errors of zantroq-chart: the exit code, and a sentence with what was wrong, the value and what to do.
#include "Programs.h"

#include <algorithm>

namespace zantroq::test {
namespace {

class ChartErrors : public CProgramsWithFeed
{
protected:
    void Refused(const QStringList& words, const std::string& sentence)
    {
        const sRun run = Chart(words);
        EXPECT_EQ(run.ExitCode, 2) << words.join(' ').toStdString();
        EXPECT_EQ(run.Err, "zantroq-chart: " + sentence + "\n");
        EXPECT_EQ(run.Out, "");
    }
};

} // namespace

TEST_F(ChartErrors, HelpAndVersionGoToStandardOutput)
{
    const sRun help = Chart({"--help"});
    EXPECT_EQ(help.ExitCode, 0);
    EXPECT_EQ(help.Err, "");
    for (const char* option : {"--data", "--interval", "--size", "--feed", "--snapshot", "--settle",
                               "--timeout", "--replay", "--show", "--version", "ZANTROQ_LOOK"})
        EXPECT_NE(help.Out.find(option), std::string::npos) << option;
    EXPECT_EQ(Chart({"--version"}).Out.rfind("zantroq-chart ", 0), 0u);
}

TEST_F(ChartErrors, HelpAndVersionThatNobodyCanReadEndWithExitFour)
{
    for (const char* option : {"--help", "--version"}) {
        const sRun run =
            Run("/bin/sh", {"-c", "exec \"$0\" \"$1\" >/dev/full", ZANTROQ_CHART, option}, Environment());
        EXPECT_EQ(run.ExitCode, 4) << option;
        EXPECT_EQ(run.Err, "zantroq-chart: standard output: cannot be written; send it to a terminal or to a "
                           "file with room\n");
    }
}

TEST_F(ChartErrors, AnOptionGivenTwiceIsNamedWithBothValues)
{
    Refused({"--data", "daily", "--data", "tick", "GOOG"},
            "--data daily, --data tick: given more than once; leave one");
    Refused({"--size", "90x90", "--size", "90x90", "--size", "80x80", "GOOG"},
            "--size 90x90, --size 90x90: given more than once; leave one");
    Refused({"--replay", "a.txt", "--replay", ""},
            "--replay a.txt, --replay \"\": given more than once; leave one");
}

TEST_F(ChartErrors, WrongValuesAreNamed)
{
    Refused({"--interval", "7", "GOOG"},
            "--interval 7: not offered; use 1, 2, 3, 4, 5, 10, 15, 30, 45, 60 or 120");
    Refused({"--data", "hourly", "GOOG"},
            "--data hourly: not a data type; use tick, minute, daily, weekly or monthly");
    for (const QString size : {"900", "0x5", "9x", "x9", "-1x5", "20000x5", "9x9x9"})
        Refused({"--size", size, "GOOG"},
                "--size " + size.toStdString() +
                    ": not a size; use WIDTHxHEIGHT in pixels, such as 900x700, at most 16384 each");
    Refused({"--data", "a\n\x1b[31m", "GOOG"},
            "--data a\\n\\x1b[31m: not a data type; use tick, minute, daily, weekly or monthly");
    Refused({"--feed", "remote", "GOOG"},
            "--feed remote: not a feed; use system, embedded or embedded:FOLDER");
    Refused({"--feed", "embedded:/no/such", "GOOG"},
            "--feed embedded:/no/such: the part behind the colon is not a folder; name one with recordings");
    Refused({"--snapshot", "a.bmp", "GOOG"},
            "--snapshot a.bmp: the ending is not known; use .png, .svg, .pdf or .json");
    Refused({"--snapshot", "a.png", "--settle", "soon", "GOOG"},
            "--settle soon: not a time; use a number of milliseconds from 0 on, at most a day");
    Refused({"--snapshot", "a.png", "--timeout", "-1", "GOOG"},
            "--timeout -1: not a time; use a number of seconds from 0 on, at most a day");
}

TEST_F(ChartErrors, OptionsThatDoNotGoTogetherAreNamed)
{
    Refused({"--snapshot", "a.png"}, "--snapshot a.png: no symbol was given; name one behind the options");
    Refused({"--snapshot", "a.png", "A,B"}, "A,B: symbols cannot contain any commas; name one symbol");
    Refused({"--settle", "5", "GOOG"}, "--settle: goes with --snapshot FILE alone; leave it out or add that");
    Refused({"--timeout", "5", "GOOG"},
            "--timeout: goes with --snapshot FILE alone; leave it out or add that");
    Refused({"--show", "GOOG"},
            "--show: goes with --replay FILE alone; without --snapshot a window opens anyway");
}

TEST_F(ChartErrors, AnEmptyValueIsAValueAndIsRefused)
{
    const std::string noPicture = "no file is named; name one that ends in .png, .svg, .pdf or .json";
    Refused({"--replay", ""}, "--replay \"\": no file is named; name one with a step a line");
    Refused({"--snapshot", "", "GOOG"}, "--snapshot \"\": " + noPicture);
    Refused({"--snapshot", "a.png", "--snapshot", "", "GOOG"}, "--snapshot \"\": " + noPicture);
    Refused({"--feed", "", "GOOG"}, "--feed \"\": not a feed; use system, embedded or embedded:FOLDER");
    Refused({"--size", "", "GOOG"},
            "--size \"\": not a size; use WIDTHxHEIGHT in pixels, such as 900x700, at most 16384 each");
    Refused({"--data", "", "GOOG"},
            "--data \"\": not a data type; use tick, minute, daily, weekly or monthly");
    Refused({"--interval", "", "GOOG"},
            "--interval \"\": not offered; use 1, 2, 3, 4, 5, 10, 15, 30, 45, 60 or 120");
    Refused({"--snapshot", "a.png", "--settle", "", "GOOG"},
            "--settle \"\": not a time; use a number of milliseconds from 0 on, at most a day");
    Refused({"--snapshot", "a.png", "--timeout", "", "GOOG"},
            "--timeout \"\": not a time; use a number of seconds from 0 on, at most a day");
    for (const QString file : {".json", "pictures/.png"})
        Refused({"--snapshot", file, "GOOG"},
                "--snapshot " + file.toStdString() +
                    ": no name stands before the ending; name it such as chart.png");
}

TEST_F(ChartErrors, UnknownOptionsAndWordsPointToTheHelp)
{
    for (const QStringList& words :
         {QStringList{"--colour"}, QStringList{"GOOG", "MSFT"}, QStringList{"--data"}}) {
        const sRun run = Chart(words);
        EXPECT_EQ(run.ExitCode, 2);
        EXPECT_NE(run.Err.find("see zantroq-chart --help"), std::string::npos) << run.Err;
    }
}

TEST_F(ChartErrors, AFeedThatIsNotThereEndsWithExitThree)
{
    SetPorts("1", "1");
    const sRun run = Chart({"GOOG", "--snapshot", "a.png", "--timeout", "0.5"});
    EXPECT_EQ(run.ExitCode, 3);
    EXPECT_EQ(run.Err,
              "zantroq-chart: GOOG: the feed gave no complete reply in time (0.5 s); start zantroq-feed, "
              "try --feed embedded, or give --timeout more\n");
    EXPECT_TRUE(Bytes("a.png").isEmpty());
}

TEST_F(ChartErrors, ASymbolThatTheFeedDoesNotKnowEndsWithExitThree)
{
    const sRun run = Chart({"NOSUCH", "--feed", "embedded", "--snapshot", "a.png", "--timeout", "1"});
    EXPECT_EQ(run.ExitCode, 3);
    EXPECT_EQ(
        run.Err,
        "zantroq-chart: NOSUCH: the feed gave no complete reply in time (1 s); the embedded feed has no "
        "recording of it; name a folder that has one with --feed embedded:FOLDER\n");
}

TEST_F(ChartErrors, DataThatTheEmbeddedFeedLacksPointsToWhatItHas)
{
    sRun run =
        Chart({"GOOG", "--feed", "embedded", "--snapshot", "a.png", "--timeout", "1", "--data", "tick"});
    EXPECT_EQ(run.ExitCode, 3);
    EXPECT_EQ(run.Err,
              "zantroq-chart: GOOG: the feed gave no complete reply in time (1 s); the embedded feed has no "
              "ticks of it, but daily prices, which --data daily shows\n");
    Write("MIN.minute.csv", "time,open,high,low,close,volume\n2024-01-02 09:31:00,1,2,1,2,10\n");
    run = Chart(
        {"MIN", "--feed", "embedded:.", "--snapshot", "a.png", "--timeout", "1", "--conveniences", "off"});
    EXPECT_EQ(run.ExitCode, 3);
    EXPECT_NE(run.Err.find("no ticks of it, but minutes, which --data minute shows"), std::string::npos)
        << run.Err;
}

TEST_F(ChartErrors, AFileThatCannotBeWrittenEndsWithExitFour)
{
    for (const QString name : {"no/such/a.png", "no/such/a.svg", "no/such/a.pdf", "no/such/a.json"}) {
        const sRun run = Chart({"GOOG", "--data", "daily", "--feed", "embedded", "--snapshot", name});
        EXPECT_EQ(run.ExitCode, 4);
        EXPECT_EQ(
            run.Err.rfind("zantroq-chart: --snapshot " + name.toStdString() + ": cannot be written (", 0), 0u)
            << run.Err;
    }
}

// The message spoke of an unknown error.
TEST_F(ChartErrors, AFullDiskIsReportedAsAFullDisk)
{
    for (const QString name : {"full.png", "full.svg", "full.pdf", "full.json"}) {
        ASSERT_EQ(Run("/bin/ln", {"-s", "/dev/full", name}, Environment()).ExitCode, 0);
        const sRun run = Chart({"GOOG", "--data", "daily", "--feed", "embedded", "--snapshot", name});
        EXPECT_EQ(run.ExitCode, 4);
        EXPECT_EQ(run.Err, "zantroq-chart: --snapshot " + name.toStdString() +
                               ": cannot be written (the disk is full); choose another place\n");
    }
}

TEST_F(ChartErrors, AFileThatCannotBeWrittenKeepsNoOtherFromBeingWritten)
{
    const sRun run = Chart({"GOOG", "--data", "daily", "--feed", "embedded", "--snapshot", "no/such/a.png",
                            "--snapshot", "b.png", "--snapshot", "no/such/c.svg", "--snapshot", "d.json"});
    EXPECT_EQ(run.ExitCode, 4);
    EXPECT_EQ(std::count(run.Err.begin(), run.Err.end(), '\n'), 2) << run.Err;
    EXPECT_TRUE(Bytes("b.png").startsWith("\x89PNG"));
    EXPECT_TRUE(Bytes("d.json").startsWith("{"));
}

TEST_F(ChartErrors, AWindowWithoutADisplayIsRefused)
{
    const std::string sentence =
        "no window can be opened on this display; set DISPLAY, or give --snapshot FILE to "
        "draw a picture without one";
    Refused({"GOOG"}, sentence);
    QProcessEnvironment broken = Environment();
    broken.insert("DISPLAY", ":9999");
    const sRun run = Run(ZANTROQ_CHART, {"GOOG"}, broken);
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_EQ(run.Err, "zantroq-chart: " + sentence + "\n");
}

TEST_F(ChartErrors, ALookThatIsNoneIsNamed)
{
    QProcessEnvironment pink = Environment();
    pink.insert("ZANTROQ_LOOK", "pink");
    const sRun run = Run(ZANTROQ_CHART, {"GOOG"}, pink);
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_EQ(run.Err, "zantroq-chart: ZANTROQ_LOOK=pink: not a look; use light, dark or system\n");
}

TEST_F(ChartErrors, ASnapshotMindsNoBrokenDisplay)
{
    QProcessEnvironment broken = Environment();
    broken.insert("DISPLAY", ":9999");
    broken.insert("QT_QPA_PLATFORM", "xcb");
    broken.insert("QT_QPA_PLATFORMTHEME", "gtk3");
    const sRun run =
        Run(ZANTROQ_CHART, {"GOOG", "--data", "daily", "--feed", "embedded", "--snapshot", "a.png"}, broken);
    EXPECT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_EQ(run.Err, "");
    EXPECT_FALSE(Bytes("a.png").isEmpty());
}

} // namespace zantroq::test
