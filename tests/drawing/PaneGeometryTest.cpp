#include "scene/PaneGeometry.h"
#include "scene/Chart2D.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace zantroq {
namespace {

const double Hole = HoleValue;
const double Infinity = std::numeric_limits<double>::infinity();
const double NotANumber = std::numeric_limits<double>::quiet_NaN();

// A plot of 101 by 51 pixels with its corner at (10, 20), showing x 0 to 100 and y 0 to 50: a pixel per unit.
struct sUnitPane
{
    sUnitPane()
    {
        CPaneArea& area = chart.PaneArea();
        area.AreaBox().Width().SetValue(10 + 101 + 7);
        area.AreaBox().Height().SetValue(20 + 51 + 9);
        area.PlotFrame().LeftMargin().SetValue(10);
        area.PlotFrame().RightMargin().SetValue(7);
        area.PlotFrame().TopMargin().SetValue(20);
        area.PlotFrame().BottomMargin().SetValue(9);
        View(area.PaneAxes().X(), 0, 100);
        View(area.PaneAxes().Y(), 0, 50);
    }
    static void View(CPaneAxis& axis, double low, double high)
    {
        axis.ViewLow().SetValue(low);
        axis.ViewHigh().SetValue(high);
    }
    void Load(const std::vector<double>& x, const std::vector<std::vector<double>>& y)
    {
        CPaneData& data = group.PaneData();
        data.SetSeriesCount(static_cast<int>(y.size()));
        data.SetPointCount(1, static_cast<int>(x.size()));
        data.SetXVector(1, std::span<const double>(x));
        for (std::size_t i = 0; i < y.size(); ++i)
            data.SetYVector(static_cast<int>(i) + 1, y[i]);
    }
    CChart2D chart;
    CPaneGroup& group = chart.PaneGroups(1);
};

struct sPicked
{
    int Result, Series, Point, Distance;
    bool operator==(const sPicked&) const = default;
};

std::ostream& operator<<(std::ostream& out, const sPicked& picked)
{
    return out << picked.Result << " series " << picked.Series << " point " << picked.Point << " distance "
               << picked.Distance;
}

sPicked Pick(const CPaneGroup& group, int x, int y, int focus)
{
    sPicked picked{};
    picked.Result = group.PickPoint(x, y, focus, picked.Series, picked.Point, picked.Distance);
    return picked;
}

TEST(PaneGeometry, TheViewSpansThePlotFromFirstToLastPixel)
{
    sUnitPane pane;
    int x = 0, y = 0;
    pane.group.DataToPixel(0, 0, x, y);
    EXPECT_EQ(x, 10);
    EXPECT_EQ(y, 70);
    pane.group.DataToPixel(100, 50, x, y);
    EXPECT_EQ(x, 110);
    EXPECT_EQ(y, 20);
    pane.group.DataToPixel(33.4, 12.4, x, y);
    EXPECT_EQ(x, 43);
    EXPECT_EQ(y, 58);
    pane.group.DataToPixel(33.5, 12.5, x, y);
    EXPECT_EQ(x, 44) << "a half goes to the right";
    EXPECT_EQ(y, 58) << "and down";
}

TEST(PaneGeometry, APixelInThePlotIsFoundAndOthersAreNot)
{
    sUnitPane pane;
    double x = 0, y = 0;
    EXPECT_EQ(pane.group.PixelToData(10, 70, x, y), GeometryFound);
    EXPECT_EQ(x, 0.0);
    EXPECT_EQ(y, 0.0);
    EXPECT_EQ(pane.group.PixelToData(110, 20, x, y), GeometryFound);
    EXPECT_EQ(x, 100.0);
    EXPECT_EQ(y, 50.0);
    for (const auto& [px, py] : {std::pair{9, 30}, {111, 30}, {50, 19}, {50, 71}})
        EXPECT_NE(pane.group.PixelToData(px, py, x, y), GeometryFound) << px << ", " << py;
    EXPECT_EQ(x, 40.0) << "set in either case";
    EXPECT_EQ(y, -1.0);
}

TEST(PaneGeometry, EveryPixelLeadsBackToItself)
{
    sUnitPane pane;
    for (const double high : {120.5, 3.75, 1e-9, 4e15}) {
        sUnitPane::View(pane.chart.PaneArea().PaneAxes().X(), 1, 1 + high);
        sUnitPane::View(pane.chart.PaneArea().PaneAxes().Y(), -high / 3, high);
        for (int pixel = -40; pixel < 160; ++pixel) {
            double x = 0, y = 0;
            int backX = 0, backY = 0;
            pane.group.PixelToData(pixel, pixel, x, y);
            pane.group.DataToPixel(x, y, backX, backY);
            ASSERT_EQ(backX, pixel) << high;
            ASSERT_EQ(backY, pixel) << high;
        }
    }
}

TEST(PaneGeometry, AViewWithoutExtentMapsToTheMiddle)
{
    sUnitPane pane;
    for (const auto& [low, high] :
         {std::pair{5.0, 5.0}, {NotANumber, 5.0}, {-Infinity, Infinity}, {-1e308, 1e308}}) {
        sUnitPane::View(pane.chart.PaneArea().PaneAxes().X(), low, high);
        sUnitPane::View(pane.chart.PaneArea().PaneAxes().Y(), low, high);
        int px = 0, py = 0;
        pane.group.DataToPixel(5, 7, px, py);
        EXPECT_EQ(px, 60);
        EXPECT_EQ(py, 45);
        double x = 0, y = 0;
        EXPECT_EQ(pane.group.PixelToData(60, 45, x, y), GeometryFound);
        EXPECT_TRUE(std::isfinite(x));
    }
}

TEST(PaneGeometry, FarValuesAndInfinitiesNeverOverflow)
{
    sUnitPane pane;
    int x = 0, y = 0;
    pane.group.DataToPixel(1e300, -1e300, x, y);
    EXPECT_EQ(x, FarPixel);
    EXPECT_EQ(y, FarPixel);
    pane.group.DataToPixel(Infinity, Infinity, x, y);
    EXPECT_EQ(x, 117) << "the pane's edge";
    EXPECT_EQ(y, 0);
    pane.group.DataToPixel(-Infinity, -Infinity, x, y);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 79);
    pane.group.DataToPixel(NotANumber, Hole, x, y);
    EXPECT_EQ(x, -1);
    EXPECT_EQ(y, -1);
}

