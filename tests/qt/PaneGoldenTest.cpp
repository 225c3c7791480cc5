// Pictures of small panes, one for each rule of drawing, compared with those kept in tests/golden.
// ZANTROQ_REMAKE_GOLDEN=1 in the environment writes them anew; look at each before keeping it. A failed
// comparison leaves the picture that was painted and the difference in the build folder.
#include "qt/PanePainter.h"
#include "qt/PaneScenes.h"

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

#include <cstdlib>

namespace zantroq {
namespace {

constexpr int PixelTolerance = 24; // a channel may differ by this much: fonts are hinted a little differently
constexpr double MostDifferent = 0.01; // of the pixels may differ more

const QString Family = "DejaVu Sans";

double DifferentShare(const QImage& painted, const QImage& golden, QImage& difference)
{
    difference = QImage(painted.size(), QImage::Format_RGB32);
    int different = 0;
    for (int y = 0; y < painted.height(); ++y)
        for (int x = 0; x < painted.width(); ++x) {
            const QRgb a = painted.pixel(x, y), b = golden.pixel(x, y);
            const int worst = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                        std::abs(qBlue(a) - qBlue(b))});
            different += worst > PixelTolerance;
            difference.setPixel(
                x, y, worst > PixelTolerance ? qRgb(255, 0, 0) : qRgb(255 - worst, 255 - worst, 255 - worst));
        }
    return different / double(painted.width() * painted.height());
}

void Compare(const std::string& name, const CChart2D& pane, int scale)
{
    const QString file = QString::fromStdString(name) + (scale == 1 ? ".png" : "@2x.png");
    QImage painted = PanePicture(pane, scale, Family);
    painted.setDevicePixelRatio(1);
    const QString kept = QStringLiteral(ZANTROQ_GOLDEN_DIR "/") + file;
    if (std::getenv("ZANTROQ_REMAKE_GOLDEN")) {
        QDir().mkpath(ZANTROQ_GOLDEN_DIR);
        ASSERT_TRUE(painted.save(kept)) << kept.toStdString();
        return;
    }
    const QImage golden = QImage(kept).convertToFormat(QImage::Format_RGB32);
    ASSERT_FALSE(golden.isNull()) << kept.toStdString() << " is missing";
    ASSERT_EQ(painted.size(), golden.size()) << file.toStdString();
    QImage difference;
    const double share = DifferentShare(painted, golden, difference);
    if (share <= MostDifferent)
        return;
    QDir().mkpath(ZANTROQ_OUTPUT_DIR);
    const QString left = QStringLiteral(ZANTROQ_OUTPUT_DIR "/");
    painted.save(left + "painted-" + file);
    difference.save(left + "difference-" + file);
    ADD_FAILURE() << file.toStdString() << ": " << share * 100 << " % of the pixels differ; see "
                  << left.toStdString();
}

TEST(PaneGolden, PanesLookAsKept)
{
    for (const auto& [name, pane] : test::GoldenPanes()) {
        Compare(name, *pane, 1);
        Compare(name, *pane, 2);
    }
}

} // namespace
} // namespace zantroq
