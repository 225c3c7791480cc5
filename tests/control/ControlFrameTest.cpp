// Appearance and BorderStyle on the screen.
#include "ControlFixture.h"

#include <QImage>

namespace zantroq::test {
namespace {

class ControlFrame : public CControlFixture
{
protected:
    void SetUp() override
    {
        m_control = Make();
        m_control->resize(300, 200);
        m_control->show();
    }
    QRect View() { return CChartBody::Of(*m_control).View().geometry(); }
    QImage Picture() { return m_control->grab().toImage(); }

    std::unique_ptr<CChartCtrl> m_control;
};

} // namespace

TEST_F(ControlFrame, TheChartWindowFillsAFlatControl)
{
    EXPECT_EQ(View(), QRect(0, 0, 300, 200));
    m_control->resize(400, 250);
    EXPECT_EQ(View(), QRect(0, 0, 400, 250));
}

TEST_F(ControlFrame, EdgeAndBorderTakeTheirPixelsOnEachSide)
{
    m_control->SetBorderStyle(1);
    EXPECT_EQ(View(), QRect(1, 1, 298, 198));
    m_control->SetAppearance(1);
    EXPECT_EQ(View(), QRect(3, 3, 294, 194));
    m_control->SetBorderStyle(0);
    EXPECT_EQ(View(), QRect(2, 2, 296, 196));
    m_control->SetAppearance(0);
    EXPECT_EQ(View(), QRect(0, 0, 300, 200));
}

TEST_F(ControlFrame, AResizedControlKeepsItsFrame)
{
    m_control->SetAppearance(1);
    m_control->resize(500, 300);
    EXPECT_EQ(View(), QRect(2, 2, 496, 296));
}

TEST_F(ControlFrame, ASingleLineHasTheTextsColorAllAround)
{
    m_control->SetBorderStyle(1);
    const QImage picture = Picture();
    const QRgb line = m_control->palette().color(QPalette::WindowText).rgb();
    for (const QPoint& point : {QPoint(0, 0), QPoint(299, 0), QPoint(0, 199), QPoint(299, 199),
                                QPoint(150, 0), QPoint(0, 100), QPoint(299, 100), QPoint(150, 199)})
        EXPECT_EQ(picture.pixel(point), line) << point.x() << ", " << point.y();
}

TEST_F(ControlFrame, ASunkenControlIsDarkAboveAndLightBelow)
{
    m_control->SetAppearance(1);
    const QImage picture = Picture();
    for (int depth = 0; depth < 2; ++depth) {
        EXPECT_EQ(picture.pixel(150, depth), m_control->palette().dark().color().rgb());
        EXPECT_EQ(picture.pixel(depth, 100), m_control->palette().dark().color().rgb());
        EXPECT_EQ(picture.pixel(150, 199 - depth), m_control->palette().light().color().rgb());
        EXPECT_EQ(picture.pixel(299 - depth, 100), m_control->palette().light().color().rgb());
    }
}

TEST_F(ControlFrame, AControlSmallerThanItsFrameStillWorks)
{
    m_control->SetAppearance(1);
    m_control->SetBorderStyle(1);
    m_control->setMinimumSize(0, 0);
    m_control->resize(4, 4);
    Picture();
    EXPECT_EQ(View().size(), QSize(0, 0));
}

} // namespace zantroq::test
