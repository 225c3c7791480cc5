#include "qt/paint/PanePainter.h"
#include "qt/output/PaneExport.h"
#include "support/PaneScenes.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace zantroq {
namespace {

using test::Pane;

const double Hole = HoleValue;
const QString Family = "DejaVu Sans";

// Two pictures pixel by pixel; the first that differs is named.
testing::AssertionResult SamePicture(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return testing::AssertionFailure() << "sizes differ";
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y))
                return testing::AssertionFailure() << "pixel " << x << ", " << y << ": " << std::hex
                                                   << a.pixel(x, y) << " and " << b.pixel(x, y);
    return testing::AssertionSuccess();
}

testing::AssertionResult LooksAsEveryPointPainted(const CChart2D& pane, double scale)
{
    CPanePainter reduced(pane, Family), plain(pane, Family, InkDetail::EveryPoint),
        byPoint(pane, Family, InkDetail::PointByPoint);
    const testing::AssertionResult same = SamePicture(reduced.Picture(scale), plain.Picture(scale));
    return same ? SamePicture(byPoint.Picture(scale), plain.Picture(scale)) << " point by point" : same;
}

// Extreme values as feeds and studies may produce them.
std::vector<double> RoughCurve(int count, std::mt19937& random, bool withGaps)
{
    std::uniform_real_distribution<double> step(-1, 1), chance(0, 1);
    std::vector<double> y;
    double value = 50;
    for (int i = 0; i < count; ++i) {
        value += step(random) * 2 + (50 - value) * 0.002;
        const double pick = withGaps ? chance(random) : 1;
        y.push_back(pick < 0.02    ? Hole
                    : pick < 0.03  ? std::numeric_limits<double>::quiet_NaN()
                    : pick < 0.035 ? std::numeric_limits<double>::infinity()
                    : pick < 0.04  ? -std::numeric_limits<double>::infinity()
                    : pick < 0.3   ? std::floor(value)
                                   : value);
    }
    return y;
}

TEST(PaneReduction, CrowdedCandlesLookAsEveryPointPainted)
{
    for (const int count : {90, 300, 1000, 20000})
        for (const double scale : {1.0, 1.5, 2.0})
            EXPECT_TRUE(LooksAsEveryPointPainted(*test::CandlePane(280, 180, count, 1), scale))
                << count << " at " << scale;
}

TEST(PaneReduction, CandlesWithGapsAndHolesLookAsEveryPointPainted)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> chance(0, 1);
    for (int round = 0; round < 20; ++round) {
        const Pane pane = test::CandlePane(280, 180, 3000, 1);
        CPaneData& data = pane->PaneGroups(1).PaneData();
        for (int point = 1; point <= 3000; ++point) {
            const double low = 80 + chance(random) * 40, height = chance(random) * 2;
            const bool bad = chance(random) < 0.05;
            data.SetPointY(1, point, bad ? (chance(random) < 0.5 ? Hole : std::nan("")) : low + height);
            data.SetPointY(2, point, chance(random) < 0.01 ? low + 2 * height : low);
            data.SetPointY(3, point, low + height * chance(random));
            data.SetPointY(4, point, chance(random) < 0.01 ? Hole : low + height * chance(random));
        }
        test::FitAxes(*pane, 3000, 75, 118);
        ASSERT_TRUE(LooksAsEveryPointPainted(*pane, round % 2 + 1.0)) << round;
    }
}

// So long that another code path draws them.
TEST(PaneReduction, CandlesThatJumpByHundredsOfPixelsLookAsEveryPointPainted)
{
    std::mt19937 random(4);
    std::uniform_real_distribution<double> chance(0, 1);
    for (const bool infinite : {false, true}) {
        const Pane pane = test::CandlePane(280, 900, 4000, 1);
        CPaneData& data = pane->PaneGroups(1).PaneData();
        for (int point = 1; point <= 4000; ++point) {
            const double open = 100 + chance(random) * (chance(random) < 0.05 ? 90 : 3),
                         close = 100 - chance(random) * (chance(random) < 0.05 ? 90 : 3);
            const bool up = chance(random) < 0.5;
            data.SetPointY(1, point, open + chance(random));
            data.SetPointY(2, point, close - chance(random));
            data.SetPointY(3, point, up ? close : open);
            data.SetPointY(4, point, up ? open : close);
        }
        if (infinite)
            data.SetPointY(4, 1700, std::numeric_limits<double>::infinity());
        test::FitAxes(*pane, 4000, 0, 200);
        EXPECT_TRUE(LooksAsEveryPointPainted(*pane, 1));
        EXPECT_TRUE(LooksAsEveryPointPainted(*pane, 2));
    }
}

