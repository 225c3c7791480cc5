// The values that each kind writes into its series, compared with the plain rule computed point by point.
#include "TrendFixture.h"

#include "trends/FibonacciFanTrend.h"
#include "trends/FibonacciRetracementsTrend.h"
#include "trends/ParallelTrend.h"
#include "trends/PitchforkTrend.h"
#include "trends/SpeedResistanceTrend.h"

#include <cmath>
#include <limits>

namespace zantroq::test {

class TrendDraw : public CTrendTest
{
protected:
    sTrendStyle style{0x123456, 2, 0};

    template<class Trend, class... Args> Trend& Add(TrendKind kind, Args... args)
    {
        auto trend = std::make_unique<Trend>(args..., style);
        Trend& added = *trend;
        lists.List(kind).Add(std::move(trend));
        return added;
    }
    int Series() { return lists.AllocateSeries(); }

    CSlopingTrend& Sloping(int start, double value, int end, double endValue)
    {
        auto& trend = Add<CSlopingTrend>(TrendSloping, Series(), start, value);
        trend.m_endIndex = end;
        trend.SetEndValue(endValue);
        return trend;
    }
};

TEST_F(TrendDraw, HorizontalRunsBetweenItsAnchors)
{
    auto& trend = Add<CBaseTrend>(TrendHorizontal, Series(), 110, 90.0);
    trend.m_endIndex = 120;
    trend.Draw();
    for (int i = 1; i <= 60; ++i) {
        if (i >= 11 && i <= 21)
            EXPECT_EQ(Y(4, i), 90.0) << i;
        else
            EXPECT_TRUE(Hole(4, i)) << i;
    }
    EXPECT_EQ(window.pane.PaneGroups(2).SeriesStyles(4).LineLook().LineColor(), 0x123456u);
    EXPECT_EQ(window.pane.PaneGroups(2).PaneData().DrawnTo(4), 60);
}

TEST_F(TrendDraw, ExtendableHorizontalLeftOfTheWindowRunsFromPositionOneToTheEnd)
{
    style.Extendable = 1;
    auto& trend = Add<CBaseTrend>(TrendHorizontal, Series(), 10, 90.0);
    trend.m_endIndex = 20;
    trend.Draw();
    for (int i = 1; i <= 60; ++i)
        EXPECT_EQ(Y(4, i), 90.0);
}

TEST_F(TrendDraw, LineWhollyLeftOfTheWindowWritesOnlyHolesAndCannotBeHit)
{
    auto& trend = Sloping(10, 60, 40, 90);
    trend.Draw();
    for (int i = 1; i <= 60; ++i)
        EXPECT_TRUE(Hole(4, i));
    EXPECT_EQ(trend.HitDistance(100, 100), NotHittable);
}

TEST_F(TrendDraw, LineThatStartsLeftOfTheWindowIsDrawnFromPositionOneWithItsTrueValue)
{
    auto& trend = Sloping(90, 60.0, 130, 100.0); // one unit a point
    trend.Draw();
    EXPECT_DOUBLE_EQ(Y(4, 1), 70.0);
    EXPECT_DOUBLE_EQ(Y(4, 31), 100.0);
    EXPECT_TRUE(Hole(4, 32));
}

TEST_F(TrendDraw, SlopingLineClickedFromRightToLeftIsTheSameLine)
{
    auto& trend = Sloping(130, 100.0, 110, 80.0);
    trend.Draw();
    EXPECT_TRUE(Hole(4, 10));
    EXPECT_DOUBLE_EQ(Y(4, 11), 80.0);
    EXPECT_DOUBLE_EQ(Y(4, 31), 100.0);
    EXPECT_TRUE(Hole(4, 32));
}

TEST_F(TrendDraw, ExtendableSlopingLineGoesOnToTheLastPointWithItsSlope)
{
    style.Extendable = 1;
    auto& trend = Sloping(110, 80.0, 130, 100.0);
    trend.Draw();
    EXPECT_TRUE(Hole(4, 10));
    EXPECT_DOUBLE_EQ(Y(4, 60), 129.0);
}

TEST_F(TrendDraw, TwoAnchorsOnOneIndexDrawLevelAtTheFirstPrice)
{
    auto& trend = Sloping(110, 80.0, 110, 95.0);
    trend.Draw();
    EXPECT_EQ(Y(4, 11), 80.0);
    EXPECT_TRUE(Hole(4, 12));
}

TEST_F(TrendDraw, ParallelCopiesTheLineAtItsOffset)
{
    const int first = Series(), second = Series();
    auto& trend = Add<CParallelTrend>(TrendParallel, first, second, 110, 80.0);
    trend.m_endIndex = 130;
    trend.SetEndValue(100.0);
    trend.SetOffset(-7.5);
    trend.Draw();
    EXPECT_TRUE(Hole(second, 10));
    EXPECT_DOUBLE_EQ(Y(first, 21), 90.0);
    EXPECT_DOUBLE_EQ(Y(second, 21), 82.5);
    EXPECT_TRUE(Hole(second, 32));
}

TEST_F(TrendDraw, ExtendableParallelContinuesBothLines)
{
    style.Extendable = 1;
    const int first = Series(), second = Series();
    auto& trend = Add<CParallelTrend>(TrendParallel, first, second, 110, 80.0);
    trend.m_endIndex = 130;
    trend.SetEndValue(100.0);
    trend.SetOffset(5);
    trend.Draw();
    EXPECT_DOUBLE_EQ(Y(first, 60), 129.0);
    EXPECT_DOUBLE_EQ(Y(second, 60), 134.0);
}

TEST_F(TrendDraw, ParallelWithAnOffsetThatIsNotFiniteDrawsTheFirstLineOnly)
{
    const int first = Series(), second = Series();
    auto& trend = Add<CParallelTrend>(TrendParallel, first, second, 110, 80.0);
    trend.SetOffset(std::numeric_limits<double>::quiet_NaN());
    trend.Draw();
    EXPECT_EQ(Y(first, 11), 80.0);
    EXPECT_TRUE(std::isnan(Y(second, 11)));
    int px = 0, py = 0;
    Pixel(11, 80, px, py);
    EXPECT_EQ(trend.HitDistance(px, py), NotHittable) << "one visible point is no segment";
}

class PitchforkDraw : public TrendDraw
{
protected:
    CPitchforkTrend& Fork(int start, double value, int end, double endValue)
    {
        const int base = Series(), handle = Series(), left = Series(), right = Series();
        auto& trend = Add<CPitchforkTrend>(TrendPitchfork, base, handle, left, right, start, value);
        trend.m_endIndex = end;
        trend.SetEndValue(endValue);
        return trend;
    }
};

TEST_F(PitchforkDraw, ShowsOnlyItsBaseLineBeforeAThirdPoint)
{
    auto& trend = Fork(120, 80.0, 130, 100.0);
    trend.Draw();
    EXPECT_DOUBLE_EQ(Y(4, 26), 90.0);
    EXPECT_TRUE(Hole(4, 20));
    EXPECT_TRUE(Hole(4, 32)) << "the base line is not extended";
    for (int series : {5, 6, 7}) {
        for (int i = 1; i <= 60; ++i)
            EXPECT_TRUE(Hole(series, i));
    }
}

TEST_F(PitchforkDraw, ThirdPointAtExactlyZeroIsDrawnAndANegativeOneIsNot)
{
    auto& trend = Fork(120, 80.0, 130, 100.0);
    trend.SetThirdPoint(110, -0.5);
    trend.Draw();
    EXPECT_TRUE(Hole(5, 11));
    trend.SetThirdPoint(110, 0.0);
    trend.Draw();
    EXPECT_EQ(Y(5, 11), 0.0);
}

TEST_F(PitchforkDraw, HandleEndsAtTheMiddleAndProngsRunOnWithItsSlope)
{
    auto& trend = Fork(120, 80.0, 130, 100.0); // middle at index 125, position 26, price 90
    trend.SetThirdPoint(105, 70.0);            // position 6: slope (90 - 70) / 20 = 1
    trend.Draw();
    EXPECT_TRUE(Hole(5, 5));
    EXPECT_DOUBLE_EQ(Y(5, 6), 70.0);
    EXPECT_DOUBLE_EQ(Y(5, 26), 90.0);
    EXPECT_TRUE(Hole(5, 27));
    EXPECT_TRUE(Hole(6, 20));
    EXPECT_DOUBLE_EQ(Y(6, 21), 80.0);
    EXPECT_DOUBLE_EQ(Y(6, 60), 119.0);
    EXPECT_TRUE(Hole(7, 30));
    EXPECT_DOUBLE_EQ(Y(7, 31), 100.0);
    EXPECT_DOUBLE_EQ(Y(7, 60), 129.0);
}

TEST_F(PitchforkDraw, SlopeAimsAtTheTrueMiddleBetweenTwoPoints)
{
    auto& trend = Fork(120, 80.0, 131, 100.0); // middle 125.5
    trend.SetThirdPoint(105, 69.5);            // slope 20.5 / 20.5 = 1
    trend.Draw();
    EXPECT_DOUBLE_EQ(Y(5, 26), 89.5);
    EXPECT_TRUE(Hole(5, 27)) << "the handle ends at the whole position below the middle";
    EXPECT_DOUBLE_EQ(Y(6, 60), 119.0);
}

TEST_F(PitchforkDraw, ScrollingTheLeftPointOutKeepsTheProngsInPlace)
{
    auto& trend = Fork(120, 80.0, 131, 100.0);
    trend.SetThirdPoint(105, 69.5);
    trend.Draw();
    const double before = Y(6, 60); // index 159
    window.Show(127, 60, 50.0, 150.0);
    trend.Draw();
    EXPECT_DOUBLE_EQ(Y(6, 33), before);
    EXPECT_DOUBLE_EQ(Y(6, 1), 87.0) << "index 127 on a slope of 1 from 80 at 120";
}

TEST_F(TrendDraw, FanHasFourRaysThroughTheLeftPoint)
{
    const int a = Series(), b = Series(), c = Series(), d = Series();
    auto& trend = Add<CFibonacciFanTrend>(TrendFibonacciFan, a, b, c, d, 110, 80.0);
    trend.m_endIndex = 120;
    trend.SetEndValue(100.0); // slope 2
    trend.Draw();
    EXPECT_TRUE(Hole(a, 10));
    EXPECT_DOUBLE_EQ(Y(a, 21), 100.0);
    EXPECT_DOUBLE_EQ(Y(b, 21), 80.0 + 0.618 * 2 * 10);
    EXPECT_DOUBLE_EQ(Y(c, 21), 90.0);
    EXPECT_DOUBLE_EQ(Y(d, 21), 80.0 + 0.382 * 2 * 10);
    EXPECT_DOUBLE_EQ(Y(c, 60), 80.0 + 49) << "rays run to the last point without being extendable";
}

TEST_F(TrendDraw, FanWithBothPointsOnOneIndexIsFourLevelRays)
{
    const int a = Series(), b = Series(), c = Series(), d = Series();
    auto& trend = Add<CFibonacciFanTrend>(TrendFibonacciFan, a, b, c, d, 110, 80.0);
    trend.Draw();
    for (int series : {a, b, c, d})
        EXPECT_EQ(Y(series, 60), 80.0);
}

TEST_F(TrendDraw, FanWithItsLeftPointOffScreenKeepsItsTrueValues)
{
    const int a = Series(), b = Series(), c = Series(), d = Series();
    auto& trend = Add<CFibonacciFanTrend>(TrendFibonacciFan, a, b, c, d, 90, 60.0);
    trend.m_endIndex = 110;
    trend.SetEndValue(80.0);
    trend.Draw();
    EXPECT_DOUBLE_EQ(Y(a, 1), 70.0);
    EXPECT_DOUBLE_EQ(Y(c, 1), 65.0);
}

TEST_F(TrendDraw, SpeedLinesPassAtOneThirdAndTwoThirdsOfTheRise)
{
    const int a = Series(), b = Series(), c = Series();
    auto& trend = Add<CSpeedResistanceTrend>(TrendSpeedResistance, a, b, c, 110, 80.0);
    trend.m_endIndex = 140;
    trend.SetEndValue(110.0);
    trend.Draw();
    EXPECT_DOUBLE_EQ(Y(a, 41), 110.0);
    EXPECT_DOUBLE_EQ(Y(b, 41), 100.0);
    EXPECT_DOUBLE_EQ(Y(c, 41), 90.0);
    EXPECT_DOUBLE_EQ(Y(a, 60), 129.0);
    EXPECT_TRUE(Hole(b, 10));
}

TEST_F(TrendDraw, SpeedLinesWithBothPointsOnOneIndexAreLevel)
{
    const int a = Series(), b = Series(), c = Series();
    auto& trend = Add<CSpeedResistanceTrend>(TrendSpeedResistance, a, b, c, 110, 80.0);
    trend.Draw();
    for (int series : {a, b, c})
        EXPECT_EQ(Y(series, 60), 80.0);
}

class RetracementsDraw : public TrendDraw
{
protected:
    CFibonacciRetracementsTrend& Retracements(int start, double value, int end, double endValue)
    {
        const int first = Series();
        std::array<int, 9> levels{};
        for (int& level : levels)
            level = Series();
        auto& trend =
            Add<CFibonacciRetracementsTrend>(TrendFibonacciRetracements, first, levels, start, value);
        trend.SetFirstLabel(lists.AllocateLabels());
        trend.m_endIndex = end;
        trend.SetEndValue(endValue);
        return trend;
    }
    const CPaneLabel& Label(int number) const { return window.pane.PaneLabels().Item(number); }
};

TEST_F(RetracementsDraw, LevelsRunDownwardFromTheHigherPriceWhicheverWasClickedFirst)
{
    const double expected[] = {120, 110.56, 104.72, 100, 95.28, 80, 55.28, 15.28, -49.44};
    for (const bool upward : {true, false}) {
        auto& trend = upward ? Retracements(110, 80.0, 130, 120.0) : Retracements(110, 120.0, 130, 80.0);
        trend.Draw();
        for (int level = 0; level < 9; ++level) {
            const int series = trend.m_levelSeries[static_cast<std::size_t>(level)];
            EXPECT_TRUE(Hole(series, 10));
            EXPECT_NEAR(Y(series, 11), expected[level], 1e-9) << level;
            EXPECT_NEAR(Y(series, 60), expected[level], 1e-9) << level;
            const int pattern = window.pane.PaneGroups(2).SeriesStyles(series).LineLook().Pattern();
            EXPECT_EQ(pattern, level == 0 || level == 5 ? LineSolid : LineLongDashes) << level;
        }
        EXPECT_DOUBLE_EQ(Y(trend.m_series, 21), 100.0);
        EXPECT_TRUE(Hole(trend.m_series, 32)) << "the diagonal is not extended";
    }
}

TEST_F(RetracementsDraw, LabelsStandOnTheirLinesFifteenPixelsApart)
{
    window.Show(100, 60, -100.0, 150.0);
    auto& trend = Retracements(110, 80.0, 130, 120.0);
    trend.Draw();
    EXPECT_EQ(trend.GetFirstLabel(), 10);
    const char* const texts[] = {"0%",   "23.6%",  "38.2%",  "50%",   "61.8%",
                                 "100%", "161.8%", "261.8%", "423.6%"};
    const double expected[] = {120, 110.56, 104.72, 100, 95.28, 80, 55.28, 15.28, -49.44};
    int shownY = 0;
    for (int level = 0; level < 9; ++level) {
        const CPaneLabel& label = Label(10 + level);
        int px = 0, py = 0;
        Pixel(11, expected[level], px, py);
        EXPECT_EQ(label.Text(), texts[level]);
        EXPECT_EQ(label.PixelX(), px);
        EXPECT_EQ(label.PixelY(), py);
        EXPECT_EQ(label.Side(), AnchorAboveRight);
        const bool shown = level == 0 || py - shownY >= 15;
        EXPECT_EQ(label.Shown(), shown) << level;
        if (shown)
            shownY = py;
    }
}

TEST_F(RetracementsDraw, LabelsStickToTheLeftEdgeWhenTheLineBeginsOffScreen)
{
    auto& trend = Retracements(90, 80.0, 130, 120.0);
    trend.Draw();
    int px = 0, py = 0;
    Pixel(1, 120.0, px, py);
    EXPECT_EQ(Label(10).PixelX(), px);
}

TEST_F(RetracementsDraw, TwoClicksAtOnePriceShowTheFirstLabelOnly)
{
    auto& trend = Retracements(110, 80.0, 130, 80.0);
    trend.Draw();
    EXPECT_TRUE(Label(10).Shown());
    for (int number = 11; number <= 18; ++number)
        EXPECT_FALSE(Label(number).Shown());
    for (int series : trend.m_levelSeries)
        EXPECT_EQ(Y(series, 30), 80.0);
}

TEST_F(RetracementsDraw, DeletingTheFirstKeepsTheLabelsOfTheSecond)
{
    auto& one = Retracements(110, 80.0, 130, 120.0);
    auto& two = Retracements(115, 70.0, 135, 140.0);
    one.Draw();
    two.Draw();
    EXPECT_EQ(two.GetFirstLabel(), 19);
    EXPECT_EQ(lists.LabelCount(), 27);
    lists.Delete(&one);
    EXPECT_EQ(two.GetFirstLabel(), 10);
    EXPECT_EQ(lists.LabelCount(), 18);
    EXPECT_EQ(window.pane.PaneLabels().Count(), 18);
    two.Draw();
    int px = 0, py = 0;
    Pixel(16, 140.0, px, py);
    EXPECT_EQ(Label(10).PixelX(), px);
    EXPECT_EQ(Label(10).PixelY(), py);
}

TEST_F(RetracementsDraw, LabelColorsComeFromTheWindowNotFromTheLine)
{
    window.settings.BackgroundColor = 0x010203;
    window.settings.Trends[TrendFibonacciRetracements].Color = 0x0A0B0C;
    auto& trend = Retracements(110, 80.0, 130, 120.0);
    trend.Draw();
    EXPECT_EQ(Label(10).Interior().Background(), 0x010203u);
    EXPECT_EQ(Label(10).Interior().Foreground(), 0x0A0B0Cu);
}

TEST_F(TrendDraw, DrawWritesTheXVectorFromTheAxisBase)
{
    window.pane.PaneArea().PaneAxes().X().ViewLow().SetValue(5.9);
    Sloping(110, 80, 120, 90).Draw();
    EXPECT_EQ(window.pane.PaneGroups(2).PaneData().PointX(1, 1), 5.0);
    EXPECT_EQ(window.pane.PaneGroups(2).PaneData().PointX(1, 60), 64.0);
}

} // namespace zantroq::test
