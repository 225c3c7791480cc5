// The bars around the panes, without a chart window.
#include "qt/widgets/ChartBars.h"
#include "qt/widgets/ChartScrollBar.h"
#include "qt/widgets/CommandIcons.h"
#include "qt/widgets/DesktopLook.h"
#include "qt/widgets/StatusLine.h"
#include "window/WindowCommands.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <cmath>

using namespace zantroq;

namespace {

class CBarsTest : public testing::Test
{
protected:
    CBarsTest()
    {
        m_bars.Symbol().OnChanged = [this] { ++m_changes; };
        m_bars.Symbol().OnEnter = [this] { ++m_enters; };
        m_bars.Commands().OnCommand = [this](int command) { m_commands.push_back(command); };
        m_bars.Type().OnChosen = m_bars.Interval().OnChosen = [this] { ++m_choices; };
        m_bars.resize(700, 40);
        m_bars.LayOut(700);
    }
    void Type(const QString& text) { QTest::keyClicks(&m_bars.Symbol(), text); }

    CChartBars m_bars{nullptr};
    int m_changes = 0, m_enters = 0, m_choices = 0;
    std::vector<int> m_commands;
};

int Ink(const QImage& image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ink += qAlpha(image.pixel(x, y));
    return ink;
}

} // namespace

TEST_F(CBarsTest, ButtonsStandInTheirOrderWithTheirTexts)
{
    QStringList texts;
    int left = -1;
    for (const QToolButton* button : m_bars.Commands().findChildren<QToolButton*>()) {
        EXPECT_GT(button->x(), left);
        left = button->x();
        texts << button->defaultAction()->text();
        EXPECT_EQ(button->toolTip(), button->defaultAction()->text().trimmed());
        EXPECT_EQ(button->accessibleName(), button->defaultAction()->text().trimmed());
    }
    EXPECT_EQ(texts, QStringList({"Symbol Search", "Draw Chart", "Settings", "Print", "Zoom In ", "Zoom Out",
                                  "Grid Settings", "Price Bar Show/Hide"}));
    EXPECT_EQ(left + 25, CCommandBar::ToolbarWidth() - 2);
}

TEST_F(CBarsTest, APressReportsTheCommandAndLeavesTheCheckToTheWindow)
{
    m_bars.Commands().Check(CommandGrid, true);
    m_bars.Commands().Action(CommandGrid)->trigger();
    EXPECT_EQ(m_commands, std::vector<int>{CommandGrid});
    EXPECT_TRUE(m_bars.Commands().Action(CommandGrid)->isChecked());
    m_bars.Commands().Check(CommandGrid, false);
    EXPECT_FALSE(m_bars.Commands().Action(CommandGrid)->isChecked());
    EXPECT_FALSE(m_bars.Commands().IsChecked(CommandGrid));
}

TEST_F(CBarsTest, ADisabledButtonReportsNothing)
{
    m_bars.Commands().Enable(CommandZoomIn, false);
    m_bars.Commands().Action(CommandZoomIn)->trigger();
    EXPECT_TRUE(m_commands.empty());
    EXPECT_FALSE(m_bars.Commands().IsEnabled(CommandZoomIn));
    EXPECT_TRUE(m_bars.Commands().IsEnabled(CommandRestoreBars)) << "a command without a button";
    m_bars.Commands().Enable(CommandRestoreBars, false);
    EXPECT_FALSE(m_bars.Commands().IsEnabled(CommandRestoreBars));
}

TEST_F(CBarsTest, TypedTextTurnsToCapitalsAsItComes)
{
    Type("goog");
    EXPECT_EQ(m_bars.Symbol().Text(), "GOOG");
    EXPECT_EQ(m_changes, 4);
    EXPECT_EQ(m_bars.Symbol().Selection(), -1);
}

TEST_F(CBarsTest, TextBeyondThirtyCharactersIsCutAndTheCaretStays)
{
    const QString thirty = "ABCDEFGHIJKLMNOPQRSTUVWXYZABCD";
    Type(thirty);
    m_bars.Symbol().lineEdit()->setCursorPosition(2);
    Type("x");
    EXPECT_EQ(m_bars.Symbol().Text(), "ABXCDEFGHIJKLMNOPQRSTUVWXYZABC");
    EXPECT_EQ(m_bars.Symbol().lineEdit()->cursorPosition(), 3);
}