TEST(PaneReduction, CandlesOnAnAxisThatRunsDownOrNowhereLookAsEveryPointPainted)
{
    const Pane pane = test::CandlePane(280, 180, 3000, 1);
    CPaneAxis& axis = pane->PaneArea().PaneAxes().Y();
    const double low = axis.ViewLow().Value(), high = axis.ViewHigh().Value();
    axis.ViewLow().SetValue(high);
    axis.ViewHigh().SetValue(low);
    EXPECT_TRUE(LooksAsEveryPointPainted(*pane, 1));
    axis.ViewHigh().SetValue(high);
    EXPECT_TRUE(LooksAsEveryPointPainted(*pane, 1));
    axis.ViewLow().SetValue((low + high) / 2); // candles begin far below the plot and reach into it
    EXPECT_TRUE(LooksAsEveryPointPainted(*pane, 2));
}

TEST(PaneReduction, PriceBarsAndHistogramsLookAsEveryPointPainted)
{
    std::mt19937 random(5);
    EXPECT_TRUE(LooksAsEveryPointPainted(*test::PriceBarPane(280, 180, 5000), 1));
    for (const int type : {ChartBars, ChartBarsFromOrigin})
        EXPECT_TRUE(LooksAsEveryPointPainted(
            *test::HistogramPane(280, 180, RoughCurve(4000, random, true), 1, type), 1.5));
}

TEST(PaneReduction, LinesOfEveryPatternAndWidthLookAsEveryPointPainted)
{
    std::mt19937 random(11);
    for (int round = 0; round < 48; ++round) {
        const int count = round % 4 == 0 ? 60 : round % 4 == 1 ? 400 : 7000;
        const Pane pane = test::LinePane(280, 180, RoughCurve(count, random, round % 3 != 0));
        CLineLook& look = pane->PaneGroups(1).SeriesStyles(1).LineLook();
        look.SetWidth(1 + round % 3);
        look.SetPattern(round % 5 == 0 ? LineLongDashes : round % 5 == 1 ? LineShortDashes : LineSolid);
        test::FitAxes(*pane, count, 20, 80);
        ASSERT_TRUE(LooksAsEveryPointPainted(*pane, 1 + 0.5 * (round % 3))) << round;
    }
}

TEST(PaneReduction, LevelsLookAsEveryPointPainted)
{
    for (const int count : {100, 700, 7000})
        for (const int pattern : {LineNone, LineSolid, LineLongDashes, LineShortDashes})
            for (const int width : {1, 2, 3})
                for (const int mark : {0, 1, 4})
                    for (const int first : {1, count / 3, count - 1, count, count + 1}) {
                        const Pane pane = test::LinePane(280, 180, std::vector<double>(count, 40.0));
                        CPaneGroup& group = pane->PaneGroups(1);
                        group.SeriesStyles(1).LineLook().SetWidth(width);
                        group.SeriesStyles(1).LineLook().SetPattern(pattern);
                        CSymbolLook& look = group.SeriesStyles(1).SymbolLook();
                        look.SetShape(mark > 0 ? SymbolMark : SymbolNone);
                        look.SetSize(mark);
                        look.SetColor(0xC0C0C0);
                        group.PaneData().SetStepY(1, first, 60);
                        for (const double scale : {1.0, 2.0})
                            ASSERT_TRUE(LooksAsEveryPointPainted(*pane, scale))
                                << count << ' ' << pattern << ' ' << width << ' ' << mark << ' ' << first
                                << " at " << scale;
                    }
}

