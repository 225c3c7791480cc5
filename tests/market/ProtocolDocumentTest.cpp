// Checks docs/feed-protocol.md: reads its tables and lines from the page and tries them.
#include "market/ChartHistRequest.h"
#include "market/HistoryCommand.h"
#include "market/Level1Command.h"
#include "market/LineCutter.h"
#include "market/SeriesFixture.h"
#include "market/ZantroPorts.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <stdexcept>

using namespace zantroq;
using namespace zantroq::test;

namespace {

using Row = std::vector<std::string>;

const std::string& Page()
{
    static const std::string page = [] {
        std::ifstream file(ZANTROQ_DOCS "/feed-protocol.md");
        std::stringstream text;
        text << file.rdbuf();
        return text.str();
    }();
    return page;
}

// The page with blanks instead of line ends, to find sentences that span lines.
std::string Prose()
{
    std::string text = Page();
    for (char& c : text)
        if (c == '\n')
            c = ' ';
    return text;
}

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

Row Split(const std::string& line, char at)
{
    Row parts;
    std::istringstream stream(line);
    for (std::string part; std::getline(stream, part, at);)
        parts.push_back(Trimmed(part));
    return parts;
}

// The cells of the table whose heading begins with `heading`, row by row.
std::vector<Row> TableBelow(const std::string& heading)
{
    std::vector<Row> rows;
    const std::size_t start = Page().find("\n" + heading);
    if (start == std::string::npos)
        throw std::runtime_error("the page has no table " + heading);
    std::istringstream lines(Page().substr(start + 1));
    std::string line;
    std::getline(lines, line);
    std::getline(lines, line);
    while (std::getline(lines, line) && line.starts_with("|"))
        rows.push_back(Split(line.substr(1, line.size() - 2), '|'));
    return rows;
}

// The text between the first two backticks after `before`.
std::string Quoted(const std::string& text, const std::string& before = "")
{
    const std::size_t open = text.find('`', text.find(before) + before.size());
    return text.substr(open + 1, text.find('`', open + 1) - open - 1);
}

// Handles a line like the sockets: drops it if it is too short.
template<class Line> void Guarded(Line line)
{
    try {
        line();
    } catch (const std::invalid_argument&) {
    }
}

constexpr const char* GoodTick = "2014-01-02 09:30:01.250,101.25,100,5000,101.20,101.30,77,C";

} // namespace

TEST(ProtocolDocument, PortsHaveTheNamesAndDefaultsShown)
{
    const auto rows = TableBelow("| port |");
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0][0], "lookup");
    EXPECT_EQ(rows[1][0], "level 1");
    const std::shared_ptr<ISettingsKey> key = MakeMemorySettingsKey();
    CZantroPorts ports(key);
    EXPECT_EQ(std::to_string(ports.LookupPort()), rows[0][2]);
    EXPECT_EQ(std::to_string(ports.Level1Port()), rows[1][2]);
    for (const Row& row : rows)
        EXPECT_EQ(key->Read(Quoted(row[1])), SettingValue(row[2])) << "a missing value is written back";
    EXPECT_EQ(Quoted(Page(), "value under "), FeedSettingsKey);
}

TEST(ProtocolDocument, TheLongestLinesAreThoseThatFit)
{
    EXPECT_NE(Prose().find("A line and its end take at most 65,535 bytes on the lookup port and 4,095 on the "
                           "level 1 port."),
              std::string::npos);
    EXPECT_EQ(CLineCutter(CLineCutter::LookupCapacity).Room().size(), 65535u);
    EXPECT_EQ(CLineCutter(CLineCutter::StreamCapacity).Room().size(), 4095u);
}

