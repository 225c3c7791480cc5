#include "qt/GoldenPicture.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace zantroq::test {

namespace {

constexpr int PixelTolerance = 24; // a channel may differ by this much: fonts are hinted a little differently

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

} // namespace

void CompareWithGolden(const QImage& painted, const QString& file, double mostDifferent)
{
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
    if (share <= mostDifferent)
        return;
    QDir().mkpath(ZANTROQ_OUTPUT_DIR);
    const QString left = QStringLiteral(ZANTROQ_OUTPUT_DIR "/");
    painted.save(left + "painted-" + file);
    difference.save(left + "difference-" + file);
    ADD_FAILURE() << file.toStdString() << ": " << share * 100 << " % of the pixels differ; see "
                  << left.toStdString();
}

} // namespace zantroq::test