TEST(PaneReduction, AWideLevelLooksAsEveryPointPaintedWhereItsEndColumnsHoldOnePoint)
{
    const int count = 700;
    const Pane pane = test::LinePane(280, 180, std::vector<double>(count, 40.0));
    CPaneGroup& group = pane->PaneGroups(1);
    CPaneAxis& x = pane->PaneArea().PaneAxes().X();
    for (const int width : {1, 2, 3, 4})
        for (const int first : {1, count / 3, count / 3 + 1, count - 3})
            for (int shift = 0; shift < 12; ++shift) {
                group.SeriesStyles(1).LineLook().SetWidth(width);
                group.PaneData().SetStepY(1, first, 60);
                x.ViewLow().SetValue(1 - shift);
                x.ViewHigh().SetValue(count + shift * 0.7);
                for (const double scale : {1.0, 1.5})
                    ASSERT_TRUE(LooksAsEveryPointPainted(*pane, scale))
                        << width << ' ' << first << ' ' << shift << " at " << scale;
            }
}

TEST(PaneReduction, ALevelThatIsNoneAnyMoreLooksAsEveryPointPainted)
{
    const int count = 7000;
    const Pane pane = test::LinePane(280, 180, std::vector<double>(count, 40.0));
    CPaneData& data = pane->PaneGroups(1).PaneData();
    data.SetStepY(1, 2000, 60);
    CPanePainter kept(*pane, Family);
    const auto check = [&] {
        CPanePainter plain(*pane, Family, InkDetail::EveryPoint);
        return SamePicture(kept.Picture(1), plain.Picture(1));
    };
    ASSERT_TRUE(check());
    data.SetPointY(1, count, 20); // the last point alone
    ASSERT_TRUE(check());
    data.SetPointY(1, 5000, 80);
    ASSERT_TRUE(check());
    data.SetPointY(1, 100, 30); // in the holes before it
    ASSERT_TRUE(check());
    data.SetStepY(1, 1, 50);
    ASSERT_TRUE(check());
    ASSERT_TRUE(data.ShiftPoints(1, count - 500, 501));
    ASSERT_TRUE(check());
    data.SetPointCount(1, 300);
    ASSERT_TRUE(check());
    data.SetStepY(1, 200, -std::numeric_limits<double>::infinity());
    ASSERT_TRUE(check());
}

TEST(KeptPicture, APointOfALevelChangesWhereverItStandsInItsColumn)
{
    const int count = 700;
    const Pane pane = test::LinePane(280, 180, std::vector<double>(count, 40.0));
    CPaneData& data = pane->PaneGroups(1).PaneData();
    CPanePainter kept(*pane, Family);
    for (int point = count; point > count - 40; --point) {
        data.SetStepY(1, 1, 60);
        kept.Picture(1);
        data.SetPointY(1, point, 20);
        CPanePainter plain(*pane, Family, InkDetail::EveryPoint);
        ASSERT_TRUE(SamePicture(kept.Picture(1), plain.Picture(1))) << point;
    }
}

TEST(PaneReduction, MarksOnLinesLookAsEveryPointPainted)
{
    std::mt19937 random(17);
    for (int round = 0; round < 60; ++round) {
        const int count = round % 3 == 0 ? 60 : round % 3 == 1 ? 900 : 9000;
        std::vector<double> y = RoughCurve(count, random, round % 5 == 0);
        if (round % 2 == 1) { // a straight line with holes before and behind it, steeper from round to round
            const int from = count / 7, to = count - count / 5;
            for (int i = 0; i < count; ++i)
                y[static_cast<std::size_t>(i)] =
                    i < from || i > to ? Hole : 30 + (i - from) * std::pow(2.0, round * 0.2) * 10 / count;
        }
        const Pane pane = test::LinePane(280, 180, y);
        CSymbolLook& look = pane->PaneGroups(1).SeriesStyles(1).SymbolLook();
        look.SetShape(SymbolMark);
        look.SetSize(1 + round % 4);
        look.SetColor(0xC0C0C0);
        test::FitAxes(*pane, count, 20, 80);
        ASSERT_TRUE(LooksAsEveryPointPainted(*pane, 1 + 0.5 * (round % 4))) << round;
    }
}

