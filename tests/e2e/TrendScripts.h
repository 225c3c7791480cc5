// Scripts that draw trendlines in the built chart, and the plain definition of the expected lines, computed
// from the axes and points of the snapshot without any code of the chart.
#pragma once

#include "Programs.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <functional>
#include <map>
#include <vector>

namespace zantroq::test {

using nlohmann::json;

// The pixels and data of the price pane in a snapshot.
struct sPlainPane
{
    explicit sPlainPane(const json& state)
    {
        const json& pane = state.at("panes").at(0);
        const json &rect = pane.at("rect"), &plot = pane.at("plot"), &axes = pane.at("axes");
        Left = plot.at("left");
        Right = rect.at(2).get<int>() - plot.at("right").get<int>() - 1;
        Top = plot.at("top");
        Bottom = rect.at(3).get<int>() - plot.at("bottom").get<int>() - 1;
        LowX = axes.at("x").at("viewLow");
        HighX = axes.at("x").at("viewHigh");
        LowY = axes.at("y").at("viewLow");
        HighY = axes.at("y").at("viewHigh");
        First = state.at("range").at("first");
        Shown = state.at("range").at("shown");
    }
    double X(int pixel) const { return LowX + (pixel - Left) * (HighX - LowX) / (Right - Left); }
    double Y(int pixel) const { return LowY + (Bottom - pixel) * (HighY - LowY) / (Bottom - Top); }
    int PixelX(double x) const
    {
        return Left + static_cast<int>(std::lround((x - LowX) / (HighX - LowX) * (Right - Left)));
    }
    int PixelY(double y) const
    {
        return Bottom - static_cast<int>(std::lround((y - LowY) / (HighY - LowY) * (Bottom - Top)));
    }
    int Index(int pixelX) const { return First - static_cast<int>(LowX) + static_cast<int>(X(pixelX) + 0.5); }

    int Left, Right, Top, Bottom; // first and last pixels of the plot
    double LowX, HighX, LowY, HighY;
    int First, Shown;
};

struct sPixelPoint
{
    int X, Y;
};

// The anchors of a line for given positions of the mouse.
struct sPlainTrend
{
    int Start = 0, End = 0, Third = 0;
    double Value = 0, EndValue = 0, Offset = 0, ThirdValue = 0;

    // The index of the end, and the price at that index of the line through the start and the pointer.
    void MoveEnd(const sPlainPane& pane, sPixelPoint at)
    {
        End = std::max(1, pane.Index(at.X));
        const double fraction = pane.X(at.X) - static_cast<int>(pane.X(at.X) + 0.5);
        EndValue = Value + (pane.Y(at.Y) - Value) / (fraction + End - Start) * (End - Start);
    }
    void MoveSecondLine(const sPlainPane& pane, sPixelPoint at)
    {
        const double run = pane.X(at.X) + pane.First - static_cast<int>(pane.LowX) - Start;
        Offset = pane.Y(at.Y) - Value - (EndValue - Value) / (End - Start) * run;
    }
    void MoveThirdPoint(const sPlainPane& pane, sPixelPoint at)
    {
        Third = pane.Index(at.X);
        const double fraction = pane.X(at.X) - static_cast<int>(pane.X(at.X) + 0.5);
        const double half = (Value - EndValue) / 2, fromMiddle = Third - (Start + End) / 2.0;
        ThirdValue = half + (pane.Y(at.Y) - half) / (fraction + fromMiddle) * fromMiddle;
    }
};

// The price of each series of a line, in order, at a data index; not-a-number where it shows nothing.
inline std::vector<double> PlainPrices(const std::string& kind, const sPlainTrend& t, int index)
{
    const double none = std::nan("");
    const bool swapped = t.End < t.Start;
    const int left = swapped ? t.End : t.Start, right = swapped ? t.Start : t.End;
    const double leftPrice = swapped ? t.EndValue : t.Value, rightPrice = swapped ? t.Value : t.EndValue;
    const double slope = (rightPrice - leftPrice) / (right - left);
    const auto ray = [&](int from, double price, double s) {
        return index < from ? none : price + s * (index - from);
    };
    if (kind == "horizontal")
        return {index < left ? none : t.Value};
    if (kind == "sloping")
        return {ray(left, leftPrice, slope)};
    if (kind == "parallel")
        return {ray(left, leftPrice, slope), ray(left, leftPrice + t.Offset, slope)};
    const double between = index > right ? none : ray(left, leftPrice, slope);
    if (kind == "pitchfork") {
        const double middle = (t.Start + t.End) / 2.0;
        const double fork = ((t.Value + t.EndValue) / 2 - t.ThirdValue) / (middle - t.Third);
        return {between, index > middle ? none : ray(t.Third, t.ThirdValue, fork), ray(left, leftPrice, fork),
                ray(right, rightPrice, fork)};
    }
    if (kind == "fibonacci-fan")
        return {ray(left, leftPrice, slope), ray(left, leftPrice, slope * 0.618),
                ray(left, leftPrice, slope * 0.5), ray(left, leftPrice, slope * 0.382)};
    if (kind == "speed-resistance")
        return {ray(left, leftPrice, slope), ray(left, leftPrice, slope / 3 * 2),
                ray(left, leftPrice, slope / 3)};
    std::vector<double> prices{between};
    const double high = std::max(t.Value, t.EndValue), range = std::abs(t.Value - t.EndValue);
    for (const double ratio : {0.0, 0.236, 0.382, 0.5, 0.618, 1.0, 1.618, 2.618, 4.236})
        prices.push_back(index < left ? none : high - range * ratio);
    return prices;
}

struct sTrendTool
{
    const char* Kind;
    int Command, FirstState, Series;
    const char* Setting; // "<...> Trendline Color"
    double Points[3]
                 [2]; // positions in the plot, 0 to 1 from its lower left; the third only if the kind has one
    bool Third;
};

inline const sTrendTool TrendTools[]{
    {"horizontal", 32779, 1, 1, "Horizontal", {{0.2, 0.7}, {0.5, 0.4}}, false},
    {"sloping", 32784, 3, 1, "Sloping", {{0.8, 0.3}, {0.25, 0.72}}, false}, // from right to left
    {"parallel", 32785, 5, 2, "Parallel", {{0.2, 0.75}, {0.6, 0.6}, {0.5, 0.5}}, true},
    {"pitchfork", 32786, 8, 4, "Andrew's Pitchfork", {{0.5, 0.4}, {0.63, 0.7}, {0.3, 0.6}}, true},
    {"fibonacci-fan", 32789, 11, 4, "Fibonacci Fan", {{0.1, 0.75}, {0.5, 0.4}}, false},
    {"fibonacci-retracements", 32790, 13, 10, "Fibonacci Retracements", {{0.45, 0.8}, {0.3, 0.5}}, false},
    {"speed-resistance", 32788, 15, 3, "Speed Resistance", {{0.1, 0.3}, {0.5, 0.8}}, false},
};

class CTrendScripts : public CProgramsWithFeed
{
protected:
    static std::string Down(sPixelPoint at, int button = 1)
    {
        return "mouse down 341 " + std::to_string(button) + " " + Place(at);
    }
    static std::string Move(sPixelPoint at) { return "mouse move 341 0 " + Place(at); }
    static std::string Place(sPixelPoint at)
    {
        return std::to_string(at.X) + " " + std::to_string(at.Y) + "\n";
    }
    static std::string Command(int id) { return "command " + std::to_string(id) + "\n"; }
    static std::string Snapshot(const std::string& name) { return "snapshot " + name + ".json\n"; }
    static sPixelPoint At(const sPlainPane& pane, const double (&share)[2])
    {
        return {pane.Left + static_cast<int>(share[0] * (pane.Right - pane.Left)),
                pane.Bottom - static_cast<int>(share[1] * (pane.Bottom - pane.Top))};
    }
    // The steps that draw a whole line after its mode was started.
    static std::string DrawSteps(const sTrendTool& tool, const sPlainPane& pane)
    {
        std::string steps;
        for (int point = 0; point < (tool.Third ? 3 : 2); ++point)
            steps +=
                (point > 0 ? Move(At(pane, tool.Points[point])) : "") + Down(At(pane, tool.Points[point]));
        return steps;
    }
    // The finished line, which no longer depends on the pointer.
    static sPlainTrend PlainOf(const sTrendTool& tool, const sPlainPane& pane)
    {
        sPlainTrend trend;
        trend.Start = trend.End = pane.Index(At(pane, tool.Points[0]).X);
        trend.Value = trend.EndValue = pane.Y(At(pane, tool.Points[0]).Y);
        trend.MoveEnd(pane, At(pane, tool.Points[1]));
        if (std::string(tool.Kind) == "parallel")
            trend.MoveSecondLine(pane, At(pane, tool.Points[2]));
        if (std::string(tool.Kind) == "pitchfork")
            trend.MoveThirdPoint(pane, At(pane, tool.Points[2]));
        return trend;
    }

