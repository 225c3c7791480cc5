#include "export/ShownTable.h"

#include "window/ChartWindowFixture.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zantroq {
namespace {

using test::sChartFixture;

std::vector<std::string> Lines(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::vector<std::string> Fields(const std::string& line)
{
    std::vector<std::string> fields{""};
    for (const char c : line)
        if (c == ',')
            fields.emplace_back();
        else
            fields.back() += c;
    return fields;
}

using SettingList = std::vector<std::pair<std::string, std::string>>;

struct sTable : sChartFixture
{
    explicit sTable(const SettingList& settings) : sChartFixture(false)
    {
        Key->Write("Number of displayed study charts", "0");
        for (const auto& [name, value] : settings)
            Key->Write(name, value);
        Start();
    }
    // Closes 0.1 steps apart, so that most have no short binary form.
    void Fill(int points)
    {
        Type("MSFT");
        Window->OnCommand(CommandDrawChart);
        for (int k = 0; k < points; ++k) {
            sHIST_POINT point;
            point.Time = MakeTime({2024, 1, 2 + k % 28, 9, 31, k % 60}, static_cast<std::uint16_t>(k * 5));
            point.Open = 100 + 0.1 * k;
            point.High = point.Open + 0.3;
            point.Low = point.Open - 0.7;
            point.Last = point.Close = point.Open + 0.1;
            point.LastSize = 100 + k;
            point.TotalVolume = 1000 + k;
            Window->Series()->AppendPoint(point);
        }
        Feed.Sent->SetComplete(true);
        Tick();
    }
    std::vector<std::string> Table() const { return Lines(ShownValuesCsv(*Window)); }
};

TEST(ShownTable, WithoutAChartIsTheHeaderAlone)
{
    EXPECT_EQ(sTable(SettingList{{"RequestDataType", "2"}}).Table(),
              std::vector<std::string>{"date,time,open,high,low,close,volume"});
    EXPECT_EQ(sTable(SettingList{{"RequestDataType", "0"}}).Table(),
              std::vector<std::string>{"date,time,price,volume"});
}

TEST(ShownTable, DaysHaveNoTimeAndTheirNumbersReadBackExactly)
{
    sTable chart(SettingList{{"RequestDataType", "2"}});
    chart.Fill(3);
    const auto lines = chart.Table();
    ASSERT_EQ(lines.size(), 4u);
    for (int k = 0; k < 3; ++k) {
        const auto fields = Fields(lines[static_cast<std::size_t>(k) + 1]);
        ASSERT_EQ(fields.size(), 7u);
        EXPECT_EQ(fields[0], "2024-01-0" + std::to_string(2 + k));
        EXPECT_EQ(fields[1], "");
        const double open = 100 + 0.1 * k;
        EXPECT_EQ(std::stod(fields[2]), open);
        EXPECT_EQ(std::stod(fields[3]), open + 0.3);
        EXPECT_EQ(std::stod(fields[4]), open - 0.7);
        EXPECT_EQ(std::stod(fields[5]), open + 0.1);
    }
    EXPECT_EQ(Fields(lines[1])[6], std::to_string(chart.Window->Prices().Volume(0)));
}

TEST(ShownTable, TicksHaveAPriceAndTheirMilliseconds)
{
    sTable chart(SettingList{{"RequestDataType", "0"}});
    chart.Fill(3);
    const auto lines = chart.Table();
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0], "date,time,price,volume");
    EXPECT_EQ(Fields(lines[1])[1], "09:31:00");
    EXPECT_EQ(Fields(lines[2])[1], "09:31:01.005");
    EXPECT_EQ(std::stod(Fields(lines[3])[2]), 100 + 0.1 * 2 + 0.1);
}

TEST(ShownTable, ShowsTheDisplayedRangeOnly)
{
    sTable chart({{"RequestDataType", "2"}, {"PTS INDEX", "0"}});
    chart.Fill(100);
    const sDisplayRange& range = chart.Window->Range();
    ASSERT_GT(range.first, 0);
    const auto lines = chart.Table();
    ASSERT_EQ(static_cast<int>(lines.size()) - 1, range.shown);
    EXPECT_EQ(std::stod(Fields(lines[1])[2]), 100 + 0.1 * range.first);
    EXPECT_EQ(std::stod(Fields(lines.back())[2]), 100 + 0.1 * 99);
}

