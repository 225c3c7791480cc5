#include "drawing/MovingAverages.h"
#include "support/SeriesFixture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zantroq {
namespace {

constexpr double Hole = HoleValue;

std::vector<double> Values(std::span<const double> values)
{
    return {values.begin(), values.end()};
}

bool AllHoles(std::span<const double> values)
{
    for (double value : values)
        if (value != Hole)
            return false;
    return true;
}

// Forty bars that rise by one, from 100 on; a window of thirty.
void FillForty(CSeriesFixture& chart)
{
    chart.window.settings.PtsIndex = chart.window.range.ptsIndex = 0;
    for (int i = 0; i < 40; ++i)
        chart.Add(100 + i, 101 + i, 99 + i, 100.5 + i, 1000 + i);
}

// A price pane that counts some points as deleted.
class CDeletingChart : public CHistPriceChart
{
public:
    using CHistPriceChart::CHistPriceChart;
    std::vector<int> deletedIndexes;

protected:
    void ReadDeletedMarks(int first, int count, std::vector<std::uint8_t>& marks) const override
    {
        marks.assign(static_cast<std::size_t>(count), 0);
        for (int index : deletedIndexes)
            if (index >= first && index < first + count)
                marks[static_cast<std::size_t>(index - first)] = 1;
    }
};

TEST(PriceDraw, ShortSeriesFillsTheWindowWithAllItHas)
{
    CSeriesFixture chart;
    chart.Add(10, 12, 9, 11);
    chart.Add(11, 14, 10, 13);
    chart.Add(13, 13, 8, 9);
    chart.manager.FullRedraw();
    const sDisplayRange& range = chart.window.range;
    EXPECT_EQ(range.first, 0);
    EXPECT_EQ(range.last, 2);
    EXPECT_EQ(range.shown, 3);
    EXPECT_EQ(Values(chart.Bars().X()), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(Values(chart.Bars().Y(1)), (std::vector<double>{12, 14, 13}));
    EXPECT_EQ(Values(chart.Bars().Y(2)), (std::vector<double>{9, 10, 8}));
    EXPECT_EQ(Values(chart.Bars().Y(3)), (std::vector<double>{10, 11, 13}));
    EXPECT_EQ(Values(chart.Bars().Y(4)), (std::vector<double>{11, 13, 9}));
    EXPECT_EQ(chart.Bars().DrawnTo(4), 3);
    EXPECT_EQ(chart.Axes().X().ViewHigh().Value(), 3.5);
}

TEST(PriceDraw, GrowingSeriesFillsTheWindowUpToTheEntryOfThePointsList)
{
    CSeriesFixture chart;
    chart.window.range.ptsIndex = 0;
    for (int i = 0; i < 35; ++i) {
        chart.Add(10, 12, 9, 11);
        chart.manager.Draw(chart.prices.Count());
        EXPECT_EQ(chart.window.range.shown, std::min(i + 1, 30)) << i;
        EXPECT_EQ(chart.window.range.last, i);
    }
}

TEST(PriceDraw, DrawBeforeTheSetUpSetsUpFirst)
{
    CSeriesFixture chart(TickData);
    chart.AddCloses({1, 2});
    chart.manager.Draw(0);
    EXPECT_EQ(chart.Bars().SeriesCount(), 1);
    chart.prices.SetDataType(DailyData); // another chart is loading
    chart.manager.Draw(0);
    EXPECT_EQ(chart.Bars().SeriesCount(), 4);
    EXPECT_EQ(chart.Labels().Count(), 9);
}

TEST(PriceDraw, PositionIsHeldAtTheEndsOfTheSeries)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.manager.FullRedraw();
    const auto range = [&](int position) {
        chart.manager.Draw(position);
        return std::pair(chart.window.range.first, chart.window.range.last);
    };
    EXPECT_EQ(range(0), std::pair(0, 29));
    EXPECT_EQ(range(4), std::pair(4, 33));
    EXPECT_EQ(range(10), std::pair(10, 39));
    EXPECT_EQ(range(11), std::pair(10, 39));
    EXPECT_EQ(range(-7), std::pair(0, 29));
    EXPECT_EQ(range(std::numeric_limits<int>::max()), std::pair(10, 39));
    EXPECT_EQ(range(std::numeric_limits<int>::min()), std::pair(0, 29));
    EXPECT_EQ(chart.Bars().PointY(4, 1), 100.5);
}

TEST(PriceDraw, SelectedPointStaysOnItsBar)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.manager.FullRedraw();
    chart.manager.Draw(0);
    chart.window.selectedPoint = 20;
    chart.manager.Draw(5);
    EXPECT_EQ(chart.window.selectedPoint, 15);
    EXPECT_EQ(chart.window.Pane(0).PaneArea().Marker().Point(), 15);
    chart.manager.Draw(10);
    chart.manager.Draw(0);
    EXPECT_EQ(chart.window.selectedPoint, 20);
}

