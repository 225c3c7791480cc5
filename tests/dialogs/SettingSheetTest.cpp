// The settings sheet with its real widgets, a chart and a feed.
#include "SheetFixture.h"

#include "qt/dialogs/FormDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

namespace zantroq::test {
namespace {

using Names = std::vector<std::string>;

struct sStep
{
    int Id;
    const char* Value;
};

// One control: the action on its page, and the value and name that are stored.
struct sCase
{
    const char* Page;
    std::vector<sStep> Steps;
    const char* Name;
    const char* Value;
    Names Besides{}; // other values that also change
};

const char* const Colors = "Colors";
const char* const General = "General";
const char* const Upper = "Upper Studies";
const char* const Lower = "Lower Studies";

// Colors as stored: 0x030201 is "#010203".
const std::vector<sCase>& StoredCases()
{
    static const std::vector<sCase> cases{
        {Colors, {{251, "#010203"}}, "Background Color", "197121"},
        {Colors, {{258, "#010203"}}, "Grid Color", "197121"},
        {Colors, {{252, "#010203"}}, "PriceLabel Color", "197121"},
        {Colors, {{253, "#010203"}}, "PriceData Color", "197121"},
        {Colors, {{254, "#010203"}}, "Price Up Candle Color", "197121"},
        {Colors, {{255, "#010203"}}, "Price Down Candle Color", "197121"},
        {Colors, {{256, "#010203"}}, "Price Bar Color", "197121"},
        {Colors, {{259, "#010203"}}, "Study Label Color 0", "197121"},
        {Colors, {{344, "Volume (VOL)"}, {259, "#010203"}}, "Study Label Color 6", "197121"},
        {Colors, {{344, "Av. Direct. Movm. Index (ADX)"}, {264, "#010203"}}, "Study Data Color 9", "197121"},
        {General, {{308, "Right"}}, "Y Axis Orientation", "1"},
        {General, {{232, "245760"}}, "PTS INDEX", "14"},
        {General, {{233, "off"}}, "GRID", "0"},
        {General, {{230, "Line"}}, "GRID STYLE", "1"},
        {General, {{310, "on"}}, "Price Bar Show/Hide", "1"},
        {General, {{231, "H/L/O/C"}}, "Candle Price Chart Style", "0"},
        {General, {{300, "on"}}, "SCROLLING BY ITEMS", "0"},
        {General, {{304, "42"}}, "", "42"},
        {General, {{302, "43"}}, "", "43"},
        {General, {{305, "99"}}, "", "99"},
        {General, {{303, "999"}}, "", "999"},
        {Upper, {{277, "on"}}, "MAs SHOW", "1"},
        {Upper, {{276, "on"}}, "Moving Average Exponential", "1"},
        {Upper, {{239, "off"}}, "Moving Average 1 Select", "0"},
        {Upper, {{237, "off"}}, "Moving Average 2 Select", "0"},
        {Upper, {{238, "off"}}, "Moving Average 3 Select", "0"},
        {Upper, {{255, "7"}}, "Moving Average 1 Points", "7"},
        {Upper, {{256, "8"}}, "Moving Average 2 Points", "8"},
        {Upper, {{259, "9"}}, "Moving Average 3 Points", "9"},
        {Upper, {{280, "#010203"}}, "Moving Average 1 Color", "197121"},
        {Upper, {{281, "#010203"}}, "Moving Average 2 Color", "197121"},
        {Upper, {{262, "#010203"}}, "Moving Average 3 Color", "197121"},
        {Upper, {{272, "on"}}, "BB STUDY SHOW", "1"},
        {Upper, {{265, "#010203"}}, "BB Color", "197121"},
        {Upper, {{273, "2"}}, "BB AVG PERIOD", "2"},
        {Upper, {{274, "999"}}, "BB AVG PERIOD", "999"},
        {Upper, {{275, "0.01"}}, "BB DIVIATIONS NUMBER", "0.010000"},
        {Upper, {{338, "off"}}, "Horizontal Trendline Extendable", "0"},
        {Upper, {{337, "#010203"}}, "Horizontal Trendline Color", "197121"},
        {Upper, {{320, "5"}}, "Horizontal Trendline Width", "5"},
        {Upper, {{334, "Sloping"}, {320, "5"}}, "Sloping Trendline Width", "5"},
        {Upper, {{334, "Parallel"}, {337, "#010203"}}, "Parallel Trendline Color", "197121"},
        {Upper, {{334, "Andrew's Pitchfork"}, {284, "9"}}, "Andrew's Pitchfork Trendline Width", "9"},
        {Upper, {{334, "Fibonacci Fan"}, {338, "off"}}, "Fibonacci Fan Trendline Extendable", "0"},
        {Upper,
         {{334, "Fibonacci Retracements"}, {320, "99"}},
         "Fibonacci Retracements Trendline Width",
         "99"},
        {Upper, {{334, "Speed Resistance"}, {337, "#010203"}}, "Speed Resistance Trendline Color", "197121"},
        {Lower, {{328, "0"}, {203, "on"}}, "RSI Radio Select", "2", {"STUDY AVG PERIOD"}},
        {Lower,
         {{328, "0"}, {294, "on"}, {269, "33"}},
         "STUDY CUSTOM AVG PERIOD",
         "33,20,20,9,18,5,500,9,9,10",
         {"RSI Radio Select", "STUDY AVG PERIOD"}},
        {Lower,
         {{328, "3"}, {294, "on"}, {269, "12"}},
         "STUDY AVG PERIOD",
         "21,20,20,12,18,5,10,14,14,14",
         {"OBV Radio Select", "STUDY CUSTOM AVG PERIOD"}},
        {Lower, {{328, "3"}, {297, "#010203"}}, "OBV zero Color", "197121"},
        {Lower, {{328, "5"}, {296, "on"}}, "STO Fast", "1"},
        {Lower, {{328, "5"}, {282, "90"}}, "STO Upper Level", "90"},
        {Lower, {{328, "5"}, {285, "10"}}, "STO Lower Level", "10"},
        {Lower, {{328, "5"}, {292, "#010203"}}, "STO Up Level Color", "197121"},
        {Lower, {{328, "5"}, {293, "#010203"}}, "STO Low Level Color", "197121"},
        {Lower, {{328, "5"}, {297, "#010203"}}, "STO %K Line Color", "197121"},
        {Lower, {{328, "5"}, {300, "#010203"}}, "STO %D Line Color", "197121"},
        {Lower, {{328, "5"}, {203, "on"}}, "STO Radio Select", "2", {"STUDY AVG PERIOD"}},
        {Lower, {{328, "7"}, {297, "#010203"}}, "Positive Flow Line Color", "197121"},
        {Lower, {{328, "7"}, {300, "#010203"}}, "Negative Flow Line Color", "197121"},
        {Lower, {{328, "8"}, {284, "77"}}, "MFI Upper Level", "77"},
        {Lower, {{328, "8"}, {286, "11"}}, "MFI Lower Level", "11"},
        {Lower, {{328, "8"}, {292, "#010203"}}, "MFI Up Level Color", "197121"},
        {Lower, {{328, "9"}, {297, "#010203"}}, "Positive Directional Indicator Color", "197121"},
        {Lower, {{328, "9"}, {300, "#010203"}}, "Negative Directional Indicator Color", "197121"},
        {Lower, {{328, "6"}, {339, "off"}}, "Show Volume Average", "0", {"STUDY AVG PERIOD"}},
        {Lower, {{328, "6"}, {301, "#010203"}}, "VolumeAverage Color", "197121", {"STUDY AVG PERIOD"}},
        {Lower, {{328, "6"}, {294, "on"}}, "Volume Average All Data", "0", {"STUDY AVG PERIOD"}},
        {Lower, {{328, "1"}, {297, "#010203"}}, "Momentum zero Color", "197121", {"STUDY AVG PERIOD"}},
        {Lower, {{328, "2"}, {297, "#010203"}}, "ROC 100% Color", "197121", {"STUDY AVG PERIOD"}},
        {Lower,
         {{328, "4"}, {203, "on"}},
         "MACD Radio Select",
         "2",
         {"MACD Long Period", "MACD Short Period", "STUDY AVG PERIOD"}},
        {Lower, {{328, "4"}, {297, "#010203"}}, "MACD Signal Line Color", "197121", {"STUDY AVG PERIOD"}},
        {Lower, {{328, "4"}, {300, "#010203"}}, "MACD Histogram Color", "197121", {"STUDY AVG PERIOD"}},
    };
    return cases;
}

// Fields of the data page, all for ticks.
struct sRequestCase
{
    std::vector<sStep> Steps;
    const char* Name;
    const char* Value;
    const char* Wire; // in the command that is sent
};

const std::vector<sRequestCase>& RequestCases()
{
    static const std::vector<sRequestCase> cases{
        {{{317, "123"}}, "RequestDatapoints", "123,1000,1000,1000,1000", "HTX,TEST,123,1,"},
        {{{315, "on"}, {220, "4"}}, "RequestDays", "4,0,0,0,0", "HTD,TEST,4,,,,1,"},
        {{{315, "on"}, {240, "6"}, {235, "on"}},
         "RequestFilterOn",
         "1,0,0,0,0",
         "HTD,TEST,6,,093000,160000,1,"},
        {{{231, "on"}, {233, "2014-01-02"}, {258, "10:00:01"}, {234, "2014-01-03"}, {259, "11:00:02"}},
         "RequestRecentType",
         "2,3,6,8,9",
         "HTT,TEST,20140102 100001,20140103 110002,,,,1,"},
        {{{315, "on"}, {235, "on"}, {236, "09:45:00"}, {237, "15:15:15"}},
         "RequestEndFilterTime",
         "151515,160000,160000,160000,160000",
         ",094500,151515,1,"},
        {{{226, "on"}}, "RequestEnableExtendedTrades", "1,0,0,0,0", "HTX,TEST,1000,1,"},
        {{{227, "off"}}, "RequestUseExchangeFormat", "0", "HTX,TEST,1000,1,"},
        {{{229, "Minute"}, {243, "15"}}, "RequestIntervalIndex", "6", "HIX,TEST,900,1000,1,"},
        {{{229, "Daily"}}, "RequestDataType", "2", "HDX,TEST,1000,1,"},
        {{{229, "Monthly"}, {317, "0"}}, "RequestDatapoints", "1000,1000,1000,1000,0", "HMX,TEST,0,1,"},
    };
    return cases;
}

class CSheetTest : public CSheetFixture
{
protected:
    void Do(const char* page, const std::vector<sStep>& steps)
    {
        for (const sStep& step : steps)
            Set(page, step.Id, step.Value);
    }
    // The open sheet; a closed sheet exists until its events are processed.
    QDialog& Dialog()
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* const dialog = dynamic_cast<CFormDialog*>(widget);
                dialog != nullptr && dialog->IsOpen())
                return *dialog;
        throw std::logic_error("no dialog is open");
    }
};

} // namespace

