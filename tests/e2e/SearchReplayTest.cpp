// The symbol search in scripts: with a scripted feed and with the shipped feeds.
#include "ScriptedChart.h"

namespace zantroq::test {
namespace {

class SearchReplay : public CScriptedChart
{
protected:
    // Serves the tables and answers each search with these rows after its identifier and comma.
    void ServeSearch(const std::string& rows, bool end = true)
    {
        m_scripted.Lookup.SetResponder([rows, end](std::string_view line) -> std::string {
            if (line == "SLM")
                return "2,NASDAQ,Nasdaq Stock Market,1,R\r\n3,NYSE,New York,1,R\r\n0,x\r\n!ENDMSG!,\r\n";
            if (line == "SST")
                return "1,EQUITY,Equity\r\n4,FOREX,Foreign exchange\r\n0,x\r\n!ENDMSG!,\r\n";
            if (!line.starts_with("FIND,"))
                return "";
            const std::string id(line.substr(5, line.find(',', 5) - 5));
            std::string reply;
            for (std::size_t at = 0; at < rows.size();) {
                const std::size_t next = rows.find('\n', at) + 1;
                reply += id + ',' + rows.substr(at, next - at);
                at = next;
            }
            return end ? reply + id + ",!ENDMSG!,\r\n" : reply;
        });
    }
    json Dialog(const std::string& steps) { return After("command 774\n" + steps).at("dialog"); }
    static json Items(const json& dialog) { return dialog.at("controls").at("250").at("items"); }
    bool Asked(const std::string& line) { return m_scripted.Lookup.AwaitReceived(line + "\r\n"); }
};

} // namespace

TEST_F(SearchReplay, TheDialogOpensSmallWithTheMarketsAsFilter)
{
    ServeSearch("");
    const json dialog = Dialog("");
    EXPECT_EQ(dialog.at("title"), "Search for Company");
    EXPECT_EQ(dialog.at("size"), json::array({335, 310}));
    const json& controls = dialog.at("controls");
    EXPECT_EQ(controls.at("251").at("value"), true);
    EXPECT_EQ(controls.at("249").at("value"), false);
    EXPECT_EQ(controls.at("247").at("value"), true);
    EXPECT_EQ(controls.at("248").at("label"), "Show Options");
    EXPECT_EQ(controls.at("245").at("visible"), false);
    EXPECT_EQ(controls.at("245").at("items"),
              json::parse(R"([["NASDAQ - Nasdaq Stock Market","2"],["NYSE - New York","3"]])"));
    EXPECT_TRUE(Items(dialog).empty());
    for (const char* id :
         {"1", "2", "234", "235", "245", "246", "247", "248", "249", "250", "251", "252", "253"})
        EXPECT_TRUE(controls.contains(id)) << id;
}

TEST_F(SearchReplay, TheOptionsMakeItLarge)
{
    ServeSearch("");
    const json large = Dialog("dialog press 248");
    EXPECT_EQ(large.at("size"), json::array({335, 500}));
    EXPECT_EQ(large.at("controls").at("248").at("label"), "Hide Options");
    EXPECT_EQ(large.at("controls").at("245").at("visible"), true);
    EXPECT_EQ(Dialog("dialog press 248\ndialog press 248").at("size"), json::array({335, 310}));
}

TEST_F(SearchReplay, ResultsComeLastFirstAndADoubleClickTakesOne)
{
    ServeSearch("AA,2,1,Alpha\r\nBB,3,1,Beta\r\nCC,9,1,Gamma, Inc.\r\n");
    const std::string found = "command 774\ndialog set 235 a\ndialog press 234\nwait search\n";
    EXPECT_EQ(Items(After(found).at("dialog")),
              json::parse(R"([["CC","","Gamma"],["BB","NYSE","Beta"],["AA","NASDAQ","Alpha"]])"));
    const json after = After(found + "dialog double 250 1");
    EXPECT_TRUE(after.at("dialog").is_null());
    EXPECT_EQ(after.at("symbol"), "") << "the chart is not started by the dialog";
    EXPECT_EQ(after.at("commands").at("32780").at("enabled"), true);
    EXPECT_EQ(After(found + "dialog set 250 2\ndialog ok\ndraw").at("symbol"), "AA") << "the box holds it";
}

TEST_F(SearchReplay, CancelTakesNothing)
{
    ServeSearch("AA,2,1,Alpha\r\n");
    const json after = After("symbol X\ncommand 774\ndialog set 235 a\ndialog press 234\nwait search\n"
                             "dialog set 250 0\ndialog cancel\ndraw\nwait 200");
    EXPECT_EQ(after.at("symbol"), "X");
}

TEST_F(SearchReplay, OkWithoutASelectionSearches)
{
    ServeSearch("AA,2,1,Alpha\r\n");
    EXPECT_EQ(Items(Dialog("dialog set 235 a\ndialog ok\nwait search")).size(), 1u);
    const json empty = Dialog("dialog ok\nwait 100");
    EXPECT_FALSE(empty.is_null()) << "an empty text stays in the dialog and sends nothing";
    EXPECT_TRUE(Items(empty).empty());
}

TEST_F(SearchReplay, TheFilterOnShowIsSent)
{
    ServeSearch("AA,2,1,Alpha\r\n");
    Dialog(
        "dialog press 248\ndialog set 245 0,1\ndialog set 235 a\ndialog set 249 on\ndialog press 234\nwait "
        "search");
    EXPECT_TRUE(Asked("FIND,1,s,a,e,2 3"));
    Dialog("dialog press 248\ndialog set 245 0,1\ndialog set 246 on\ndialog set 245 1\ndialog set 235 b\n"
           "dialog press 234\nwait search");
    EXPECT_TRUE(Asked("FIND,1,d,b,t,4"));
    Dialog("dialog press 248\ndialog set 245 1\ndialog set 247 on\ndialog set 235 c\ndialog press 234\nwait "
           "search");
    EXPECT_TRUE(Asked("FIND,1,d,c,e,3")) << "a second click on the active filter keeps the selection";
}

TEST_F(SearchReplay, AnErrorLineIsARow)
{
    ServeSearch("E,Empty search text\r\n", false);
    EXPECT_EQ(Items(Dialog("dialog set 235 a\ndialog press 234\nwait search")),
              json::parse(R"([["ERROR","","Empty search text"]])"));
}

TEST_F(SearchReplay, AFeedThatDoesNotKnowTheCommandsGivesEmptyTablesAndAnErrorRow)
{
    m_scripted.Lookup.SetResponder([](std::string_view) { return "E,!SYNTAX_ERROR!,,\r\n"; });
    const json dialog = Dialog("dialog set 235 a\ndialog press 234\nwait search");
    EXPECT_TRUE(dialog.at("controls").at("245").at("items").empty());
    EXPECT_EQ(Items(dialog), json::parse(R"([["ERROR","","!SYNTAX_ERROR!"]])"));
}

TEST_F(SearchReplay, AFeedThatIsNotRunningGivesTheErrorRow)
{
    const QString key = "Software\\Zantro\\Quovex\\Startup";
    Set("LookupPort", QString::number(RefusingPort()), key);
    const json dialog = Dialog("dialog set 235 a\ndialog press 234\nwait search");
    EXPECT_TRUE(dialog.at("controls").at("245").at("items").empty());
    EXPECT_EQ(Items(dialog), json::parse(R"([["Error","","Symbol Request Failed"]])"));
}

TEST_F(SearchReplay, ASearchThatIsNotAnsweredEndsTheScriptWithExit3)
{
    ServeSearch("AA,2,1,Alpha\r\n", false);
    sRun run = Play("command 774\ndialog set 235 a\ndialog press 234\nwait search 0.3\n");
    EXPECT_EQ(run.ExitCode, 3);
    EXPECT_NE(run.Err.find("line 4: wait search: the feed gave no answer in time (0.3 s)"), std::string::npos)
        << run.Err;
    run = Play("command 774\nwait search 0.1\n");
    EXPECT_EQ(run.ExitCode, 3);
    EXPECT_NE(run.Err.find("no search was begun"), std::string::npos) << run.Err;
    run = Play("wait search 10\n");
    EXPECT_EQ(run.ExitCode, 3);
    EXPECT_NE(run.Err.find("no dialog is open"), std::string::npos) << run.Err;
}

TEST_F(SearchReplay, TheWindowGoesOnWhileASearchIsNotAnswered)
{
    ServeSearch("AA,2,1,Alpha\r\n", false);
    const json after =
        After("command 774\ndialog set 235 a\ndialog press 234\ndialog press 248\ncommand 779\n"
              "snapshot open.json\ndialog cancel");
    EXPECT_TRUE(after.at("dialog").is_null());
    EXPECT_EQ(State("open.json").at("dialog").at("size"), json::array({335, 500}));
}

TEST_F(SearchReplay, AFilterThatIsHiddenTakesNoSelection)
{
    ServeSearch("");
    const sRun run = Play("command 774\ndialog set 245 0\nsnapshot end.json\n");
    EXPECT_EQ(run.ExitCode, 0);
    EXPECT_NE(run.Err.find("control 245 is hidden"), std::string::npos) << run.Err;
}

TEST_F(SearchReplay, VeryManyAndVeryLongRowsAreShown)
{
    std::string rows;
    for (int i = 0; i < 20'000; ++i)
        rows += "S" + std::to_string(i) + ",2,1,Row\r\n";
    rows += "LONG,2,1," + std::string(65'000, 'x') + "\r\n";
    ServeSearch(rows);
    const json items = Items(Dialog("dialog set 235 a\ndialog press 234\nwait search"));
    ASSERT_EQ(items.size(), 20'001u);
    EXPECT_EQ(items[0][2].get<std::string>().size(), 65'000u);
    EXPECT_EQ(items[1][0], "S19999");
    EXPECT_EQ(items[20'000], json::array({"S0", "NASDAQ", "Row"}));
}

TEST_F(SearchReplay, AWrongWaitIsAWrongLine)
{
    const sRun run = Play("wait search soon\n");
    EXPECT_EQ(run.ExitCode, 2);
    EXPECT_NE(run.Err.find("line 1: wait: the time \"soon\""), std::string::npos) << run.Err;
}

class SearchOnShippedFeeds : public CProgramsWithFeed
{
protected:
    void ExpectGoogle(const QStringList& words)
    {
        Write("script.txt",
              "type daily\ncommand 774\ndialog set 235 GOOGLE\ndialog press 234\nwait search\n"
              "snapshot open.json\ndialog double 250 0\ndraw\nwait complete\nsnapshot end.json\n");
        const sRun run = Chart(QStringList({"--replay", "script.txt"}) + words);
        ASSERT_EQ(run.ExitCode, 0) << run.Err;
        const json open = json::parse(Bytes("open.json").toStdString());
        EXPECT_EQ(open.at("dialog").at("controls").at("250").at("items"),
                  json::parse(R"([["GOOG","NASDAQ","Google Inc."]])"));
        const json end = json::parse(Bytes("end.json").toStdString());
        EXPECT_EQ(end.at("symbol"), "GOOG");
        EXPECT_EQ(end.at("range").at("count"), 1000);
    }
};

TEST_F(SearchOnShippedFeeds, TheFeedProgramFindsWhatItServes)
{
    StartFeed();
    ExpectGoogle({});
}

TEST_F(SearchOnShippedFeeds, TheFeedInsideTheProgramDoesToo)
{
    ExpectGoogle({"--feed", "embedded"});
}

TEST_F(SearchOnShippedFeeds, ASimulatedSymbolIsFoundAndSaysSo)
{
    Write("script.txt", "command 774\ndialog set 235 \"aldora copper mining ltd\"\ndialog press 234\n"
                        "wait search\nsnapshot open.json\n");
    ASSERT_EQ(Chart({"--replay", "script.txt", "--feed", "embedded"}).ExitCode, 0);
    const json open = json::parse(Bytes("open.json").toStdString());
    const json items = open.at("dialog").at("controls").at("250").at("items");
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0][0], "SIM.ALDC");
    EXPECT_EQ(items[0][1].get<std::string>().substr(0, 3), "SIM");
    EXPECT_EQ(items[0][2], "Aldora Copper Mining Ltd. (simulated)");
}

} // namespace zantroq::test