TEST(PaneReduction, LinesThatAreWrittenAnewLookAsEveryPointPainted)
{
    std::mt19937 random(19);
    for (const int count : {50, 3000}) {
        const Pane pane = test::LinePane(280, 180, RoughCurve(count, random, true));
        CPaneData& data = pane->PaneGroups(1).PaneData();
        data.SetSeriesCount(5);
        pane->PaneGroups(1).SeriesStyles(3).SymbolLook().SetShape(SymbolMark);
        pane->PaneGroups(1).SeriesStyles(3).SymbolLook().SetSize(3);
        pane->PaneGroups(1).SeriesStyles(5).LineLook().SetPattern(LineNone);
        pane->PaneGroups(1).SeriesStyles(5).SymbolLook().SetShape(SymbolMark);
        test::FitAxes(*pane, count, 20, 80);
        CPanePainter kept(*pane, Family);
        kept.Picture(1);
        for (int round = 0; round < 40; ++round) {
            const int series = 1 + round % 5;
            if (round % 4 == 3)
                data.SetPointY(series, 1 + count / 2, 20 + round);
            else
                data.SetYVector(series, RoughCurve(count, random, round % 2 == 0));
            if (round % 9 == 8)
                data.SetPointCount(1, count - round);
            CPanePainter plain(*pane, Family, InkDetail::EveryPoint);
            ASSERT_TRUE(SamePicture(kept.Picture(1), plain.Picture(1)))
                << count << " points, round " << round;
        }
    }
}

TEST(PaneReduction, XInAnyOrderLooksAsEveryPointPainted)
{
    std::mt19937 random(13);
    const Pane pane = test::LinePane(280, 180, RoughCurve(500, random, true));
    std::vector<double> x;
    for (int i = 0; i < 500; ++i)
        x.push_back(std::uniform_int_distribution<int>(-20, 520)(random));
    pane->PaneGroups(1).PaneData().SetXVector(1, std::span<const double>(x));
    EXPECT_TRUE(LooksAsEveryPointPainted(*pane, 1));
    pane->PaneGroups(1).SetChartType(ChartBars);
    EXPECT_TRUE(LooksAsEveryPointPainted(*pane, 1));
}

// After any change, the cached picture must equal the one painted completely.
TEST(PaneReduction, PointsAtAnInfiniteXAreNotThereWhateverTheView)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const int type : {ChartLines, ChartBars})
        for (const double low : {1.0, infinity}) {
            std::vector<double> y(300, 40.0);
            y.front() = 10;
            y.back() = 90;
            const Pane pane = test::LinePane(280, 180, y);
            CPaneGroup& group = pane->PaneGroups(1);
            group.SetChartType(type);
            group.PaneData().SetPointX(1, 1, -infinity);
            group.PaneData().SetPointX(1, 300, infinity);
            pane->PaneArea().PaneAxes().X().ViewLow().SetValue(low);
            EXPECT_TRUE(LooksAsEveryPointPainted(*pane, 1)) << "type " << type << ", view from " << low;
        }
}