TEST(ShownTable, AveragesOnShowHaveAColumnEachEmptyWhereMissing)
{
    sTable chart({{"RequestDataType", "2"}, {"MAs SHOW", "1"}, {"Moving Average 2 Select", "0"}});
    chart.Fill(20);
    const auto lines = chart.Table();
    EXPECT_EQ(lines[0], "date,time,open,high,low,close,volume,sma_5,sma_15");
    EXPECT_EQ(Fields(lines[1])[7], "");
    ASSERT_EQ(Fields(lines[7]).size(), 9u);
    double sum = 0; // closes of indices 2 to 6
    for (int k = 2; k <= 6; ++k)
        sum += 100 + 0.1 * k + 0.1;
    EXPECT_EQ(std::stod(Fields(lines[7])[7]), sum / 5);
    EXPECT_EQ(Fields(lines[7])[8], "");
    EXPECT_NE(Fields(lines[20])[8], "");
}

TEST(ShownTable, BandsTakeThePlaceOfAverages)
{
    sTable chart({{"RequestDataType", "2"}, {"MAs SHOW", "1"}, {"BB STUDY SHOW", "1"}});
    chart.Fill(40);
    const auto lines = chart.Table();
    EXPECT_EQ(lines[0], "date,time,open,high,low,close,volume,bb_lower,bb_upper,bb_middle");
    const auto last = Fields(lines.back());
    EXPECT_LT(std::stod(last[7]), std::stod(last[9]));
    EXPECT_LT(std::stod(last[9]), std::stod(last[8]));
}

TEST(ShownTable, StudiesFollowInTheOrderOfTheirPanesWithWhatThePanesShow)
{
    sTable chart({{"RequestDataType", "2"},
                  {"Number of displayed study charts", "4"},
                  {"Type of study chart 0", "9"},
                  {"Type of study chart 1", "6"},
                  {"Type of study chart 2", "4"},
                  {"Type of study chart 3", "0"},
                  {"Top of chart 1", "0.4"},
                  {"Top of chart 2", "0.55"},
                  {"Top of chart 3", "0.7"},
                  {"Top of chart 4", "0.85"},
                  {"Top of chart 5", "1"}});
    chart.Fill(60);
    const auto lines = chart.Table();
    EXPECT_EQ(lines[0], "date,time,open,high,low,close,volume,adx,plus_di,minus_di,macd,macd_signal,"
                        "macd_histogram,rsi");
    const CChart2D& rsi = std::as_const(*chart.Window).Pane(4);
    for (const int point : {1, 30, 60}) {
        const auto fields = Fields(lines[static_cast<std::size_t>(point)]);
        ASSERT_EQ(fields.size(), 14u);
        const double shown = rsi.PaneGroups(1).PaneData().PointY(1, point);
        if (shown == HoleValue)
            EXPECT_EQ(fields[13], "");
        else
            EXPECT_EQ(std::stod(fields[13]), shown) << point;
    }
    EXPECT_EQ(Fields(lines[1])[13], "");
    EXPECT_EQ(std::stod(Fields(lines[60])[13]), 100); // it only ever rose
}

TEST(ShownTable, EveryLineHasAsManyFieldsAsTheHeader)
{
    SettingList settings{
        {"RequestDataType", "1"}, {"Number of displayed study charts", "10"}, {"MAs SHOW", "1"}};
    for (int study = 0; study < 10; ++study) {
        settings.emplace_back("Type of study chart " + std::to_string(study), std::to_string(study));
        settings.emplace_back("Top of chart " + std::to_string(study + 1),
                              std::to_string(0.09 * (study + 1)));
    }
    settings.emplace_back("Top of chart 11", "1");
    sTable chart(settings);
    chart.Fill(60);
    const auto lines = chart.Table();
    ASSERT_EQ(lines.size(), 61u);
    // date, time, five of prices and volume, three averages, and 1+1+1+1+3+2+0+3+1+3 curves
    for (const std::string& line : lines)
        EXPECT_EQ(Fields(line).size(), 26u) << line;
}

} // namespace
} // namespace zantroq
