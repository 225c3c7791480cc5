// Which parts of a pane are painted, their widths and their order.
#include "qt/paint/PanePainter.h"
#include "scene/PaneFile.h"
#include "support/PaneScenes.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

const double Hole = HoleValue;
const QString Family = "DejaVu Sans";

// A curve over candles whose first points, unless they are holes, are far from the others.
test::Pane CurvePane(int count, int warmUp, double inWarmUp, int type, int shape)
{
    test::Pane pane = test::CandlePane(280, 180, count, 1);
    test::FitAxes(*pane, count, 0, 200);
    std::vector<double> y;
    for (int i = 0; i < count; ++i)
        y.push_back(i < warmUp ? inWarmUp : 40 + i * 7 % 11);
    CPaneGroup& group = pane->PaneGroups(2);
    group.SetChartType(type);
    group.PaneData().SetSeriesCount(2);
    group.PaneData().SetPointCount(1, count);
    group.PaneData().SetYVector(1, y);
    group.PaneData().SetStepY(2, 1, 30);
    group.SeriesStyles(1).LineLook().SetColor(0xff0000);
    group.SeriesStyles(1).SymbolLook().SetShape(shape);
    group.SeriesStyles(1).SymbolLook().SetSize(4);
    return pane;
}

// Regression: the last point of a warm-up has a value and was drawn, as a spike outside the axis.
TEST(WarmUp, ItsPointsAreNotPaintedWhateverTheirValues)
{
    for (const int count : {20, 400, 30000})
        for (const int type : {ChartLines, ChartBars})
            for (const int shape : {SymbolNone, SymbolMark})
                for (const double scale : {1.0, 2.0}) {
                    SCOPED_TRACE(testing::Message()
                                 << count << " points, type " << type << ", shape " << shape);
                    const int warmUp = count / 3;
                    const test::Pane pane = CurvePane(count, warmUp, 170, type, shape),
                                     wanted = CurvePane(count, warmUp, Hole, type, shape);
                    CPaneData& data = pane->PaneGroups(2).PaneData();
                    CPanePainter kept(*pane, Family);
                    ASSERT_FALSE(kept.Picture(scale) == PanePicture(*wanted, scale, Family));
                    data.SetDrawnTo(1, warmUp);
                    ASSERT_TRUE(data.AdvanceDrawn(1, count - warmUp));
                    ASSERT_TRUE(kept.Picture(scale) == PanePicture(*wanted, scale, Family));
                    EXPECT_EQ(data.PointY(1, warmUp), 170) << "readouts have it still";
                    data.SetPointY(1, warmUp, 160);
                    data.SetPointY(1, count, 60);
                    wanted->PaneGroups(2).PaneData().SetPointY(1, count, 60);
                    ASSERT_TRUE(kept.Picture(scale) == PanePicture(*wanted, scale, Family));
                    CPanePainter plain(*pane, Family, InkDetail::EveryPoint);
                    ASSERT_TRUE(kept.Picture(scale) == plain.Picture(scale));
                }
}

TEST(WarmUp, OfALevelIsNotPainted)
{
    for (const int count : {20, 30000}) {
        const test::Pane pane = CurvePane(count, 0, 0, ChartLines, SymbolNone),
                         wanted = CurvePane(count, 0, 0, ChartLines, SymbolNone);
        pane->PaneGroups(2).PaneData().SetDrawnTo(2, count / 2);
        pane->PaneGroups(2).PaneData().AdvanceDrawn(2, count - count / 2);
        wanted->PaneGroups(2).PaneData().SetStepY(2, count / 2 + 1, 30);
        EXPECT_TRUE(PanePicture(*pane, 1.0, Family) == PanePicture(*wanted, 1.0, Family)) << count;
    }
}

// A printed page is painted from a copy that went through a file.
TEST(WarmUp, StaysUnpaintedInACopy)
{
    const test::Pane pane = CurvePane(40, 10, 170, ChartLines, SymbolNone);
    pane->PaneGroups(2).PaneData().SetDrawnTo(1, 10);
    pane->PaneGroups(2).PaneData().AdvanceDrawn(1, 30);
    CChart2D copy;
    PaneFromText(PaneToText(*pane), copy);
    EXPECT_EQ(copy.PaneGroups(2).PaneData().DrawnTo(1), 40);
    EXPECT_TRUE(PanePicture(copy, 1.0, Family) == PanePicture(*pane, 1.0, Family));
}

