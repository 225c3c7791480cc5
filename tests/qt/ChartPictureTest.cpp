#include "qt/ChartPicture.h"
#include "qt/ChartFixture.h"
#include "qt/PictureFile.h"
#include "qt/ShownValues.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <nlohmann/json.hpp>

namespace zantroq::test {
namespace {

class CChartPictureTest : public CChartFixture
{
protected:
    QByteArray Saved(const QString& name)
    {
        const QString path = m_folder.filePath(name);
        EXPECT_EQ(m_chart->SavePicture(path), "");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    sChartPicture Picture(const QString& notice = {}) { return {Window(), View().size(), notice}; }
};

// Pixels of a part of a picture that differ from its first one.
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
    std::string wanted = "time,open,high,low,close,volume\n";
    for (int day = 71; day <= Days; ++day) {
        char line[80];
        std::snprintf(line, sizeof line, "2020-%02d-%02d,%d,%d,%d,%d,%d\n", 1 + (day - 1) / 28,
                      1 + (day - 1) % 28, day, day + 2, day - 1, day + 1, 1000 * day);
        wanted += line;
    }
    EXPECT_EQ(ShownValuesText(Window()), wanted);
    EXPECT_EQ(Saved("a.csv").toStdString(), wanted);
}

TEST_F(CChartPictureTest, AWindowWithoutAChartHasNoValues)
{
    EXPECT_EQ(ShownValuesText(Window()), "time,open,high,low,close,volume\n");
    EXPECT_EQ(DrawChartPicture(Picture(), 1).size(), QSize(700, 500));
}

TEST_F(CChartPictureTest, WhatCannotBeWrittenIsNamed)
{
    Draw();
    const QString path = m_folder.filePath("no/such/a.png");
    EXPECT_TRUE(m_chart->SavePicture(path).startsWith(path + ": cannot be written"))
        << m_chart->SavePicture(path).toStdString();
    EXPECT_TRUE(m_chart->SavePicture("a.bmp").contains("use .png, .svg, .pdf or .json"));
}

} // namespace zantroq::test