TEST_F(CBarsTest, EnterIsReportedAndNeverReachesTheBox)
{
    m_bars.Symbol().SetItems({"AAA", "BBB"});
    Type("b");
    QTest::keyClick(&m_bars.Symbol(), Qt::Key_Return);
    QTest::keyClick(&m_bars.Symbol(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(m_enters, 2);
    EXPECT_EQ(m_bars.Symbol().Text(), "B");
    EXPECT_EQ(m_bars.Symbol().Items(), (std::vector<std::string>{"AAA", "BBB"}));
}

TEST_F(CBarsTest, WhatIsTypedAfterEnterIsAnotherSymbol)
{
    Type("goog");
    QTest::keyClick(&m_bars.Symbol(), Qt::Key_Return);
    Type("ms");
    EXPECT_EQ(m_bars.Symbol().Text(), "MS");
}

TEST_F(CBarsTest, AnEnterKeyHeldDownIsOneEnter)
{
    Type("goog");
    for (const bool again : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", again);
        QApplication::sendEvent(&m_bars.Symbol(), &press);
    }
    EXPECT_EQ(m_enters, 1);
}

TEST_F(CBarsTest, WhatTheWindowSetsIsNotToldBack)
{
    m_bars.Symbol().SetItems({"AAA", "BBB"});
    m_bars.Symbol().SetText("CCC");
    m_bars.Symbol().Select(1);
    m_bars.Type().Select(2);
    EXPECT_EQ(m_changes, 0);
    EXPECT_EQ(m_choices, 0);
    EXPECT_EQ(m_bars.Symbol().Text(), "BBB");
    EXPECT_EQ(m_bars.Symbol().Selection(), 1);
}

TEST_F(CBarsTest, TypingEndsTheSelection)
{
    m_bars.Symbol().SetItems({"AAA", "BBB"});
    m_bars.Symbol().Select(0);
    m_bars.Symbol().lineEdit()->end(false);
    Type("b");
    EXPECT_EQ(m_bars.Symbol().Selection(), -1);
    EXPECT_EQ(m_bars.Symbol().Text(), "AAAB");
}

TEST_F(CBarsTest, FocusAtEndPutsTheCaretBehindTheText)
{
    m_bars.show();
    m_bars.Symbol().SetText("AB");
    m_bars.Symbol().lineEdit()->setCursorPosition(0);
    m_bars.Symbol().FocusAtEnd();
    EXPECT_EQ(m_bars.Symbol().lineEdit()->cursorPosition(), 2);
    EXPECT_FALSE(m_bars.Symbol().lineEdit()->hasSelectedText());
}

TEST_F(CBarsTest, BoxesHoldTheirItems)
{
    EXPECT_EQ(DataTypeItems(), QStringList({"Tick", "Minute", "Daily", "Weekly", "Monthly"}));
    EXPECT_EQ(IntervalItems(),
              QStringList({"1-Minute", "2-Minute", "3-Minute", "4-Minute", "5-Minute", "10-Minute",
                           "15-Minute", "30-Minute", "45-Minute", "1-Hour", "2-Hour"}));
    EXPECT_EQ(m_bars.Type().count(), 5);
    EXPECT_EQ(m_bars.Interval().count(), 11);
    EXPECT_EQ(m_bars.Type().Selection(), -1);
}

TEST_F(CBarsTest, AUsersChoiceIsReported)
{
    m_bars.show();
    m_bars.Type().Select(0);
    m_bars.Type().setFocus();
    QTest::keyClick(&m_bars.Type(), Qt::Key_Down);
    EXPECT_EQ(m_choices, 1);
    EXPECT_EQ(m_bars.Type().Selection(), 1);
}

TEST_F(CBarsTest, OneRowAtTheUsualWidthTwoInANarrowWindow)
{
    EXPECT_EQ(m_bars.LayOut(900), 32);
    EXPECT_EQ(m_bars.LayOut(620), 32);
    EXPECT_GE(m_bars.Symbol().width(), 120);
    EXPECT_LE(m_bars.Interval().geometry().right(), 620);
    EXPECT_EQ(m_bars.LayOut(400), 64);
    EXPECT_LE(m_bars.Interval().geometry().right(), 400);
    EXPECT_FALSE(m_bars.Symbol().geometry().intersects(m_bars.Interval().geometry()));
}

TEST(CommandIcons, EachButtonHasADrawingAtEveryScaleAndAPalerOneAtRest)
{
    for (const sToolbarCommand& row : ToolbarCommands) {
        const QIcon icon = NamedIcon(row.Icon, QApplication::palette());
        for (const int size : {18, 27, 36}) {
            const QImage usual = icon.pixmap(QSize(size, size), 1.0).toImage();
            ASSERT_EQ(usual.size(), QSize(size, size));
            EXPECT_GT(Ink(usual), 10 * size * size) << row.Name;
            EXPECT_LT(Ink(icon.pixmap(QSize(size, size), 1.0, QIcon::Disabled).toImage()), Ink(usual))
                << row.Name;
        }
    }
    EXPECT_TRUE(NamedIcon("no-such-drawing", QApplication::palette()).isNull());
}

TEST(StatusLine, PartsEndAtTheirEdges)
{
    EXPECT_EQ(CStatusLine::PartRect(0, 620), QRect(0, 0, 462, 20));
    EXPECT_EQ(CStatusLine::PartRect(1, 620), QRect(462, 0, 85, 20));
    EXPECT_EQ(CStatusLine::PartRect(2, 620), QRect(547, 0, 73, 20));
}

TEST(StatusLine, ALastTradeWithoutRoomLosesItsSizeAndNeverHalfANumber)
{
    QFont font;
    font.setPixelSize(12);
    // The smallest width in which a text is shown; letters get slightly narrower before anything is cut.
    const auto width = [&font](const QString& text) {
        return QFontMetrics(font).horizontalAdvance(text) * 78 / 100 + 1;
    };
    const auto shown = [&font](const QString& text, int room) {
        return CStatusLine::ShortTrade(text, font, room).toStdString();
    };
    EXPECT_EQ(shown("362.78 x 8164321", width("362.78 x 8164321")), "362.78 x 8164321");
    EXPECT_EQ(shown("362.78 x 8164321", width("362.78 x 8.2M")), "362.78 x 8.2M");
    EXPECT_EQ(shown("362.78 x 1290000000", width("362.78 x 1.3B")), "362.78 x 1.3B");
    EXPECT_EQ(shown("362.78 x 88912", width("362.78 x 89K")), "362.78 x 89K");
    EXPECT_EQ(shown("362.78 x 8164321", width("362.78")), "362.78");
    EXPECT_EQ(shown("", 67), "");
}

TEST(StatusLine, ALastTradesPartGrowsAtTheCostOfTheFirst)
{
    CStatusLine line(nullptr);
    line.resize(400, CStatusLine::LineHeight);
    line.SetPart(2, "1015.20 x 123456789");
    EXPECT_EQ(line.Room(2), CStatusLine::PartRect(2, 400)) << "it is off at the start";
    line.SetGrowing(true);
    EXPECT_GE(line.Room(2).width(), line.fontMetrics().horizontalAdvance("1015.20 x 123456789"));
    EXPECT_EQ(line.Room(2).right(), 399);
    EXPECT_EQ(line.Room(1).width(), CStatusLine::PartRect(1, 400).width());
    EXPECT_EQ(line.Room(0).right() + 1, line.Room(1).left());
    EXPECT_EQ(line.Room(1).right() + 1, line.Room(2).left());
    line.SetPart(2, "1 x 1");
    EXPECT_EQ(line.Room(0), CStatusLine::PartRect(0, 400)) << "a short text leaves the parts as they are";
}

TEST(StatusLine, AnotherLastTradeStandsInItsPartOnlyWhileThereIsOne)
{
    CStatusLine line(nullptr);
    line.SetGrowing(true);
    line.SetLastTrade("10.5 x 3");
    EXPECT_EQ(line.LastTrade(), "") << "the setting is off";
    line.SetPart(2, "10.5 x 999");
    EXPECT_EQ(line.LastTrade(), "10.5 x 3");
    EXPECT_EQ(line.Part(2), "10.5 x 999");
    line.SetLastTrade({});
    EXPECT_EQ(line.LastTrade(), "10.5 x 999");
}

TEST(MessageBoxPicture, EachKindHasOne)
{
    for (const char* const name : {"question", "error"})
        EXPECT_FALSE(NamedIcon(name, QApplication::palette()).pixmap(QSize(32, 32), 2).isNull()) << name;
    EXPECT_TRUE(NamedIcon("no-such", QApplication::palette()).isNull());
}

// Relative luminance and contrast as the web's accessibility guidelines define them (WCAG 2.1, 2018).
double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const double a = Luminance(one), b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(DesktopLook, DarkTextsCanBeRead)
{
    const QPalette dark = DarkPalette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[]{
        {QPalette::WindowText, QPalette::Window},        {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::Text, QPalette::AlternateBase},       {QPalette::Link, QPalette::Base},
        {QPalette::HighlightedText, QPalette::Highlight}};
    for (const auto& [text, back] : pairs) {
        EXPECT_GE(Contrast(dark.color(text), dark.color(back)), back == QPalette::Highlight ? 4.0 : 4.5)
            << text << " on " << back;
        EXPECT_GE(Contrast(dark.color(QPalette::Disabled, text), dark.color(QPalette::Disabled, back)), 2.5)
            << text << " at rest on " << back;
    }
}

namespace {

class CScrollBarTest : public testing::Test
{
protected:
    CScrollBarTest()
    {
        m_bar.OnScroll = [this](ScrollCode code, int position) { m_scrolls.emplace_back(code, position); };
        m_bar.resize(400, 15);
        m_bar.SetRange(0, 100);
        m_bar.SetPage(30);
    }
    CChartScrollBar m_bar{nullptr};
    std::vector<std::pair<ScrollCode, int>> m_scrolls;
};

} // namespace

TEST_F(CScrollBarTest, PositionIsHeldBetweenZeroAndTheLimit)
{
    EXPECT_EQ(m_bar.Limit(), 71);
    m_bar.SetPosition(500);
    EXPECT_EQ(m_bar.Position(), 71);
    EXPECT_EQ(m_bar.value(), m_bar.maximum()) << "the thumb stands at its end";
    m_bar.SetPosition(-56);
    EXPECT_EQ(m_bar.Position(), 0);
}

TEST_F(CScrollBarTest, AShortSeriesHoldsThePositionAtZero)
{
    m_bar.SetPosition(50);
    m_bar.SetRange(0, 3);
    EXPECT_EQ(m_bar.Limit(), -26);
    EXPECT_EQ(m_bar.Position(), 0);
}

TEST_F(CScrollBarTest, ActionsAreReportedAndTheWindowMovesTheBar)
{
    m_bar.SetPosition(40);
    for (const auto action : {QAbstractSlider::SliderSingleStepSub, QAbstractSlider::SliderSingleStepAdd,
                              QAbstractSlider::SliderPageStepSub, QAbstractSlider::SliderPageStepAdd,
                              QAbstractSlider::SliderToMinimum, QAbstractSlider::SliderToMaximum})
        m_bar.triggerAction(action);
    using enum ScrollCode;
    const std::vector<std::pair<ScrollCode, int>> wanted{{LineLeft, 0},  {LineRight, 0}, {PageLeft, 0},
                                                         {PageRight, 0}, {LeftEnd, 0},   {RightEnd, 0}};
    EXPECT_EQ(m_scrolls, wanted);
    EXPECT_EQ(m_bar.value(), 40);
    EXPECT_EQ(m_bar.sliderPosition(), 40);
}

TEST_F(CScrollBarTest, ADraggedThumbTracksAndThenTakesItsPosition)
{
    m_bar.SetPosition(40);
    m_bar.setSliderDown(true);
    m_bar.setSliderPosition(50);
    EXPECT_EQ(m_scrolls.back(), std::pair(ScrollCode::ThumbTrack, 50));
    EXPECT_EQ(m_bar.Position(), 40) << "the window has not drawn yet";
    m_scrolls.clear();
    m_bar.OnScroll = [this](ScrollCode code, int position) {
        m_scrolls.emplace_back(code, position);
        if (code == ScrollCode::EndScroll)
            m_bar.SetPosition(50);
    };
    m_bar.setSliderDown(false);
    ASSERT_EQ(m_scrolls.size(), 2u);
    EXPECT_EQ(m_scrolls[0], std::pair(ScrollCode::ThumbPosition, 50));
    EXPECT_EQ(m_scrolls[1].first, ScrollCode::EndScroll);
    EXPECT_EQ(m_bar.Position(), 50);
}

TEST_F(CScrollBarTest, AThumbInTheHandStaysThereWhileTheWindowMovesTheBar)
{
    m_bar.SetPosition(71);
    m_bar.setSliderDown(true);
    m_bar.setSliderPosition(50);
    m_scrolls.clear();
    // New points arrive while the thumb is held: the window moves the bar.
    m_bar.SetRange(0, 101);
    m_bar.SetPosition(72);
    EXPECT_EQ(m_bar.Position(), 72);
    EXPECT_EQ(m_bar.sliderPosition(), 50);
    EXPECT_TRUE(m_scrolls.empty()) << "the hand did not move";
    m_bar.setSliderDown(false);
    ASSERT_EQ(m_scrolls.size(), 2u);
    EXPECT_EQ(m_scrolls[0], std::pair(ScrollCode::ThumbPosition, 50));
}
