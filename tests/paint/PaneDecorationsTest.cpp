#include "paint/PaneDecorations.h"
#include "paint/PanePixels.h"
#include "support/PaneScenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

namespace zantroq {
namespace {

using test::AddLabel;
using test::Pane;

// The decorations of a pane at a scale, with the map and the font of their placement.
struct sPlaced
{
    explicit sPlaced(const CChart2D& chart, double scale = 1.0, PaneManner manner = PaneManner::Plain)
        : Scale(scale),
          Map(chart, scale),
          Width(static_cast<int>(std::floor(chart.PixelWidth() * scale + 0.5))),
          Height(static_cast<int>(std::floor(chart.PixelHeight() * scale + 0.5))),
          Words(scale)
    {
        Placed = PlaceDecorations(chart, Map, scale, Width, Height, Words, manner);
    }
    // The box of a label, by its index among the visible labels.
    const sPixelRect& Box(std::size_t i) const { return Placed.Labels.at(i).Box; }

    double Scale;
    sPlotMap Map;
    int Width, Height;
    test::CFixedFont Words;
    sPaneDecorations Placed;
};

TEST(PaneLabels, OfLinesStayInsideThePlotAndBelowTheTitleInTheConvenientManner)
{
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Pane pane = test::LinePane(280, 180, {10, 50, 90});
        const sPixelRect inPane = pane->PlotRect();
        AddLabel(*pane, "one title\nof three\nlines", AttachToPaneTopLeft, AnchorBelowRight);
        AddLabel(*pane, "161.8%", AttachToPixel, AnchorAboveRight).SetPixelAnchor(inPane.Left, inPane.Top);
        AddLabel(*pane, "0%", AttachToPixel, AnchorAboveRight).SetPixelAnchor(inPane.Right - 3, 100);
        const sPlaced placing(*pane, scale, PaneManner::Convenient);
        ASSERT_EQ(placing.Placed.Labels.size(), 3u);
        const sPixelRect& plot = placing.Map.Plot;
        EXPECT_EQ(placing.Box(1).Top, placing.Box(0).Bottom);
        EXPECT_EQ(placing.Box(1).Left, plot.Left);
        EXPECT_EQ(placing.Box(2).Right, plot.Right);
        EXPECT_EQ(placing.Box(2).Bottom, static_cast<int>(100 * scale)) << "nothing to mend there";
    }
}

TEST(PaneLabels, OfLinesAboveOrBelowThePlotAreNotPlacedInTheConvenientManner)
{
    const Pane pane = test::LinePane(280, 180, {10, 50, 90});
    AddLabel(*pane, "423.6%", AttachToPixel, AnchorAboveRight).SetPixelAnchor(100, 5000);
    AddLabel(*pane, "0%", AttachToPixel, AnchorAboveRight).SetPixelAnchor(100, -50);
    EXPECT_TRUE(sPlaced(*pane, 1.0, PaneManner::Convenient).Placed.Labels.empty());
}

TEST(PaneLabels, TheHeaderOfAStudyStandsAboveItsPlotInBothManners)
{
    const Pane pane = test::LinePane(280, 180, {10, 50, 90});
    AddLabel(*pane, "Volume, average: 7,903,658", AttachToPixel, AnchorBelowRight).SetPixelAnchor(58, 0);
    for (const PaneManner manner : {PaneManner::Plain, PaneManner::Convenient}) {
        const sPlaced placing(*pane, 1.0, manner);
        ASSERT_EQ(placing.Placed.Labels.size(), 1u);
        EXPECT_EQ(placing.Box(0).Top, 0);
        EXPECT_EQ(placing.Box(0).Left, 58);
    }
}

TEST(PaneLabels, OfLinesHangOverThePlotInThePlainManner)
{
    const Pane pane = test::LinePane(280, 180, {10, 50, 90});
    const sPixelRect inPane = pane->PlotRect();
    AddLabel(*pane, "161.8%", AttachToPixel, AnchorAboveRight).SetPixelAnchor(inPane.Left, inPane.Top);
    EXPECT_EQ(sPlaced(*pane).Box(0).Bottom, inPane.Top);
}

TEST(PaneLabels, StandOnTheSideOfTheirAnchorAtEveryScale)
{
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Pane pane = test::EmptyPane(280, 180);
        for (const int side : {0x11, 0x12, 0x21, 0x22})
            AddLabel(*pane, "text", AttachToPixel, side).SetPixelAnchor(140, 90);
        const sPlaced placing(*pane, scale);
        const int x = static_cast<int>(140 * scale), y = static_cast<int>(90 * scale);
        ASSERT_EQ(placing.Placed.Labels.size(), 4u);
        EXPECT_EQ(placing.Box(0).Left, x) << "0x11: above, to the right";
        EXPECT_EQ(placing.Box(0).Bottom, y);
        EXPECT_EQ(placing.Box(1).Right, x) << "0x12: above, to the left";
        EXPECT_EQ(placing.Box(1).Bottom, y);
        EXPECT_EQ(placing.Box(2).Left, x) << "0x21: below, to the right";
        EXPECT_EQ(placing.Box(2).Top, y);
        EXPECT_EQ(placing.Box(3).Right, x) << "0x22: below, to the left";
        EXPECT_EQ(placing.Box(3).Top, y);
    }
}

