// The control with a real chart window and a real feed.
#include "export/ChartSnapshot.h"
#include "qt/ChartFixture.h"
#include "qt/dialogs/MessageBox.h"
#include "qt/dialogs/PictureDialog.h"
#include "trends/TrendPrompts.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QTimer>
#include <QWheelEvent>

namespace zantroq::test {
namespace {

class CChartCtrlTest : public CChartFixture
{
protected:
    int First() { return Window().Range().first; }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&View(), key, modifiers); }
    void Wheel(int turn, Qt::KeyboardModifiers modifiers = {})
    {
        QWheelEvent event(QPointF(100, 100), QPointF(100, 100), QPoint(), QPoint(0, turn), Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&View(), &event);
    }
    void Show()
    {
        m_chart->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_chart.get()));
    }
};

QMenu* OpenPopup()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

} // namespace

TEST_F(CChartCtrlTest, ASymbolBecomesAChart)
{
    EXPECT_EQ(View().Status().Part(0), "Ready...");
    Draw();
    EXPECT_EQ(m_chart->windowTitle(), "TEST - Chart");
    EXPECT_EQ(View().Bars().Symbol().Text(), "TEST");
    EXPECT_EQ(m_chart->StockSymbol(), "TEST");
    EXPECT_EQ(Window().Pane(0).PaneGroups(1).PaneData().PointY(1, 30), Days + 2) << "the last high";
}

TEST_F(CChartCtrlTest, ATitleWithTheToolkitsMarkReadsAsItWasSet)
{
    m_chart->SetStockSymbol("A[*]B");
    EXPECT_EQ(m_chart->windowTitle(), "A[*][*]B - Chart") << "how the toolkit is told to show the text";
    EXPECT_EQ(Window().Services().Top.Title(), "A[*]B - Chart");
}

TEST_F(CChartCtrlTest, BarsAndPanesFillTheClientArea)
{
    Draw();
    EXPECT_EQ(View().size(), QSize(700, 500));
    EXPECT_EQ(View().Status().geometry(), QRect(0, 480, 700, 20));
    EXPECT_EQ(View().Scroll().geometry(), QRect(0, 465, 700, 15));
    EXPECT_EQ(View().Pane(0)->geometry().top(), 34);
    EXPECT_EQ(View().Pane(0)->width(), 700);
    Body().SetClientSize({500, 400});
    EXPECT_EQ(View().Status().geometry(), QRect(0, 380, 500, 20));
    EXPECT_EQ(View().Pane(0)->geometry().top(), 66) << "two rows of bars";
}

TEST_F(CChartCtrlTest, ArrowPageHomeAndEndKeysScroll)
{
    Draw();
    Key(Qt::Key_Left);
    Key(Qt::Key_Left);
    EXPECT_EQ(First(), 69);
    Key(Qt::Key_Right);
    Key(Qt::Key_Right);
    EXPECT_EQ(First(), 70);
    Key(Qt::Key_PageUp);
    EXPECT_EQ(First(), 41);
    Key(Qt::Key_PageDown);
    EXPECT_EQ(First(), 70);
    Key(Qt::Key_Home);
    EXPECT_EQ(First(), 0);
    Key(Qt::Key_End);
    EXPECT_EQ(First(), 70);
}

TEST_F(CChartCtrlTest, ANotchOfTheWheelIsThreeLineSteps)
{
    Draw();
    Wheel(120);
    EXPECT_EQ(First(), 68);
    Wheel(60);
    EXPECT_EQ(First(), 68) << "half a notch waits for the other half";
    Wheel(60);
    EXPECT_EQ(First(), 65);
    Wheel(-240);
    EXPECT_EQ(First(), 70);
}

TEST_F(CChartCtrlTest, ControlWithPlusMinusOrTheWheelZooms)
{
    Draw();
    Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Window().Range().shown, 60);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Window().Range().shown, 30);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Window().Range().shown, 30) << "zoom in is disabled here";
    Wheel(-120, Qt::ControlModifier);
    EXPECT_EQ(Window().Range().shown, 60);
    Wheel(120, Qt::ControlModifier);
    EXPECT_EQ(Window().Range().shown, 30);
}