TEST_F(CSheetTest, EachControlReachesTheStoreTheMemoryTheWireAndTheNextRun)
{
    m_chart->SetStockSymbol("TEST");
    ASSERT_TRUE(AwaitRequests(1));
    int requests = 1;
    for (const sCase& item : StoredCases()) {
        const std::string what = std::string(item.Page) + " " + item.Name + " = " + item.Value;
        SCOPED_TRACE(what);
        m_key->Memory = MakeMemorySettingsKey();
        MakeChart();
        m_chart->SetStockSymbol("TEST");
        ASSERT_TRUE(AwaitRequests(++requests));
        const Stored before = AllStored();
        Do(item.Page, item.Steps);
        EXPECT_EQ(AllStored(), before) << "nothing is stored before the OK";
        Ok();
        ASSERT_TRUE(AwaitRequests(++requests)) << "an OK asks the feed again";
        Names names = item.Besides;
        names.emplace_back(item.Name);
        std::ranges::sort(names);
        EXPECT_EQ(Differences(before, AllStored()), names);
        EXPECT_EQ(AllStored()[item.Name], item.Value);
        if (*item.Name == '\0')
            continue; // two settings share the empty name; the next run reads both from it
        EXPECT_EQ(Memory(Window().Settings(), item.Name), item.Value);
        EXPECT_EQ(Memory(LoadChartSettings(*m_key->Memory), item.Name), item.Value);
    }
    EXPECT_EQ(m_box.Said, Names());
}