TEST(PriceDraw, EmptySeriesLeavesShownAndScalesToZero)
{
    CSeriesFixture chart;
    chart.window.range.shown = 77;
    const sDrawnExtent drawn = chart.manager.Draw(0);
    EXPECT_EQ(chart.window.range.shown, 77);
    EXPECT_EQ(chart.Bars().PointCount(1), 0);
    // Code 14, range 0 counted as 0.01: the step is a quarter of it.
    EXPECT_DOUBLE_EQ(chart.Axes().Y().TickSpacing().Value(), 0.0025);
    EXPECT_EQ(chart.Axes().X().TickLabels().Count(), 0);
    EXPECT_FALSE(drawn.FillsWindow);
}

TEST(PriceDraw, TickSeriesIsOneLineOfLastPrices)
{
    CSeriesFixture chart(TickData);
    chart.AddCloses({10, 11, 10.5});
    chart.manager.FullRedraw();
    EXPECT_EQ(chart.Bars().SeriesCount(), 1);
    EXPECT_EQ(chart.Bars().LastShownSeries(), 1);
    EXPECT_EQ(chart.window.Pane(0).PaneGroups(1).Type(), ChartLines);
    EXPECT_EQ(Values(chart.Bars().Y(1)), (std::vector<double>{10, 11, 10.5}));
}

TEST(PriceDraw, BarsAndCandlesBySetting)
{
    CSeriesFixture chart;
    FillForty(chart);
    sChartSettings& settings = chart.window.settings;
    settings.CandleStyle = 0;
    chart.manager.FullRedraw();
    CPaneGroup& bars = chart.window.Pane(0).PaneGroups(1);
    EXPECT_EQ(bars.Type(), ChartHiLoOpenClose);
    EXPECT_EQ(chart.Bars().SeriesCount(), 4);
    EXPECT_EQ(chart.Bars().LastShownSeries(), 0);
    EXPECT_EQ(bars.SeriesStyles(1).LineLook().LineColor(), settings.PriceDataColor);
    settings.CandleStyle = 1;
    settings.UpCandleColor = 1;
    settings.DownCandleColor = 2;
    settings.GridColor = 3;
    chart.manager.FullRedraw();
    EXPECT_EQ(bars.Type(), ChartCandles);
    EXPECT_TRUE(chart.window.Pane(0).PaneArea().CandleLook().Filled());
    EXPECT_EQ(bars.SeriesStyles(2).FillLook().FillColor(), 1u);
    EXPECT_EQ(bars.SeriesStyles(3).FillLook().FillColor(), 2u);
    EXPECT_EQ(bars.SeriesStyles(4).FillLook().FillColor(), 3u);
}

