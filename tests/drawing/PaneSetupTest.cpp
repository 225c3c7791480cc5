#include "drawing/PaneSetup.h"
#include "drawing/SeriesStyleTable.h"
#include "scene/PaneFile.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

TEST(PaneSetup, StudyPaneStartsEmptyWithItsTitle)
{
    CChart2D chart;
    sChartSettings settings;
    settings.Studies.LabelColors[StudyMFI] = 0x123456;
    settings.BackgroundColor = 0x654321;
    settings.PtsIndex = 4;
    chart.PaneLabels().Add();
    chart.PaneLabels().Add();
    chart.PaneGroups(1).PaneData().SetSeriesCount(3);
    chart.PaneGroups(1).PaneData().SetPointCount(1, 9);
    SetUpStudyPane(chart, settings, StudyMFI);

    ASSERT_EQ(chart.PaneLabels().Count(), 1);
    const CPaneLabel& title = chart.PaneLabels().Item(1);
    EXPECT_EQ(title.BoxAttachment(), 2);
    EXPECT_EQ(title.BoxEdge(), 4);
    EXPECT_EQ(title.Interior().Foreground(), 0xFFFFFFu);
    EXPECT_EQ(title.Interior().Background(), 0x232323u);
    EXPECT_EQ(title.Attachment(), AttachToPaneTopLeft);
    EXPECT_EQ(title.Side(), 0x21);
    EXPECT_EQ(title.Border(), 1);
    EXPECT_FALSE(title.Shown());
    for (int number : {1, 2}) {
        const CPaneData& data = chart.PaneGroups(number).PaneData();
        EXPECT_EQ(data.Layout(), 1);
        EXPECT_EQ(data.SeriesCount(), 1);
        EXPECT_EQ(data.FirstShownSeries(), 1);
        EXPECT_EQ(data.LastShownSeries(), 1);
        EXPECT_EQ(data.PointCount(1), 0);
    }
    CPaneAxes& axes = chart.PaneArea().PaneAxes();
    for (CPaneAxis* axis : {&axes.Y(), &axes.Y2()}) {
        EXPECT_EQ(axis->ViewLow().Value(), 1.0);
        EXPECT_EQ(axis->DataLow().Value(), 1.0);
        EXPECT_EQ(axis->ViewHigh().Value(), 2.0);
        EXPECT_EQ(axis->DataHigh().Value(), 2.0);
        EXPECT_EQ(axis->TickSpacing().Value(), 15);
        EXPECT_EQ(axis->TickMarkSpacing().Value(), 15);
        EXPECT_EQ(axis->LabelMethod(), 4);
        EXPECT_EQ(axis->Setting19(), 2);
        EXPECT_EQ(axis->Setting22(), 0);
    }
    EXPECT_EQ(axes.Y2().Multiplier(), 1.0);
    EXPECT_EQ(axes.X().ViewLow().Value(), 0);
    EXPECT_EQ(axes.X().ViewHigh().Value(), 240.5);
    EXPECT_EQ(axes.X().TickSpacing().Value(), 48);
    EXPECT_EQ(axes.X().TickMarkSpacing().Value(), 10000.0);
    EXPECT_TRUE(axes.X().Shown());
    EXPECT_EQ(chart.PaneArea().PlotFrame().TopMargin().Value(), 17);
    EXPECT_EQ(chart.PaneArea().PlotFrame().BottomMargin().Value(), 4);
    EXPECT_EQ(chart.PaneInterior().Background(), 0x654321u);
    EXPECT_EQ(chart.PaneInterior().Foreground(), 0x123456u);
}

// A pane stays in place when another study is chosen for it; the previous study must leave nothing that a
// saved pane would contain.
TEST(PaneSetup, StudyPaneForgetsTheStudyBefore)
{
    CChart2D used, fresh;
    const sChartSettings settings;
    used.PaneGroups(1).SetChartType(ChartBars);
    used.PaneGroups(2).SetChartType(ChartBarsFromOrigin);
    used.PaneGroups(2).SeriesStyles(1).FillLook().SetColor(0x00ff00);
    used.PaneArea().BarLook().SetBarWidth(9);
    CPaneAxes& axes = used.PaneArea().PaneAxes();
    axes.Y().AxisOrigin().SetValue(5);
    axes.Y().SetSetting21(0);
    axes.X().DataHigh().SetKind(1);
    SetUpStudyPane(used, settings, StudyRSI);
    SetUpStudyPane(fresh, settings, StudyRSI);
    EXPECT_EQ(PaneToText(used), PaneToText(fresh));
    EXPECT_TRUE(axes.Y().AxisOrigin().Automatic()) << "bars start from 0 again";
}

TEST(PaneSetup, AxisSideDecidesAxisAndMargins)
{
    CChart2D chart;
    CPaneArea& area = chart.PaneArea();
    SetAxisSide(chart, AxisSide::Left);
    EXPECT_TRUE(area.PaneAxes().Y().Shown());
    EXPECT_FALSE(area.PaneAxes().Y2().Shown());
    EXPECT_EQ(area.PlotFrame().LeftMargin().Value(), 58);
    EXPECT_EQ(area.PlotFrame().RightMargin().Value(), 23);
    SetAxisSide(chart, AxisSide::Right);
    EXPECT_FALSE(area.PaneAxes().Y().Shown());
    EXPECT_TRUE(area.PaneAxes().Y2().Shown());
    EXPECT_EQ(area.PlotFrame().LeftMargin().Value(), 23);
    EXPECT_EQ(area.PlotFrame().RightMargin().Value(), 58);
}