TEST(ProtocolDocument, EachCommandIsSentAsShown)
{
    const std::map<std::string, std::string> values = {{"symbol", "SYM"},
                                                       {"points", "100"},
                                                       {"days", "5"},
                                                       {"seconds", "60"},
                                                       {"direction", "1"},
                                                       {"begin filter", "100000"},
                                                       {"end filter", "150000"},
                                                       {"begin date time", "20140102 093000"},
                                                       {"end date time", "20140103 160000"},
                                                       {"begin date", "20140102"},
                                                       {"end date", "20140103"},
                                                       {"", ""}};
    const auto rows = TableBelow("| kind | line |");
    ASSERT_EQ(rows.size(), 10u);
    for (int kind = 0; kind <= 9; ++kind) {
        CChartHistRequest request;
        request.SetRequestKind(kind);
        request.SetSymbol("SYM");
        request.SetDatapoints(100);
        request.SetDays(5);
        request.SetIntervalSeconds(60);
        request.SetDataDirection("1");
        request.SetBeginFilterTime("100000");
        request.SetEndFilterTime("150000");
        request.SetBeginDate("20140102");
        request.SetBeginTime("093000");
        request.SetEndDate("20140103");
        request.SetEndTime("160000");
        const Row& row = rows[static_cast<std::size_t>(kind)];
        EXPECT_EQ(row[0], std::to_string(kind));
        std::string expected;
        for (const std::string& field : Split(Quoted(row[1]), ',')) {
            if (field == "id")
                expected += "," + std::to_string(kind) + std::to_string(request.Handle());
            else
                expected += expected.empty() ? field : "," + values.at(field);
        }
        EXPECT_EQ(HistoryCommand(request), expected + "\n");
    }
}

TEST(ProtocolDocument, EachFieldOfAReplyIsStoredAsNamed)
{
    using Get = std::function<double(const sHIST_POINT&)>;
    const std::map<std::string, Get> shared = {
        {"high", [](const auto& p) { return p.High; }},
        {"low", [](const auto& p) { return p.Low; }},
        {"open", [](const auto& p) { return p.Open; }},
        {"close", [](const auto& p) { return p.Close; }},
        {"last price", [](const auto& p) { return p.Last; }},
        {"last size", [](const auto& p) { return p.LastSize; }},
        {"bid", [](const auto& p) { return p.Bid; }},
        {"ask", [](const auto& p) { return p.Ask; }},
        {"tick id", [](const auto& p) { return p.TickId; }},
        {"open interest", [](const auto& p) { return p.OpenInterest; }},
        {"total volume", [](const auto& p) { return p.TotalVolume; }}};
    const auto rows = TableBelow("| field | ticks (0 to 2) |");
    ASSERT_EQ(rows.size(), 8u);
    for (int kind = 0; kind <= 9; ++kind) {
        const std::size_t column = IsTickKind(kind) ? 1 : IsIntervalKind(kind) ? 2 : 3;
        std::string line = IsDayKind(kind) ? "2014-01-02" : "2014-01-02 09:30:01";
        line += IsTickKind(kind) ? ".250" : "";
        EXPECT_EQ(Quoted(rows[0][column]).size(), line.size()) << "the form of the stamp";
        for (std::size_t i = 1; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i][0], std::to_string(i + 1));
            const std::string name = column < rows[i].size() ? rows[i][column] : "";
            if (!name.empty())
                line += "," + (name.starts_with("basis") ? "C" : std::to_string(10 + i));
        }
        CSeriesFixture chart(kind);
        chart.Feed(line);
        ASSERT_EQ(chart.Count(), 1) << line;
        const sHIST_POINT point = chart.Point(0);
        for (std::size_t i = 1; i < rows.size(); ++i) {
            const std::string name = column < rows[i].size() ? rows[i][column] : "";
            const double expected = 10.0 + static_cast<double>(i);
            if (name == "period volume") {
                const auto volume = static_cast<double>(point.TotalVolume);
                EXPECT_EQ(IsDayKind(kind) ? volume : point.LastSize, expected) << kind;
            } else if (name.starts_with("basis")) {
                EXPECT_EQ(point.Basis, "C");
            } else if (!name.empty()) {
                EXPECT_EQ(shared.at(name)(point), expected) << kind << ' ' << name;
            }
        }
    }
}