// (900 - 81) / (30 - 0.5) = 27.7; at 160 pixels 2.67.
TEST(PriceDraw, CandlesFitTheRoomOfAPoint)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.manager.FullRedraw();
    CPaneGroup& bars = chart.window.Pane(0).PaneGroups(1);
    EXPECT_EQ(bars.SeriesStyles(2).LineLook().Width(), 27);
    EXPECT_EQ(bars.SeriesStyles(3).LineLook().Width(), 27);
    EXPECT_EQ(bars.SeriesStyles(4).LineLook().Pattern(), LineSolid);
    chart.window.SetPaneSize(160, 300);
    chart.manager.PriceChart().NarrowCandles();
    EXPECT_EQ(bars.SeriesStyles(2).LineLook().Width(), 2);
    EXPECT_EQ(bars.SeriesStyles(4).LineLook().Pattern(), LineNone);
}

// Lows from 99, highs to 130: 1 % of 31 above 130. A quarter of 31.31 is 7.8, which becomes 10: 90 to 140.
TEST(PriceDraw, ScaleFitsThePricesOnShow)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.manager.FullRedraw();
    chart.manager.Draw(0);
    for (const CPaneAxis* axis : {&chart.Axes().Y(), &chart.Axes().Y2()}) {
        EXPECT_EQ(axis->ViewLow().Value(), 90);
        EXPECT_EQ(axis->DataLow().Value(), 90);
        EXPECT_EQ(axis->ViewHigh().Value(), 140);
        EXPECT_EQ(axis->DataHigh().Value(), 140);
        EXPECT_EQ(axis->TickSpacing().Value(), 10);
        EXPECT_EQ(axis->TickMarkSpacing().Value(), 10);
    }
    EXPECT_EQ(chart.Axes().Y().AxisGrid().Spacing(), 10);
    EXPECT_EQ(chart.Axes().Y().LabelMethod(), 0);
    EXPECT_EQ(chart.Axes().Y().TickLabels().Item(1), (sTickLabel{90, "90.0000"})); // code 14
    EXPECT_EQ(chart.Axes().Y2().TickLabels().Count(), 0);
    EXPECT_EQ(chart.manager.PriceChart().priceDigits, 3);
    EXPECT_EQ(chart.manager.PriceChart().maxVolume, 1029u);
    EXPECT_EQ(chart.prices.GreatestVolume(), 1029u);
}

TEST(PriceDraw, LabelsStandAtTheChosenSide)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.window.settings.AxisOnRight = true;
    chart.manager.FullRedraw();
    EXPECT_EQ(chart.Axes().Y().TickLabels().Count(), 0);
    EXPECT_GT(chart.Axes().Y2().TickLabels().Count(), 3);
}

TEST(PriceDraw, SeriesWithoutAFormatCodeHasPlainLabels)
{
    CSeriesFixture chart;
    chart.request.SetPriceFormat(0);
    chart.Add(50, 50, 50, 50);
    chart.manager.FullRedraw();
    EXPECT_EQ(chart.Axes().Y().LabelMethod(), 2);
    EXPECT_DOUBLE_EQ(chart.Axes().Y().ViewHigh().Value(), 50.1); // flat: a tenth on each side
    ASSERT_GE(chart.Axes().Y().TickLabels().Count(), 1);
    EXPECT_LE(chart.Axes().Y().TickLabels().Item(1).Text.size(), 7u);
}

TEST(PriceDraw, FixedScaleKeepsTheAxisUntilAsked)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.manager.FullRedraw();
    chart.manager.Draw(0);
    chart.window.settings.FixedScale = true;
    chart.Add(500, 600, 400, 450, 9999);
    chart.manager.Draw(11);
    EXPECT_EQ(chart.Axes().Y().ViewHigh().Value(), 140); // the new high is cut off
    chart.manager.FullRedraw();                          // a set-up keeps it too
    EXPECT_EQ(chart.Axes().Y().ViewHigh().Value(), 140);
    chart.window.resetScale = true;
    chart.manager.Draw(0); // fits the whole series, not the window: 99 to 600 and 1 %
    EXPECT_EQ(chart.Axes().Y().ViewLow().Value(), 0);
    EXPECT_EQ(chart.Axes().Y().ViewHigh().Value(), 700);
    EXPECT_EQ(chart.manager.PriceChart().maxVolume, 9999u);
    EXPECT_FALSE(chart.window.resetScale);
}