// Whatever the font's line height. Regression: the line height of Liberation Sans at scale 2 gave a border of
// half a pane pixel.
TEST(PaneLabels, ABorderIsAPanePixelWideAtEveryScale)
{
    const Pane pane = test::EmptyPane(280, 180);
    AddLabel(*pane, "text", AttachToPixel, AnchorBelowRight).SetPixelAnchor(100, 50);
    AddLabel(*pane, "text", AttachToPixel, AnchorBelowRight).SetBorder(0);
    EXPECT_EQ(sPlaced(*pane, 1.0).Placed.Labels.at(0).Edge, 1);
    EXPECT_EQ(sPlaced(*pane, 1.5).Placed.Labels.at(0).Edge, 2);
    EXPECT_EQ(sPlaced(*pane, 2.0).Placed.Labels.at(0).Edge, 2);
    EXPECT_EQ(sPlaced(*pane, 2.0).Placed.Labels.at(1).Edge, 0);
    for (const double scale : {1.0, 1.5, 2.0}) {
        const test::sPixels picture = test::CPaintedPane(*pane, scale).Picture;
        const sPlaced placing(*pane, scale);
        const int x = placing.Box(0).Left, y = placing.Box(0).Top + 6, edge = scale > 1 ? 2 : 1;
        const PixelColor border = picture.At(x, y);
        EXPECT_EQ(picture.At(x + edge - 1, y), border) << scale;
        EXPECT_NE(picture.At(x + edge, y), border) << scale;
    }
}

TEST(PaneLabels, TheTitleHangsFromThePanesTopLeftWhateverItsAnchor)
{
    const Pane pane = test::EmptyPane(280, 180);
    CPaneLabel& title = AddLabel(*pane, "Daily Price:", AttachToPaneTopLeft, AnchorBelowRight);
    title.SetPixelAnchor(200, 100);
    title.SetDataAnchor(5, 50);
    const sPlaced placing(*pane);
    EXPECT_LT(placing.Box(0).Left, 10);
    EXPECT_LT(placing.Box(0).Top, 5);
}

TEST(PaneLabels, AttachedToDataFollowThePoint)
{
    const Pane pane = test::EmptyPane(280, 180);
    AddLabel(*pane, "text", AttachToData, AnchorBelowRight).SetDataAnchor(3, 50);
    const sPlaced placing(*pane);
    int x = 0, y = 0;
    pane->PaneGroups(1).DataToPixel(3, 50, x, y);
    EXPECT_EQ(placing.Box(0).Left, x);
    EXPECT_EQ(placing.Box(0).Top, y);
}

TEST(PaneLabels, AReadoutIsMovedInsideThePane)
{
    const Pane pane = test::EmptyPane(280, 180);
    for (const double x : {1.0, 10.0})
        for (const double y : {0.0, 100.0})
            for (const int side : {0x11, 0x12, 0x21, 0x22})
                AddLabel(*pane, "Hi: 1, Low: 1\nVolume: 1", AttachToData, side).SetDataAnchor(x, y);
    const sPlaced placing(*pane);
    ASSERT_EQ(placing.Placed.Labels.size(), 16u);
    for (const sPlacedLabel& label : placing.Placed.Labels) {
        EXPECT_GE(label.Box.Left, 0);
        EXPECT_GE(label.Box.Top, 0);
        EXPECT_LE(label.Box.Right, 280);
        EXPECT_LE(label.Box.Bottom, 180);
    }
}