TEST(ProtocolDocument, TheLineTakenApartHoldsWhatIsSaidOfIt)
{
    EXPECT_NE(
        Prose().find("kind 0, handle 123456; 2 January 2014, 09:30:01 and 250 milliseconds; 100 at 101.25; "
                     "5,000 so far that day; bid 101.20, ask 101.30; tick 77; a normal trade."),
        std::string::npos);
    const std::string line = Quoted(Page(), "One line taken apart, ");
    ASSERT_TRUE(line.starts_with("0123456,"));
    CSeriesFixture chart(TicksByDatapoints);
    chart.RawLine(chart.Identifier(line[0] - '0') + line.substr(7));
    ASSERT_EQ(chart.Count(), 1);
    const sHIST_POINT point = chart.Point(0);
    EXPECT_EQ(point.Time, MakeTime({2014, 1, 2, 9, 30, 1}, 250));
    EXPECT_EQ(point.LastSize, 100u);
    EXPECT_EQ(point.Last, 101.25);
    EXPECT_EQ(point.TotalVolume, 5000);
    EXPECT_EQ(point.Bid, 101.20);
    EXPECT_EQ(point.Ask, 101.30);
    EXPECT_EQ(point.TickId, 77u);
    EXPECT_EQ(point.Basis, "C");
}

// Checks every row of the table of bad lines, identified by its first cell.
TEST(ProtocolDocument, EachBadLineEndsAsShown)
{
    using Try = std::function<void(CSeriesFixture&, const std::string& cell)>;
    const std::map<std::string, Try> bad = {
        {"empty, or begins with",
         [](CSeriesFixture& chart, const std::string&) {
             for (const char* line : {"", "E,!SYNTAX_ERROR!,,", "S,CURRENT PROTOCOL,5.0"})
                 chart.RawLine(line);
             chart.RawLine("E" + chart.Identifier(0).substr(1) + "," + GoodTick);
             chart.RawLine("S" + chart.Identifier(0).substr(1) + "," + GoodTick);
         }},
        {"no comma, or a handle that nobody has",
         [](CSeriesFixture& chart, const std::string&) {
             chart.RawLine(chart.Identifier(0));
             chart.RawLine(std::string("02147483647,") + GoodTick);
             chart.RawLine("02147483647,!ENDMSG!,");
         }},
        {"a date or time that does not exist",
         [](CSeriesFixture& chart, const std::string& cell) {
             const std::string date = Quoted(cell).substr(0, 10);
             EXPECT_EQ(date, "2014-02-30");
             chart.Feed(date + std::string(GoodTick).substr(10));
             chart.Feed("2014-01-02 24:00:00.000" + std::string(GoodTick).substr(23));
         }},
        {"too few fields for its kind",
         [](CSeriesFixture& chart, const std::string& cell) {
             const std::string line = Quoted(cell);
             ASSERT_TRUE(line.starts_with("0123456,"));
             Guarded([&] { chart.Feed(line.substr(8)); });
         }},
        {"field 1 begins with",
         [](CSeriesFixture& chart, const std::string&) {
             for (const char* rest : {"E,!NO_DATA!,,", "!OTHER!,", "Error", "!"})
                 chart.Feed(rest);
         }},
        {"a basis that is not wanted, or a point outside",
         [](CSeriesFixture& chart, const std::string&) {
             for (const char* basis : {"E", "O", "b", ""})
                 chart.Feed(std::string(GoodTick, 57) + basis);
             chart.Request().SetEndDate("20140101");
             chart.Feed(GoodTick);
             chart.Request().SetEndDate("");
         }},
    };
    std::size_t tried = 0;
    for (const Row& row : TableBelow("| bad line | what happens |")) {
        if (row[0] == "a request whose window has gone")
            continue; // the next test
        const auto found = std::find_if(bad.begin(), bad.end(),
                                        [&](const auto& entry) { return row[0].starts_with(entry.first); });
        ASSERT_NE(found, bad.end()) << "no test of: " << row[0];
        EXPECT_TRUE(row[1].starts_with("dropped")) << row[1];
        CSeriesFixture chart(TicksByDatapoints);
        found->second(chart, row[0]);
        EXPECT_EQ(chart.Count(), 0) << row[0];
        EXPECT_FALSE(chart.Request().IsComplete()) << row[0];
        chart.Feed(GoodTick); // later lines are handled
        EXPECT_EQ(chart.Count(), 1) << row[0];
        ++tried;
    }
    EXPECT_EQ(tried, bad.size());
}