// The longest run of pixels that are neither white nor grey.
int WidestRow(const QImage& picture, const sPixelRect& plot)
{
    int widest = 0;
    for (int y = plot.Top; y < plot.Bottom; ++y)
        for (int x = plot.Left, length = 0; x < plot.Right; ++x) {
            const QRgb pixel = picture.pixel(x, y);
            length = qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel) ? 0 : length + 1;
            widest = std::max(widest, length);
        }
    return widest;
}

// Regression: a requested width was reduced by the gap that only a full width needs.
TEST(BarWidth, IsTheOneAskedForWhereTheRoomAllowsIt)
{
    constexpr int pane = 58 + 211 + 23; // 60 pixels a point
    for (int width = 1; width <= 50; ++width)
        for (const double scale : {1.0, 2.0}) {
            const int wanted = static_cast<int>(std::min(width, 33) * scale), // 33 of 41 pixels
                most = scale == 2.0 ? 65 : 33;
            const test::Pane bars = test::HistogramPane(pane, 180, {Hole, 40, -40, 30}, width, ChartBars);
            EXPECT_EQ(WidestRow(PanePicture(*bars, scale, Family), sPlotMap(*bars, scale).Plot),
                      std::min(wanted, most))
                << width << " at " << scale;
            const test::Pane candles = test::CandlePane(pane, 180, 4, width);
            candles->PaneGroups(1).SeriesStyles(4).LineLook().SetPattern(LineNone);
            for (int series = 1; series <= 4; ++series)
                candles->PaneGroups(1).PaneData().SetPointY(series, 1, Hole);
            EXPECT_EQ(WidestRow(PanePicture(*candles, scale, Family), sPlotMap(*candles, scale).Plot),
                      std::min(wanted, most))
                << width << " at " << scale;
        }
}

TEST(PaintingOrder, MarksOfTheSecondGroupLieOnTheLinesOfTheFirst)
{
    const test::Pane pane = test::LinePane(280, 180, std::vector<double>(20, 50));
    pane->PaneGroups(1).SeriesStyles(1).LineLook().SetWidth(3);
    test::LoadGroup(pane->PaneGroups(2), {std::vector<double>(20, 50)});
    CSeriesStyle& marks = pane->PaneGroups(2).SeriesStyles(1);
    marks.LineLook().SetPattern(LineNone);
    marks.SymbolLook().SetShape(SymbolMark);
    marks.SymbolLook().SetSize(5);
    marks.SymbolLook().SetColor(0x0000ff);
    int x = 0, y = 0;
    pane->PaneGroups(2).PointToPixel(1, 10, x, y);
    EXPECT_EQ(PanePicture(*pane, 1.0, Family).pixel(x, y), qRgb(255, 0, 0));
}

TEST(PaintingOrder, AHistogramOfTheSecondGroupStandsBehindTheMarksOfTheFirst)
{
    const test::Pane pane = test::LinePane(280, 180, std::vector<double>(20, 20));
    CSeriesStyle& marks = pane->PaneGroups(1).SeriesStyles(1);
    marks.SymbolLook().SetShape(SymbolMark);
    marks.SymbolLook().SetSize(5);
    marks.SymbolLook().SetColor(0x0000ff);
    test::LoadGroup(pane->PaneGroups(2), {std::vector<double>(20, 50)});
    for (const int type : {ChartBars, ChartBarsFromOrigin}) {
        pane->PaneGroups(2).SetChartType(type);
        int x = 0, y = 0;
        pane->PaneGroups(1).PointToPixel(1, 10, x, y);
        EXPECT_EQ(PanePicture(*pane, 1.0, Family).pixel(x, y), qRgb(255, 0, 0)) << type;
    }
}

} // namespace
} // namespace zantroq