TEST(KeptPicture, AfterEachChangeIsThatPaintedFromNothing)
{
    std::mt19937 random(17);
    const auto number = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Pane pane = test::CandlePane(280, 180, 400, 1);
        test::LoadGroup(pane->PaneGroups(2), {RoughCurve(400, random, true), RoughCurve(400, random, false)});
        CPaneLabel& label = test::AddLabel(*pane, "x", AttachToData, AnchorBelowRight);
        CPanePainter kept(*pane, Family);
        for (int round = 0; round < 120; ++round) {
            CPaneData& data = pane->PaneGroups(1 + round % 2).PaneData();
            const int point = number(0, 1) ? 400 : number(1, 400);
            switch (number(0, 9)) {
            case 0:
                label.SetDataAnchor(number(1, 400), number(80, 110));
                break;
            case 1:
                pane->PaneArea().PaneMarkers("x").SetPoint(number(1, 400));
                break;
            case 2:
                pane->PaneArea().PaneMarkers("x").SetShown(number(0, 1));
                break;
            case 3:
                test::FitAxes(*pane, 400, number(60, 80), number(110, 130));
                break;
            case 4:
                pane->PaneGroups(2).SeriesStyles(1).LineLook().SetWidth(number(1, 4));
                break;
            case 5:
                label.SetText("now " + std::to_string(round));
                break;
            default:
                for (int series = 1; series <= data.SeriesCount(); ++series)
                    data.SetPointY(series, point, number(0, 9) ? number(80, 115) : Hole);
            }
            ASSERT_TRUE(SamePicture(kept.Picture(scale), PanePicture(*pane, scale, Family)))
                << round << " at " << scale;
        }
    }
}

// Regression: in a chart with one bar, that bar is both first and last, and its old ink stayed.
TEST(KeptPicture, OfALargePaneIsThatPaintedFromNothing)
{
    for (const int count : {40, 900, 20000}) {
        const Pane pane = test::CandlePane(1500, 700, count, 1);
        CPaneAxes& axes = pane->PaneArea().PaneAxes();
        for (CPaneAxis* axis : {&axes.X(), &axes.Y()})
            axis->AxisGrid().LineLook().SetPattern(axis == &axes.X() ? LineLongDashes : LineShortDashes);
        axes.X().AxisGrid().SetSpacing(count / 5.0);
        axes.Y().AxisGrid().SetSpacing(7);
        CPanePainter kept(*pane, Family);
        const double low = axes.Y().ViewLow().Value();
        for (int round = 0; round < 5; ++round) {
            axes.Y().ViewLow().SetValue(low - round % 3);
            if (round == 3)
                test::AddLabel(*pane, "a label", 0, 0x22).SetDataAnchor(count / 2, 50);
            CPanePainter plain(*pane, Family, InkDetail::EveryPoint);
            ASSERT_TRUE(SamePicture(kept.Picture(2), plain.Picture(2))) << count << ", round " << round;
        }
    }
}

TEST(KeptPicture, AChangedFirstBarLeavesNothingOfTheOldOne)
{
    for (const int count : {1, 5}) {
        const Pane pane = test::CandlePane(280, 180, count, 9);
        CPanePainter kept(*pane, Family);
        kept.Picture(1.0);
        const CPaneData& data = pane->PaneGroups(1).PaneData();
        const double middle = (data.PointY(1, 1) + data.PointY(2, 1)) / 2;
        for (int series = 1; series <= 4; ++series)
            pane->PaneGroups(1).PaneData().SetPointY(series, 1, middle);
        EXPECT_TRUE(SamePicture(kept.Picture(1.0), PanePicture(*pane, 1.0, Family))) << count;
    }
}

// Regression: a series of marks without a line had no mark at a point that appeared alone.
TEST(KeptPicture, AMarkWithoutALineAppears)
{
    const Pane pane = test::LinePane(280, 180, std::vector<double>(20, Hole));
    CSeriesStyle& style = pane->PaneGroups(1).SeriesStyles(1);
    style.LineLook().SetPattern(LineNone);
    style.SymbolLook().SetShape(SymbolMark);
    style.SymbolLook().SetSize(5);
    style.SymbolLook().SetColor(0x0000FF);
    CPanePainter kept(*pane, Family);
    kept.Picture(1.0);
    pane->PaneGroups(1).PaneData().SetPointY(1, 10, 50);
    int x = 0, y = 0;
    pane->PaneGroups(1).PointToPixel(1, 10, x, y);
    EXPECT_EQ(kept.Picture(1.0).pixel(x, y), qRgb(255, 0, 0));
}