TEST(PaneLabels, LinesAreSeparatedByNewlines)
{
    const Pane pane = test::EmptyPane(280, 180);
    AddLabel(*pane, "one\n\nthree\n", AttachToPixel, AnchorBelowRight).SetPixelAnchor(60, 60);
    const sPlaced placing(*pane);
    const std::vector<sPlacedText>& lines = placing.Placed.Labels.at(0).Lines;
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0].Text, "one");
    EXPECT_EQ(lines[1].Text, "");
    EXPECT_EQ(lines[2].Text, "three");
    EXPECT_EQ(lines[2].Top - lines[0].Top, 2 * test::CFixedFont().LineHeight());
}

TEST(PaneLabels, ATitleWiderThanItsPaneGoesOnInTheNextLine)
{
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Pane pane = test::EmptyPane(280, 180);
        AddLabel(*pane, "Daily Price: Hi: 101.25  Low: 99.50  Open: 100.00  Close: 101.00  2014/01/02",
                 AttachToPaneTopLeft, AnchorBelowRight);
        const sPlaced placing(*pane, scale);
        EXPECT_LE(placing.Box(0).Right, placing.Width);
        std::string joined;
        for (const sPlacedText& line : placing.Placed.Labels[0].Lines)
            joined += (joined.empty() ? "" : "  ") + std::string(line.Text);
        EXPECT_EQ(joined, pane->PaneLabels().Item(1).Text());
        EXPECT_GE(placing.Placed.Labels[0].Lines.size(), 2u);
    }
}

TEST(PaneLabels, ATitleThatFitsOrCannotBeFoldedHasOneLine)
{
    const Pane pane = test::EmptyPane(280, 180);
    CPaneLabel& title =
        AddLabel(*pane, "Daily Price: Hi: 101.25  Low: 99.50", AttachToPaneTopLeft, AnchorBelowRight);
    EXPECT_EQ(sPlaced(*pane).Placed.Labels.at(0).Lines.size(), 1u);
    title.SetText(std::string(100, 'x'));
    EXPECT_EQ(sPlaced(*pane).Placed.Labels.at(0).Lines.size(), 1u);
    title.SetText("  " + std::string(100, 'x'));
    EXPECT_EQ(sPlaced(*pane).Placed.Labels.at(0).Lines.size(), 1u);
    title.SetText("Daily Price: Hi: 101.25  Low: 99.50  Open: 100.00  Close: 101.00 (Minimized)");
    pane->PaneArea().AreaBox().Height().SetValue(16); // a minimised pane has no room for a second line
    EXPECT_EQ(sPlaced(*pane).Placed.Labels.at(0).Lines.size(), 1u);
}

TEST(PaneLabels, HiddenOrWithoutTextOrNowhereAreNotPlaced)
{
    const Pane pane = test::EmptyPane(280, 180);
    AddLabel(*pane, "hidden", AttachToPixel, AnchorBelowRight).SetShown(false);
    AddLabel(*pane, "", AttachToPixel, AnchorBelowRight);
    AddLabel(*pane, "at a hole", AttachToData, AnchorBelowRight).SetDataAnchor(3, HoleValue);
    AddLabel(*pane, "at no number", AttachToData, AnchorBelowRight).SetDataAnchor(std::nan(""), 3);
    EXPECT_TRUE(sPlaced(*pane).Placed.Labels.empty());
}

TEST(PaneDecorations, APaneWithoutPointsHasItsAxesAndLabels)
{
    const Pane pane = test::EmptyPane(280, 180);
    AddLabel(*pane, "text", AttachToPixel, AnchorBelowRight);
    ASSERT_EQ(pane->PaneGroups(1).PaneData().PointCount(1), 0);
    const sPaneDecorations placed = sPlaced(*pane).Placed;
    EXPECT_EQ(placed.Labels.size(), 1u);
    EXPECT_GE(placed.AxisTexts.size(), 5u);
    EXPECT_GE(placed.Frame.size(), 4u);
}

