#include "scene/PaneFile.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <optional>
#include <sys/resource.h>
#include <unistd.h>

namespace zantroq {
namespace {

using nlohmann::json;
const double Infinity = std::numeric_limits<double>::infinity();

// A pane with every value away from its default.
void Fill(CChart2D& chart)
{
    CPaneArea& area = chart.PaneArea();
    area.AreaBox().Left().SetValue(3);
    area.AreaBox().Width().SetValue(640);
    area.AreaBox().Height().SetValue(480);
    area.PlotFrame().LeftMargin().SetValue(23);
    area.PlotFrame().TopMargin().SetValue(18);
    area.BarLook().SetBarWidth(7);
    area.CandleLook().SetFilled(true);
    chart.PaneInterior().SetBackground(0x232323);
    chart.PaneInterior().SetForeground(0xffffff);
    area.Interior().SetBackground(0x010203);
    area.PlotFrame().Interior().SetForeground(0x0a0b0c);
    CPaneAxis& y = area.PaneAxes().Y();
    y.AxisOrigin().SetValue(-0.0);
    y.DataLow().SetValue(0.1);
    y.DataHigh().SetValue(1.0 / 3.0);
    y.DataHigh().SetKind(1);
    y.ViewHigh().SetValue(5e-324);
    y.SetLabelMethod(4);
    y.SetShown(false);
    y.SetSetting21(0);
    y.SetMultiplier(2.5);
    y.AxisGrid().SetSpacing(25);
    y.AxisGrid().LineLook().SetPattern(LineShortDashes);
    y.TickLabels().Add(10.5, "10\xC2\xBD");
    y.TickLabels().Add(11.0, "11");
    for (int number = 1; number <= 2; ++number) {
        CPaneGroup& group = chart.PaneGroups(number);
        group.SetChartType(number == 1 ? ChartCandles : ChartBarsFromOrigin);
        CPaneData& data = group.PaneData();
        data.SetSeriesCount(number + 1);
        data.SetPointCount(1, 6);
        data.SetLastShownSeries(2);
        data.SetYVector(2, std::vector<double>{1.0, HoleValue, Infinity, -Infinity, 0.1 + 0.2, std::nan("")});
        data.SetDrawnTo(2, 3);
        data.AdvanceDrawn(2, 1);
        data.SetFirstPoint(1, 2);
        group.SeriesStyles(5).FillLook().SetColor(0xc0ffee);
        group.SeriesStyles(1).LineLook().SetWidth(3);
        group.SeriesStyles(1).SymbolLook().SetShape(SymbolMark);
    }
    CPaneLabel& label = chart.PaneLabels().Add();
    label.SetShown(true);
    label.SetText("two\nlines \"quoted\"");
    label.Interior().SetBackground(0x112233);
    label.SetAttachment(AttachToData);
    label.SetPixelAnchor(-5, 7);
    label.SetDataAnchor(3.25, -Infinity);
    label.SetAnchorSide(AnchorAboveLeft);
    label.SetBorder(1);
    label.SetBoxAttachment(2);
    label.SetBoxEdge(3);
    CPaneMarker& marker = area.PaneMarkers("x");
    marker.SetShown(true);
    marker.SetPoint(4);
    marker.LineLook().SetColor(0x00ff00);
}

// A file of this process, deleted with this object.
struct sScratchFile
{
    sScratchFile()
        : Path((std::filesystem::temp_directory_path() /
                ("zantroq-pane-" + std::to_string(getpid()) + ".json"))
                   .string())
    {
    }
    ~sScratchFile() { std::remove(Path.c_str()); }
    void Write(const std::string& text) const { std::ofstream(Path) << text; }
    std::string Path;
};

TEST(PaneFile, HasTheFieldsOfASnapshotPane)
{
    CChart2D chart;
    Fill(chart);
    const json pane = PaneToJson(chart, {342, 6, false, {1, 2, 641, 482}});
    EXPECT_EQ(pane["control"], 342);
    EXPECT_EQ(pane["study"], 6);
    EXPECT_EQ(pane["visible"], false);
    EXPECT_EQ(pane["rect"], json({1, 2, 640, 480}));
    EXPECT_EQ(pane["plot"], json({{"left", 23}, {"right", 23}, {"top", 18}, {"bottom", 4}}));
    EXPECT_EQ(pane["barWidth"], 7);
    EXPECT_EQ(pane["interior"], json({{"background", 0x232323}, {"foreground", 0xffffff}}));
    const json& y = pane["axes"]["y"];
    EXPECT_EQ(y["shown"], false);
    EXPECT_EQ(y["dataLow"], 0.1);
    EXPECT_EQ(y["origin"], 0.0);
    EXPECT_EQ(pane["axes"]["x"]["origin"], nullptr);
    EXPECT_EQ(y["labelMethod"], 4);
    EXPECT_EQ(y["gridSpacing"], 25.0);
    EXPECT_EQ(y["gridLine"], json({{"pattern", 5}, {"color", 0}, {"width", 1}}));
    EXPECT_EQ(y["tickLabels"], json({{10.5, "10\xC2\xBD"}, {11.0, "11"}}));
    for (const char* name : {"viewLow", "viewHigh", "dataHigh", "tickSpacing", "tickMarkSpacing"})
        EXPECT_TRUE(y.contains(name)) << name;
    const json& group = pane["groups"][0];
    EXPECT_EQ(group["type"], 8);
    EXPECT_EQ(group["firstShownSeries"], 1);
    EXPECT_EQ(group["lastShownSeries"], 2);
    const json& series = group["series"][1];
    EXPECT_EQ(series["pointCount"], 6);
    EXPECT_EQ(series["drawnTo"], 4);
    EXPECT_EQ(series["x"], json({1.0, 2.0, 3.0, 4.0, 5.0, 6.0}));
    EXPECT_EQ(series["y"], json({1.0, nullptr, "inf", "-inf", 0.1 + 0.2, "nan"}));
    EXPECT_EQ(series["line"], json({{"pattern", 2}, {"color", 0}, {"width", 1}}));
    EXPECT_EQ(series["fill"], json({{"pattern", 0}, {"color", 0}}));
    EXPECT_EQ(group["series"][0]["symbol"], json({{"shape", 3}, {"color", 0}, {"size", 1}}));
    const json& label = pane["labels"][0];
    EXPECT_EQ(label["text"], "two\nlines \"quoted\"");
    EXPECT_EQ(label["attachment"], 2);
    EXPECT_EQ(label["pixel"], json({-5, 7}));
    EXPECT_EQ(label["data"], json({3.25, "-inf"}));
    EXPECT_EQ(label["anchorSide"], 0x12);
    EXPECT_EQ(label["background"], 0x112233);
    EXPECT_EQ(pane["marker"]["point"], 4);
    EXPECT_EQ(pane["marker"]["shown"], true);
    EXPECT_EQ(pane["marker"]["line"]["color"], 0x00ff00);
    EXPECT_EQ(PaneToJson(chart)["study"], nullptr);
}

TEST(PaneFile, ASavedPaneLoadsBackWhole)
{
    CChart2D chart, copy;
    Fill(chart);
    const sScratchFile file;
    ASSERT_TRUE(chart.SaveToFile(file.Path));
    ASSERT_TRUE(copy.LoadFromFile(file.Path));
    EXPECT_EQ(PaneToText(copy), PaneToText(chart));
    EXPECT_TRUE(std::isnan(copy.PaneGroups(1).PaneData().PointY(2, 6)));
    EXPECT_TRUE(std::signbit(copy.PaneArea().PaneAxes().Y().AxisOrigin().Value()));
    EXPECT_EQ(copy.PaneGroups(2).FindStyle(5)->FillLook().FillColor(), 0xc0ffeeu);
    EXPECT_EQ(copy.PaneArea().PaneAxes().Y().Setting21(), 0);
    EXPECT_EQ(copy.PaneLabels().Item(1).BoxEdge(), 3);
    EXPECT_FALSE(copy.PaneArea().AreaBox().Width().Automatic());
    EXPECT_TRUE(copy.PaneArea().PlotFrame().BottomMargin().Automatic());
}

TEST(PaneFile, LoadingReplacesWhatWasThere)
{
    CChart2D empty, chart;
    Fill(chart);
    PaneFromText(PaneToText(empty), chart);
    EXPECT_EQ(PaneToText(chart), PaneToText(empty));
}

TEST(PaneFile, TextAndObjectAgree)
{
    CChart2D chart;
    Fill(chart);
    EXPECT_EQ(PaneToText(chart), PaneToJson(chart).dump());
}

TEST(PaneFile, EveryDoubleReadsBackExactly)
{
    CChart2D chart, copy;
    CPaneData& data = chart.PaneGroups(1).PaneData();
    const std::vector<double> values{0.0,
                                     -0.0,
                                     1.0,
                                     1e21,
                                     123456789012345678.0,
                                     5e-324,
                                     1.7976931348623157e308,
                                     1e307,
                                     0.1,
                                     1.0 / 3.,
                                     100.07,
                                     -2.5e-7,
                                     1e-5,
                                     9007199254740993.0,
                                     1e15,
                                     1e16,
                                     1e17,
                                     123456.5,
                                     4294967296.0};
    data.SetSeriesCount(1);
    data.SetPointCount(1, static_cast<int>(values.size()));
    data.SetYVector(1, values);
    EXPECT_EQ(PaneToText(chart), PaneToJson(chart).dump());
    PaneFromText(PaneToText(chart), copy);
    for (std::size_t i = 0; i < values.size(); ++i) {
        EXPECT_EQ(copy.PaneGroups(1).PaneData().Y(1)[i], values[i]);
        EXPECT_EQ(std::signbit(copy.PaneGroups(1).PaneData().Y(1)[i]), std::signbit(values[i]));
    }
}

// Texts of lists, and whether they are lists of six values; the plain JSON parser decides their contents.
const char* const ListTexts[] = {
    "[1,2,3,4,5,6]",
    " [ 1.5 , -2.25e1,\n3E+2,\t4e-3\r, 0.0, -0.0 ] ",
    "[-0,0,10,-10,123456789012345678901234567890,18446744073709551615]",
    "[null,\"nan\",\"inf\",\"-inf\",1e-400,4.9e-324]",
    "[0.1,0.30000000000000004,1.7976931348623157e308,9007199254740993,1e22,1e23]",
    "[1,2,3,4,5,\"\\u006ean\"]",
    "[1,2,3,4,5,\"NaN\"]",
    "[1,2,3,4,5,true]",
    "[1,2,3,4,5,[6]]",
    "[1,2,3,4,5]",
    "[1,2,3,4,5,6,7]",
    "[1,2,3,4,5,06]",
    "[1,2,3,4,5,6.]",
    "[1,2,3,4,5,.6]",
    "[1,2,3,4,5,+6]",
    "[1,2,3,4,5,1e999]",
    "[1,2,3,4,5,0x6]",
    "[1,2,3,4,5,nan]",
    "[1,2,3,4,5,]",
    "[1,2,3,4,,5,6]",
    "[1,2,3,4,5,6",
    "[]",
    "{}",
    "7",
    "",
};

// The result of loading a text through a JSON tree; nothing if it is refused.
std::optional<std::string> LoadedAsTree(const std::string& text)
{
    CChart2D chart;
    try {
        PaneFromJson(json::parse(text), chart);
    } catch (const std::exception&) {
        return std::nullopt;
    }
    return PaneToText(chart);
}

std::optional<std::string> LoadedAsText(const std::string& text)
{
    CChart2D chart;
    try {
        PaneFromText(text, chart);
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
    return PaneToText(chart);
}

TEST(PaneFile, ListsReadAsTheJsonParserReadsThem)
{
    CChart2D chart;
    Fill(chart);
    const std::string good = PaneToText(chart);
    const std::string list = "[1.0,null,\"inf\",\"-inf\",0.30000000000000004,\"nan\"]";
    const std::string x = "[1.0,2.0,3.0,4.0,5.0,6.0]";
    int loaded = 0;
    for (const std::string& was : {list, x})
        for (const std::string given : ListTexts) {
            std::string one = good, all = good;
            one.replace(one.find(was), was.size(), given);
            for (std::size_t at = 0; (at = all.find(was, at)) != std::string::npos; at += given.size())
                all.replace(at, was.size(), given);
            for (const std::string& text : {one, all}) {
                EXPECT_EQ(LoadedAsText(text), LoadedAsTree(text)) << given;
                loaded += LoadedAsText(text).has_value();
            }
        }
    EXPECT_GE(loaded, 15); // the first five and more: neither road refuses everything
}

TEST(PaneFile, UnusualTextsReadAsTheJsonParserReadsThem)
{
    CChart2D chart;
    Fill(chart);
    const std::string good = PaneToText(chart);
    const auto with = [&](const std::string& was, const std::string& is) {
        std::string text = good;
        text.replace(text.find(was), was.size(), is);
        return text;
    };
    const std::string first = "\"x\":[1.0,2.0,3.0,4.0,5.0,6.0]", other = "\"x\":[6.0,5.0,4.0,3.0,2.0,1.0]";
    const std::string texts[] = {
        json::parse(good).dump(2),
        "\xEF\xBB\xBF" + good,
        good + " ",
        good + "x",
        good + good,
        with(first, other),
        with(first, other + "," + first), // of two members of one name the last one counts
        with(first, first + "," + other),
        with(first, first + ",\"\\u0078\":[1]"),
        with(first, "\"\\u0078\":[1.0,2.0,3.0,4.0,5.0,6.0]"),
        with("\"groups\":", "\"groups\":[],\"groups\":"),
        with("\"marker\":", "\"groups\":[],\"marker\":"),
        with("\"series\":", "\"series\":[],\"series\":"),
        with("\"series\":[{", "\"series\":[,{"),
        with("\"groups\":[", "\"groups\":[{\"series\":[{\"x\":[1.0],\"y\":[2.0]}]},"),
        with("two", "\\\"x\\\":[],\\\"y\\\":[]"),
        with("two", "\\\"groups\\\":[{"),
        good.substr(0, good.size() - 1),
        "{",
        "{\"groups\"",
        "{\"groups\":[{\"series\":[{\"x\":[1",
    };
    int loaded = 0;
    for (const std::string& text : texts) {
        EXPECT_EQ(LoadedAsText(text), LoadedAsTree(text)) << text.substr(0, 200);
        loaded += LoadedAsText(text).has_value();
    }
    EXPECT_GE(loaded, 6);
}

TEST(PaneFile, ATextThatLooksLikeAListStaysAText)
{
    CChart2D chart, copy;
    Fill(chart);
    chart.PaneLabels().Item(1).SetText("\"x\":[],\"y\":[]");
    EXPECT_EQ(PaneToText(chart), PaneToJson(chart).dump());
    PaneFromText(PaneToText(chart), copy);
    EXPECT_EQ(PaneToText(copy), PaneToText(chart));
}

TEST(PaneFile, ValuesDeepInOneAnotherAreRefused)
{
    CChart2D chart;
    const std::string depth(100000, '[');
    EXPECT_THROW(PaneFromText("{\"more\":" + depth + std::string(100000, ']') + "}", chart),
                 std::runtime_error);
    EXPECT_THROW(PaneFromText(depth, chart), std::runtime_error);
}

// Regression: texts left to the JSON parser were accepted at any depth.
TEST(PaneFile, TheDepthIsTheSameWhicheverReaderTakesTheText)
{
    CChart2D chart;
    Fill(chart);
    const std::string good = PaneToText(chart);
    const auto nested = [&](int lists) { // within a member that nobody reads
        const auto count = static_cast<std::size_t>(lists);
        return "{\"unread\":" + std::string(count, '[') + "7" + std::string(count, ']') + "," +
               good.substr(1);
    };
    const auto readers = [](const std::string& text) {
        std::string escaped = text, twice = text;
        escaped.replace(escaped.find("\"marker\""), 8, "\"m\\u0061rker\"");
        twice.replace(twice.find("\"groups\""), 8, "\"groups\":[],\"groups\"");
        return std::vector<std::string>{text, "\xEF\xBB\xBF" + text, escaped, twice};
    };
    for (const std::string& text : readers(nested(31))) // the 7 is at depth 32
        EXPECT_TRUE(LoadedAsText(text)) << text.substr(0, 60);
    for (const std::string& text : readers(nested(32)))
        EXPECT_FALSE(LoadedAsText(text)) << text.substr(0, 60);
    std::string inText = good;
    inText.replace(inText.find("two"), 3, std::string(50, '['));
    for (const std::string& text : readers(inText))
        EXPECT_TRUE(LoadedAsText(text)) << "brackets within a text lie nowhere";
}

// Regression: text after a NUL byte was ignored.
TEST(PaneFile, ANulByteIsRefusedWhereverItStands)
{
    CChart2D chart;
    Fill(chart);
    const std::string good = PaneToText(chart);
    ASSERT_TRUE(LoadedAsText(good));
    const std::string nul(1, '\0');
    EXPECT_FALSE(LoadedAsText(good + nul));
    EXPECT_FALSE(LoadedAsText(good + nul + "and more"));
    EXPECT_FALSE(LoadedAsText("\xEF\xBB\xBF" + good + nul));
    for (std::size_t at = 0; at < good.size(); at += 7)
        ASSERT_FALSE(LoadedAsText(good.substr(0, at) + nul + good.substr(at))) << at;
}

// The peak memory of this process in megabytes.
long MostMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

// Regression: a series with many points, with many series that have none of them, requested gigabytes.
TEST(PaneFile, PointsThatTheFileDoesNotHoldGetNoRoom)
{
    CChart2D chart;
    Fill(chart);
    json pane = json::parse(PaneToText(chart));
    json& series = pane["groups"][0]["series"];
    json first = series[0], other = series[0];
    first["pointCount"] = 20000;
    first["x"] = first["y"] = std::vector<int>(20000, 1);
    other["x"] = other["y"] = json::array();
    for (const int points : {0, 20000}) {
        other["pointCount"] = points;
        series = std::vector<json>(4000, other);
        series[0] = first;
        const std::string text = pane.dump();
        const long before = MostMemory();
        EXPECT_FALSE(LoadedAsTree(text)) << points;
        EXPECT_FALSE(LoadedAsText(text)) << points;
        EXPECT_LT(MostMemory() - before, 250) << "4,000 times 20,000 numbers take 640";
    }
}

TEST(PaneFile, NumbersOfEveryKindHaveTheDigitsOfTheJsonLibrary)
{
    CChart2D chart, copy;
    CPaneData& data = chart.PaneGroups(2).PaneData();
    constexpr int count = 20000; // more than one piece of the writer
    data.SetSeriesCount(2);
    data.SetPointCount(1, count);
    std::uint64_t state = 42;
    std::vector<double> wild, prices;
    for (int i = 0; i < count; ++i) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        const double any = std::bit_cast<double>(state);
        wild.push_back(any != any ? 1e15 + i : any); // one not-a-number is written like another
        prices.push_back(static_cast<double>(state >> 48) / 100.0);
    }
    data.SetYVector(1, wild);
    data.SetYVector(2, prices);
    EXPECT_EQ(PaneToText(chart), PaneToJson(chart).dump());
    PaneFromText(PaneToText(chart), copy);
    for (const int series : {1, 2}) {
        const std::span<const double> y = copy.PaneGroups(2).PaneData().Y(series);
        EXPECT_TRUE(
            std::equal(y.begin(), y.end(), data.Y(series).begin(), data.Y(series).end(), IsSame<double>));
    }
}

// The same pane as a snapshot shows it.
json WithoutMore(const CChart2D& chart)
{
    json pane = PaneToJson(chart);
    const std::function<void(json&)> strip = [&](json& value) {
        if (value.is_object())
            value.erase("more");
        for (json& inner : value)
            if (inner.is_structured())
                strip(inner);
    };
    strip(pane);
    return pane;
}

TEST(PaneFile, WhatAFileDoesNotTellIsThatOfANewPane)
{
    CChart2D fresh, used;
    Fill(used);
    used.PaneArea().PaneMarkers("x").SetLock(0);
    PaneFromJson(WithoutMore(CChart2D()), fresh);
    PaneFromJson(WithoutMore(CChart2D()), used);
    EXPECT_EQ(PaneToJson(used), PaneToJson(fresh));
    EXPECT_FALSE(used.PaneArea().CandleLook().Filled());
    EXPECT_EQ(used.PaneArea().Marker().Lock(), 1);
}

TEST(PaneFile, AFileWithTheSnapshotFieldsAloneLoads)
{
    CChart2D chart, copy;
    Fill(chart);
    PaneFromJson(WithoutMore(chart), copy);
    EXPECT_EQ(copy.PixelWidth(), 640);
    EXPECT_EQ(copy.PixelHeight(), 480);
    EXPECT_EQ(copy.PaneGroups(1).PaneData().PointY(2, 1), 1.0);
    EXPECT_TRUE(copy.PaneArea().PaneAxes().X().AxisOrigin().Automatic());
    EXPECT_EQ(copy.PaneArea().PlotBackground(copy.PaneInterior()), 0x232323u);
}

TEST(PaneFile, ABadFileLeavesThePaneAsItWas)
{
    CChart2D chart;
    Fill(chart);
    const std::string before = PaneToText(chart);
    const json good = json::parse(before);
    const auto with = [&](const char* pointer, const json& value) {
        json bad = good;
        bad[json::json_pointer(pointer)] = value;
        return bad.dump();
    };
    json without = good;
    without["axes"]["y2"].erase("viewLow");
    const std::vector<std::string> bad{"",
                                       "[]",
                                       "null",
                                       "{}",
                                       "{\"a\":",
                                       before.substr(0, before.size() / 2),
                                       without.dump(),
                                       with("/barWidth", 1.5),
                                       with("/barWidth", "7"),
                                       with("/barWidth", 4294967296),
                                       with("/interior/background", -1),
                                       with("/interior/background", 1e10),
                                       with("/visible", 1),
                                       with("/rect", json::array({1, 2, 3})),
                                       with("/rect/2", 1 << 30),
                                       with("/groups", json::array()),
                                       with("/groups/0/series/0/pointCount", 7),
                                       with("/groups/0/series/0/pointCount", -1),
                                       with("/groups/0/series/0/more/firstPoint", -2147483648LL),
                                       with("/groups/0/series/1/x/3", 99.0),
                                       with("/groups/0/series/1/y/3", "infinity"),
                                       with("/groups/0/series/1/y/3", true),
                                       with("/groups/1/series/0/line/width", nullptr),
                                       with("/axes/x/tickLabels/0", json::array({1})),
                                       with("/axes/y/tickLabels/0/1", 5),
                                       with("/labels/0/text", 5),
                                       with("/labels/0/pixel", json::array({1})),
                                       with("/labels/0/pixel/0", 18446744073709551615u),
                                       with("/marker/point", "none"),
                                       with("/marker", nullptr),
                                       with("/more/fixed", 3),
                                       with("/more/box", json::array({1}))};
    const sScratchFile file;
    for (const std::string& text : bad) {
        EXPECT_THROW(PaneFromText(text, chart), std::runtime_error) << text.substr(0, 100);
        file.Write(text);
        EXPECT_FALSE(chart.LoadFromFile(file.Path)) << text.substr(0, 100);
        ASSERT_EQ(PaneToText(chart), before) << text.substr(0, 100);
    }
}

TEST(PaneFile, FilesThatCannotBeReadOrWrittenAreToldByFalse)
{
    CChart2D chart;
    EXPECT_FALSE(chart.LoadFromFile("/no/such/folder/pane.json"));
    EXPECT_FALSE(chart.SaveToFile("/no/such/folder/pane.json"));
}

TEST(PaneFile, AMessageNamesTheField)
{
    CChart2D chart;
    json pane = PaneToJson(chart);
    pane["axes"]["y"]["labelMethod"] = "four";
    try {
        PaneFromJson(pane, chart);
        FAIL();
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "pane file: pane.axes.y.labelMethod: not a whole number");
    }
}

TEST(PaneFile, LoadingTellsTheViewOnce)
{
    struct CView : IPaneView
    {
        void PaneChanged() override { ++Times; }
        int Times = 0;
    } view;
    CChart2D chart, loaded;
    Fill(chart);
    loaded.SetView(&view);
    PaneFromText(PaneToText(chart), loaded);
    EXPECT_EQ(view.Times, 1);
}

} // namespace
} // namespace zantroq
