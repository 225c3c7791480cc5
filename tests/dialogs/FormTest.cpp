// A dialog with one control of each kind, used through the form of the rules and the driver of scripts.
#include "qt/dialogs/ButtonForColor.h"
#include "qt/dialogs/FormDialogDriver.h"
#include "qt/dialogs/LinePictureCtrl.h"
#include "qt/dialogs/RowList.h"
#include "qt/dialogs/SpinEdit.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <chrono>

namespace zantroq::test {
namespace {

enum Id
{
    Ok = 1,
    Cancel = 2,
    Combo = 10,
    Check,
    RadioA,
    RadioB,
    Edit,
    Digits,
    DigitsSpin,
    Free,
    FreeSpin,
    Press,
    Color,
    Many,
    One,
    Date,
    Time,
    Label,
    Group,
    Line
};

struct sRecorder : IFormEvents
{
    std::vector<std::string> Events;
    void Add(const char* what, int id) { Events.push_back(what + std::string(" ") + std::to_string(id)); }
    void OnChanged(int id) override { Add("changed", id); }
    void OnPressed(int id) override { Add("pressed", id); }
    void OnDoubleClicked(int id, int row) override
    {
        Add("double", id);
        Events.back() += " row " + std::to_string(row);
    }
    void OnSelectionChanged(int id) override { Add("selected", id); }
    void OnDropped(int from, int row, int list, int to) override
    {
        Events.push_back("dropped " + std::to_string(from) + " row " + std::to_string(row) + " onto " +
                         std::to_string(list) + " before " + std::to_string(to));
    }
};

class CTestDialog : public CFormDialog
{
public:
    explicit CTestDialog(QWidget& over) : CFormDialog(over)
    {
        setWindowTitle("Everything");
        auto* const layout = new QVBoxLayout(this);
        const auto add = [layout](int id, QWidget* widget) {
            widget->setProperty("control", id);
            layout->addWidget(widget);
            return widget;
        };
        auto* const combo = static_cast<QComboBox*>(add(Combo, new QComboBox(this)));
        combo->addItems({"Left", "Right"});
        auto* const label = static_cast<QLabel*>(add(Label, new QLabel("Y a&xis && side:", this)));
        label->setBuddy(combo);
        add(Check, new QCheckBox("Sho&w -", this));
        add(RadioA, new QRadioButton("A", this));
        static_cast<QRadioButton*>(add(RadioB, new QRadioButton("B", this)))->setChecked(true);
        static_cast<QLineEdit*>(add(Edit, new QLineEdit(this)))->setMaxLength(5);
        auto* const digits = static_cast<CSpinEdit*>(add(Digits, new CSpinEdit(this)));
        digits->setProperty("spinControl", DigitsSpin);
        digits->SetStrict(true);
        digits->SetMinimum(1);
        digits->SetMaximum(99);
        add(Free, new CSpinEdit(this))->setProperty("spinControl", FreeSpin);
        add(Press, new QPushButton("&Press", this));
        add(Color, new CButtonForColor(this))->setAccessibleName("The color");
        static_cast<CRowList*>(add(Many, new CRowList(this)))
            ->setSelectionMode(QAbstractItemView::ExtendedSelection);
        add(One, new CRowList(this));
        auto* const date = static_cast<QDateEdit*>(add(Date, new QDateEdit(QDate(2026, 1, 2), this)));
        date->setDisplayFormat("yyyy-MM-dd");
        add(Time, new QTimeEdit(QTime(9, 30), this));
        add(Group, new QGroupBox("Props...", this));
        add(Line, new CLinePictureCtrl(this));
        connect(static_cast<QPushButton*>(add(Ok, new QPushButton("OK", this))), &QPushButton::clicked, this,
                [this] { End(DialogEnd::Ok); });
        connect(static_cast<QPushButton*>(add(Cancel, new QPushButton("Cancel", this))),
                &QPushButton::clicked, this, [this] { End(DialogEnd::Cancel); });
        m_form = std::make_unique<CQtForm>(*this);
        m_form->Bind(Recorder);
    }