TEST(KeptPicture, AChangedLastPointDamagesItsColumnsOnly)
{
    const Pane pane = test::CandlePane(800, 300, 200, 3);
    CPanePainter painter(*pane, Family);
    painter.Picture(2.0);
    EXPECT_EQ(painter.Damage(), QRect(0, 0, 800, 300));
    painter.Picture(2.0);
    EXPECT_TRUE(painter.Damage().isEmpty());
    pane->PaneGroups(1).PaneData().SetPointY(4, 200, 99.5);
    painter.Picture(2.0);
    EXPECT_FALSE(painter.Damage().isEmpty());
    EXPECT_LT(painter.Damage().width(), 30);
    EXPECT_GT(painter.Damage().left(), 700);
}

TEST(PanePainter, APaneOfAnySizePaints)
{
    for (const auto& [width, height] :
         {std::pair{0, 0}, {1, 1}, {5, 300}, {300, 5}, {81, 48}, {82, 49}, {300, 16}}) {
        const Pane pane = test::CandlePane(width, height, 50, 3);
        test::AddLabel(*pane, "text", AttachToData, AnchorAboveLeft).SetDataAnchor(3, 100);
        for (const double scale : {1.0, 1.5, 2.0}) {
            const QImage picture = PanePicture(*pane, scale, Family);
            EXPECT_EQ(picture.isNull(), width == 0) << width << "x" << height;
        }
    }
}

TEST(PanePainter, HostileNumbersPaint)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double bad : {infinity, -infinity, std::nan(""), Hole, 1e300, -1e300, 5e-324}) {
        const Pane pane = test::CandlePane(280, 180, 50, 3);
        CPaneAxes& axes = pane->PaneArea().PaneAxes();
        axes.Y().TickLabels().Add(bad, "bad");
        axes.X().TickLabels().Add(bad, "bad");
        axes.Y().AxisGrid().SetSpacing(bad);
        axes.X().TickMarkSpacing().SetValue(bad);
        pane->PaneGroups(1).PaneData().SetPointX(1, 7, bad);
        for (int series = 1; series <= 4; ++series)
            pane->PaneGroups(1).PaneData().SetPointY(series, 9, bad);
        test::AddLabel(*pane, "bad", AttachToData, AnchorAboveLeft).SetDataAnchor(bad, bad);
        axes.Y().AxisOrigin().SetValue(bad);
        for (const int type : {1, 2, 5, 7, 8, 99}) {
            pane->PaneGroups(1).SetChartType(type);
            EXPECT_FALSE(PanePicture(*pane, 1.0, Family).isNull());
        }
        axes.X().ViewHigh().SetValue(bad);
        axes.Y().ViewLow().SetValue(bad);
        EXPECT_FALSE(PanePicture(*pane, 1.5, Family).isNull());
    }
}

TEST(PanePainter, AHoleLeavesAGapThatIsNotInterpolated)
{
    for (const double missing : {Hole, std::nan("")}) {
        std::vector<double> y(10, 50.0);
        y[4] = missing;
        const Pane pane = test::LinePane(280, 180, y);
        const QImage picture = PanePicture(*pane, 1.0, Family);
        int before = 0, after = 0, row = 0;
        pane->PaneGroups(1).PointToPixel(1, 4, before, row);
        pane->PaneGroups(1).PointToPixel(1, 6, after, row);
        const QRgb line = qRgb(0x14, 0x64, 0xc8);
        EXPECT_EQ(picture.pixel(before, row), line);
        EXPECT_EQ(picture.pixel(after, row), line);
        for (int x = before + 1; x < after; ++x)
            for (int at = row - 2; at <= row + 2; ++at)
                ASSERT_EQ(picture.pixel(x, at), qRgb(255, 255, 255)) << x << ", " << at;
    }
}

