#include "drawing/XAxis.h"
#include "drawing/XLabels.h"
#include "settings/ChartSettings.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

TEST(XAxis, SpacingMakesFiveLabels)
{
    EXPECT_EQ(XSpacing(1), 1);
    EXPECT_EQ(XSpacing(6), 1);
    EXPECT_EQ(XSpacing(7), 2);
    EXPECT_EQ(XSpacing(30), 6);
    EXPECT_EQ(XSpacing(120), 24);
    EXPECT_EQ(XSpacing(245760), 49152);
}

TEST(XAxis, SpacingOfOneHasALabelAPoint)
{
    EXPECT_EQ(XLabelCount(1), 1);
    EXPECT_EQ(XLabelCount(6), 6);
    EXPECT_EQ(XLabelCount(7), 5);
    EXPECT_EQ(XLabelCount(120), 5);
}

TEST(XAxis, PixelsPerPointLeavesTheMarginsOut)
{
    EXPECT_EQ(PixelsPerPoint(900, 1), 900);
    EXPECT_DOUBLE_EQ(PixelsPerPoint(900, 120), 819.0 / 119.5);
    EXPECT_DOUBLE_EQ(PixelsPerPoint(82, 2), 1.0 / 1.5);
}

TEST(XAxis, WidthWithoutRoomGivesOnePixelAPoint)
{
    EXPECT_EQ(PixelsPerPoint(81, 120), 1);
    EXPECT_EQ(PixelsPerPoint(40, 120), 1);
    EXPECT_EQ(PixelsPerPoint(0, 1), 1);
    EXPECT_EQ(PixelsPerPoint(900, 0), 1);
}

TEST(XAxis, RangeAndSpacingsFollowThePointsShown)
{
    CChart2D chart;
    SetXAxis(chart, 120, false);
    const CPaneAxis& x = chart.PaneArea().PaneAxes().X();
    EXPECT_EQ(x.DataLow().Value(), 1);
    EXPECT_EQ(x.ViewLow().Value(), 1);
    EXPECT_EQ(x.DataHigh().Value(), 120);
    EXPECT_EQ(x.ViewHigh().Value(), 120.5);
    EXPECT_EQ(x.TickSpacing().Value(), 24);
    EXPECT_EQ(x.TickMarkSpacing().Value(), 24);
    EXPECT_EQ(x.AxisGrid().Spacing(), 0);
    SetXAxis(chart, 60, true);
    EXPECT_EQ(x.AxisGrid().Spacing(), 12);
}

// Texts that contain their index: 1,440 points per day.
sXLabelView View(int first, int shown, double pixelsPerPoint)
{
    sXLabelView view;
    view.First = first;
    view.Last = first + shown - 1;
    view.Shown = shown;
    view.PixelsPerPoint = pixelsPerPoint;
    view.Intraday = true;
    view.Date = [](int index) { return "D" + std::to_string(index / 1440); };
    view.Time = [](int index) { return "T" + std::to_string(index); };
    return view;
}

TEST(XLabels, FullWindowHasTheFirstTheStepsAndTheLast)
{
    // 1.0 / 10 truncated is 0, held at 1: position 2, text of index 1.
    EXPECT_EQ(MakeXLabels(View(0, 120, 10)),
              (std::vector<sXLabel>{
                  {2, "D0 T1"}, {24, "T23"}, {48, "T47"}, {72, "T71"}, {96, "T95"}, {120, "T119"}}));
}

TEST(XLabels, RightAxisMovesTheFirstLabelIn)
{
    sXLabelView view = View(100, 120, 10);
    view.AxisOnRight = true; // 41.25 / 10 truncated is 4
    EXPECT_EQ(MakeXLabels(view).front(), (sXLabel{5, "D0 T104"}));
    view.AxisOnRight = false;
    view.PixelsPerPoint = 0.2; // 1.0 / 0.2 is 5
    EXPECT_EQ(MakeXLabels(view).front(), (sXLabel{6, "D0 T105"}));
}

TEST(XLabels, ChangedDateIsWrittenOut)
{
    const std::vector<sXLabel> labels = MakeXLabels(View(1440 - 50, 120, 20));
    ASSERT_EQ(labels.size(), 6u);
    EXPECT_EQ(labels[1].Text, "T1413");
    EXPECT_EQ(labels[2].Text, "T1437");
    EXPECT_EQ(labels[3], (sXLabel{72, "D1 T1461"}));
    EXPECT_EQ(labels[4], (sXLabel{96, "T1485"}));
}

TEST(XLabels, DayBarsShowDatesOnly)
{
    sXLabelView view = View(0, 120, 10);
    view.Intraday = false;
    view.Date = view.Time = [](int index) { return "D" + std::to_string(index); };
    EXPECT_EQ(MakeXLabels(view)[0].Text, "D1");
    EXPECT_EQ(MakeXLabels(view)[1].Text, "D23");
}

// With 1 pixel a point, "D0 T1" and "T5" need 5 * 2.25 + 2 * 2.25 + 12 = 27.75 positions from 2 on.
TEST(XLabels, CrowdedLabelIsLeftOutButCountsAsPreviousText)
{
    const std::vector<sXLabel> labels = MakeXLabels(View(0, 30, 1));
    // Steps at 6, 12, 18 and 24 are all too close to 2; the last label always appears.
    EXPECT_EQ(labels, (std::vector<sXLabel>{{2, "D0 T1"}, {30, "T29"}}));
    // At 24, with the previous text "T17" instead of the first one: 2 + (3 + 3) * 2.25 + 12 = 27.5; with 1.2
    // pixels a point 2 + 25.5 / 1.2 = 23.25 lets it through, where the first text's length would give 2 + 30
    // / 1.2 = 27.
    EXPECT_EQ(MakeXLabels(View(0, 30, 1.2)), (std::vector<sXLabel>{{2, "D0 T1"}, {24, "T23"}, {30, "T29"}}));
}

TEST(XLabels, LeftOutDateComesWithTheNextLabelThatFits)
{
    sXLabelView view = View(0, 30, 1.2);
    view.Date = [](int index) { return index < 10 ? "A" : "B"; };
    const std::vector<sXLabel> labels = MakeXLabels(view);
    // 12 and 18 would have begun with "B" but did not fit; 24 has not seen it yet: 2 + (5 + 5) * 2.25 / 1.2 +
    // 10 = 30.75.
    EXPECT_EQ(labels, (std::vector<sXLabel>{{2, "A T1"}, {30, "T29"}}));
    // With 2 pixels a point 12 and 18 still do not fit, 24 does: 2 + ((5 + 5) * 2.25 + 12) / 2 = 19.25.
    view.PixelsPerPoint = 2;
    EXPECT_EQ(MakeXLabels(view)[1], (sXLabel{24, "B T23"}));
}

TEST(XLabels, ShortSeriesEndsAtTheNextStep)
{
    // 28 points: spacing 6; steps 6 to 24 below index 27, the next position is 30.
    EXPECT_EQ(MakeXLabels(View(0, 28, 100)).back(), (sXLabel{30, "T27"}));
}

TEST(XLabels, OnePointHasAtMostTwoLabels)
{
    const std::vector<sXLabel> labels = MakeXLabels(View(0, 1, 900));
    EXPECT_EQ(labels, (std::vector<sXLabel>{{2, "D0 T1"}, {1, "T0"}}));
}

} // namespace
} // namespace zantroq
