#include "feed/markets/Recording.h"

#include "feed/markets/DecimalPrice.h"

#include "TemporaryFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zantroq::feed {
namespace {

std::string Text(sPRICE price)
{
    char text[32];
    return {text, WritePrice(text, price)};
}

std::vector<sFEED_BAR> Daily(std::string_view text, sRECORDING_REPORT& report)
{
    CTextLines lines(text);
    return ReadBars(RecordingKind::Daily, lines, "x.daily.csv", report);
}

std::vector<sFEED_TICK> ReadTicks(std::string_view text, const std::string& file, sRECORDING_REPORT& report)
{
    CTextLines lines(text);
    return ReadTicks(lines, file, report);
}

std::vector<sLISTED_SYMBOL> ReadSymbols(std::string_view text, const std::string& file,
                                        sRECORDING_REPORT& report)
{
    CTextLines lines(text);
    return ReadSymbols(lines, file, report);
}

std::vector<std::string> FileLines(const std::filesystem::path& path)
{
    CFileLines file;
    std::vector<std::string> lines;
    EXPECT_TRUE(file.Open(path));
    for (std::string_view line; file.Next(line);)
        lines.emplace_back(line);
    return lines;
}

constexpr std::string_view DailyHeader = "date,open,high,low,close,volume,open_interest\n";

} // namespace

TEST(DecimalPrice, IsWrittenAsItWasRead)
{
    for (const char* text :
         {"100.0", "0.05", "101.25", "7", "-0.5", "12345678.123456789", "0", "110.03125"}) {
        sPRICE price;
        ASSERT_TRUE(ParsePrice(text, price)) << text;
        EXPECT_EQ(Text(price), text);
    }
}

TEST(DecimalPrice, ExponentsAndLongFractionsBecomePlainDecimals)
{
    sPRICE price;
    ASSERT_TRUE(ParsePrice("1.5e2", price));
    EXPECT_EQ(Text(price), "150");
    ASSERT_TRUE(ParsePrice("0.33333333333333333333", price));
    EXPECT_EQ(Text(price), "0.3333333333");
}

TEST(DecimalPrice, AnythingElseIsNoPrice)
{
    for (const char* text : {"", " 1", "1 ", "12x", "nan", "inf", "--1", ".", "1.2.3", "0x10"}) {
        sPRICE price = MakePrice(42, 1);
        EXPECT_FALSE(ParsePrice(text, price)) << text;
        EXPECT_EQ(price.Mantissa, 42);
    }
}

