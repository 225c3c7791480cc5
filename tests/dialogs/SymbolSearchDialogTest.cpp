// The symbol search with its real widgets and a feed inside the test.
#include "../qt/ChartFixture.h"

#include "qt/dialogs/RowList.h"
#include "qt/dialogs/SymbolSearchDialog.h"
#include "qt/widgets/CommandBar.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

namespace zantroq::test {
namespace {

constexpr int ManyRows = 100'000;

class SymbolSearchDialog : public CChartFixture
{
protected:
    void SetUp() override
    {
        std::ofstream file(m_folder.filePath("symbols.csv").toStdString());
        file << "symbol,market_id,security_type_id,description\n";
        for (int i = 0; i < ManyRows; ++i)
            file << "MANY" << i << ",3,1,One of very many\n";
        file << "ONE,2,1,Single Result\nTWO,2,2,Single Index\n";
        file.close();
        CChartFixture::SetUp();
        m_chart->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_chart.get()));
    }
    void TearDown() override { m_chart.reset(); }

    // Opens the dialog with the keyboard.
    void Open()
    {
        View().setFocus();
        QTest::keyClick(&View(), Qt::Key_F, Qt::ControlModifier);
        ASSERT_NE(Dialog(), nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(Dialog()));
        QApplication::setActiveWindow(Dialog());
    }
    CSymbolSearchDialog* Dialog()
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* dialog = dynamic_cast<CSymbolSearchDialog*>(widget);
                dialog != nullptr && dialog->IsOpen())
                return dialog;
        return nullptr;
    }
    template<class TWidget> TWidget& Child(const char* name) { return *Dialog()->findChild<TWidget*>(name); }
    CRowList& Results() { return Child<CRowList>("results"); }
    // The widget with the focus if the dialog were the active window; not every platform activates it.
    QWidget* Focused() { return Dialog()->focusWidget(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(Focused(), key, modifiers);
    }
    void TypeText(const char* text) { QTest::keyClicks(Focused(), text); }
    bool AwaitEnd()
    {
        return PumpUntil([this] { return Dialog()->Search() == SearchProgress::Ended; });
    }
    std::string BoxText() { return Window().Services().Symbol.Text(); }
};

} // namespace

TEST_F(SymbolSearchDialog, TheKeyboardAloneFindsAndTakesASymbol)
{
    Open();
    EXPECT_EQ(Focused(), &Child<QLineEdit>("text"));
    TypeText("single result");
    Key(Qt::Key_Return);
    ASSERT_TRUE(AwaitEnd());
    ASSERT_EQ(Results().Model().rowCount(), 1);
    for (int tabs = 0; Focused() != &Results() && tabs < 12; ++tabs)
        Key(Qt::Key_Tab);
    ASSERT_EQ(Focused(), &Results());
    Key(Qt::Key_Space);
    EXPECT_EQ(Results().SelectedRows(), std::vector<int>{0});
    Key(Qt::Key_Return);
    EXPECT_EQ(Dialog(), nullptr);
    EXPECT_EQ(BoxText(), "ONE");
}

TEST_F(SymbolSearchDialog, EveryControlIsReachedWithTheTabKey)
{
    Open();
    QTest::mouseClick(&Child<QPushButton>("options"), Qt::LeftButton);
    std::set<QString> reached;
    Child<QLineEdit>("text").setFocus();
    for (int tabs = 0; tabs < 14; ++tabs) {
        reached.insert(Focused()->objectName());
        Key(Qt::Key_Tab);
    }
    // In a group of radio buttons, the tab key reaches the checked button, the arrow keys reach the others.
    EXPECT_EQ(reached, (std::set<QString>{"text", "search", "descriptions", "results", "use", "cancel",
                                          "options", "markets", "filterRows"}));
    QTest::mouseClick(&Child<QRadioButton>("types"), Qt::LeftButton);
    EXPECT_EQ(Child<CRowList>("filterRows").Model().Rows()[0][0], "EQUITY - Equity");
    QTest::mouseClick(&Child<QRadioButton>("symbols"), Qt::LeftButton);
    EXPECT_TRUE(Child<QRadioButton>("symbols").isChecked());
    EXPECT_TRUE(Child<QRadioButton>("types").isChecked()) << "two groups of their own";
}

TEST_F(SymbolSearchDialog, ArrowKeysChooseInsideEachGroupOfRadioButtons)
{
    Open();
    QTest::mouseClick(&Child<QPushButton>("options"), Qt::LeftButton);
    Child<QRadioButton>("descriptions").setFocus();
    Key(Qt::Key_Left);
    EXPECT_TRUE(Child<QRadioButton>("symbols").isChecked());
    EXPECT_FALSE(Child<QRadioButton>("descriptions").isChecked());
    EXPECT_TRUE(Child<QRadioButton>("markets").isChecked()) << "the other group stays";
    Child<QRadioButton>("markets").setFocus();
    Key(Qt::Key_Right);
    EXPECT_TRUE(Child<QRadioButton>("types").isChecked());
    EXPECT_EQ(Child<CRowList>("filterRows").Model().Rows()[0][0], "EQUITY - Equity");
    EXPECT_TRUE(Child<QRadioButton>("symbols").isChecked()) << "the other group stays";
}