TEST(PanePainter, ANegativeBarHangsFromTheOrigin)
{
    const Pane pane = test::HistogramPane(280, 180, {30, -30, 0, Hole}, 8, ChartBars);
    test::FitAxes(*pane, 4, -50, 50);
    for (const bool moved : {false, true}) {
        if (moved)
            pane->PaneArea().PaneAxes().Y().AxisOrigin().SetValue(-40);
        const double origin = moved ? -40 : 0;
        const QImage picture = PanePicture(*pane, 1.0, Family);
        const auto bar = [&](int point, double value) { // whether the value lies in the point's bar
            int x = 0, y = 0;
            pane->PaneGroups(1).DataToPixel(point, value, x, y);
            return picture.pixel(std::max(x, pane->PlotRect().Left), y) == qRgb(0x14, 0x64, 0xc8);
        };
        EXPECT_TRUE(bar(1, 30) && bar(1, origin) && bar(1, 10));
        EXPECT_FALSE(bar(1, 35) || bar(1, origin - 5));
        EXPECT_TRUE(bar(2, -30) && bar(2, origin) && bar(2, moved ? -35 : -10));
        EXPECT_FALSE(bar(2, moved ? -25 : -35) || bar(2, moved ? -45 : 5));
        EXPECT_TRUE(bar(3, 0)) << "a bar of no height is a line";
        EXPECT_EQ(bar(3, -20), moved);
        EXPECT_FALSE(bar(4, origin)) << "a hole has no bar";
    }
}

TEST(PanePainter, AnInfinityReachesThePlotsEdge)
{
    const Pane pane = test::HistogramPane(
        280, 180, std::vector<double>(10, std::numeric_limits<double>::infinity()), 8, ChartBars);
    const QImage picture = PanePicture(*pane, 1.0, Family);
    const sPixelRect plot = pane->PlotRect();
    int x = 0, y = 0;
    pane->PaneGroups(1).DataToPixel(5, 0, x, y);
    EXPECT_EQ(picture.pixel(x, plot.Top), qRgb(0x14, 0x64, 0xc8));
    EXPECT_EQ(picture.pixel(x, y), qRgb(0x14, 0x64, 0xc8));
}

TEST(PanePainter, DataStaysInsideThePlot)
{
    const Pane pane = test::CandlePane(280, 180, 30, 20);
    test::FitAxes(*pane, 30, 99.9, 100.1);
    CPanePainter painter(*pane, Family);
    const QImage with = painter.Picture(1.0).copy();
    pane->PaneGroups(1).PaneData().SetPointCount(1, 0);
    const QImage without = painter.Picture(1.0);
    const sPixelRect plot = pane->PlotRect();
    for (int y = 0; y < 180; ++y)
        for (int x = 0; x < 280; ++x)
            if (x < plot.Left || x >= plot.Right || y < plot.Top || y >= plot.Bottom) {
                ASSERT_EQ(with.pixel(x, y), without.pixel(x, y)) << x << ", " << y;
            }
}

TEST(PanePainter, StraightLinesCoverWholeDevicePixels)
{
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Pane pane = test::LinePane(280, 180, std::vector<double>(20, 33.3));
        const QImage picture = PanePicture(*pane, scale, Family);
        const int x = picture.width() / 2;
        for (int y = 0; y < picture.height(); ++y) {
            const QRgb pixel = picture.pixel(x, y);
            const bool whole = pixel == qRgb(255, 255, 255) || pixel == qRgb(0x14, 0x64, 0xc8) ||
                               qRed(pixel) == qBlue(pixel);
            ASSERT_TRUE(whole) << y << " at " << scale;
        }
    }
}

TEST(PaneExport, WritesEachKindOfFileByItsEnding)
{
    const QTemporaryDir folder;
    const Pane pane = test::CandlePane(280, 180, 30, 3);
    QString error;
    for (const char* ending : {"png", "svg", "pdf", "json"}) {
        const QString path = folder.filePath(QStringLiteral("pane.") + ending);
        EXPECT_TRUE(SavePanePicture(*pane, path, 2.0, error)) << error.toStdString();
        EXPECT_GT(QFile(path).size(), 500) << ending;
    }
    EXPECT_EQ(QImage(folder.filePath("pane.png")).size(), QSize(560, 360));
    CChart2D copy;
    EXPECT_TRUE(copy.LoadFromFile(folder.filePath("pane.json").toStdString()));
    EXPECT_FALSE(SavePanePicture(*pane, folder.filePath("pane.gif"), 1.0, error));
    EXPECT_TRUE(error.contains("pane.gif"));
    error.clear();
    EXPECT_FALSE(SavePanePicture(*pane, "/no/such/folder/pane.png", 1.0, error));
    EXPECT_TRUE(error.contains("/no/such/folder/pane.png"));
}