TEST_F(CChartCtrlTest, EscapeRemovesAHalfDrawnTrendline)
{
    Draw();
    Window().OnCommand(DrawSloping);
    Window().OnChartMouseDown(FirstPaneControl, MouseLeft, 0, 200, 100);
    Window().OnChartMouseMove(FirstPaneControl, MouseNone, 0, 300, 80);
    ASSERT_EQ(Window().Trends().Count(), 1);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Window().Trends().Count(), 0);
    EXPECT_EQ(Window().Trends().State(), 0);
    EXPECT_EQ(Window().StatusPart(0), "Ready");
}

TEST_F(CChartCtrlTest, EscapeEndsTheModeThatDeletesTrendlines)
{
    Draw();
    Window().OnCommand(AskDeleteTrend);
    ASSERT_NE(Window().Trends().State(), 0);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Window().Trends().State(), 0);
}

TEST_F(CChartCtrlTest, EscapeClosesTheNoteAtAPoint)
{
    Draw();
    CPaneLabel& note = Window().Pane(0).PaneLabels().Item(1);
    int x = 0, y = 0;
    Window().Pane(0).PaneGroups(1).PointToPixel(1, 15, x, y);
    Window().OnChartMouseDown(FirstPaneControl, MouseLeft, 0, x, y);
    ASSERT_TRUE(note.Shown());
    Key(Qt::Key_Escape);
    EXPECT_FALSE(note.Shown());
}

TEST_F(CChartCtrlTest, EscapeInTheSymbolBoxBringsBackTheSymbolOnShow)
{
    Draw();
    CSymbolBox& box = View().Bars().Symbol();
    box.TypeText("OTH");
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(box.Text(), "TEST");
    EXPECT_EQ(Window().CurrentSymbol(), "TEST");
    Body().SetConveniences(false);
    box.TypeText("OTH");
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(box.Text(), "OTH");
}

TEST_F(CChartCtrlTest, APickFromTheSymbolBoxDraws)
{
    Draw();
    CSymbolBox& box = View().Bars().Symbol();
    box.SetItems({"WAVE", "TEST"});
    for (const bool on : {false, true}) {
        Body().SetConveniences(on);
        box.showPopup();
        box.setCurrentIndex(0);
        emit box.activated(0);
        box.hidePopup();
        EXPECT_EQ(Window().CurrentSymbol(), on ? "WAVE" : "TEST");
    }
}

TEST_F(CChartCtrlTest, AnArrowKeyInTheSymbolBoxDrawsNothing)
{
    Draw();
    CSymbolBox& box = View().Bars().Symbol();
    box.SetItems({"WAVE", "OTHER", "TEST"});
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_NE(box.Text(), "TEST");
    EXPECT_EQ(Window().CurrentSymbol(), "TEST");
}

TEST_F(CChartCtrlTest, EscapeIsTheHostsWhereTheConveniencesAreOff)
{
    Draw();
    Body().SetConveniences(false);
    Window().OnCommand(DrawSloping);
    Key(Qt::Key_Escape);
    EXPECT_NE(Window().Trends().State(), 0);
}

TEST_F(CChartCtrlTest, TheStateIsTheSameWithTheConveniencesOnAndOff)
{
    Draw();
    const std::string on = ChartSnapshotText(Window());
    Body().SetConveniences(false);
    EXPECT_EQ(ChartSnapshotText(Window()), on);
}

TEST_F(CChartCtrlTest, AHostCanSwitchTheConveniencesOff)
{
    Draw();
    Body().SetConveniences(false);
    const int first = First();
    Key(Qt::Key_Left);
    Wheel(120);
    Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(First(), first);
    EXPECT_EQ(Window().Range().shown, 30);
}

TEST_F(CChartCtrlTest, ACharacterTypedOverAPaneStartsASymbol)
{
    Draw();
    Show();
    QTest::keyClick(View().Pane(0), 'g');
    EXPECT_EQ(View().Bars().Symbol().Text(), "G");
    EXPECT_TRUE(View().Bars().Symbol().lineEdit()->hasFocus() || View().Bars().Symbol().hasFocus());
    QTest::keyClicks(&View().Bars().Symbol(), "oog");
    EXPECT_EQ(View().Bars().Symbol().Text(), "GOOG");
}