TEST(PriceDraw, RangeStartsAtTenMillion)
{
    CSeriesFixture chart;
    chart.Add(2e7, 3e7, 2e7, 2e7);
    chart.manager.FullRedraw();
    EXPECT_EQ(chart.Axes().Y().ViewLow().Value(), 1e7); // 2e7 is above the start value and does not move it
}

TEST(PriceDraw, DeletedPointDrawsNothingAndDoesNotScale)
{
    CSeriesFixture chart;
    FillForty(chart);
    CDeletingChart pane(chart.window, chart.window.Pane(1), chart.prices, nullptr);
    pane.deletedIndexes = {0, 5};
    pane.SetUp();
    pane.Draw(0);
    const CPaneData& bars = pane.chart->PaneGroups(1).PaneData();
    for (int series = 1; series <= 4; ++series) {
        EXPECT_EQ(bars.PointY(series, 1), Hole);
        EXPECT_NE(bars.PointY(series, 2), Hole);
        EXPECT_EQ(bars.PointY(series, 6), Hole);
    }
    pane.deletedIndexes.clear();
    for (int i = 0; i < 40; ++i)
        pane.deletedIndexes.push_back(i);
    const double high = pane.chart->PaneArea().PaneAxes().Y().ViewHigh().Value();
    pane.Draw(0);
    EXPECT_EQ(pane.chart->PaneArea().PaneAxes().Y().ViewHigh().Value(), high); // nothing to scale by
    EXPECT_EQ(pane.maxVolume, 0u);
}

TEST(PriceDraw, PriceOfZeroHasOneDigit)
{
    EXPECT_EQ(DigitsBeforePoint(0), 1);
    EXPECT_EQ(DigitsBeforePoint(-5), 1);
    EXPECT_EQ(DigitsBeforePoint(9.99), 1);
    EXPECT_EQ(DigitsBeforePoint(10), 2);
    EXPECT_EQ(DigitsBeforePoint(12345), 5);
}

TEST(PriceDraw, VolumeIsCutToThirtyTwoBits)
{
    CSeriesFixture chart;
    chart.Add(1, 1, 1, 1, 5000000000);
    chart.Add(1, 1, 1, 1, 7);
    EXPECT_EQ(chart.manager.PriceChart().Volume(0), 0x7fffffff);
    EXPECT_EQ(chart.manager.PriceChart().Volume(1), 7);
    EXPECT_EQ(chart.prices.Volume(0), 5000000000);
}

TEST(PriceDraw, ReportsTheCountAndWhetherTheSeriesFillsTheWindow)
{
    CSeriesFixture chart;
    chart.window.range.ptsIndex = 0; // 30 points
    for (int i = 0; i < 29; ++i)
        chart.Add(10, 12, 9, 11);
    const sDrawnExtent shorter = chart.manager.Draw(0);
    EXPECT_EQ(shorter.Count, 29);
    EXPECT_FALSE(shorter.FillsWindow);
    chart.Add(10, 12, 9, 11);
    const sDrawnExtent filled = chart.manager.Draw(0);
    EXPECT_EQ(filled.Count, 30);
    EXPECT_TRUE(filled.FillsWindow);
}

TEST(PriceDraw, AnUpdateOfTheLastBarReportsNoExtent)
{
    CSeriesFixture chart;
    FillForty(chart);
    ASSERT_TRUE(chart.manager.FullRedraw().has_value());
    EXPECT_FALSE(chart.manager.Update(0).has_value());
    chart.Add(10, 12, 9, 11);
    ASSERT_TRUE(chart.manager.Update(1).has_value());
    chart.request.ClearSeries();
    EXPECT_FALSE(chart.manager.FullRedraw().has_value());
}