// The file with this ending that a pane of 280x180 writes; empty on failure.
QByteArray SavedPane(const QString& ending)
{
    const QTemporaryDir folder;
    QString error;
    QFile file(folder.filePath("pane." + ending));
    if (!SavePanePicture(*test::CandlePane(280, 180, 30, 3), file.fileName(), 1.0, error) ||
        !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

TEST(PaneExport, AnSvgFileIsSizedInPixels)
{
    const QByteArray svg = SavedPane("svg");
    EXPECT_TRUE(svg.contains("width=\"280\" height=\"180\"")) << svg.left(400).toStdString();
    EXPECT_FALSE(svg.contains("mm\""));
}

TEST(PaneExport, TheSamePaneWritesTheSameBytesWheneverItIs)
{
    EXPECT_TRUE(SavedPane("pdf").contains("/CreationDate (D:20000101000000"));
}

TEST(PaneExport, AFileThatCannotBeWrittenIsNamed)
{
    const QTemporaryDir folder;
    const Pane pane = test::CandlePane(280, 180, 30, 3);
    for (const char* ending : {"svg", "pdf"}) {
        QString error;
        EXPECT_FALSE(SavePanePicture(*pane, QStringLiteral("/no/such/folder/pane.") + ending, 1.0, error));
        EXPECT_TRUE(error.contains("/no/such/folder/pane.")) << ending;
    }
}

TEST(PaneExport, APaneWithoutASizeHasNoPicture)
{
    const QTemporaryDir folder;
    const CChart2D pane;
    for (const char* ending : {"png", "svg", "pdf"}) {
        QString error;
        EXPECT_FALSE(SavePanePicture(pane, folder.filePath(QStringLiteral("pane.") + ending), 1.0, error));
        EXPECT_TRUE(error.contains("0 by 0")) << error.toStdString();
    }
    QString error;
    EXPECT_TRUE(SavePanePicture(pane, folder.filePath("pane.json"), 1.0, error)) << "a state it has";
}

TEST(PaneExport, CrowdedCandlesOnAPageAreThoseOfTheScreen)
{
    const Pane pane = test::CandlePane(280, 180, 4000, 1);
    CPanePainter painter(*pane, Family);
    QImage page(280, 180, QImage::Format_RGB32);
    QPainter onPage(&page);
    painter.PaintInto(onPage, QRectF(0, 0, 280, 180));
    onPage.end();
    const QImage& screen = painter.Picture(1.0);
    const sPixelRect plot = sPlotMap(*pane).Plot;
    const QRect inside(plot.Left + 1, plot.Top + 1, plot.Width() - 2, plot.Height() - 2);
    EXPECT_TRUE(SamePicture(page.copy(inside), screen.copy(inside)));
}

TEST(PaneExport, APageGetsThePaneInItsBox)
{
    QImage page(700, 500, QImage::Format_RGB32);
    page.fill(qRgb(1, 2, 3));
    QPainter painter(&page);
    CPrintPage device(painter);
    const Pane pane = test::CandlePane(280, 180, 30, 3);
    EXPECT_TRUE(pane->DrawToDevice(device, 3, 4, 100, 50, 560, 360));
    painter.end();
    EXPECT_EQ(page.pixel(99, 60), qRgb(1, 2, 3));
    EXPECT_EQ(page.pixel(100, 50), qRgb(255, 255, 255));
    EXPECT_EQ(page.pixel(659, 409), qRgb(255, 255, 255));
    EXPECT_EQ(page.pixel(660, 409), qRgb(1, 2, 3));
    EXPECT_FALSE(pane->DrawToDevice(device, 3, 4, 0, 0, 10, 10)) << "the painter has ended";
}

} // namespace
} // namespace zantroq
