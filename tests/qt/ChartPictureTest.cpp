#include "qt/output/ChartPicture.h"
#include "export/ShownTable.h"
#include "qt/ChartFixture.h"
#include "qt/output/PictureFile.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QSvgRenderer>

#include <nlohmann/json.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zantroq::test {
namespace {

class CChartPictureTest : public CChartFixture
{
protected:
    QByteArray Saved(const QString& name)
    {
        const QString path = m_folder.filePath(name);
        EXPECT_EQ(Body().SavePicture(path), "");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    sChartPicture Picture(const QString& notice = {}) { return {Window(), View().size(), notice}; }
};

// The number of pixels in a part of a picture that differ from its first pixel.
int Ink(const QImage& image, const QRect& part)
{
    int ink = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            ink += image.pixel(x, y) != image.pixel(part.topLeft()) ? 1 : 0;
    return ink;
}

} // namespace

TEST_F(CChartPictureTest, HasTheClientSizeAtEveryScale)
{
    Draw();
    EXPECT_EQ(DrawChartPicture(Picture(), 1).size(), QSize(700, 500));
    EXPECT_EQ(DrawChartPicture(Picture(), 2).size(), QSize(1400, 1000));
}

TEST_F(CChartPictureTest, WithTheConveniencesItCarriesNeitherScrollMarkNorStatusLine)
{
    Draw();
    sChartPicture picture = Picture();
    const QRect below(0, View().Scroll().y() + 1, 700, 499 - View().Scroll().y());
    EXPECT_GT(Ink(DrawChartPicture(picture, 1), below), 500);
    picture.Conveniences = true;
    const QImage image = DrawChartPicture(picture, 1);
    EXPECT_EQ(image.size(), QSize(700, 500));
    EXPECT_EQ(Ink(image, below), 0);
}

TEST_F(CChartPictureTest, ASimulatedMarketIsNamedBeforeTheValues)
{
    Draw();
    const QByteArray plain = Saved("plain.csv");
    Body().SetNotice("TEST: simulated market");
    EXPECT_EQ(Saved("named.csv"), "# TEST: simulated market\n" + plain);
    Body().SetConveniences(false);
    EXPECT_EQ(Saved("off.csv"), plain);
}

TEST_F(CChartPictureTest, PanesStandWhereTheWindowHasThem)
{
    Draw();
    const QImage image = DrawChartPicture(Picture(), 1);
    for (int pane = 0; pane < Window().ShownPanes(); ++pane)
        EXPECT_GT(Ink(image, View().Pane(pane)->geometry()), 500) << pane;
}

TEST_F(CChartPictureTest, TheSameWindowWritesTheSameBytes)
{
    Draw();
    for (const QString name : {"a.png", "a.svg", "a.json"})
        EXPECT_EQ(Saved(name), Saved(name)) << name.toStdString();
}

TEST_F(CChartPictureTest, TheVectorPictureRendersLikeThePixels)
{
    Draw();
    QSvgRenderer svg(Saved("a.svg"));
    ASSERT_TRUE(svg.isValid());
    EXPECT_EQ(svg.defaultSize(), QSize(700, 500));
    QImage image(700, 500, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    svg.render(&painter);
    painter.end();
    for (int pane = 0; pane < Window().ShownPanes(); ++pane)
        EXPECT_GT(Ink(image, View().Pane(pane)->geometry()), 500) << pane;
}

TEST_F(CChartPictureTest, APdfIsOnePageWithoutTheMomentOfItsMaking)
{
    Draw();
    const QByteArray pdf = Saved("a.pdf");
    EXPECT_TRUE(pdf.startsWith("%PDF-1."));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_TRUE(pdf.contains("/CreationDate (D:20000101000000"));
    EXPECT_TRUE(pdf.contains("/Count 1"));
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 700"));
}

TEST_F(CChartPictureTest, TheMomentIsTakenOutInPlace)
{
    const QByteArray pdf = "1 0 obj /CreationDate (D:20261121103000+02'00') 9";
    EXPECT_EQ(WithoutMoment(pdf), "1 0 obj /CreationDate (D:20000101000000+00'00') 9");
    EXPECT_EQ(WithoutMoment("no date"), "no date");
}

TEST_F(CChartPictureTest, ANoticeIsInThePicture)
{
    Draw();
    const QImage plain = DrawChartPicture(Picture(), 1);
    const QImage marked = DrawChartPicture(Picture("TEST: simulated market"), 1);
    const QRect heading(350, 0, 350, 33);
    EXPECT_EQ(Ink(plain, heading), 0);
    EXPECT_GT(Ink(marked, heading), 100);
}

TEST_F(CChartPictureTest, TheStateIsJson)
{
    Draw();
    const auto state = nlohmann::json::parse(Saved("a.json").toStdString());
    EXPECT_EQ(state.at("symbol"), "TEST");
    EXPECT_EQ(state.at("range").at("count"), Days);
    EXPECT_EQ(state.at("panes").at(0).at("control"), 341);
}

TEST_F(CChartPictureTest, ShownValuesAreThoseOfTheRecording)
{
    Draw();
    std::string wanted = "date,time,open,high,low,close,volume\n";
    for (int day = 71; day <= Days; ++day) {
        char line[80];
        std::snprintf(line, sizeof line, "2020-%02d-%02d,,%d,%d,%d,%d,%d\n", 1 + (day - 1) / 28,
                      1 + (day - 1) % 28, day, day + 2, day - 1, day + 1, 1000 * day);
        wanted += line;
    }
    EXPECT_EQ(Saved("a.csv").toStdString(), wanted);
}

TEST_F(CChartPictureTest, ShownValuesAreThoseOfAllPanes)
{
    m_key->Write("MAs SHOW", std::string("1"));
    m_key->Write("Moving Average 1 Points", std::string("4"));
    for (const char* const off : {"Moving Average 2 Select", "Moving Average 3 Select"})
        m_key->Write(off, std::string("0"));
    m_key->Write("Number of displayed study charts", std::string("1"));
    m_key->Write("Type of study chart 0", std::to_string(int(StudyMomentum)));
    m_key->Write("Top of chart 1", std::string("0.5"));
    m_key->Write("Top of chart 2", std::string("1"));
    MakeChart();
    Draw();
    const QStringList lines = QString(Saved("a.csv")).split('\n');
    ASSERT_EQ(lines.size(), 1 + 30 + 1);
    EXPECT_EQ(lines[0].toStdString(), "date,time,open,high,low,close,volume,sma_4,momentum");
    // Day 100 closes at 101; the four closes end at 98, 99, 100 and 101: 99.5 in the middle.
    EXPECT_TRUE(lines[30].startsWith("2020-04-16,,100,102,99,101,100000,99.5,")) << lines[30].toStdString();
    EXPECT_EQ(lines[30].section(',', -1), "20") << "the close of 20 days before is 20 lower";
    EXPECT_EQ(Saved("b.csv").toStdString(), ShownValuesCsv(Window()));
}

TEST_F(CChartPictureTest, AWindowWithoutAChartHasNoValues)
{
    EXPECT_EQ(Saved("a.csv"), "date,time,price,volume\n");
    EXPECT_EQ(DrawChartPicture(Picture(), 1).size(), QSize(700, 500));
}

// No system has the memory for that.
TEST_F(CChartPictureTest, APictureThatMemoryDoesNotSufficeForIsRefusedNotWritten)
{
    Draw();
    const QString path = m_folder.filePath("a.png");
    EXPECT_TRUE(DrawChartPicture(Picture(), 100'000).isNull());
    EXPECT_EQ(
        SaveChartPicture(Picture(), path, 100'000),
        path + ": there is not enough memory for a picture of 70000000 x 50000000 pixels; make it smaller");
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(CChartPictureTest, WhatCannotBeWrittenIsNamed)
{
    Draw();
    const QString path = m_folder.filePath("no/such/a.png");
    EXPECT_TRUE(Body().SavePicture(path).startsWith(path + ": cannot be written"))
        << Body().SavePicture(path).toStdString();
    EXPECT_TRUE(Body().SavePicture("a.bmp").contains("use .png, .svg, .pdf, .json or .csv"));
}

TEST(PictureFile, APipeTakesTheBytesAndStaysAPipe)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath("pipe.csv").toLocal8Bit();
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    const int reader = open(path.constData(), O_RDWR | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    EXPECT_EQ(WritePictureFile(path, "date,time\n"), "");
    char text[32] = {};
    EXPECT_EQ(read(reader, text, sizeof text), 10);
    EXPECT_STREQ(text, "date,time\n");
    close(reader);
    struct stat state
    {
    };
    ASSERT_EQ(stat(path.constData(), &state), 0);
    EXPECT_TRUE(S_ISFIFO(state.st_mode));
}

TEST(PictureFile, AFolderInThePlaceOfTheFileIsNamed)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(WritePictureFile(folder.path(), "x").startsWith(folder.path() + ": cannot be written ("));
    EXPECT_TRUE(QFileInfo(folder.path()).isDir());
}

} // namespace zantroq::test
