#include "Programs.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace zantroq::test {
namespace {

class ChartPictures : public CPrograms
{
protected:
    sRun Draw(const QStringList& words)
    {
        return Chart(QStringList({"GOOG", "--data", "daily", "--feed", "embedded"}) + words);
    }
};

// Pixels of the candles' colors, a strong green or red.
int CandleInk(const QImage& image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel(image.pixel(x, y));
            ink += std::abs(pixel.red() - pixel.green()) > 150 ? 1 : 0;
        }
    return ink;
}

} // namespace

TEST_F(ChartPictures, OneRunWritesEveryKind)
{
    const sRun run =
        Draw({"--snapshot", "a.png", "--snapshot", "a.svg", "--snapshot", "a.pdf", "--snapshot", "a.json"});
    ASSERT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_EQ(run.Out + run.Err, "");
    const QImage png = QImage::fromData(Bytes("a.png"), "PNG");
    EXPECT_EQ(png.size(), QSize(620, 460));
    EXPECT_GT(CandleInk(png), 500);
    QSvgRenderer svg(Bytes("a.svg"));
    ASSERT_TRUE(svg.isValid());
    QImage vectors(620, 460, QImage::Format_RGB32);
    vectors.fill(Qt::white);
    QPainter painter(&vectors);
    svg.render(&painter);
    painter.end();
    EXPECT_GT(CandleInk(vectors), 500);
    EXPECT_FALSE(Bytes("a.svg").contains("<image")) << "vectors, not pixels";
    EXPECT_TRUE(Bytes("a.pdf").startsWith("%PDF-"));
    EXPECT_TRUE(Bytes("a.json").startsWith("{"));
}

TEST_F(ChartPictures, SizeAndScaleFactorGiveThePixels)
{
    ASSERT_EQ(Draw({"--size", "900x700", "--snapshot", "a.png"}).ExitCode, 0);
    EXPECT_EQ(QImage::fromData(Bytes("a.png")).size(), QSize(900, 700));
    QProcessEnvironment twice = Environment();
    twice.insert("QT_SCALE_FACTOR", "2");
    ASSERT_EQ(
        Run(ZANTROQ_CHART, {"GOOG", "--data", "daily", "--feed", "embedded", "--snapshot", "b.png"}, twice)
            .ExitCode,
        0);
    EXPECT_EQ(QImage::fromData(Bytes("b.png")).size(), QSize(1240, 920));
}

TEST_F(ChartPictures, TheSameRunWritesTheSameBytes)
{
    for (const QString folder : {"1", "2"})
        ASSERT_EQ(Draw({"--snapshot", folder + ".png", "--snapshot", folder + ".svg", "--snapshot",
                        folder + ".pdf", "--snapshot", folder + ".json"})
                      .ExitCode,
                  0);
    for (const QString ending : {".png", ".svg", ".pdf", ".json"})
        EXPECT_EQ(Bytes("1" + ending), Bytes("2" + ending)) << ending.toStdString();
}

TEST_F(ChartPictures, ASmallWindowStillDraws)
{
    const sRun run = Draw({"--size", "40x30", "--snapshot", "a.png"});
    EXPECT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_EQ(QImage::fromData(Bytes("a.png")).size(), QSize(40, 30));
}

TEST_F(ChartPictures, SimulatedMarketsAreCalledSo)
{
    const sRun run = Chart({"SIM.A", "--data", "daily", "--feed", "embedded", "--snapshot", "a.png"});
    ASSERT_EQ(run.ExitCode, 0) << run.Err;
    EXPECT_NE(run.Err.find("SIM.A"), std::string::npos);
    EXPECT_NE(run.Err.find("simulated"), std::string::npos);
    const sRun genuine = Draw({"--snapshot", "b.png"});
    EXPECT_EQ(genuine.Err.find("simulated"), std::string::npos) << genuine.Err;
}

} // namespace zantroq::test