TEST_F(CChartCtrlTest, TheKeyboardIsThePricePanesFromTheStart)
{
    Draw();
    Show();
    QApplication::setActiveWindow(m_chart.get());
    m_chart->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), View().Pane(0));
    QTest::keyClick(QApplication::focusWidget(), 'm');
    EXPECT_EQ(View().Bars().Symbol().Text(), "M");
    ASSERT_EQ(QApplication::focusWidget(), &View().Bars().Symbol());
    QTest::keyClicks(QApplication::focusWidget(), "sft");
    EXPECT_EQ(View().Bars().Symbol().Text(), "MSFT");
}

TEST_F(CChartCtrlTest, EnterInTheSymbolBoxDraws)
{
    Draw();
    QTest::keyClicks(&View().Bars().Symbol(), "");
    QTest::keyClick(&View().Bars().Symbol(), Qt::Key_Return);
    EXPECT_EQ(Window().Loading(), 1);
    EXPECT_TRUE(PumpUntil([this] { return Window().CompleteAndDrawn(); }));
}

TEST_F(CChartCtrlTest, EnterOnAnEmptyBoxDoesNothingAndTheCommandSaysWhy)
{
    QTest::keyClick(&View().Bars().Symbol(), Qt::Key_Return);
    EXPECT_TRUE(Window().AskedBoxes().empty());
    EXPECT_EQ(Window().Loading(), 0);
    Window().OnCommand(CommandDrawChart);
    ASSERT_EQ(Window().AskedBoxes().size(), 1u);
    EXPECT_EQ(Window().AskedBoxes()[0].Text, "Empty Symbol is not allowed");
    EXPECT_EQ(Window().AskedBoxes()[0].Caption, "Warning");
}

TEST_F(CChartCtrlTest, TheScrollBarRestsWhileAChartLoads)
{
    Draw();
    m_chart->SetStockSymbol("NOSUCH");
    EXPECT_EQ(Window().Loading(), 1);
    EXPECT_FALSE(View().Scroll().isEnabledTo(&View()));
    const int first = First();
    Key(Qt::Key_Left);
    EXPECT_EQ(First(), first);
}

TEST_F(CChartCtrlTest, MouseOverABarMovesTheMarker)
{
    Draw();
    Show();
    QTest::mouseMove(View().Pane(0), QPoint(View().Pane(0)->width() / 2, View().Pane(0)->height() / 2));
    EXPECT_TRUE(PumpUntil([this] { return Window().SelectedPoint() > 0; }, 2000));
}

TEST_F(CChartCtrlTest, ABorderTakesTheSplitCursorAndADragMovesIt)
{
    Draw();
    Show();
    ASSERT_GE(Window().ShownPanes(), 2);
    CPaneWidget* upper = View().Pane(0);
    const int before = upper->height();
    const QPoint border(200, before - 1);
    QTest::mouseMove(upper, border);
    ASSERT_TRUE(PumpUntil([&] { return upper->cursor().shape() == Qt::SplitVCursor; }, 2000));
    QTest::mousePress(upper, Qt::LeftButton, {}, border);
    QTest::mouseMove(upper, border - QPoint(0, 40));
    QTest::mouseRelease(upper, Qt::LeftButton, {}, border - QPoint(0, 40));
    EXPECT_EQ(upper->height(), before - 41);
    EXPECT_EQ(View().Pane(1)->y(), upper->geometry().bottom() + 1);
}