TEST(PriceDraw, AveragesLookBackPastTheWindow)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.window.settings.Overlays.ShowAverages = 1;
    chart.window.settings.Overlays.AverageSelected = {1, 0, 1};
    chart.window.settings.Overlays.AveragePoints = {3, 4, 12};
    chart.manager.FullRedraw();
    chart.manager.Draw(10);
    EXPECT_EQ(chart.Overlays().PointY(1, 1), (108.5 + 109.5 + 110.5) / 3); // index 10
    EXPECT_TRUE(AllHoles(chart.Overlays().Y(2)));
    EXPECT_EQ(chart.Overlays().PointY(3, 2), Hole); // index 11 is below the period
    EXPECT_NE(chart.Overlays().PointY(3, 3), Hole);
    EXPECT_EQ(chart.Overlays().DrawnTo(1), 30);
    EXPECT_EQ(Values(chart.Overlays().X()), Values(chart.Bars().X()));
}

TEST(PriceDraw, CurvesThatAreSwitchedOffLeaveNothing)
{
    CSeriesFixture chart;
    FillForty(chart);
    sOverlaySettings& overlays = chart.window.settings.Overlays;
    overlays.ShowAverages = 1;
    overlays.AveragePoints = {2, 3, 4};
    overlays.BandPeriod = 5;
    chart.manager.FullRedraw();
    EXPECT_FALSE(AllHoles(chart.Overlays().Y(2)));
    overlays.AverageSelected[1] = 0;
    chart.manager.Draw(10);
    EXPECT_FALSE(AllHoles(chart.Overlays().Y(1)));
    EXPECT_TRUE(AllHoles(chart.Overlays().Y(2)));
    overlays.ShowBands = 1;
    chart.manager.Draw(10);
    EXPECT_FALSE(AllHoles(chart.Overlays().Y(2)));
    EXPECT_EQ(chart.window.Pane(0).PaneGroups(2).SeriesStyles(1).LineLook().LineColor(), overlays.BandColor);
    overlays.ShowBands = overlays.ShowAverages = 0;
    chart.manager.Draw(10);
    for (int series = 1; series <= 3; ++series)
        EXPECT_TRUE(AllHoles(chart.Overlays().Y(series))) << series;
}

TEST(PriceDraw, BandsStandLowerUpperMiddle)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.window.settings.Overlays.ShowBands = 1;
    chart.window.settings.Overlays.BandPeriod = 2;
    chart.manager.FullRedraw();
    chart.manager.Draw(10);
    // Index 10: closes 109.5 and 110.5, mean 110, deviation 0.5, two deviations.
    EXPECT_EQ(chart.Overlays().PointY(1, 1), 109);
    EXPECT_EQ(chart.Overlays().PointY(2, 1), 111);
    EXPECT_EQ(chart.Overlays().PointY(3, 1), 110);
    EXPECT_EQ(chart.Overlays().DrawnTo(1), 30);
}

TEST(PriceDraw, BandsWhoseWarmUpFillsTheWindowAreNotDrawn)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.window.settings.Overlays.ShowBands = 1;
    chart.window.settings.Overlays.BandPeriod = 2;
    chart.manager.FullRedraw();
    chart.window.settings.Overlays.BandPeriod = 29; // warm-up 30 of 30, although index 29 has a value
    chart.manager.Draw(0);
    for (int series = 1; series <= 3; ++series)
        EXPECT_TRUE(AllHoles(chart.Overlays().Y(series))) << series;
    chart.window.settings.Overlays.BandPeriod = 28;
    chart.manager.Draw(0);
    EXPECT_FALSE(AllHoles(chart.Overlays().Y(3)));
    chart.window.settings.Overlays.BandPeriod = 1000000;
    chart.manager.Draw(0);
    EXPECT_TRUE(AllHoles(chart.Overlays().Y(3)));
}

