// Extreme panes that a pane file may describe: plots beyond their picture, boxes larger than any picture,
// axes that run backwards. The cached and updated picture must equal the picture painted completely.
#include "qt/paint/PanePainter.h"
#include "support/PaneScenes.h"

#include <gtest/gtest.h>

#include <vector>

namespace zantroq {
namespace {

const QString Family = "DejaVu Sans";

void SetMargins(CChart2D& pane, int left, int right, int top, int bottom)
{
    CPlotFrame& frame = pane.PaneArea().PlotFrame();
    frame.LeftMargin().SetValue(left);
    frame.RightMargin().SetValue(right);
    frame.TopMargin().SetValue(top);
    frame.BottomMargin().SetValue(bottom);
}

// Changes points one by one, the last one most of the time.
void ExpectKeptIsFresh(CChart2D& pane, double scale)
{
    CPanePainter kept(pane, Family);
    kept.Picture(scale);
    CPaneData& data = pane.PaneGroups(1).PaneData();
    const int points = data.PointCount(1);
    for (const int point : {points, points, 1, points / 2, points}) {
        for (int series = 1; series <= data.SeriesCount(); ++series)
            data.SetPointY(series, point, data.PointY(series, point) + (series % 2 ? 1.5 : -1.5));
        CPanePainter plain(pane, Family, InkDetail::EveryPoint);
        ASSERT_TRUE(kept.Picture(scale) == plain.Picture(scale)) << "point " << point;
        const QRect whole(0, 0, pane.PixelWidth(), pane.PixelHeight());
        ASSERT_TRUE(kept.Damage().isEmpty() || whole.adjusted(0, 0, 1, 1).contains(kept.Damage()));
    }
}

std::vector<test::Pane> PanesOfEachKind(int width, int height)
{
    std::vector<test::Pane> panes;
    panes.push_back(test::CandlePane(width, height, 40, 5));
    panes.push_back(test::CandlePane(width, height, 4000, 1));
    panes.push_back(test::PriceBarPane(width, height, 60));
    std::vector<double> wave;
    for (int i = 0; i < 300; ++i)
        wave.push_back(i * 37 % 100);
    panes.push_back(test::LinePane(width, height, wave));
    panes.push_back(test::HistogramPane(width, height, wave, 3, ChartBars));
    return panes;
}

// Regression: a changed point was painted into rows outside the picture.
TEST(HostilePane, APlotThatReachesPastItsPictureIsCutToIt)
{
    constexpr int far = 1 << 20;
    const int margins[][4] = {{58, 23, 17, -3},     {58, 23, -50, 31},       {-40, -60, -50, -30},
                              {-500, 23, 17, 31},   {58, -500, 17, 31},      {400, -500, 17, 31},
                              {58, 23, 300, -500},  {-500, 400, 17, 31},     {58, 23, -far, -far},
                              {-far, -far, 17, 31}, {-far, -far, -far, -far}};
    for (const auto& [left, right, top, bottom] : margins)
        for (const double scale : {1.0, 1.5})
            for (const test::Pane& pane : PanesOfEachKind(200, 120)) {
                SCOPED_TRACE(testing::Message()
                             << left << ", " << right << ", " << top << ", " << bottom << " at " << scale
                             << ", type " << pane->PaneGroups(1).Type());
                SetMargins(*pane, left, right, top, bottom);
                ExpectKeptIsFresh(*pane, scale);
            }
}

TEST(HostilePane, ABoxLargerThanAnyPictureIsCutToIt)
{
    for (const auto& [width, height] : {std::pair{40000, 60}, {60, 40000}, {1 << 20, 50}})
        for (const test::Pane& pane : PanesOfEachKind(width, height)) {
            SCOPED_TRACE(testing::Message()
                         << width << " by " << height << ", type " << pane->PaneGroups(1).Type());
            ExpectKeptIsFresh(*pane, 1.0);
        }
}

// Regression: their pixel columns were searched as if they ascended.
TEST(HostilePane, OnAnAxisThatRunsBackwardsEveryPointIsPainted)
{
    for (const double scale : {1.0, 2.0})
        for (const test::Pane& pane : PanesOfEachKind(200, 120)) {
            SCOPED_TRACE(testing::Message() << "type " << pane->PaneGroups(1).Type() << " at " << scale);
            CPaneAxis& x = pane->PaneArea().PaneAxes().X();
            const double low = x.ViewLow().Value(), high = x.ViewHigh().Value();
            x.ViewLow().SetValue(high);
            x.ViewHigh().SetValue(low);
            std::vector<double> curve(static_cast<std::size_t>(pane->PaneGroups(1).PaneData().PointCount(1)));
            for (std::size_t i = 0; i < curve.size(); ++i)
                curve[i] = 100 + static_cast<double>(i * 31 % 17);
            test::LoadGroup(pane->PaneGroups(2), {curve});
            pane->PaneGroups(2).SeriesStyles(1).SymbolLook().SetShape(SymbolMark);
            ExpectKeptIsFresh(*pane, scale);
        }
}

// Regression: all dashes of a plot were drawn, a hundred million, however little of it is in the picture.
TEST(HostilePane, DashesOutsideThePictureAreNotDrawn)
{
    const test::Pane pane = test::LinePane(200, 120, {1, 50, 99});
    SetMargins(*pane, 58, 23, -(1 << 20), -(1 << 20));
    CPaneAxis& x = pane->PaneArea().PaneAxes().X();
    x.ViewHigh().SetValue(390);
    x.AxisGrid().SetSpacing(1);
    x.AxisGrid().LineLook().SetPattern(LineShortDashes);
    struct CCounter : IPaneCanvas
    {
        void Fill(const sPixelRect&, QRgb) override { ++Fills; }
        void Line(const sInkLine&, const sPixelRect&) override {}
        void Text(int, int, std::string_view, QRgb) override {}
        int Fills = 0;
    } counter;
    const sPlotMap map(*pane);
    CPaneText text(Family);
    const sPaneDecorations placed = PlaceDecorations(*pane, map, 1.0, 200, 120, text);
    ASSERT_FALSE(placed.Grid.empty());
    for (const sRuledLine& line : placed.Grid)
        DrawRuled(counter, line, {0, 0, 200, 120});
    EXPECT_LE(counter.Fills, static_cast<int>(placed.Grid.size()) * 60);
}

} // namespace
} // namespace zantroq