TEST(DecimalPrice, TakesOnDecimalsAsFarAsTheyFit)
{
    EXPECT_EQ(Text(WithDecimals(MakePrice(105, 1), 3)), "10.500");
    EXPECT_EQ(Text(WithDecimals(MakePrice(1055, 2), 1)), "10.6");
    EXPECT_EQ(Text(WithDecimals(MakePrice(-1055, 2), 1)), "-10.6");
    EXPECT_EQ(Text(WithDecimals(MakePrice(99'999'999'999'999'999, 0), 8)), "99999999999999999");
}

TEST(DecimalPrice, ComparesAcrossDecimals)
{
    EXPECT_TRUE(IsBelow(MakePrice(1000, 2), MakePrice(101, 1)));
    EXPECT_FALSE(IsBelow(MakePrice(1010, 2), MakePrice(101, 1)));
    EXPECT_FALSE(IsBelow(MakePrice(101, 1), MakePrice(1010, 2)));
}

TEST(FeedTime, KnowsTheCalendar)
{
    TFeedDay day = 0;
    ASSERT_TRUE(ParseDay("1970-01-01", day));
    EXPECT_EQ(day, 0);
    ASSERT_TRUE(ParseDay("20000301", day)); // 30 years, 7 leap days before 2000, then 31 + 29
    EXPECT_EQ(day, 30 * 365 + 7 + 60);
    EXPECT_EQ(WeekdayOf(day), 2); // a Wednesday
    EXPECT_FALSE(ParseDay("2001-02-29", day));
    EXPECT_FALSE(ParseDay("2001-2-9", day));
}

TEST(FeedTime, ReadsAndWritesStamps)
{
    TFeedTime time = 0;
    ASSERT_TRUE(ParseStamp("1970-01-02 00:00:01.5", time));
    EXPECT_EQ(time, 86'401'500);
    char text[40];
    EXPECT_EQ(std::string(text, WriteMilliseconds(text, TimeOfDay(time))), "00:00:01.500");
    ASSERT_TRUE(ParseStamp("1969-12-31 23:59:59", time));
    EXPECT_EQ(time, -1000);
    EXPECT_EQ(DayOf(time), -1);
    EXPECT_FALSE(ParseStamp("1970-01-01 24:00:00", time));
    EXPECT_FALSE(ParseStamp("1970-01-01x10:00:00", time));
}

TEST(Recordings, ATickRowFillsEveryField)
{
    sRECORDING_REPORT report;
    const auto ticks = ReadTicks("time,last,size,total_volume,bid,ask,tick_id,basis\n"
                                 "2014-01-02 09:30:01.250,101.25,100,5000,101.20,101.30,77,E\n",
                                 "x", report);
    ASSERT_EQ(ticks.size(), 1u);
    EXPECT_EQ(Text(ticks[0].Last), "101.25");
    EXPECT_EQ(ticks[0].Size, 100u);
    EXPECT_EQ(ticks[0].TotalVolume, 5000);
    EXPECT_EQ(Text(ticks[0].Bid), "101.20");
    EXPECT_EQ(Text(ticks[0].Ask), "101.30");
    EXPECT_EQ(ticks[0].TickId, 77u);
    EXPECT_EQ(ticks[0].Basis, 'E');
    EXPECT_EQ(TimeOfDay(ticks[0].Time), (9 * 3600 + 30 * 60 + 1) * 1000 + 250);
    EXPECT_EQ(report.SkippedRows, 0u);
}

TEST(Recordings, CrLfByteOrderMarkAndBlankLinesAreNothing)
{
    sRECORDING_REPORT report;
    const auto bars = Daily("\xEF\xBB\xBF\r\n\r\ndate,open,high,low,close,volume,open_interest\r\n\r\n"
                            " 2014-01-02 , 1 ,2,0.5,1.5,10,0\r\n\r\n2014-01-03,1,2,0.5,1.5,10,0",
                            report);
    EXPECT_EQ(bars.size(), 2u);
    EXPECT_EQ(report.SkippedRows, 0u);
}

TEST(Recordings, ABadRowNamesFileAndLineAndCostsThatRowAlone)
{
    sRECORDING_REPORT report;
    const auto bars = Daily(std::string(DailyHeader) + "2014-01-02,1,2,0.5,1.5,10,0\n"
                                                       "2014-01-03,1,12x,0.5,1.5,10,0\n"
                                                       "2014-02-30,1,2,0.5,1.5,10,0\n"
                                                       "2014-01-04,1,2,3,1.5,10,0\n"
                                                       "2014-01-05,1,2\n"
                                                       "2014-01-06,1,2,0.5,1.5,-10,0\n"
                                                       "2014-01-07,1,2,0.5,1.5,10.0,\n",
                            report);
    ASSERT_EQ(bars.size(), 2u);
    EXPECT_EQ(report.SkippedRows, 5u);
    ASSERT_EQ(report.Problems.size(), 5u);
    EXPECT_EQ(report.Problems[0], "x.daily.csv:3: high is not a price: \"12x\"");
    EXPECT_EQ(report.Problems[2], "x.daily.csv:5: high is below low");
    EXPECT_EQ(report.Problems[3], "x.daily.csv:6: the row has fewer fields than the header line");
}

TEST(Recordings, ABasisIsOneLetter)
{
    sRECORDING_REPORT report;
    const auto ticks =
        ReadTicks("time,last,basis\n2014-01-02 09:30:00,1,C\n2014-01-02 09:30:01,2,CC\n"
                  "2014-01-02 09:30:02,3,\x01\n2014-01-02 09:30:03,4,x\n2014-01-02 09:30:04,5,\n",
                  "x", report);
    ASSERT_EQ(ticks.size(), 3u);
    EXPECT_EQ(ticks[1].Basis, 'x');
    EXPECT_EQ(ticks[2].Basis, 'C');
    EXPECT_EQ(report.SkippedRows, 2u);
    EXPECT_EQ(report.Problems, (std::vector<std::string>{"x:3: basis is not one letter: \"CC\"",
                                                         "x:4: basis is not one letter: \"?\""}));
}

// Genuine files contain rounded or adjusted prices and bars sent twice. They are shown as recorded.
TEST(Recordings, OddPricesAndStampsAreServedAsTheyStand)
{
    sRECORDING_REPORT report;
    const auto bars = Daily(std::string(DailyHeader) + "2014-01-03,2.01,2,1,0.99,10,0\n"
                                                       "2014-01-02,1,2,1,2,10,0\n"
                                                       "2014-01-03,1,2,1,2,20,0\n",
                            report);
    ASSERT_EQ(bars.size(), 3u);
    EXPECT_EQ(Text(bars[1].Open), "2.01");
    EXPECT_EQ(bars[2].Volume, 20);
    EXPECT_EQ(report.SkippedRows, 0u);
}

TEST(Recordings, ManyBadRowsAreCountedButNotAllTold)
{
    std::string text(DailyHeader);
    for (int i = 0; i < 1000; ++i)
        text += "nonsense\n";
    sRECORDING_REPORT report;
    EXPECT_TRUE(Daily(text, report).empty());
    EXPECT_EQ(report.SkippedRows, 1000u);
    EXPECT_EQ(report.Problems.size(), sRECORDING_REPORT::MaxProblems);
}

TEST(Recordings, AHugeOrBinaryRowIsSkippedAndNotRepeatedWhole)
{
    sRECORDING_REPORT report;
    const auto bars = Daily(std::string(DailyHeader) + std::string(1'000'000, 'x') + "\n" +
                                std::string(50, '\0') + ",\x01\xff\n2014-01-02,1,2,0.5,1.5,10,0\n",
                            report);
    EXPECT_EQ(bars.size(), 1u);
    EXPECT_EQ(report.SkippedRows, 2u);
    for (const auto& problem : report.Problems)
        EXPECT_LT(problem.size(), 200u);
}

TEST(Recordings, WithoutAHeaderTheFileIsNotUsed)
{
    sRECORDING_REPORT report;
    EXPECT_TRUE(Daily("2014-01-02,1,2,0.5,1.5,10,0\n2014-01-03,1,2,0.5,1.5,10,0\n", report).empty());
    EXPECT_EQ(report.Unusable, "x.daily.csv:1: the header line has no column \"date\"; the file is not used");
    EXPECT_EQ(report.SkippedRows, 0u);
    for (const char* nothing : {"", "\n\r\n", "\xEF\xBB\xBF"}) {
        sRECORDING_REPORT empty;
        EXPECT_TRUE(Daily(nothing, empty).empty());
        EXPECT_EQ(empty.Unusable, "x.daily.csv: the file is empty and not used");
        EXPECT_EQ(empty.SkippedRows, 0u);
    }
}

TEST(Recordings, ColumnsAreFoundByName)
{
    sRECORDING_REPORT report;
    const auto bars = Daily("close,note,Low,HIGH,open,date\n1.5,\"a, b\",0.5,2,1,2014-01-02\n", report);
    ASSERT_EQ(bars.size(), 1u);
    EXPECT_EQ(Text(bars[0].Close), "1.5");
    EXPECT_EQ(Text(bars[0].High), "2");
    EXPECT_EQ(bars[0].Volume, 0);
}

TEST(Recordings, RowsOutOfOrderAreSortedAndEqualTimesKeepTheirOrder)
{
    sRECORDING_REPORT report;
    const auto ticks = ReadTicks(
        "time,last\n2014-01-03 10:00:00,3\n2014-01-02 10:00:00,1\n2014-01-02 10:00:00,2\n", "x", report);
    ASSERT_EQ(ticks.size(), 3u);
    EXPECT_EQ(Text(ticks[0].Last), "1");
    EXPECT_EQ(Text(ticks[1].Last), "2");
    EXPECT_EQ(Text(ticks[2].Last), "3");
    EXPECT_EQ(ticks[0].Basis, 'C');
    EXPECT_EQ(Text(ticks[0].Bid), "1");
}

TEST(Recordings, ManyRowsOutOfOrderAreSortedStably)
{
    // Times go back repeatedly, and each occurs in 50 rows.
    std::string text = "time,last,tick_id\n";
    for (int i = 0; i < 3000; ++i) {
        const int second = i * 37 % 60;
        text += "2014-01-02 10:00:" + std::string(second < 10 ? "0" : "") + std::to_string(second) + ",1," +
                std::to_string(i) + "\n";
    }
    sRECORDING_REPORT report;
    const auto ticks = ReadTicks(text, "x", report);
    ASSERT_EQ(ticks.size(), 3000u);
    for (std::size_t i = 1; i < ticks.size(); ++i) {
        ASSERT_LE(ticks[i - 1].Time, ticks[i].Time);
        ASSERT_TRUE(ticks[i - 1].Time < ticks[i].Time || ticks[i - 1].TickId < ticks[i].TickId);
    }
}

// Regression: the last line of a file that was cut off during writing lost its last fields, which counted as
// 0.
TEST(Recordings, ARowWithFewerFieldsThanTheHeaderIsABadRow)
{
    sRECORDING_REPORT report;
    const auto ticks = ReadTicks("time,last,size,total_volume\n2014-01-02 09:30:00,1,5,5\n"
                                 "2014-01-02 09:30:01,2,,\n2014-01-02 09:30:02,3,7",
                                 "x", report);
    ASSERT_EQ(ticks.size(), 2u);
    EXPECT_EQ(report.Problems,
              std::vector<std::string>{"x:4: the row has fewer fields than the header line"});
    EXPECT_EQ(Daily(std::string(DailyHeader) + "2014-01-02,1,1,1,1", report).size(), 0u);
}

TEST(Recordings, ALineTooLongIsABadRow)
{
    const std::string longest = "2014-01-02,1,1,1,1,5," + std::string(65'536 - 22, ' ') + "0";
    sRECORDING_REPORT report;
    const auto bars =
        Daily(std::string(DailyHeader) + longest + "\n" + longest + "0\n2014-01-03,1,1,1,1,5,0\n", report);
    ASSERT_EQ(bars.size(), 2u);
    EXPECT_EQ(report.Problems,
              std::vector<std::string>{"x.daily.csv:3: the line is longer than 65536 bytes"});
}

TEST(FileLines, AreTheSameAsThoseOfTheTextWhereverABlockEnds)
{
    // Lines of many lengths, so that their two-byte ends fall on every side of a block's end.
    std::string text;
    for (std::size_t i = 0; text.size() < 1'500'000; ++i)
        text += std::string(i % 701, 'x') + std::to_string(i) +
                (i % 3 == 0   ? "\r\n"
                 : i % 3 == 1 ? "\n"
                              : "\r");
    text += "no end";
    CTemporaryFolder folder;
    folder.Write("lines", text);
    std::vector<std::string> expected;
    CTextLines lines(text);
    for (std::string_view line; lines.Next(line);)
        expected.emplace_back(line);
    EXPECT_EQ(FileLines(folder.Path() / "lines"), expected);
    CFileLines file;
    ASSERT_TRUE(file.Open(folder.Path() / "lines"));
    const auto enough = [](const std::string& line) { return line.size() >= 100; };
    EXPECT_EQ(file.CountLines(100),
              static_cast<std::size_t>(std::count_if(expected.begin(), expected.end(), enough)));
    std::string_view first;
    ASSERT_TRUE(file.Next(first));
    EXPECT_EQ(first, expected[0]);
}

TEST(FileLines, OfALongLineTheStartAloneIsHandedOut)
{
    CTemporaryFolder folder;
    folder.Write("lines",
                 "before\n" + std::string(65'536, 'a') + "\n" + std::string(900'000, 'b') + "\r\nbehind");
    const auto lines = FileLines(folder.Path() / "lines");
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[1], std::string(65'536, 'a'));
    EXPECT_EQ(lines[2], std::string(65'537, 'b'));
    EXPECT_EQ(lines[3], "behind");
}

TEST(FileLines, APipeOrAFolderIsNotOpened)
{
    CTemporaryFolder folder;
    const auto pipe = folder.Path() / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    CFileLines file, other;
    EXPECT_FALSE(file.Open(pipe));
    EXPECT_FALSE(other.Open(folder.Path()));
}

TEST(SymbolList, ColumnsAreFoundByNameAndADescriptionMayBeMissing)
{
    sRECORDING_REPORT report;
    const auto listed = ReadSymbols("\xEF\xBB\xBF\nmarket_id,Symbol,security_type_id\n2,A,255\n0,B,0\n",
                                    "symbols.csv", report);
    ASSERT_EQ(listed.size(), 2u);
    EXPECT_EQ(listed[0].Symbol, "A");
    EXPECT_EQ(listed[0].MarketId, 2);
    EXPECT_EQ(listed[0].SecurityTypeId, 255);
    EXPECT_EQ(listed[0].Description, "A"); // replaced by the symbol
    EXPECT_EQ(listed[1].Symbol, "B");
    EXPECT_EQ(report.SkippedRows, 0u);
}

TEST(SymbolList, ABadRowNamesFileAndLineAndCostsThatRowAlone)
{
    sRECORDING_REPORT report;
    const auto listed = ReadSymbols("symbol,market_id,security_type_id,description\n"
                                    "A,x,1,Not a number\n"
                                    "B,256,1,Too large\n"
                                    "C,1,-1,Below zero\n"
                                    "D,1\n"
                                    ",1,1,No symbol\n"
                                    "\"E,F\",1,1,A comma\n"
                                    "G,1,1,\"Good, that one\"\n",
                                    "symbols.csv", report);
    ASSERT_EQ(listed.size(), 1u);
    EXPECT_EQ(listed[0].Symbol, "G");
    EXPECT_EQ(listed[0].Description, "Good  that one");
    EXPECT_EQ(report.SkippedRows, 6u);
    EXPECT_EQ(report.Problems, (std::vector<std::string>{
                                   "symbols.csv:2: market_id is not a number from 0 to 255: \"x\"",
                                   "symbols.csv:3: market_id is not a number from 0 to 255: \"256\"",
                                   "symbols.csv:4: security_type_id is not a number from 0 to 255: \"-1\"",
                                   "symbols.csv:5: security_type_id is not a number from 0 to 255: \"\"",
                                   "symbols.csv:6: symbol is empty or holds a comma: \"\"",
                                   "symbols.csv:7: symbol is empty or holds a comma: \"E,F\"",
                               }));
}

// A level 1 line with the description must fit a reader's 4,096 bytes.
TEST(SymbolList, ALongDescriptionIsCutBetweenItsCharacters)
{
    sRECORDING_REPORT report;
    const std::string header = "symbol,market_id,security_type_id,description\n";
    const std::string fits(1000, 'd'), wide = std::string(999, 'd') + "\xC3\xA4 and more";
    const auto listed =
        ReadSymbols(header + "A,1,1," + fits + "\nB,1,1," + fits + "d\nC,1,1," + wide + "\n", "x", report);
    ASSERT_EQ(listed.size(), 3u);
    EXPECT_EQ(listed[0].Description, fits);
    EXPECT_EQ(listed[1].Description, fits);
    EXPECT_EQ(listed[2].Description, std::string(999, 'd'));
}

TEST(SymbolList, WithoutAHeaderTheFileIsNotUsed)
{
    sRECORDING_REPORT report;
    EXPECT_TRUE(ReadSymbols("GOOG,2,1,Google Inc.\nMSFT,2,1,Microsoft\n", "symbols.csv", report).empty());
    EXPECT_EQ(report.Unusable,
              "symbols.csv:1: the header line has no column \"symbol\"; the file is not used");
}

} // namespace zantroq::feed