TEST_F(CSheetTest, CancelLeavesStoreMemoryAndWireAlone)
{
    m_chart->SetStockSymbol("TEST");
    ASSERT_TRUE(AwaitRequests(1));
    const Stored before = AllStored();
    const sChartSettings memory = Window().Settings();
    for (const sCase& item : StoredCases()) {
        Do(item.Page, item.Steps);
        EXPECT_EQ(Sheet().Cancel(), "");
        ASSERT_FALSE(IsOpen());
    }
    for (const sRequestCase& item : RequestCases()) {
        Do("Data", item.Steps);
        Set("Data", 223, "on");
        Sheet().Cancel();
    }
    EXPECT_EQ(AllStored(), before);
    EXPECT_TRUE(ChangedSettings(memory, Window().Settings()).empty());
    EXPECT_FALSE(Window().ResetScale());
    QTest::qWait(20);
    EXPECT_EQ(Requests(), 1);
}

TEST_F(CSheetTest, AnOkWithoutAChangeWritesNothingAndAsksAgain)
{
    m_chart->SetStockSymbol("TEST");
    ASSERT_TRUE(AwaitRequests(1));
    const Stored before = AllStored();
    Sheet();
    Ok();
    EXPECT_EQ(AllStored(), before);
    EXPECT_TRUE(AwaitRequests(2));
}