TEST(PriceDraw, StrangePeriodsDrawNothing)
{
    CSeriesFixture chart;
    FillForty(chart);
    sOverlaySettings& overlays = chart.window.settings.Overlays;
    for (int bands : {0, 1})
        for (int period : {0, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 200000}) {
            overlays.ShowBands = bands;
            overlays.ShowAverages = 1;
            overlays.BandPeriod = period;
            overlays.AveragePoints = {period, period, period};
            for (bool fixed : {false, true}) {
                chart.window.settings.FixedScale = chart.window.resetScale = fixed;
                chart.manager.FullRedraw();
                for (int series = 1; series <= 3; ++series)
                    EXPECT_TRUE(AllHoles(chart.Overlays().Y(series))) << period;
            }
        }
}

// Prices before the window are higher, so an average of them is above the displayed prices.
void FillFallen(CSeriesFixture& chart)
{
    chart.window.settings.PtsIndex = chart.window.range.ptsIndex = 0;
    for (int i = 0; i < 20; ++i)
        chart.Add(200, 200, 200, 200);
    for (int i = 0; i < 30; ++i)
        chart.Add(100, 105, 95, 100);
}

TEST(PriceDraw, PeriodLongerThanTheSeriesDrawsHolesAlone)
{
    CSeriesFixture chart;
    FillForty(chart);
    sOverlaySettings& overlays = chart.window.settings.Overlays;
    overlays.AveragePoints = {41, 41, 41};
    overlays.BandPeriod = 41;
    overlays.ShowAverages = 1;
    for (const int exponential : {0, 1}) {
        overlays.Exponential = exponential;
        chart.manager.FullRedraw();
        for (int series = 1; series <= 3; ++series)
            EXPECT_TRUE(AllHoles(chart.Overlays().Y(series))) << series;
    }
    overlays.ShowBands = 1;
    chart.manager.FullRedraw();
    for (int series = 1; series <= 3; ++series) {
        EXPECT_TRUE(AllHoles(chart.Overlays().Y(series))) << series;
        EXPECT_EQ(chart.Overlays().DrawnTo(series), 0) << "the whole of the warm-up is skipped";
    }
}

// At index 5 the mean of five closes has a value; the exponential average starts one index later.
TEST(PriceDraw, ExponentialAverageHasAHoleWhereTheSimpleOneBegins)
{
    CSeriesFixture chart;
    chart.AddCloses({10, 20, 30, 40, 50, 60, 70});
    sOverlaySettings& overlays = chart.window.settings.Overlays;
    overlays.ShowAverages = 1;
    overlays.AverageSelected = {1, 0, 0};
    overlays.AveragePoints = {5, 0, 0};
    chart.manager.FullRedraw();
    EXPECT_EQ(Values(chart.Overlays().Y(1)), (std::vector<double>{Hole, Hole, Hole, Hole, Hole, 40, 50}));
    overlays.Exponential = 1;
    chart.manager.FullRedraw();
    // 2 / 6 of the close of 70 and the rest of the mean of 20 to 60.
    EXPECT_EQ(Values(chart.Overlays().Y(1)), (std::vector<double>{Hole, Hole, Hole, Hole, Hole, Hole,
                                                                  2.0 / 6.0 * 70 + (1.0 - 2.0 / 6.0) * 40}));
}

TEST(PriceDraw, FixedScaleCutsOffTheTopOfANewHigh)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.manager.FullRedraw();
    const double top = chart.Axes().Y().ViewHigh().Value();
    chart.window.settings.FixedScale = true;
    chart.Add(140, top + 100, 139, 140);
    chart.manager.Draw(1000);
    EXPECT_EQ(chart.Axes().Y().ViewHigh().Value(), top);
    EXPECT_EQ(chart.Bars().PointY(1, 30), top + 100) << "the point keeps its price";
    int x = 0, y = 0;
    chart.window.Pane(0).PaneGroups(1).PointToPixel(1, 30, x, y);
    EXPECT_EQ(y, -1) << "but lies off the plot";
}