    void Play(const std::string& steps, const QStringList& words = {"--feed", "embedded"})
    {
        Write("script.txt", m_begin + steps);
        const sRun run = Chart(QStringList({"--replay", "script.txt"}) + words);
        ASSERT_EQ(run.ExitCode, 0) << run.Err;
    }
    json State(const std::string& name) const
    {
        return json::parse(Bytes(QString::fromStdString(name) + ".json").toStdString());
    }
    // The pane after the steps with which every script begins.
    sPlainPane
    Begin(const std::string& steps = "resize 800 600\ntype daily\nsymbol GOOG\ndraw\nwait complete\n")
    {
        m_begin = steps;
        Play(Snapshot("begin"));
        return sPlainPane(State("begin"));
    }

    static const json& SeriesOf(const json& state, int number)
    {
        return state.at("panes").at(0).at("groups").at(1).at("series").at(
            static_cast<std::size_t>(number - 1));
    }
    // Expects every point of every series of a line where the plain definition puts it, whatever range is
    // displayed now.
    static void ExpectDrawn(const json& state, const json& trend, const std::string& kind,
                            const sPlainTrend& plain)
    {
        const sPlainPane now(state);
        const std::vector<int> series = trend.at("series");
        int drawn = 0;
        for (int point = 1; point <= now.Shown; ++point) {
            const std::vector<double> prices = PlainPrices(kind, plain, now.First + point - 1);
            ASSERT_EQ(prices.size(), series.size());
            for (std::size_t i = 0; i < series.size(); ++i) {
                const json& y = SeriesOf(state, series[i]).at("y").at(static_cast<std::size_t>(point - 1));
                if (std::isnan(prices[i])) {
                    ASSERT_TRUE(y.is_null()) << kind << " series " << series[i] << " point " << point;
                    continue;
                }
                ++drawn;
                ASSERT_TRUE(y.is_number()) << kind << " series " << series[i] << " point " << point;
                ASSERT_NEAR(y.get<double>(), prices[i], 1e-8)
                    << kind << " series " << series[i] << " point " << point;
            }
        }
        const json& group = state.at("panes").at(0).at("groups").at(1);
        const int last = group.at("lastShownSeries");
        for (const int number : series)
            EXPECT_TRUE(last == 0 || number <= last) << number << " is not shown";
        EXPECT_GT(drawn, 0);
    }

    std::string m_begin;
};

} // namespace zantroq::test