TEST(ProtocolDocument, LinesOfAWindowThatHasGoneAreDroppedAndItsEndFreesIt)
{
    EXPECT_EQ(TableBelow("| bad line | what happens |").back(),
              (Row{"a request whose window has gone", "dropped; its `!ENDMSG!` frees it"}));
    CSeriesFixture chart(TicksByDatapoints);
    const std::string identifier = chart.Identifier(0);
    const std::int32_t handle = chart.Request().Handle();
    GiveUpRequest(chart.TakeRequest());
    chart.RawLine(identifier + "," + GoodTick);
    EXPECT_EQ(FindRequest(handle)->GetCount(0), 0);
    chart.RawLine(identifier + ",!ENDMSG!,");
    EXPECT_EQ(FindRequest(handle), nullptr);
}

TEST(ProtocolDocument, TheLevel1FieldsAndSetUpAreThoseShown)
{
    std::map<int, std::string> names;
    for (const Row& row : TableBelow("| field | name | field | name |"))
        for (const std::size_t cell : {0u, 2u})
            names[std::stoi(row[cell])] = Split(row[cell + 1], ',')[0];
    ASSERT_EQ(names.size(), 22u);
    for (int position = 1; position <= 22; ++position)
        EXPECT_EQ(names[position], Level1FieldNames[static_cast<std::size_t>(position)]);

    const Row lines = Split(Level1SetupText(), '\n');
    ASSERT_EQ(lines.size(), 3u);
    const std::string setUp = Page().substr(Page().find("## Level 1"));
    EXPECT_EQ(lines[0], Quoted(setUp, "the chart sends "));
    EXPECT_EQ(lines[1], Quoted(setUp, lines[0] + "`, "));
    const std::string third = Quoted(setUp, lines[1] + "` and ");
    ASSERT_TRUE(third.ends_with("..."));
    EXPECT_TRUE(lines[2].starts_with(third.substr(0, third.size() - 3))) << third;
}

TEST(ProtocolDocument, BadLevel1LinesEndAsShown)
{
    const std::string prose = Prose();
    EXPECT_NE(prose.find("An update for a symbol that nobody watches is answered by `rSYMBOL`."),
              std::string::npos);
    CSeriesFixture chart(TicksByDatapoints);
    chart.Complete();
    chart.LiveLine("Q,OTHER,1");
    EXPECT_EQ(chart.Removed, (std::vector<std::string>{"OTHER"}));
    EXPECT_EQ(RemoveCommand(chart.Removed[0]), "rOTHER\r\n");

    EXPECT_NE(prose.find("A line that is too short for what is read of it is dropped alone."),
              std::string::npos);
    Guarded([&] { chart.LiveLine("Q,SYM,1,2"); });
    EXPECT_EQ(chart.Count(), 0);
    chart.Live(Trade("01/02/2014", "09:30:01.250", "1"));
    EXPECT_EQ(chart.Count(), 1);

    EXPECT_NE(prose.find("A tick whose date cannot be read is stored with an invalid time."),
              std::string::npos);
    chart.Live(Trade("02/30/2014", "09:30:01.250", "1"));
    ASSERT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.Point(1).Time.Status, TimeInvalid);

    EXPECT_NE(prose.find("`S`, `T` and `N` lines are never acted on."), std::string::npos);
    for (const char* type : {"S", "T", "N"})
        chart.Live(CLevel1Line(Trade("01/02/2014", "09:30:01.250", "1")).Set(0, type));
    EXPECT_EQ(chart.Count(), 2);
    EXPECT_EQ(chart.Removed.size(), 1u);
}