TEST(PriceDraw, ScaleWidensForAnAverageAboveIt)
{
    CSeriesFixture chart;
    FillFallen(chart);
    chart.manager.FullRedraw();
    chart.manager.Draw(20);
    EXPECT_LT(chart.Axes().Y().ViewHigh().Value(), 120);
    chart.window.settings.Overlays.ShowAverages = 1;
    chart.window.settings.Overlays.AverageSelected = {1, 0, 0};
    chart.window.settings.Overlays.AveragePoints = {10, 0, 0};
    chart.manager.Draw(20);
    // The average at index 20 is 190: low 95, high 190 plus 1 % of 95 is 190.95; step 20: 80 to 200.
    EXPECT_EQ(chart.Overlays().PointY(1, 1), 190);
    EXPECT_EQ(chart.Axes().Y().ViewLow().Value(), 80);
    EXPECT_EQ(chart.Axes().Y().ViewHigh().Value(), 200);
    chart.window.settings.FixedScale = true;
    chart.window.settings.Overlays.AveragePoints = {20, 0, 0}; // 195 there, but the axis is fixed
    chart.manager.Draw(20);
    EXPECT_EQ(chart.Axes().Y().ViewHigh().Value(), 200);
}

TEST(PriceDraw, ScaleWidensForBands)
{
    CSeriesFixture chart;
    FillFallen(chart);
    chart.window.settings.Overlays.ShowBands = 1;
    chart.window.settings.Overlays.BandPeriod = 10;
    chart.manager.FullRedraw();
    chart.manager.Draw(20);
    const double upper =
        190 + 2 * std::sqrt((9 * 100.0 + 8100.0) / 10); // nine closes of 200, one of 100 around 190
    EXPECT_EQ(chart.Overlays().PointY(2, 1), upper);
    EXPECT_GE(chart.Axes().Y().ViewHigh().Value(), upper);
    EXPECT_LE(chart.Axes().Y().ViewLow().Value(), 95);
}

TEST(PriceDraw, FixedScaleAskedToFitTakesInTheBandsOfTheWholeSeries)
{
    CSeriesFixture chart;
    FillFallen(chart); // prices 95 to 200, but a band reaches above 240
    for (int i = 0; i < 40; ++i)
        chart.Add(100, 105, 95, 100);
    chart.window.settings.Overlays.ShowBands = 1;
    chart.window.settings.Overlays.BandPeriod = 10;
    chart.window.settings.FixedScale = chart.window.resetScale = true;
    chart.manager.FullRedraw(); // the window shows flat prices alone
    EXPECT_GE(chart.Axes().Y().ViewHigh().Value(), 240);
}

TEST(PriceDraw, TrendlinesAreRedrawnAndTheirSeriesKept)
{
    CSeriesFixture chart;
    FillForty(chart);
    chart.trends.seriesCount = 7;
    chart.trends.labelCount = 18;
    chart.window.settings.Trends[TrendFibonacciRetracements].Color = 0x123456;
    chart.window.settings.PriceLabelColor = 0x654321;
    chart.manager.FullRedraw();
    EXPECT_EQ(chart.trends.draws, 1);
    EXPECT_EQ(chart.Overlays().SeriesCount(), 7);
    EXPECT_EQ(chart.Overlays().LastShownSeries(), 7);
    ASSERT_EQ(chart.Labels().Count(), 18);
    EXPECT_FALSE(chart.Labels().Item(18).Shown());
    EXPECT_EQ(chart.Labels().Item(18).Border(), 1);
    EXPECT_EQ(chart.Labels().Item(18).BoxAttachment(), 0);
    EXPECT_EQ(chart.Labels().Item(18).BoxEdge(), 4);
    EXPECT_EQ(chart.Labels().Item(18).Attachment(), AttachToPixel);
    for (int label = 10; label <= 18; ++label)
        EXPECT_EQ(chart.Labels().Item(label).Interior().Foreground(), 0x123456u) << label;
    EXPECT_EQ(chart.Labels().Item(9).Interior().Foreground(), 0x654321u);
    EXPECT_EQ(chart.window.priceBatchDepth, 0);
}

} // namespace
} // namespace zantroq