TEST(PaneGeometry, APaneSmallerThanItsMarginsHasNoPlot)
{
    sUnitPane pane;
    pane.Load({1, 2}, {{1, 2}});
    pane.chart.PaneArea().AreaBox().Width().SetValue(5);
    pane.chart.PaneArea().AreaBox().Height().SetValue(5);
    EXPECT_EQ(pane.chart.PlotRect().Width(), 0);
    EXPECT_EQ(pane.chart.PlotRect().Height(), 0);
    double x = 0, y = 0;
    EXPECT_NE(pane.group.PixelToData(10, 20, x, y), GeometryFound);
    int px = 0, py = 0;
    pane.group.PointToPixel(1, 1, px, py);
    EXPECT_EQ(py, -1);
    EXPECT_EQ(Pick(pane.group, 10, 20, FocusAny), (sPicked{0, 0, 0, -1}));
}

TEST(PaneGeometry, APointThatIsAHoleOrOffThePlotHasPixelMinusOne)
{
    sUnitPane pane;
    pane.Load({1, 2, 3, 4, 5, 300}, {{7, Hole, NotANumber, 51, Infinity, 10}});
    int x = 0, y = 0;
    pane.group.PointToPixel(1, 1, x, y);
    EXPECT_EQ(x, 11);
    EXPECT_EQ(y, 63);
    for (int point = 2; point <= 6; ++point) {
        pane.group.PointToPixel(1, point, x, y);
        EXPECT_EQ(y, -1) << point;
    }
    EXPECT_EQ(x, 310) << "x is told all the same";
    pane.group.PointToPixel(2, 1, x, y);
    EXPECT_EQ(x, -1);
    EXPECT_EQ(y, -1);
}

TEST(PickPoint, FindsTheNearestOfAnySeriesAndCutsTheDistance)
{
    sUnitPane pane;
    pane.Load({10, 20, 30}, {{5, 5, 5}, {40, 22, Hole}});
    // Mouse at data (21, 25): point 2 of series 2 is 1 and 3 pixels away, the root of 10.
    EXPECT_EQ(Pick(pane.group, 31, 45, FocusAny), (sPicked{GeometryFound, 2, 2, 3}));
    EXPECT_EQ(Pick(pane.group, 40, 65, FocusAny), (sPicked{GeometryFound, 1, 3, 0}));
}

TEST(PickPoint, TakesTheEarliestSeriesThenPointOnATie)
{
    sUnitPane pane;
    pane.Load({10, 20}, {{30, 30}, {10, 10}});
    EXPECT_EQ(Pick(pane.group, 10 + 15, 70 - 20, FocusAny), (sPicked{GeometryFound, 1, 1, 11}));
    EXPECT_EQ(Pick(pane.group, 10 + 15, 70 - 19, FocusAny), (sPicked{GeometryFound, 2, 1, 10}));
    EXPECT_EQ(Pick(pane.group, 10 + 15, 70 - 20, FocusX), (sPicked{GeometryFound, 1, 1, 5}));
}

TEST(PickPoint, FocusXLooksAtXAlone)
{
    sUnitPane pane;
    pane.Load({10, 20, 30}, {{Hole, Hole, 5}, {5, 5, 5}});
    EXPECT_EQ(Pick(pane.group, 10 + 18, 30, FocusX), (sPicked{GeometryFound, 1, 2, 2}));
    EXPECT_EQ(Pick(pane.group, 110, 30, FocusX), (sPicked{GeometryFound, 1, 3, 70}));
}