TEST(PaneDecorations, ValueTextsTooLongForTheirMarginKeepEveryDigit)
{
    for (const bool right : {false, true})
        for (const double scale : {1.0, 1.5, 2.0}) {
            const Pane pane = test::EmptyPane(280, 180);
            CPaneAxes& axes = pane->PaneArea().PaneAxes();
            axes.Y().SetShown(!right);
            axes.Y2().SetShown(right);
            pane->PaneArea().PlotFrame().LeftMargin().SetValue(right ? 23 : 58);
            pane->PaneArea().PlotFrame().RightMargin().SetValue(right ? 58 : 23);
            CPaneAxis& labelled = right ? axes.Y2() : axes.Y();
            labelled.TickLabels().RemoveAll();
            labelled.TickLabels().Add(50, "-12345 127/128");
            sPlaced placing(*pane, scale);
            bool found = false;
            for (const sPlacedText& text : placing.Placed.AxisTexts) {
                if (text.Text != "-12345 127/128")
                    continue;
                found = true;
                EXPECT_GE(text.Left, 0) << right << " at " << scale;
                EXPECT_LE(text.Left + placing.Words.Advance(text.Text), placing.Width)
                    << right << " at " << scale;
            }
            EXPECT_TRUE(found);
        }
}

TEST(PaneDecorations, ValueTextsThatFitStandBesideTheAxis)
{
    const Pane pane = test::EmptyPane(280, 180);
    sPlaced placing(*pane);
    for (const sPlacedText& text : placing.Placed.AxisTexts)
        if (text.Text == "25") { // six pixels and a line from the plot
            EXPECT_EQ(text.Left + placing.Words.Advance(text.Text), 58 - 7);
        }
}

TEST(PaneDecorations, GridLinesRunThroughTheLabels)
{
    const Pane pane = test::EmptyPane(280, 180); // 0 to 100, labels at 0, 25, 50, 75, 100; points 1 to 10.5
    CPaneAxes& axes = pane->PaneArea().PaneAxes();
    axes.X().AxisGrid().SetSpacing(2);
    axes.Y().AxisGrid().SetSpacing(25);
    const sPaneDecorations placed = sPlaced(*pane).Placed;
    std::vector<int> uprights, acrosses;
    for (const sRuledLine& line : placed.Grid)
        (line.IsVertical() ? uprights : acrosses)
            .push_back(line.IsVertical() ? line.Rect.Left : line.Rect.Top);
    std::vector<int> wantedX, wantedY;
    int x = 0, y = 0;
    for (const int point : {2, 4, 6, 8, 10}) {
        pane->PaneGroups(1).DataToPixel(point, 0, x, y);
        wantedX.push_back(x);
    }
    for (const double value : {25.0, 50.0, 75.0}) { // those on the plot's own edge are not drawn again
        pane->PaneGroups(1).DataToPixel(1, value, x, y);
        wantedY.push_back(y);
    }
    EXPECT_EQ(uprights, wantedX);
    EXPECT_EQ(acrosses, wantedY);
    axes.X().AxisGrid().SetSpacing(0);
    axes.Y().AxisGrid().SetSpacing(0);
    EXPECT_TRUE(sPlaced(*pane).Placed.Grid.empty()) << "a spacing of 0 hides the grid";
}

TEST(PaneDecorations, TheMarkerStandsOnItsPoint)
{
    const Pane pane = test::LinePane(280, 180, std::vector<double>(10, 33.0));
    CPaneMarker& marker = pane->PaneArea().PaneMarkers("x");
    marker.SetShown(true);
    EXPECT_TRUE(sPlaced(*pane).Placed.Marker.empty()) << "no point";
    marker.SetPoint(4);
    const sPaneDecorations placed = sPlaced(*pane).Placed;
    int x = 0, y = 0;
    pane->PaneGroups(1).PointToPixel(1, 4, x, y);
    ASSERT_EQ(placed.Marker.size(), 1u);
    EXPECT_EQ(placed.Marker[0].Rect.Left, x);
    EXPECT_EQ(placed.Marker[0].Rect.Right, x + 1);
    EXPECT_EQ(placed.Marker[0].Rect.Top, pane->PlotRect().Top);
    EXPECT_EQ(placed.Marker[0].Rect.Bottom, pane->PlotRect().Bottom);
    marker.SetShown(false);
    EXPECT_TRUE(sPlaced(*pane).Placed.Marker.empty());
}