TEST(PaneSetup, LabelsMoveToTheNewSideWithValueAndText)
{
    CChart2D chart;
    CPaneAxes& axes = chart.PaneArea().PaneAxes();
    SetAxisSide(chart, AxisSide::Left);
    axes.Y().TickLabels().Add(25, "25");
    axes.Y().TickLabels().Add(50.5, "fifty");
    MoveValueAxis(chart, AxisSide::Right);
    EXPECT_EQ(axes.Y().TickLabels().Count(), 0);
    ASSERT_EQ(axes.Y2().TickLabels().Count(), 2);
    EXPECT_EQ(axes.Y2().TickLabels().Item(2), (sTickLabel{50.5, "fifty"}));
    EXPECT_TRUE(axes.Y2().Shown());
    MoveValueAxis(chart, AxisSide::Right); // again: nothing to move, nothing lost
    EXPECT_EQ(axes.Y2().TickLabels().Count(), 2);
    MoveValueAxis(chart, AxisSide::Left);
    EXPECT_EQ(axes.Y().TickLabels().Item(1), (sTickLabel{25, "25"}));
    EXPECT_EQ(axes.Y2().TickLabels().Count(), 0);
}

TEST(PaneSetup, GridFollowsTheSpacingsInItsStyle)
{
    CChart2D chart;
    CPaneAxes& axes = chart.PaneArea().PaneAxes();
    axes.X().TickSpacing().SetValue(24);
    axes.Y().TickSpacing().SetValue(2.5);
    sChartSettings settings;
    settings.GridColor = 0x112233;
    SetGrid(chart, settings);
    EXPECT_EQ(axes.X().AxisGrid().Spacing(), 24);
    EXPECT_EQ(axes.Y().AxisGrid().Spacing(), 2.5);
    EXPECT_EQ(axes.X().AxisGrid().LineLook().Pattern(), 5);
    EXPECT_EQ(axes.Y().AxisGrid().LineLook().LineColor(), 0x112233u);
    settings.GridStyle = 1;
    SetGrid(chart, settings);
    EXPECT_EQ(axes.X().AxisGrid().LineLook().Pattern(), 2);
    settings.Grid = 0;
    SetGrid(chart, settings);
    EXPECT_EQ(axes.X().AxisGrid().Spacing(), 0);
    EXPECT_EQ(axes.Y().AxisGrid().Spacing(), 0);
}

TEST(SeriesStyles, DefaultRows)
{
    const SeriesStyleTable& table = DefaultSeriesStyles();
    EXPECT_EQ(table[0], (sSeriesLook{2, 2, 255, 1, 1, 0xff00ff, 1}));
    for (std::size_t row : {1, 2, 3})
        EXPECT_EQ(table[row], (sSeriesLook{2, 2, 65280, 1, 1, 0xff00ff, 1}));
    EXPECT_EQ(table[4], (sSeriesLook{2, 2, 0xffffff, 1, 1, 0xff00ff, 1}));
    for (std::size_t row : {5, 6})
        EXPECT_EQ(table[row], (sSeriesLook{2, 2, 0xff0000, 1, 1, 255, 1}));
    EXPECT_EQ(table[7], (sSeriesLook{2, 2, 255, 1, 1, 0xff00ff, 1}));
    EXPECT_EQ(table[8], (sSeriesLook{5, 2, 0xc0c0c0, 1, 1, 0xc0c0c0, 1}));
    EXPECT_EQ(table[9], (sSeriesLook{2, 2, 0xc0c0c0, 1, 1, 0xc0c0c0, 1}));
}

TEST(SeriesStyles, SettingsOverwriteTheColorsOfPriceCurvesAndGrid)
{
    sChartSettings settings;
    settings.PriceDataColor = 1;
    settings.Overlays.AverageColors = {2, 3, 4};
    settings.Overlays.BandColor = 5;
    settings.GridColor = 6;
    const SeriesStyleTable table = SeriesStyles(settings);
    EXPECT_EQ(table[0].Color, 1u);
    EXPECT_EQ(table[1].Color, 2u);
    EXPECT_EQ(table[2].Color, 3u);
    EXPECT_EQ(table[3].Color, 4u);
    EXPECT_EQ(table[4].Color, 5u);
    EXPECT_EQ(table[5], DefaultSeriesStyles()[5]);
    EXPECT_EQ(table[7], DefaultSeriesStyles()[7]);
    EXPECT_EQ(table[8].Color, 6u);
    EXPECT_EQ(table[9].Color, 6u);
}

TEST(SeriesStyles, SymbolIsDrawnInTheLineColor)
{
    CChart2D chart;
    CSeriesStyle& style = chart.PaneGroups(1).SeriesStyles(1);
    ApplyLook(style, {LineShortDashes, 2, 0xabcdef, 3, SymbolMark, 0xff00ff, 4});
    EXPECT_EQ(style.LineLook().Pattern(), 5);
    EXPECT_EQ(style.LineLook().LineColor(), 0xabcdefu);
    EXPECT_EQ(style.LineLook().Width(), 3);
    EXPECT_EQ(style.FillLook().Pattern(), 2);
    EXPECT_EQ(style.FillLook().FillColor(), 0xabcdefu);
    EXPECT_EQ(style.SymbolLook().Shape(), 3);
    EXPECT_EQ(style.SymbolLook().SymbolColor(), 0xabcdefu);
    EXPECT_EQ(style.SymbolLook().Size(), 4);
}

} // namespace
} // namespace zantroq