TEST_F(CSheetTest, RequestFieldsGoOutAndAreStoredOnlyAsDefault)
{
    int requests = 0;
    for (const bool save : {false, true})
        for (const sRequestCase& item : RequestCases()) {
            SCOPED_TRACE(std::string(item.Name) + " " + item.Value + (save ? " saved" : ""));
            m_key->Memory = MakeMemorySettingsKey();
            MakeChart();
            m_chart->SetStockSymbol("TEST");
            ASSERT_TRUE(AwaitRequests(++requests));
            const Stored before = AllStored();
            Do("Data", item.Steps);
            if (save)
                Set("Data", 223, "on");
            const std::size_t sent = m_feed.Lookup.Received().size();
            Ok();
            ASSERT_TRUE(AwaitRequests(++requests));
            EXPECT_TRUE(AwaitTrue([&] {
                return m_feed.Lookup.Received().substr(sent).find(item.Wire) != std::string::npos;
            })) << m_feed.Lookup.Received().substr(sent);
            EXPECT_EQ(Memory(Window().Settings(), item.Name), item.Value);
            const std::string name = item.Name;
            Names boxes; // what the boxes of the window store
            if (name == "RequestIntervalIndex")
                boxes = {"RequestDataType", "RequestIntervalIndex"};
            else if (Window().Settings().Request.DataType != 0)
                boxes = {"RequestDataType"};
            if (!save) {
                EXPECT_EQ(Differences(before, AllStored()), boxes);
                continue;
            }
            EXPECT_EQ(AllStored()[name], item.Value);
            EXPECT_EQ(AllStored().count("RequestEndTime"), 1u) << "all request settings are written";
            EXPECT_EQ(Memory(LoadChartSettings(*m_key->Memory), name), item.Value);
        }
}

TEST_F(CSheetTest, ClearingSavedSettingsIsDoneAtOnceAndCancelDoesNotBringThemBack)
{
    Set("Data", 317, "5");
    Set("Data", 223, "on");
    Ok();
    EXPECT_EQ(AllStored()["RequestDatapoints"], "5,1000,1000,1000,1000");
    m_box.Answers = {BoxAnswer::Yes};
    Sheet().TurnToPage("Data");
    EXPECT_EQ(Sheet().Press(248), "");
    EXPECT_EQ(m_box.Said, Names{"Settings: Do you really want to clear the saved settings?"});
    EXPECT_EQ(AllStored().count("RequestDatapoints"), 0u);
    EXPECT_EQ(AllStored().count("RequestUseExchangeFormat"), 0u);
    EXPECT_EQ(std::get<std::string>(State(317).Value), "1000");
    Sheet().Cancel();
    EXPECT_EQ(AllStored().count("RequestDatapoints"), 0u);
    EXPECT_EQ(Window().Settings().Request.DatapointCounts[0], 5) << "the chart keeps its own";
}