TEST_F(SymbolSearchDialog, EscapeCancels)
{
    Window().Services().Symbol.SetText("KEPT");
    Open();
    TypeText("single");
    Key(Qt::Key_Return);
    ASSERT_TRUE(AwaitEnd());
    Key(Qt::Key_Escape);
    EXPECT_EQ(Dialog(), nullptr);
    EXPECT_EQ(BoxText(), "KEPT");
}

TEST_F(SymbolSearchDialog, TheToolbarButtonOpensIt)
{
    QToolButton* button = nullptr;
    for (QToolButton* each : m_chart->findChildren<QToolButton*>())
        if (each->accessibleName() == "Symbol Search")
            button = each;
    ASSERT_NE(button, nullptr);
    ASSERT_TRUE(button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    ASSERT_NE(Dialog(), nullptr);
    EXPECT_EQ(Dialog()->size(), QSize(335, 310));
}

TEST_F(SymbolSearchDialog, ADoubleClickTakesTheRow)
{
    Open();
    TypeText("single");
    QTest::mouseClick(&Child<QPushButton>("search"), Qt::LeftButton);
    ASSERT_TRUE(AwaitEnd());
    ASSERT_EQ(Results().Model().rowCount(), 2);
    EXPECT_EQ(Results().Model().Rows()[0][0], "TWO") << "the last result comes first";
    const QPoint place = Results().visualRect(Results().model()->index(1, 0)).center();
    QTest::mouseClick(Results().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(Results().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(Dialog(), nullptr);
    EXPECT_EQ(BoxText(), "ONE");
}

TEST_F(SymbolSearchDialog, AHundredThousandResultsAreShown)
{
    Open();
    TypeText("VERY MANY");
    Key(Qt::Key_Return);
    EXPECT_EQ(Dialog()->cursor().shape(), Qt::WaitCursor);
    ASSERT_TRUE(AwaitEnd());
    EXPECT_EQ(Dialog()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(Results().Model().rowCount(), ManyRows);
    EXPECT_EQ(Results().Model().Rows().back()[0], "MANY0");
    EXPECT_EQ(Results().Model().Rows().front()[1], "NYSE");
}

TEST_F(SymbolSearchDialog, AFilterNarrowsTheResults)
{
    Open();
    QTest::mouseClick(&Child<QPushButton>("options"), Qt::LeftButton);
    EXPECT_EQ(Dialog()->size(), QSize(335, 500));
    QTest::mouseClick(&Child<QRadioButton>("types"), Qt::LeftButton);
    auto& filter = Child<CRowList>("filterRows");
    ASSERT_EQ(filter.Model().Rows()[1][0], "INDEX - Index");
    QTest::mouseClick(filter.viewport(), Qt::LeftButton, {},
                      filter.visualRect(filter.model()->index(1, 0)).center());
    Child<QLineEdit>("text").setFocus();
    TypeText("single");
    Key(Qt::Key_Return);
    ASSERT_TRUE(AwaitEnd());
    ASSERT_EQ(Results().Model().rowCount(), 1);
    EXPECT_EQ(Results().Model().Rows()[0], (FormRow{"TWO", "NASDAQ", "Single Index"}));
}

TEST_F(SymbolSearchDialog, ColumnsCanBeWidenedAndTheDialogEnlarged)
{
    Open();
    EXPECT_EQ(Results().header()->sectionResizeMode(0), QHeaderView::Interactive);
    EXPECT_FALSE(Results().header()->isHidden());
    EXPECT_EQ(Results().columnWidth(0), 90);
    EXPECT_EQ(Results().columnWidth(1), 75);
    EXPECT_TRUE(Child<CRowList>("filterRows").isColumnHidden(1));
    const int before = Results().height();
    Dialog()->resize(600, 700);
    EXPECT_TRUE(PumpUntil([&] { return Results().height() > before + 300; }));
}

TEST_F(SymbolSearchDialog, ADialogThatIsClosedWhileItSearchesLeavesNothingBehind)
{
    Open();
    TypeText("very many");
    Key(Qt::Key_Return);
    const QPointer<CSymbolSearchDialog> dialog(Dialog());
    Key(Qt::Key_Escape);
    EXPECT_TRUE(PumpUntil([&] { return dialog.isNull(); }));
    Open();
    EXPECT_EQ(Results().Model().rowCount(), 0);
}

TEST_F(SymbolSearchDialog, AControlThatGoesWhileItSearchesTakesTheDialogAlong)
{
    Open();
    TypeText("very many");
    Key(Qt::Key_Return);
    m_chart.reset();
    EXPECT_EQ(Dialog(), nullptr);
}

} // namespace zantroq::test