// The left end of a text of the x axis; nothing if it was left out.
std::optional<int> LeftOf(const sPaneDecorations& placed, std::string_view text)
{
    for (const sPlacedText& there : placed.AxisTexts)
        if (there.Text == text)
            return there.Left;
    return std::nullopt;
}

TEST(PaneDecorations, TheFirstTimeTextGivesWayToTheLeft)
{
    const std::string first = "2024/06/05 16:00:00", second = "2024/06/06 14:45:00";
    test::CFixedFont words;
    const int advance = words.Advance(first), other = words.Advance(second);
    // The centres are such that the second text would begin exactly at the end of the first.
    const Pane pane = test::EmptyPane(58 + 200 + 23, 180);
    CPaneAxis& x = pane->PaneArea().PaneAxes().X();
    x.ViewLow().SetValue(0); // a pixel a unit
    x.ViewHigh().SetValue(199);
    x.TickLabels().RemoveAll();
    x.TickLabels().Add(advance / 2 - 58 + 15, first); // from 15 on
    x.TickLabels().Add(15 + advance + other / 2 - 58, second);
    const sPaneDecorations placed = sPlaced(*pane).Placed;
    EXPECT_EQ(LeftOf(placed, second), 15 + advance);
    EXPECT_EQ(LeftOf(placed, first), 10) << "five pixels stay between them";
    // With no room left of the first text the second is left out.
    x.TickLabels().RemoveAll();
    x.TickLabels().Add(advance / 2 - 58 + 8, first);
    x.TickLabels().Add(8 + advance + other / 2 - 58, second);
    x.TickLabels().Add(190, "1");
    EXPECT_EQ(LeftOf(sPlaced(*pane).Placed, first), 8);
    EXPECT_FALSE(LeftOf(sPlaced(*pane).Placed, second));
}

TEST(PaneDecorations, ATimeTextThatWouldMeetTheOneBeforeIsLeftOut)
{
    const Pane pane = test::EmptyPane(58 + 200 + 23, 180);
    CPaneAxis& x = pane->PaneArea().PaneAxes().X();
    x.ViewLow().SetValue(0);
    x.ViewHigh().SetValue(199);
    x.TickLabels().RemoveAll();
    x.TickLabels().Add(20, "09:30");
    x.TickLabels().Add(100, "10:30");
    x.TickLabels().Add(110, "10:40");
    x.TickLabels().Add(160, "11:30");
    const sPaneDecorations placed = sPlaced(*pane).Placed;
    EXPECT_TRUE(LeftOf(placed, "10:30"));
    EXPECT_FALSE(LeftOf(placed, "10:40"));
    EXPECT_TRUE(LeftOf(placed, "11:30"));
}

// Regression: the time of the last point was left out if a rounder time was close before it.
TEST(PaneDecorations, TheLastTimeTextDrivesOutTheOneBefore)
{
    const Pane pane = test::EmptyPane(58 + 200 + 23, 180);
    CPaneAxis& x = pane->PaneArea().PaneAxes().X();
    x.ViewLow().SetValue(0);
    x.ViewHigh().SetValue(199);
    x.TickLabels().RemoveAll();
    x.TickLabels().Add(20, "09:30");
    x.TickLabels().Add(100, "10:30");
    x.TickLabels().Add(160, "11:30");
    x.TickLabels().Add(170, "11:41");
    x.TickLabels().Add(300, "13:00"); // out of sight
    const sPaneDecorations placed = sPlaced(*pane).Placed;
    EXPECT_TRUE(LeftOf(placed, "09:30"));
    EXPECT_TRUE(LeftOf(placed, "10:30"));
    EXPECT_FALSE(LeftOf(placed, "11:30"));
    EXPECT_TRUE(LeftOf(placed, "11:41"));
    x.TickLabels().Add(160, "as wide as two of them"); // meets both
    const sPaneDecorations wide = sPlaced(*pane).Placed;
    EXPECT_FALSE(LeftOf(wide, "11:30"));
    EXPECT_FALSE(LeftOf(wide, "11:41"));
    EXPECT_TRUE(LeftOf(wide, "as wide as two of them"));
}