TEST_F(CSheetTest, MessagesKeepTheSheetOpenWithTheFieldInFront)
{
    const auto refuse = [this](const char* page, int id, const std::string& text) {
        m_box.Said.clear();
        Sheet().TurnToPage("Colors");
        EXPECT_EQ(Sheet().Ok(), "");
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(m_box.Said, Names{"Error: " + text});
        EXPECT_EQ(*Sheet().Describe().Page, page);
        ASSERT_NE(Dialog().focusWidget(), nullptr);
        EXPECT_EQ(Dialog().focusWidget()->property("control").toInt(), id);
    };
    const Stored before = AllStored();
    Set(Upper, 273, "1000");
    refuse(Upper, 273, "Study average period must be from 2 to 999");
    Set(Upper, 273, "20");
    Set(Upper, 275, "");
    refuse(Upper, 275, "You must select a valid No. of Deviations.");
    Set(Upper, 275, "100.5");
    refuse(Upper, 275, "No. of Deviations must be from 0.01 to 100");
    Set(Upper, 275, "2");
    Set(Lower, 328, "4");
    Set(Lower, 294, "on");
    Set(Lower, 269, "12");
    Set(Lower, 282, "12");
    Set(Lower, 285, "9");
    refuse(Lower, 269, "MACD short period must be shorter then MACD long period");
    Set(Lower, 282, "26");
    Sheet().TurnToPage(General);
    for (const auto& [id, text] : {std::pair{231, "You must select a chart type."},
                                   {232, "You must select a valid No. of Display Pts."},
                                   {230, "You must select a valid No. of Grid Style."}}) {
        QComboBox* box = nullptr;
        for (QComboBox* combo : Dialog().findChildren<QComboBox*>())
            if (combo->property("control").toInt() == id)
                box = combo;
        ASSERT_NE(box, nullptr);
        box->setCurrentIndex(-1);
        refuse(General, id, text);
        box->setCurrentIndex(0);
    }
    EXPECT_EQ(AllStored(), before);
    Set("Data", 317, "2000001");
    m_box.Said.clear();
    Ok();
    EXPECT_EQ(m_box.Said,
              Names{"Invalid Setting: Datapoints outside of range (1 - 2,000,000).  Defaulting to "
                    "1000."});
}

TEST_F(CSheetTest, TheDisplayedStudiesRebuildThePanes)
{
    m_chart->SetStockSymbol("TEST");
    ASSERT_TRUE(AwaitDrawn());
    Set(Lower, 328, "0");
    EXPECT_EQ(Sheet().Press(330), "");
    EXPECT_EQ(Sheet().DoubleClick(328, 4), "");
    Set(Lower, 329, "0");
    EXPECT_EQ(Sheet().Press(331), "control 331 is disabled");
    EXPECT_EQ(Sheet().Press(332), "");
    Ok();
    const sPaneStack& panes = Window().Settings().Panes;
    EXPECT_EQ(panes.StudyCount, 3);
    EXPECT_EQ(panes.StudyTypes[0], StudyRSI);
    EXPECT_EQ(panes.StudyTypes[1], StudyVolume);
    EXPECT_EQ(panes.StudyTypes[2], StudyMACD);
    EXPECT_EQ(Window().ShownPanes(), 4);
    // Each new pane gets a quarter; the price pane had 0.66 of the rest, the volume pane 0.34.
    EXPECT_NEAR(panes.Bounds[1], 0.5 * 0.66, 1e-12);
    EXPECT_NEAR(panes.Bounds[2], 0.5 * 0.66 + 0.25, 1e-12);
    EXPECT_NEAR(panes.Bounds[3], 0.5 * 0.66 + 0.25 + 0.5 * 0.34, 1e-12);
    EXPECT_EQ(AllStored()["Number of displayed study charts"], "3");
    EXPECT_EQ(AllStored()["Type of study chart 2"], "4");
    EXPECT_EQ(LoadChartSettings(*m_key->Memory).Panes.StudyTypes, panes.StudyTypes);
}

TEST_F(CSheetTest, WhatChangedIsRedrawn)
{
    m_chart->SetStockSymbol("TEST");
    ASSERT_TRUE(AwaitDrawn());
    Set(General, 232, "60");
    Set(General, 308, "Right");
    Set(General, 233, "off");
    Set(Colors, 251, "#102030");
    Set(Upper, 277, "on");
    Ok();
    ASSERT_TRUE(AwaitDrawn());
    CChart2D& price = Window().Pane(0);
    EXPECT_EQ(Window().Range().shown, 60);
    EXPECT_EQ(Window().StatusPart(0), "200 datapoints available.  Displaying 60.");
    EXPECT_TRUE(price.PaneArea().PaneAxes().Y2().Shown());
    EXPECT_FALSE(price.PaneArea().PaneAxes().Y().Shown());
    EXPECT_EQ(price.PaneInterior().Background(), 0x302010u);
}