TEST_F(CChartCtrlTest, TheMenuKeyOpensTheMenuOfThePane)
{
    Draw();
    Show();
    Key(Qt::Key_F10);
    QMenu* menu = OpenPopup();
    ASSERT_NE(menu, nullptr);
    QStringList texts;
    for (const QAction* action : menu->actions())
        if (!action->isSeparator())
            texts << action->text();
    EXPECT_EQ(texts, QStringList({"Draw Trendlines", "Delete Trendline..", "Delete All Trendlines",
                                  "Restore Ticks", "Restore Bars", "Maximize", "Minimize", "Restore",
                                  "Copy picture", "Save picture...", "Print..."}));
    QAction* maximize = menu->actions().at(7);
    for (QAction* action : menu->actions())
        if (action->text() == "Maximize")
            maximize = action;
    menu->setActiveAction(maximize);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_TRUE(PumpUntil([this] { return Window().IsCollapsed(1); }, 2000));
    EXPECT_FALSE(Window().OpenMenu().has_value());
}

TEST_F(CChartCtrlTest, AMenuClosedWithoutAPickIsForgotten)
{
    Draw();
    Show();
    Key(Qt::Key_Menu);
    ASSERT_NE(OpenPopup(), nullptr);
    EXPECT_TRUE(Window().OpenMenu().has_value());
    OpenPopup()->close();
    EXPECT_TRUE(PumpUntil([this] { return !Window().OpenMenu().has_value(); }, 2000));
}

TEST_F(CChartCtrlTest, TheMenuOfAHostWithoutConveniencesHasNoPictureItems)
{
    Draw();
    Body().SetConveniences(false);
    Show();
    Window().OpenPaneMenu(0, 10, 10);
    QMenu* menu = OpenPopup();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().last()->text(), "Restore");
    menu->close();
}

TEST_F(CChartCtrlTest, ControlWithPAndThePrintButtonOpenThePrintDialogAndGiveTheFocusBack)
{
    Draw();
    Show();
    int asked = 0;
    QTimer cancel;
    cancel.setInterval(20);
    QObject::connect(&cancel, &QTimer::timeout, &cancel, [&asked] {
        if (auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
            ++asked;
            dialog->reject();
        }
    });
    cancel.start();
    QApplication::setActiveWindow(m_chart.get());
    View().Pane(0)->setFocus();
    const QString status = View().Status().Part(0);
    QTest::keyClick(View().Pane(0), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(m_chart->window()->focusWidget(), View().Pane(0));
    EXPECT_EQ(View().Bars().Symbol().Text(), "TEST") << "a shortcut is no typed character";
    ASSERT_TRUE(View().Bars().Commands().IsEnabled(CommandPrint));
    View().Bars().Commands().Action(CommandPrint)->trigger();
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(View().Status().Part(0), status) << "a cancelled dialog says nothing";
}

TEST_F(CChartCtrlTest, PrintRestsWhileAChartLoads)
{
    Draw();
    m_chart->SetStockSymbol("NOSUCH");
    EXPECT_FALSE(View().MayRun(CommandPrint));
    Key(Qt::Key_P, Qt::ControlModifier); // a dialog would never end here
}

TEST_F(CChartCtrlTest, PrintsOntoAFileAndNamesOneThatCannotBeWritten)
{
    Draw();
    const QString path = m_folder.filePath("page.pdf");
    EXPECT_EQ(Body().PrintToFile(path), "");
    QFile page(path);
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll().startsWith("%PDF-"));
    EXPECT_EQ(View().Status().Part(0), "Ready");
    const QString nowhere = m_folder.filePath("no/such/page.pdf");
    EXPECT_TRUE(Body().PrintToFile(nowhere).startsWith(nowhere + ": cannot be written ("));
}