// Regression: the frame's line between two digits looked like a 1.
TEST(PaneDecorations, NothingCrossesAValueTextThatLiesOverTheFrame)
{
    for (const bool right : {false, true})
        for (const double scale : {1.0, 1.5, 2.0}) {
            const Pane pane = test::LinePane(280, 180, {40, 60, 40, 60, 50, 50, 50, 55});
            CPaneAxes& axes = pane->PaneArea().PaneAxes();
            axes.Y().SetShown(!right);
            axes.Y2().SetShown(right);
            pane->PaneArea().PlotFrame().Interior().SetBackground(0xe0ffff);
            pane->PaneArea().PlotFrame().LeftMargin().SetValue(right ? 23 : 58);
            pane->PaneArea().PlotFrame().RightMargin().SetValue(right ? 58 : 23);
            CPaneAxis& labelled = right ? axes.Y2() : axes.Y();
            axes.Y().TickLabels().RemoveAll();
            labelled.TickLabels().RemoveAll();
            labelled.TickLabels().Add(50, "1234567.125000");
            axes.Y().AxisGrid().SetSpacing(50);
            sPlaced placing(*pane, scale);
            const std::string digits = "1234567.125000";
            const auto text = std::find_if(placing.Placed.AxisTexts.begin(), placing.Placed.AxisTexts.end(),
                                           [&](const sPlacedText& one) { return one.Text == digits; });
            ASSERT_NE(text, placing.Placed.AxisTexts.end());
            // The text on only the two backgrounds.
            const test::sPixels picture = test::CPaintedPane(*pane, scale).Picture;
            test::sPixels bare(picture.Width, picture.Height);
            CRasterCanvas canvas(placing.Words);
            canvas.SetPicture(bare.Raster());
            canvas.Fill({0, 0, bare.Width, bare.Height}, placing.Placed.Background);
            canvas.Fill(placing.Map.Plot, placing.Placed.PlotBackground);
            canvas.Text(text->Left, text->Top, digits, text->Color);
            const int advance = placing.Words.Advance(digits);
            bool reaches = false;
            for (int y = text->Top; y < text->Top + placing.Words.LineHeight(); ++y)
                for (int x = text->Left; x < text->Left + advance; ++x) {
                    ASSERT_EQ(picture.At(x, y), bare.At(x, y))
                        << x << ", " << y << " at " << scale << (right ? " right" : " left");
                    reaches = reaches || placing.Map.Contains(x, y);
                }
            EXPECT_TRUE(reaches) << "the text lies over the frame";
        }
}

TEST(PaneDecorations, AValueTextThatFitsItsMarginHasNoGround)
{
    EXPECT_TRUE(sPlaced(*test::EmptyPane(280, 180)).Placed.Grounds.empty());
}

// Regression: the cached text was used although the text had changed.
TEST(PaneLabels, OneWhoseRepaintIsSuspendedIsPaintedAsItWas)
{
    const Pane pane = test::LinePane(280, 180, std::vector<double>(20, 50));
    CPaneLabel& label = test::AddLabel(*pane, std::string(100, 'H'), AttachToPixel, AnchorBelowRight);
    label.SetPixelAnchor(150, 60);
    test::CPaintedPane painted(*pane);
    const std::vector<PixelColor> before = painted.Picture.Pixels;
    label.SetRepaintSuspended(true);
    label.SetText(std::string(100, ' '));
    label.Interior().SetBackground(0x00ff00);
    pane->PaneGroups(1).PaneData().SetPointY(1, 19, 50.001);
    painted.Paint();
    EXPECT_TRUE(painted.Picture.Pixels == before);
    label.SetRepaintSuspended(false);
    painted.Paint();
    EXPECT_FALSE(painted.Picture.Pixels == before);
}

TEST(PaneDecorations, AHiddenAxisHasNeitherTextsNorTickMarks)
{
    const Pane pane = test::EmptyPane(280, 180);
    pane->PaneArea().PaneAxes().Y().SetShown(false);
    pane->PaneArea().PaneAxes().X().SetShown(false);
    const sPaneDecorations placed = sPlaced(*pane).Placed;
    EXPECT_TRUE(placed.AxisTexts.empty());
    EXPECT_EQ(placed.Frame.size(), 4u) << "the four edges of the plot";
}

} // namespace
} // namespace zantroq