TEST_F(CSheetTest, ResetNowIsAskedForOnce)
{
    m_chart->SetStockSymbol("TEST");
    ASSERT_TRUE(AwaitDrawn());
    Set(General, 310, "on");
    EXPECT_TRUE(std::get<bool>(State(311).Value));
    Ok();
    EXPECT_TRUE(Window().Settings().FixedScale);
    EXPECT_TRUE(Window().ResetScale());
    ASSERT_TRUE(AwaitDrawn());
    EXPECT_FALSE(Window().ResetScale());
    EXPECT_EQ(Sheet().TurnToPage(General), "");
    EXPECT_FALSE(std::get<bool>(State(311).Value)) << "starts unchecked";
    Sheet().Cancel();
}

TEST_F(CSheetTest, ASymbolThatWasOnlyTypedIsNotDrawnByAnOk)
{
    Window().Services().Symbol.SetText("TYPED");
    Set(Colors, 251, "#102030");
    Ok();
    QTest::qWait(20);
    EXPECT_EQ(Requests(), 0);
    EXPECT_EQ(Window().CurrentSymbol(), "TYPED");
    EXPECT_EQ(Window().Pane(0).PaneInterior().Background(), 0x302010u) << "the empty pane shows it";
    Sheet();
    Ok();
    EXPECT_TRUE(AwaitRequests(1)) << "now it is the symbol before";
}

TEST_F(CSheetTest, AStoreThatCannotBeWrittenIsSaidInTheStatusBarUntilItIsKept)
{
    m_key->SetLocked(true);
    Set(Colors, 251, "#010203");
    Ok();
    EXPECT_EQ(Window().Settings().BackgroundColor, 0x030201u) << "the chart takes the change";
    const std::string said = "Settings could not be kept: the settings file cannot be written.";
    EXPECT_NE(Window().StatusPart(0).find(said), std::string::npos) << Window().StatusPart(0);
    m_chart->SetStockSymbol("TEST");
    ASSERT_TRUE(AwaitDrawn());
    EXPECT_NE(Window().StatusPart(0).find(said), std::string::npos) << Window().StatusPart(0);
    m_key->SetLocked(false);
    EXPECT_TRUE(AwaitTrue([&] {
        Window().OnTimer(ProgressTimer);
        return Window().StatusPart(0).find(said) == std::string::npos;
    }));
    EXPECT_EQ(AllStored()["Background Color"], "197121");
}

TEST_F(CSheetTest, TheVolumeLabelColorIsReadAndNotWrittenAnew)
{
    m_key->Put("VolumeLabel Color", "1193046");
    const Stored before = AllStored();
    Set(Colors, 251, "#010203");
    Ok();
    EXPECT_EQ(Differences(before, AllStored()), Names{"Background Color"});
    EXPECT_EQ(Window().Settings().VolumeLabelColor, 0x123456u);
}

TEST_F(CSheetTest, TheSheetOpensOnThePageSeenLastAndOnlyOnce)
{
    Sheet().TurnToPage(Upper);
    Sheet().Cancel();
    EXPECT_EQ(*Sheet().Describe().Page, Upper);
    IDialogDriver* const open = Window().OpenDialog();
    Window().OnCommand(CommandSettings);
    EXPECT_EQ(Window().OpenDialog(), open);
    Sheet().TurnToPage(Colors);
    Sheet().Cancel();
}

TEST_F(CSheetTest, AChartThatGoesTakesItsOpenSheetAlong)
{
    Sheet();
    m_chart.reset();
    for (const QWidget* widget : QApplication::topLevelWidgets())
        EXPECT_NE(widget->windowTitle(), "Settings");
}

TEST_F(CSheetTest, DescribesThePageOnShow)
{
    Sheet().TurnToPage(General);
    const sDialogState state = Sheet().Describe();
    EXPECT_EQ(state.Title, "Settings");
    EXPECT_EQ(state.Pages, (Names{"Colors", "General", "Data", "Upper Studies", "Lower Studies"}));
    EXPECT_GT(state.Width, 200);
    std::vector<int> ids;
    for (const auto& [id, control] : state.Controls)
        ids.push_back(id);
    EXPECT_EQ(ids, (std::vector<int>{230, 231, 232, 233, 300, 301, 302, 303, 304, 305, 308, 309, 310, 311}));
    EXPECT_EQ(state.Controls.at(308).Items, (Names{"Left", "Right"}));
    EXPECT_EQ(state.Controls.at(232).Items.size(), 15u);
    EXPECT_EQ(state.Controls.at(233).Label, "Show -");
    EXPECT_EQ(state.Controls.at(301).Label, "by time\nincrements");
    EXPECT_EQ(state.Controls.at(311).Label, " Reset now");
    EXPECT_FALSE(state.Controls.at(311).Enabled);
    Sheet().Cancel();
}