TEST_F(CChartCtrlTest, SavePictureTakesItsKindFromTheDialogAndSaysWhatCannotBeWritten)
{
    Draw();
    Show();
    const auto save = [this](const QString& filter, const QString& name) {
        QString proposed;
        QTimer answer;
        answer.setInterval(20);
        QObject::connect(&answer, &QTimer::timeout, &answer, [&] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (auto* const box = qobject_cast<QMessageBox*>(modal)) // a file that exists
                return box->button(QMessageBox::Yes)->click();
            auto* const dialog = qobject_cast<QFileDialog*>(modal);
            if (dialog == nullptr)
                return;
            auto* const kinds = dialog->findChild<QComboBox*>("fileTypeCombo");
            kinds->setCurrentIndex(kinds->findText(filter));
            emit kinds->activated(kinds->currentIndex());
            emit kinds->textActivated(filter);
            proposed = QFileInfo(dialog->selectedFiles().value(0)).fileName();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(name);
            QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
        });
        Key(Qt::Key_F10);
        for (QAction* const action : OpenPopup()->actions())
            if (action->text() == "Save picture...") {
                OpenPopup()->setActiveAction(action);
                break;
            }
        answer.start();
        QTest::keyClick(OpenPopup(), Qt::Key_Return);
        QTest::qWait(50);
        return proposed;
    };
    EXPECT_EQ(save("PDF (*.pdf)", m_folder.filePath("named")), "TEST.pdf");
    QFile pdf(m_folder.filePath("named.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.readAll().startsWith("%PDF-"));
    EXPECT_TRUE(Window().AskedBoxes().empty());

    EXPECT_EQ(save("Shown values (*.csv)", m_folder.filePath("no/such/a.csv")), "TEST.csv");
    ASSERT_EQ(Window().AskedBoxes().size(), 1u);
    EXPECT_EQ(Window().AskedBoxes()[0].Caption, "Save picture");
    EXPECT_EQ(Window().AskedBoxes()[0].Text,
              m_folder.filePath("no/such/a.csv").toStdString() +
                  ": cannot be written (no such file or directory); choose another place");
}

TEST(MessageBox, WithoutACaptionItsTitleIsBlankAndEscapeMeansNo)
{
    QWidget window;
    CMessageBox boxes(window);
    const auto ask = [&boxes](const std::string& caption, QString& title) {
        QTimer answer;
        answer.setInterval(20);
        QObject::connect(&answer, &QTimer::timeout, &answer, [&title] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            title = box->windowTitle();
            QTest::keyClick(box, Qt::Key_Escape);
        });
        answer.start();
        return boxes.Ask("Delete flashing trendline?", caption, BoxButtons::YesNo, BoxIcon::Question);
    };
    QString title;
    EXPECT_EQ(ask("", title), BoxAnswer::No);
    EXPECT_EQ(title, " ");
    EXPECT_EQ(ask("Restoring ticks", title), BoxAnswer::No);
    EXPECT_EQ(title, "Restoring ticks");
}

TEST(PictureDialog, ProposesANameThatAFileMayHave)
{
    EXPECT_EQ(PictureName("GOOG"), "GOOG.png");
    EXPECT_EQ(PictureName("BRK/A"), "BRK-A.png");
    EXPECT_EQ(PictureName("SIM.A"), "SIM.A.png");
    EXPECT_EQ(PictureName(""), "chart.png");
    EXPECT_EQ(PictureName(".."), "-..png");
}

TEST_F(CChartCtrlTest, BarsAndIconsFollowADarkDesktop)
{
    Draw();
    Show();
    const QPalette light = QApplication::palette();
    QPalette dark;
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Button, QPalette::Base})
        dark.setColor(role, QColor(0x2a, 0x2d, 0x31));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        dark.setColor(role, QColor(0xe6, 0xe6, 0xe6));
    QApplication::setPalette(dark);
    QTest::qWait(50);
    const QImage image = m_chart->grab().toImage();
    QApplication::setPalette(light);
    // The toolbar, the right end of the scroll bar and the status bar are dark with light contents.
    for (const QRect& part : {QRect(0, 0, 600, 30), QRect(0, 481, 300, 18)}) {
        int shade = 0, brightest = 0;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x) {
                const int grey = qGray(image.pixel(x, y));
                shade += grey;
                brightest = std::max(brightest, grey);
            }
        EXPECT_LT(shade / (part.width() * part.height()), 80);
        EXPECT_GT(brightest, 190);
    }
}

TEST_F(CChartCtrlTest, TwoControlsShareOneWorkerAndTheSecondLivesOn)
{
    Draw();
    auto first = std::move(m_chart);
    MakeChart();
    first.reset();
    Draw();
}

TEST_F(CChartCtrlTest, AControlMayGoWhileItsChartLoads)
{
    m_chart->SetStockSymbol("TEST");
    m_chart.reset();
    MakeChart();
    Draw();
}

} // namespace zantroq::test