    CQtForm& FormOnShow() override { return *m_form; }

    sRecorder Recorder;

private:
    std::unique_ptr<CQtForm> m_form;
};

class CFormTest : public testing::Test
{
protected:
    CFormTest()
    {
        m_window.show();
        m_dialog->Open();
    }
    ~CFormTest() override { delete m_dialog; }

    IForm& Form() { return m_dialog->FormOnShow(); }
    std::vector<std::string> Events() { return std::exchange(m_dialog->Recorder.Events, {}); }
    sControlState State(int id) { return m_driver.Describe().Controls.at(id); }
    std::string Value(int id) { return std::get<std::string>(State(id).Value); }
    template<class Widget> Widget& As(int id)
    {
        return *static_cast<Widget*>(m_dialog->FormOnShow().AllControls().at(id).Widget);
    }

    QWidget m_window;
    CTestDialog* m_dialog = new CTestDialog(m_window);
    CFormDialogDriver m_driver{*m_dialog};
};

using Strings = std::vector<std::string>;
using Rows = std::vector<int>;

} // namespace

TEST_F(CFormTest, AnEditTakesWhatFitsIntoIt)
{
    EXPECT_EQ(m_driver.Set(Edit, "abc"), "");
    EXPECT_EQ(Form().Text(Edit), "abc");
    EXPECT_EQ(Events(), Strings{"changed 14"});
    EXPECT_EQ(m_driver.Set(Edit, "abcdef"), "control 14 does not take the text \"abcdef\"");
    EXPECT_EQ(Value(Edit), "abc");
}

TEST_F(CFormTest, WhatRulesSetIsNotReportedToThem)
{
    Form().SetText(Edit, "new");
    Form().SetText(Free, "7");
    Form().SetText(Date, "2020-02-29");
    Form().SetText(Time, "23:59:58");
    Form().SetItems(Combo, {"x", "y"});
    Form().SetIndex(Combo, 1);
    Form().SetChecked(Check, true);
    Form().SetChecked(RadioA, true);
    Form().SetColor(Color, 0x112233);
    Form().SetRows(One, {{"a"}, {"b"}});
    Form().SelectRows(One, {1});
    Form().InsertRow(One, 0, {"first"});
    EXPECT_EQ(Events(), Strings());
    EXPECT_EQ(Form().Text(Free), "7");
    EXPECT_EQ(Form().Text(Date), "2020-02-29");
    EXPECT_EQ(Form().Text(Time), "23:59:58");
    EXPECT_EQ(Form().Text(Combo), "y");
    EXPECT_EQ(Form().Color(Color), 0x112233u);
    EXPECT_FALSE(Form().Checked(RadioB));
    EXPECT_EQ(Form().SelectedRows(One), Rows{2}) << "the selection moves along with its row";
}

TEST_F(CFormTest, TheCheckedRadioButtonOfAGroupCanBeTurnedOffByRules)
{
    Form().SetChecked(RadioB, false);
    EXPECT_FALSE(Form().Checked(RadioA));
    EXPECT_FALSE(Form().Checked(RadioB));
    EXPECT_EQ(m_driver.Set(RadioA, "on"), "");
    EXPECT_EQ(m_driver.Set(RadioB, "on"), "");
    EXPECT_FALSE(Form().Checked(RadioA));
}

TEST_F(CFormTest, ACheckTakesOnAndOff)
{
    EXPECT_EQ(m_driver.Set(Check, "on"), "");
    EXPECT_EQ(m_driver.Set(Check, "on"), "");
    EXPECT_EQ(Events(), Strings{"changed 11"}) << "the second on is what it is already";
    EXPECT_EQ(m_driver.Set(Check, "off"), "");
    EXPECT_FALSE(Form().Checked(Check));
    EXPECT_EQ(m_driver.Set(Check, "1"), "control 11 takes on or off, not \"1\"");
}

TEST_F(CFormTest, ARadioButtonTakesOnAloneAndReportsEachPress)
{
    EXPECT_EQ(m_driver.Set(RadioA, "on"), "");
    EXPECT_EQ(m_driver.Set(RadioA, "on"), "");
    EXPECT_EQ(Events(), (Strings{"changed 12", "changed 12"}));
    EXPECT_NE(m_driver.Set(RadioA, "off"), "");
    EXPECT_TRUE(Form().Checked(RadioA));
}

TEST_F(CFormTest, AComboTakesTheTextOfAnEntry)
{
    EXPECT_EQ(m_driver.Set(Combo, "Right"), "");
    EXPECT_EQ(Form().Index(Combo), 1);
    EXPECT_EQ(m_driver.Set(Combo, "right"), "control 10 has no entry \"right\"");
    EXPECT_EQ(State(Combo).Items, (Strings{"Left", "Right"}));
}

TEST_F(CFormTest, AnEditWithArrowsIsTwoControls)
{
    EXPECT_EQ(m_driver.Set(Free, "abc"), "");
    EXPECT_EQ(Value(Free), "abc");
    EXPECT_EQ(Value(FreeSpin), "abc");
    EXPECT_EQ(State(Free).Kind, ControlKind::Edit);
    EXPECT_EQ(State(FreeSpin).Kind, ControlKind::Spin);
    EXPECT_EQ(m_driver.Set(FreeSpin, "999"), "");
    EXPECT_EQ(Value(Free), "999");
    EXPECT_EQ(m_driver.Set(FreeSpin, "1000"), "control 18 takes a whole number from 1 to 999, not \"1000\"");
    EXPECT_EQ(m_driver.Set(FreeSpin, "12x"), "control 18 takes a whole number from 1 to 999, not \"12x\"");
}

TEST_F(CFormTest, AStrictEditTakesNumbersOfItsRangeAlone)
{
    for (const char* text : {"0", "100", "-1", "1.5", "x", ""})
        EXPECT_NE(m_driver.Set(Digits, text), "") << text;
    EXPECT_EQ(m_driver.Set(Digits, "99"), "");
    EXPECT_EQ(m_driver.Set(Digits, "1"), "");
    EXPECT_EQ(Value(DigitsSpin), "1");
}

TEST_F(CFormTest, ArrowsStepWithinTheRangeFromWhateverStandsInTheEdit)
{
    auto& spin = As<CSpinEdit>(Free);
    spin.SetText("abc");
    spin.stepBy(1);
    EXPECT_EQ(spin.Text(), "1");
    spin.stepBy(-1);
    EXPECT_EQ(spin.Text(), "1");
    spin.SetText("2000000000");
    spin.stepBy(1);
    EXPECT_EQ(spin.Text(), "999");
    spin.stepBy(1);
    EXPECT_EQ(spin.Text(), "999");
    QTest::keyClick(&spin, Qt::Key_Down);
    EXPECT_EQ(spin.Text(), "998");
}

TEST_F(CFormTest, TypedKeysReachTheRules)
{
    auto& spin = As<CSpinEdit>(Free);
    spin.SetText("");
    spin.setFocus();
    QTest::keyClicks(&spin, "42");
    EXPECT_EQ(Form().Text(Free), "42");
    EXPECT_EQ(Events(), (Strings{"changed 17", "changed 17"}));
}

TEST_F(CFormTest, AColorTakesSixDigits)
{
    EXPECT_EQ(m_driver.Set(Color, "#FF8001"), "");
    EXPECT_EQ(Form().Color(Color), 0x0180FFu) << "red in the low byte";
    EXPECT_EQ(Value(Color), "#ff8001");
    for (const char* text : {"ff8001", "#ff800", "#ff80011", "red", "#gggggg", ""})
        EXPECT_NE(m_driver.Set(Color, text), "") << text;
    EXPECT_EQ(m_driver.Press(Color), "control 20 is not a button; give it a value with dialog set");
    EXPECT_EQ(Events(), Strings{"changed 20"});
}

TEST_F(CFormTest, PressingAColorButtonOpensTheColorDialogOnItsColor)
{
    auto& button = As<CButtonForColor>(Color);
    Form().SetColor(Color, 0x0000FF);
    const auto open = [&]() -> QColorDialog* {
        button.click();
        return button.findChildren<QColorDialog*>().last();
    };
    QColorDialog* dialog = open();
    EXPECT_EQ(dialog->currentColor(), QColor(255, 0, 0));
    dialog->setCurrentColor(QColor(1, 2, 3));
    dialog->reject();
    EXPECT_EQ(Form().Color(Color), 0x0000FFu);
    EXPECT_EQ(Events(), Strings());
    dialog = open();
    dialog->setCurrentColor(QColor(1, 2, 3));
    dialog->accept();
    EXPECT_EQ(Form().Color(Color), 0x030201u);
    EXPECT_EQ(Events(), Strings{"changed 20"});
}

TEST_F(CFormTest, DatesAndTimesMustExist)
{
    EXPECT_EQ(m_driver.Set(Date, "2024-02-29"), "");
    EXPECT_NE(m_driver.Set(Date, "2023-02-29"), "");
    EXPECT_NE(m_driver.Set(Date, "20240229"), "");
    EXPECT_EQ(Value(Date), "2024-02-29");
    EXPECT_EQ(m_driver.Set(Time, "23:59:59"), "");
    EXPECT_NE(m_driver.Set(Time, "24:00:00"), "");
    EXPECT_EQ(Value(Time), "23:59:59");
    EXPECT_EQ(Events(), (Strings{"changed 23", "changed 24"}));
}

TEST_F(CFormTest, AListTakesRowsOrNone)
{
    Form().SetColumns(Many, {{"Data", 100}, {"ID", 0}});
    Form().SetRows(Many, {{"a", "1"}, {"b", "2"}, {"c", "3"}});
    EXPECT_EQ(m_driver.Set(Many, "0,2"), "");
    EXPECT_EQ(Form().SelectedRows(Many), (Rows{0, 2}));
    EXPECT_EQ(std::get<Rows>(State(Many).Value), (Rows{0, 2}));
    EXPECT_EQ(State(Many).Rows, (std::vector<Strings>{{"a", "1"}, {"b", "2"}, {"c", "3"}}));
    EXPECT_TRUE(As<CRowList>(Many).isColumnHidden(1));
    for (const char* text : {"3", "-1", "0,", "x", "", "0 1"})
        EXPECT_NE(m_driver.Set(Many, text), "") << text;
    EXPECT_EQ(m_driver.Set(Many, "none"), "");
    EXPECT_EQ(Form().SelectedRows(Many), Rows());
}

TEST_F(CFormTest, AListOfOneChoiceTakesOneRow)
{
    Form().SetRows(One, {{"a"}, {"b"}});
    EXPECT_NE(m_driver.Set(One, "0,1"), "");
    EXPECT_EQ(m_driver.Set(One, "1"), "");
    Events();
    EXPECT_EQ(m_driver.Set(One, "1"), "");
    EXPECT_EQ(Events(), Strings{"selected 22"}) << "a press on a selected row counts";
    EXPECT_EQ(m_driver.DoubleClick(One, 0), "");
    EXPECT_EQ(Events().back(), "double 22 row 0");
    EXPECT_NE(m_driver.DoubleClick(One, 2), "");
    EXPECT_NE(m_driver.DoubleClick(Edit, 0), "");
}

TEST_F(CFormTest, ARowDroppedOnAListIsReportedWithItsPlace)
{
    Form().SetRows(One, {{"a"}});
    emit As<CRowList>(One).RowDropped(&As<CRowList>(Many), 3, 1);
    EXPECT_EQ(Events(), Strings{"dropped 21 row 3 onto 22 before 1"});
}

TEST_F(CFormTest, ManyRowsAreSetWithoutMakingEach)
{
    std::vector<FormRow> rows(100000, FormRow{"SYMBOL", "MARKET", "Description"});
    Form().SetColumns(Many, {{"Symbol", 90}, {"Market", 75}, {"Description", 130}});
    Form().SetRows(Many, rows);
    Form().InsertRow(Many, 0, {"FIRST", "", ""});
    EXPECT_EQ(Form().RowCount(Many), 100001);
    EXPECT_EQ(Form().Row(Many, 0).front(), "FIRST");
    EXPECT_EQ(m_driver.Set(Many, "100000"), "");
    EXPECT_EQ(Form().SelectedRows(Many), Rows{100000});
}

TEST_F(CFormTest, ControlsThatAPersonCouldNotUseAreRefusedWithTheReason)
{
    Form().SetEnabled(Edit, false);
    EXPECT_EQ(m_driver.Set(Edit, "x"), "control 14 is disabled");
    EXPECT_FALSE(State(Edit).Enabled);
    Form().SetEnabled(Edit, true);
    Form().SetVisible(Edit, false);
    EXPECT_EQ(m_driver.Set(Edit, "x"), "control 14 is hidden");
    EXPECT_FALSE(State(Edit).Visible);
    EXPECT_EQ(m_driver.Set(999, "x"), "control 999 is not on the page or dialog on show");
    EXPECT_EQ(m_driver.Set(Press, "on"), "control 19 is a button and takes no value; press it");
    EXPECT_EQ(m_driver.Set(Label, "x"), "control 25 takes no value");
    EXPECT_EQ(m_driver.Press(Edit), "control 14 is hidden");
    EXPECT_EQ(m_driver.TurnToPage("Colors"), "the dialog \"Everything\" has no pages");
    Form().SetEnabled(Press, false);
    EXPECT_EQ(m_driver.Press(Press), "control 19 is disabled");
    EXPECT_EQ(Events(), Strings());
}

TEST_F(CFormTest, LabelsAreThoseThatAPersonReads)
{
    EXPECT_EQ(State(Combo).Label, "Y axis & side:");
    EXPECT_EQ(State(Check).Label, "Show -");
    EXPECT_EQ(State(Press).Label, "Press");
    EXPECT_EQ(State(Color).Label, "The color");
    EXPECT_EQ(Value(Label), "Y axis & side:");
    EXPECT_EQ(Value(Group), "Props...");
}

TEST_F(CFormTest, ADialogClosesByItsOwnButtons)
{
    std::vector<DialogEnd> ends;
    m_dialog->OnClosed = [&](DialogEnd end) { ends.push_back(end); };
    EXPECT_TRUE(m_dialog->IsOpen());
    EXPECT_EQ(m_driver.Ok(), "");
    EXPECT_FALSE(m_dialog->IsOpen());
    EXPECT_EQ(ends, std::vector<DialogEnd>{DialogEnd::Ok});
    m_dialog->Open();
    EXPECT_EQ(m_driver.Cancel(), "");
    m_dialog->Open();
    QTest::keyClick(m_dialog, Qt::Key_Escape);
    EXPECT_EQ(ends, (std::vector<DialogEnd>{DialogEnd::Ok, DialogEnd::Cancel, DialogEnd::Cancel}));
}

TEST(FormDialog, ADialogOverAWindowThatIsNotShownIsNotOnTheScreen)
{
    QWidget window;
    auto* const dialog = new CTestDialog(window);
    dialog->Open();
    EXPECT_TRUE(dialog->IsOpen());
    EXPECT_FALSE(dialog->isVisible());
    CFormDialogDriver driver(*dialog);
    EXPECT_GT(driver.Describe().Width, 50);
    EXPECT_EQ(driver.Set(Edit, "abc"), "");
    EXPECT_EQ(driver.Ok(), "");
    EXPECT_FALSE(dialog->IsOpen());
    delete dialog;
}

TEST_F(CFormTest, AnUnknownNumberIsAnErrorOfTheProgram)
{
    EXPECT_THROW(Form().Text(999), std::invalid_argument);
    EXPECT_THROW(Form().SetColor(Edit, 0), std::invalid_argument);
}

} // namespace zantroq::test
