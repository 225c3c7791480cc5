// SVG files of a pane: the SVG writer does not clip, so all shapes must be cut before.
#include "qt/output/PaneExport.h"
#include "qt/paint/CutShapes.h"
#include "qt/paint/PanePainter.h"
#include "support/PaneScenes.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace zantroq {
namespace {

constexpr QRgb White = qRgb(255, 255, 255);

QByteArray SvgOf(const CChart2D& pane)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("pane.svg");
    QString error;
    EXPECT_TRUE(SavePanePicture(pane, path, 1.0, error)) << error.toStdString();
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QImage Rendered(const QByteArray& svg, const CChart2D& pane)
{
    QImage picture(pane.PixelWidth(), pane.PixelHeight(), QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QSvgRenderer renderer(svg);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(picture.rect()));
    return picture;
}

// The boxes of the ink of everything that an SVG file draws in a color.
std::vector<QRectF> InkBoxes(const QByteArray& svg, const QString& color)
{
    std::vector<QRectF> boxes;
    const QString text = QString::fromUtf8(svg);
    // Each group sets pen and brush and holds one shape.
    static const QRegularExpression group("<g ([^>]*)>\\s*(.*?)</g>",
                                          QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression number("-?[0-9]+(\\.[0-9]+)?(e-?[0-9]+)?");
    static const QRegularExpression shape("(?:points|\\sd)=\"([^\"]*)\"");
    static const QRegularExpression width("stroke-width=\"([0-9.]+)\"");
    for (auto at = group.globalMatch(text); at.hasNext();) {
        const QRegularExpressionMatch found = at.next();
        const QString look = found.captured(1);
        if (!look.contains(color))
            continue;
        const bool stroked = look.contains("stroke=\"" + color);
        const double half = stroked ? width.match(look).captured(1).toDouble() / 2 : 0;
        for (auto part = shape.globalMatch(found.captured(2)); part.hasNext();) {
            QRectF box;
            std::vector<double> places;
            const QString list = part.next().captured(1);
            for (auto digit = number.globalMatch(list); digit.hasNext();)
                places.push_back(digit.next().captured(0).toDouble());
            EXPECT_EQ(places.size() % 2, 0u);
            for (std::size_t i = 0; i + 1 < places.size(); i += 2) {
                const QRectF point(places[i] - half, places[i + 1] - half, 2 * half + 1e-9, 2 * half + 1e-9);
                box = box.isNull() ? point : box.united(point);
            }
            boxes.push_back(box);
        }
    }
    return boxes;
}

bool IsLineColor(QRgb pixel)
{
    return qBlue(pixel) > qRed(pixel) + 20;
}

test::Pane RisingLine(int width, int pattern)
{
    test::Pane pane = test::LinePane(280, 180, {-400, 50, 400, 60, 55, 1000, -1000, 50});
    CLineLook& look = pane->PaneGroups(1).SeriesStyles(1).LineLook();
    look.SetPattern(pattern);
    look.SetWidth(width);
    test::FitAxes(*pane, 6, 0, 100); // two of the points lie right of the plot
    return pane;
}

TEST(PaneSvg, ALineThatLeavesThePlotEndsAtItsEdge)
{
    for (const int width : {1, 2, 5, 12})
        for (const int pattern : {LineSolid, LineLongDashes, LineShortDashes}) {
            SCOPED_TRACE(testing::Message() << "width " << width << ", pattern " << pattern);
            const test::Pane pane = RisingLine(width, pattern);
            const QByteArray svg = SvgOf(*pane);
            const sPixelRect plot = pane->PlotRect();
            const QRectF edge =
                QRectF(plot.Left, plot.Top, plot.Width(), plot.Height()).adjusted(-0.01, -0.01, 0.01, 0.01);
            const std::vector<QRectF> boxes = InkBoxes(svg, "#1464c8");
            ASSERT_FALSE(boxes.empty());
            bool reachesTop = false;
            for (const QRectF& box : boxes) {
                EXPECT_TRUE(edge.contains(box))
                    << box.left() << ", " << box.top() << " to " << box.right() << ", " << box.bottom();
                reachesTop = reachesTop || box.top() < plot.Top + 0.02;
            }
            EXPECT_TRUE(reachesTop) << "nothing of the line is lost";
        }
}

// The line must be as complete as in a picture of pixels.
TEST(PaneSvg, ALineThatLeavesThePlotLooksAsOnTheScreen)
{
    for (const int width : {1, 3, 8}) {
        const test::Pane pane = RisingLine(width, LineSolid);
        const QImage vectors = Rendered(SvgOf(*pane), *pane), pixels = PanePicture(*pane, 1.0);
        const sPixelRect plot = pane->PlotRect();
        int inVectors = 0, inPixels = 0;
        for (int y = 0; y < 180; ++y)
            for (int x = 0; x < 280; ++x) {
                const bool inPlot = x >= plot.Left && x < plot.Right && y >= plot.Top && y < plot.Bottom;
                inVectors += IsLineColor(vectors.pixel(x, y));
                inPixels += IsLineColor(pixels.pixel(x, y));
                ASSERT_TRUE(inPlot || !IsLineColor(vectors.pixel(x, y))) << x << ", " << y;
            }
        EXPECT_GT(inPixels, 100);
        EXPECT_NEAR(inVectors, inPixels, inPixels * 0.15) << "width " << width;
    }
}

TEST(PaneSvg, ALineInsideThePlotStaysOneStroke)
{
    const test::Pane pane = test::LinePane(280, 180, {20, 80, 30, 70});
    pane->PaneGroups(1).SeriesStyles(1).LineLook().SetPattern(LineLongDashes);
    const QByteArray svg = SvgOf(*pane);
    EXPECT_TRUE(svg.contains("stroke-dasharray"));
    EXPECT_EQ(InkBoxes(svg, "#1464c8").size(), 1u);
}

// Panes stand side by side in the picture of a chart.
TEST(PaneSvg, BoxesAndTextsEndAtThePanesEdge)
{
    const test::Pane pane = test::EmptyPane(200, 120);
    for (const auto& [x, y] : {std::pair{-30, 40}, {180, 60}, {60, -7}, {60, 112}}) {
        CPaneLabel& label = test::AddLabel(*pane, "HHHHHHHH", AttachToPixel, AnchorBelowRight);
        label.SetPixelAnchor(x, y);
        label.Interior().SetBackground(0x00ffff);
        label.Interior().SetForeground(0x0000ff);
    }
    // A larger view of the file shows what is outside the pane.
    QByteArray svg = SvgOf(*pane);
    svg.replace("viewBox=\"0 0 200 120\"", "viewBox=\"-100 -100 400 320\"");
    QSvgRenderer renderer(svg);
    ASSERT_EQ(renderer.viewBoxF(), QRectF(-100, -100, 400, 320));
    QImage picture(400, 320, QImage::Format_RGB32);
    picture.fill(White);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(picture.rect()));
    painter.end();
    int red = 0;
    for (int y = 0; y < 320; ++y)
        for (int x = 0; x < 400; ++x) {
            const bool inPane = x >= 100 && x < 300 && y >= 100 && y < 220;
            if (!inPane) {
                ASSERT_EQ(picture.pixel(x, y), White) << x - 100 << ", " << y - 100;
            }
            red += qRed(picture.pixel(x, y)) > 200 && qGreen(picture.pixel(x, y)) < 60;
        }
    EXPECT_GT(red, 60) << "the letters that lie in the pane are there";
}

TEST(CutShapes, APolygonKeepsWhatLiesInTheBox)
{
    const QPolygonF diamond({{0, -10}, {10, 0}, {0, 10}, {-10, 0}});
    const QPolygonF cut = CutPolygon(diamond, {0, 0, 20, 20});
    double twice = 0;
    for (int i = 0; i < cut.size(); ++i) {
        const QPointF &a = cut[i], &b = cut[(i + 1) % cut.size()];
        twice += a.x() * b.y() - b.x() * a.y();
    }
    EXPECT_DOUBLE_EQ(std::abs(twice) / 2, 50) << "a quarter of the diamond";
    EXPECT_TRUE(CutPolygon(diamond, {20, 20, 5, 5}).isEmpty());
}

// The cost of a path far longer than the box depends only on the part inside.
TEST(CutShapes, DashesStandWhereTheyStoodBeforeTheCut)
{
    QPainterPath path({-1e6, 10});
    path.lineTo(1e6, 10);
    const sCutStroke cut = CutStroke(path, 2, sDashes{6, 4}, {-3, 0, 42, 20});
    // Dashes begin every ten units, also at -1,000,000: those at 0, 10, 20 and 30 are inside.
    ASSERT_EQ(cut.Stroked.elementCount(), 8);
    for (int i = 0; i < 8; ++i) {
        EXPECT_NEAR(cut.Stroked.elementAt(i).x, i / 2 * 10 + i % 2 * 6, 1e-6);
        EXPECT_DOUBLE_EQ(cut.Stroked.elementAt(i).y, 10);
    }
    EXPECT_TRUE(cut.Filled.isEmpty());
}

} // namespace
} // namespace zantroq