TEST_F(CSheetTest, EveryControlHasANameForScreenReaders)
{
    Set(Lower, 328, "5"); // the study with the most fields
    int controls = 0;
    for (const QWidget* widget : Dialog().findChildren<QWidget*>()) {
        if (!widget->property("control").isValid() || widget->isHidden() ||
            qobject_cast<const QLabel*>(widget) != nullptr)
            continue;
        ++controls;
        bool named = !widget->accessibleName().isEmpty();
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            named |= !button->text().isEmpty();
        for (const QLabel* label : Dialog().findChildren<QLabel*>())
            named |= label->buddy() == widget;
        named |= !widget->property("title").toString().isEmpty(); // a group box
        EXPECT_TRUE(named) << widget->objectName().toStdString();
    }
    EXPECT_GT(controls, 75);
    Sheet().Cancel();
}

TEST_F(CSheetTest, NoTextIsClippedWithAFontOfTwiceTheSize)
{
    const QFont usual = QApplication::font();
    for (const int factor : {1, 2}) {
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * factor);
        QApplication::setFont(font);
        m_chart->show();
        int texts = 0;
        for (const char* page : {Colors, General, "Data", Upper, Lower}) {
            Sheet().TurnToPage(page);
            QApplication::processEvents();
            for (const QWidget* widget : Dialog().findChildren<QWidget*>()) {
                const bool text = qobject_cast<const QLabel*>(widget) != nullptr ||
                                  qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                  qobject_cast<const QComboBox*>(widget) != nullptr;
                if (!text || !widget->isVisible())
                    continue;
                ++texts;
                EXPECT_GE(widget->width(), widget->sizeHint().width())
                    << page << " " << widget->objectName().toStdString();
                EXPECT_GE(widget->height(), widget->sizeHint().height())
                    << page << " " << widget->objectName().toStdString();
            }
        }
        EXPECT_GT(texts, 60);
        Sheet().TurnToPage(Colors);
        Sheet().Cancel();
    }
    QApplication::setFont(usual);
}

TEST_F(CSheetTest, APageTooLargeForTheScreenScrollsAndTheButtonsStayOnIt)
{
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * 4);
    QApplication::setFont(font);
    m_chart->show();
    Sheet().TurnToPage(Lower);
    QApplication::processEvents();

    const QSize screen = Dialog().screen()->availableGeometry().size();
    EXPECT_LE(Dialog().width(), screen.width());
    EXPECT_LE(Dialog().height(), screen.height());
    auto* const buttons = Dialog().findChild<QDialogButtonBox*>();
    EXPECT_TRUE(Dialog().rect().contains(buttons->geometry()));
    QScrollArea* page = nullptr;
    for (QScrollArea* each : Dialog().findChildren<QScrollArea*>())
        if (each->isVisible())
            page = each;
    ASSERT_NE(page, nullptr);
    ASSERT_GT(page->verticalScrollBar()->maximum(), 0);

    // The Tab key brings each control into view.
    QWidget* const first = Dialog().focusWidget();
    int seen = 0;
    do {
        QTest::keyClick(Dialog().focusWidget(), Qt::Key_Tab);
        const QWidget* const focus = Dialog().focusWidget();
        if (!page->isAncestorOf(focus))
            continue;
        ++seen;
        const QPoint corner = focus->mapTo(page->viewport(), QPoint(0, 0));
        EXPECT_TRUE(page->viewport()->rect().contains(corner)) << focus->objectName().toStdString();
    } while (Dialog().focusWidget() != first && seen < 100);
    EXPECT_GT(seen, 3);
    Sheet().TurnToPage(Colors);
    Sheet().Cancel();
    QApplication::setFont(usual);
}

TEST_F(CSheetTest, EnterAcceptsAndEscapeCancels)
{
    m_chart->show();
    Set(Colors, 251, "#010203");
    QTest::keyClick(&Dialog(), Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Window().Settings().BackgroundColor, 0xFFFFFFu);
    Set(Upper, 273, "33");
    QTest::keyClick(&Dialog(), Qt::Key_Return);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Window().Settings().Overlays.BandPeriod, 33);
    Sheet().TurnToPage(Colors);
    Sheet().Cancel();
}

} // namespace zantroq::test