TEST(PickPoint, FindsNothingOutsideThePlotOrWithoutPoints)
{
    sUnitPane pane;
    EXPECT_EQ(Pick(pane.group, 50, 40, FocusX), (sPicked{0, 0, 0, -1}));
    EXPECT_EQ(Pick(pane.group, 50, 40, FocusAny), (sPicked{0, 0, 0, -1}));
    pane.Load({10, 20, 30}, {{5, 5, 5}});
    EXPECT_EQ(Pick(pane.group, 5, 40, FocusX).Result, 0);
    EXPECT_EQ(Pick(pane.group, 50, 75, FocusAny).Result, 0);
    pane.Load({10, 20, 30}, {{Hole, 51, NotANumber}});
    EXPECT_EQ(Pick(pane.group, 50, 40, FocusAny).Result, 0) << "points that cannot be seen are not found";
}

// The plain definition: look at every point.
sPicked PlainPick(const CPaneGroup& group, int mouseX, int mouseY, int focus)
{
    sPicked best{0, 0, 0, -1};
    std::int64_t least = std::numeric_limits<std::int64_t>::max();
    const CPaneData& data = group.PaneData();
    for (int series = 1; series <= (focus == FocusX ? 1 : data.SeriesCount()); ++series) {
        for (int point = 1; point <= data.PointCount(series); ++point) {
            int x = 0, y = 0;
            group.PointToPixel(series, point, x, y);
            if (focus == FocusX ? x < 10 || x > 110 : y == -1)
                continue;
            const std::int64_t dx = x - mouseX, dy = focus == FocusX ? 0 : y - mouseY;
            if (dx * dx + dy * dy >= least)
                continue;
            least = dx * dx + dy * dy;
            best = {GeometryFound, series, point, static_cast<int>(std::floor(std::sqrt(double(least))))};
        }
    }
    return best;
}

TEST(PickPoint, AgreesWithLookingAtEveryPointWhateverTheOrderOfX)
{
    std::mt19937 random(7);
    const auto number = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    for (int round = 0; round < 300; ++round) {
        sUnitPane pane;
        const int points = static_cast<int>(number(1, round % 3 == 0 ? 800 : 20));
        std::vector<double> x, first, second;
        for (int i = 0; i < points; ++i) {
            x.push_back(number(-10, 110));
            first.push_back(number(0, 1) < 0.2 ? Hole : number(-10, 60));
            second.push_back(number(0, 1) < 0.1 ? NotANumber : number(-10, 60));
        }
        if (round % 2 == 0)
            std::sort(x.begin(), x.end());
        pane.Load(x, {first, second});
        for (int i = 0; i < 20; ++i) {
            const int mouseX = static_cast<int>(number(10, 111)), mouseY = static_cast<int>(number(20, 71));
            ASSERT_EQ(Pick(pane.group, mouseX, mouseY, FocusAny),
                      PlainPick(pane.group, mouseX, mouseY, FocusAny));
            ASSERT_EQ(Pick(pane.group, mouseX, mouseY, FocusX),
                      PlainPick(pane.group, mouseX, mouseY, FocusX));
        }
    }
}

// Regression: a binary search over points whose pixels descend missed most of them.
TEST(PickPoint, FindsEveryPointOnAnAxisThatRunsBackwards)
{
    std::mt19937 random(9);
    const auto number = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    for (int round = 0; round < 100; ++round) {
        sUnitPane pane;
        CPaneAxis& axis = pane.chart.PaneArea().PaneAxes().X();
        axis.ViewLow().SetValue(round % 3 ? 100 : 50);
        axis.ViewHigh().SetValue(round % 3 ? 0 : 50); // or an axis without extent
        std::vector<double> x, y;
        for (int i = 0; i < 60; ++i) {
            x.push_back(number(-10, 110));
            y.push_back(number(-10, 60));
        }
        std::sort(x.begin(), x.end());
        pane.Load(x, {y});
        for (int i = 0; i < 20; ++i) {
            const int mouseX = static_cast<int>(number(10, 111)), mouseY = static_cast<int>(number(20, 71));
            for (const int focus : {FocusAny, FocusX})
                ASSERT_EQ(Pick(pane.group, mouseX, mouseY, focus),
                          PlainPick(pane.group, mouseX, mouseY, focus));
        }
    }
}

TEST(PickPoint, APointWhoseXIsAHoleIsNotThere)
{
    sUnitPane pane;
    pane.Load({Hole, 50}, {{25, 25}});
    CPaneAxis& axis = pane.chart.PaneArea().PaneAxes().X();
    axis.ViewLow().SetValue(0); // no slope: each x lies in the middle
    axis.ViewHigh().SetValue(0);
    EXPECT_EQ(Pick(pane.group, 60, 45, FocusAny).Point, 2);
    EXPECT_EQ(Pick(pane.group, 60, 45, FocusX).Point, 2);
}

TEST(PaneGeometry, AFinerGridKeepsThePlotsEdges)
{
    sUnitPane pane;
    const sPlotMap fine(pane.chart, 1.5);
    EXPECT_EQ(fine.Plot.Left, 15);
    EXPECT_EQ(fine.Plot.Right, 167); // 111 * 1.5 = 166.5
    EXPECT_EQ(fine.X.Pixel(0), 15);
    EXPECT_EQ(fine.X.Pixel(100), 166);
    EXPECT_EQ(fine.Y.Pixel(50), 30);
}

} // namespace
} // namespace zantroq
