// The rules of the settings sheet's pages, without a window.
#include "support/FakeForm.h"
#include "support/UnreliableKey.h"

#include "settings/SettingText.h"
#include "settings/SettingsLoader.h"
#include "settings/SettingsWriter.h"
#include "settings/TypedSetting.h"
#include "settings/pages/PageSettings.h"
#include "settings/pages/SettingSheet.h"
#include "settings/pages/SheetChanges.h"

#include <gtest/gtest.h>

#include <deque>
#include <set>

namespace zantroq::test {
namespace {

using Colors = CColorPage;
using General = CSettingPage;
using Data = CDataSettingPage;
using Upper = CUpperStudiesSettingPage;
using Lower = CLowerStudiesSettingPage;
using Texts = std::vector<std::string>;

enum Pages
{
    ColorsPage,
    GeneralPage,
    DataPage,
    UpperPage,
    LowerPage
};

struct sBox : IMessageBox
{
    Texts Said; // caption: text
    std::deque<BoxAnswer> Answers;
    BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons, BoxIcon) override
    {
        Said.push_back(caption + ": " + text);
        if (Answers.empty())
            return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
        const BoxAnswer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
};

struct sFace : ISheetFace
{
    std::array<CFakeForm, SheetPages> Forms;
    std::vector<int> Turns;
    sFace()
    {
        Forms[GeneralPage].AddRadioGroup({General::FlexibleScale, General::FixedScale});
        Forms[GeneralPage].AddRadioGroup({General::ScrollByPercent, General::ScrollByItems});
        Forms[DataPage].AddRadioGroup({Data::LoadPoints, Data::LoadDays, Data::LoadRange});
        Forms[LowerPage].AddRadioGroup({Lower::Choice1, Lower::Choice2, Lower::Choice3, Lower::CustomChoice});
        Forms[LowerPage].AddRadioGroup({Lower::SlowChoice, Lower::FastChoice});
    }
    IForm& Form(int page) override { return Forms.at(static_cast<std::size_t>(page)); }
    void TurnTo(int page) override { Turns.push_back(page); }
};

class CSheetTest : public testing::Test
{
protected:
    void Open()
    {
        m_face = std::make_unique<sFace>();
        m_sheet = std::make_unique<CSettingSheet>(*m_face, m_box, [this] { ++m_cleared; });
        m_sheet->Start(m_settings);
        for (int page = 0; page < SheetPages; ++page)
            Form(page).Bind(m_sheet->Page(page));
    }
    CFakeForm& Form(int page) { return m_face->Forms.at(static_cast<std::size_t>(page)); }
    sChartSettings Accepted()
    {
        EXPECT_TRUE(m_sheet->Accept());
        sChartSettings settings = m_settings;
        m_sheet->CopyTo(settings);
        return settings;
    }
    void ExpectRefusal(int page, int control, const std::string& text)
    {
        m_box.Said.clear();
        m_face->Turns.clear();
        EXPECT_FALSE(m_sheet->Accept());
        EXPECT_EQ(m_box.Said, Texts{"Error: " + text});
        EXPECT_EQ(m_face->Turns, std::vector<int>{page});
        EXPECT_EQ(Form(page).Focused, control);
    }

    sChartSettings m_settings = DefaultChartSettings("20260101");
    sBox m_box;
    int m_cleared = 0;
    std::unique_ptr<sFace> m_face;
    std::unique_ptr<CSettingSheet> m_sheet;
};

Texts Enabled(CFakeForm& form, const std::vector<int>& ids)
{
    Texts enabled;
    for (const int id : ids)
        if (form.Enabled(id))
            enabled.push_back(std::to_string(id));
    return enabled;
}

std::vector<std::string> Displayed(CFakeForm& form)
{
    Texts names;
    for (const FormRow& row : form[Lower::Displayed].Rows)
        names.push_back(row.front());
    return names;
}

} // namespace

TEST_F(CSheetTest, PagesStandInTheOrderOfTheSheet)
{
    Open();
    Texts titles;
    for (int page = 0; page < SheetPages; ++page)
        titles.push_back(m_sheet->Page(page).Title());
    EXPECT_EQ(titles, (Texts{"Colors", "General", "Data", "Upper Studies", "Lower Studies"}));
}

TEST_F(CSheetTest, AnOkWithoutAChangeHandsBackWhatCameIn)
{
    // Numbers that no field can show unchanged.
    m_settings.Grid = 5;
    m_settings.ScrollPercent = 500;
    m_settings.Overlays.BandDeviations = 2.0051;
    m_settings.Overlays.AveragePoints = {0, -7, 123456};
    m_settings.Trends[0].Extendable = 3;
    m_settings.Request.DayCounts[0] = 20000;
    m_settings.Request.BeginDates[0] = "20240231"; // a day that the calendar does not have
    m_settings.Studies.RsiRadio = 9;
    m_settings.VolumeLabelColor = 0x123456;
    Open();
    EXPECT_TRUE(ChangedSettings(m_settings, Accepted()).empty());
    EXPECT_FALSE(m_sheet->ResetScaleNow());
    EXPECT_FALSE(m_sheet->SavesRequestSettings());
    EXPECT_EQ(m_box.Said, Texts());
}

TEST_F(CSheetTest, EverySettingIsOnOnePageOrHasAReasonToBeOnNone)
{
    std::multiset<int> placed;
    for (int page = 0; page < SheetPages; ++page)
        placed.insert(SettingsOfPage(page).begin(), SettingsOfPage(page).end());
    for (const sOffSheet& off : SettingsOnNoPage()) {
        EXPECT_GT(std::string(off.Reason).size(), 10u) << off.Id;
        placed.insert(off.Id);
    }
    for (const sSettingRow& row : SettingsTable())
        EXPECT_EQ(placed.count(row.Id), 1u) << row.Id << " " << row.Name;
    EXPECT_EQ(placed.size(), SettingsTable().size());
}

// Every setting of a page, through the page, the store and another start

namespace {

// A value different from the current one, as text.
std::string AnotherNumber(const sSettingRow& row, const std::string& now)
{
    const int value = std::stoi(now);
    if (row.Form == SettingForm::Unnamed)
        return "42"; // in the range of both scroll amounts
    if (row.HasRange())
        return std::to_string(static_cast<int>(value == static_cast<int>(row.High) ? row.Low : row.High));
    if (value == 0 || value == 1)
        return value == 0 ? "1" : "0"; // a switch or a choice
    return std::to_string(value + 3);
}

std::string AnotherText(const sSettingRow& row, const std::string& now)
{
    switch (row.Type) {
    case SettingType::Color:
        return std::to_string(std::stoi(now) ^ 0x123456);
    case SettingType::Double:
        return "3.5";
    case SettingType::Date:
        return "20200101,20200102,20200103,20200104,20200105";
    case SettingType::Time:
        return "010101,020202,030303,040404,050505";
    case SettingType::Bool:
        return row.IsList() ? "1,0,1,0,1" : (now == "1" ? "0" : "1");
    default:
        break;
    }
    if (row.Form == SettingForm::PeriodList)
        return "31,32,33,34,35,36,37,38,39,40";
    if (row.Name == "RequestRecentType")
        return "2,4,7,8,9";
    if (row.Form == SettingForm::DataTypeList)
        return "11,12,13,14,15";
    return AnotherNumber(row, now);
}

} // namespace

TEST_F(CSheetTest, EachSettingOfAPageReachesTheStoreAndComesBackAtTheNextStart)
{
    int settings = 0;
    for (int page = 0; page < SheetPages; ++page)
        for (const int id : SettingsOfPage(page)) {
            const sSettingRow& row = *FindSetting(id);
            const int last = id == 32883 ? 0 : row.LastNumber; // of the types the one pane that is displayed
            for (int number = row.FirstNumber; number <= last; ++number) {
                const sSettingPlace place{&row, number};
                SCOPED_TRACE(SettingName(row, number));
                sUnreliableKey key;
                const sChartSettings before = LoadChartSettings(key, "20260101");
                const std::string wanted = AnotherText(row, SettingText(before, place));
                m_settings = before;
                ASSERT_EQ(TakeTypedText(m_settings, place, wanted), "");
                ASSERT_NE(SettingText(m_settings, place), SettingText(before, place));
                Open();
                ASSERT_TRUE(m_sheet->Accept());
                sChartSettings after = before;
                m_sheet->Page(page).CopyTo(after);
                EXPECT_EQ(SettingText(after, place), SettingText(m_settings, place)) << "through the page";
                CRetryingKey retrying(key);
                StoreSheetChanges(retrying, before, after, RequestKeeping::AsDefault);
                if ((row.Effects & EffectStudyList) != 0)
                    StorePaneStack(retrying, after.Panes); // as the layout does for a new list
                sChartSettings next = LoadChartSettings(key, "20260101");
                LoadSheetSettings(key, next);
                EXPECT_EQ(SettingText(next, place), SettingText(m_settings, place)) << "after a restart";
                ++settings;
            }
        }
    EXPECT_GT(settings, 130);
    EXPECT_EQ(m_box.Said, Texts());
}

namespace {

struct sWriteLog : ISettingsKey
{
    std::unique_ptr<ISettingsKey> Memory = MakeMemorySettingsKey();
    Texts Written;
    CSettingRead Read(std::string_view name) override { return Memory->Read(name); }
    bool Write(std::string_view name, const SettingValue& value) override
    {
        Written.emplace_back(name);
        return Memory->Write(name, value);
    }
    bool Delete(std::string_view name) override { return Memory->Delete(name); }
    std::vector<std::pair<std::string, SettingValue>> List() override { return Memory->List(); }
};

} // namespace

TEST_F(CSheetTest, ChangesAreWrittenInTheOrderOfThePages)
{
    sChartSettings after = m_settings;
    after.Studies.StoFast = 1;            // lower studies
    after.Overlays.ShowBands = 1;         // upper studies
    after.Request.IntervalIndex = 4;      // data
    after.Request.DatapointCounts[0] = 5; // data, of this chart only
    after.AxisOnRight = true;             // general
    after.PriceBarColor = 1;              // colors
    after.Studies.LabelColors[3] = 2;     // colors
    sWriteLog key;
    CRetryingKey retrying(key);
    const unsigned effects = StoreSheetChanges(retrying, m_settings, after, RequestKeeping::ThisChart);
    EXPECT_EQ(key.Written, (Texts{"Price Bar Color", "Study Label Color 3", "Y Axis Orientation",
                                  "RequestIntervalIndex", "RequestDataType", "BB STUDY SHOW", "STO Fast"}));
    EXPECT_EQ(effects, static_cast<unsigned>(EffectPriceBar | EffectStudies | EffectAxisSide | EffectRequest |
                                             EffectOverlays));
}

// Colors

TEST_F(CSheetTest, ColorsOfThePriceAndOfTheChosenStudyAreTaken)
{
    m_settings.Studies.DataColors[4] = 0x445566;
    Open();
    CFakeForm& form = Form(ColorsPage);
    EXPECT_EQ(form[Colors::Indicator].Items.size(), 10u);
    EXPECT_EQ(form[Colors::Indicator].Items[4], "Mov. Av. Conv. Diverg. (MACD)");
    EXPECT_EQ(form.Index(Colors::Indicator), 0) << "the first study, RSI";
    form.ChooseColor(Colors::Background, 0x010203);
    form.ChooseColor(Colors::StudyData, 0x0A0B0C);
    form.Choose(Colors::Indicator, 4);
    EXPECT_EQ(form.Color(Colors::StudyData), 0x445566u);
    form.ChooseColor(Colors::StudyLabel, 0x112233);
    form.Choose(Colors::Indicator, 0);
    EXPECT_EQ(form.Color(Colors::StudyData), 0x0A0B0Cu) << "the study keeps what was chosen for it";
    EXPECT_EQ(form.Color(Colors::StudyLabel), 0u);
    const sChartSettings after = Accepted();
    EXPECT_EQ(after.BackgroundColor, 0x010203u);
    EXPECT_EQ(after.Studies.DataColors[0], 0x0A0B0Cu);
    EXPECT_EQ(after.Studies.LabelColors[4], 0x112233u);
    EXPECT_EQ(after.Studies.DataColors[4], 0x445566u);
}

TEST_F(CSheetTest, TheVolumeLabelColorPassesThrough)
{
    m_settings.VolumeLabelColor = 0x654321;
    Open();
    Form(ColorsPage).ChooseColor(Colors::Grid, 1);
    EXPECT_EQ(Accepted().VolumeLabelColor, 0x654321u);
}

// General

TEST_F(CSheetTest, AChartTypeMustBeChosenBeforeAllElse)
{
    Open();
    CFakeForm& form = Form(GeneralPage);
    form.Choose(General::ChartType, -1);
    form.Choose(General::PointsShown, -1);
    form.Choose(General::GridStyle, -1);
    ExpectRefusal(GeneralPage, General::ChartType, "You must select a chart type.");
    form.Choose(General::ChartType, 0);
    ExpectRefusal(GeneralPage, General::PointsShown, "You must select a valid No. of Display Pts.");
    form.Choose(General::PointsShown, 14);
    ExpectRefusal(GeneralPage, General::GridStyle, "You must select a valid No. of Grid Style.");
    form.Check(General::Grid, false);
    const sChartSettings after = Accepted();
    EXPECT_EQ(after.PtsIndex, 14);
    EXPECT_EQ(after.Grid, 0);
    EXPECT_EQ(after.GridStyle, 0) << "none chosen keeps the one before";
    EXPECT_EQ(after.CandleStyle, 0);
}

TEST_F(CSheetTest, AFixedScaleAsksForAResetThatCanBeUnchecked)
{
    Open();
    CFakeForm& form = Form(GeneralPage);
    EXPECT_FALSE(form.Checked(General::ResetNow));
    EXPECT_FALSE(form.Enabled(General::ResetNow));
    form.Check(General::FixedScale);
    EXPECT_TRUE(form.Checked(General::ResetNow));
    EXPECT_TRUE(form.Enabled(General::ResetNow));
    form.Check(General::FlexibleScale);
    EXPECT_FALSE(form.Checked(General::ResetNow));
    EXPECT_FALSE(form.Enabled(General::ResetNow));
    form.Check(General::FixedScale);
    form.Check(General::ResetNow, false);
    EXPECT_TRUE(Accepted().FixedScale);
    EXPECT_FALSE(m_sheet->ResetScaleNow());
}

TEST_F(CSheetTest, AStoredFixedScaleStartsWithoutAReset)
{
    m_settings.FixedScale = true;
    Open();
    EXPECT_FALSE(Form(GeneralPage).Checked(General::ResetNow));
    EXPECT_TRUE(Form(GeneralPage).Enabled(General::ResetNow));
    Form(GeneralPage).Check(General::ResetNow);
    EXPECT_TRUE(m_sheet->ResetScaleNow());
}

TEST_F(CSheetTest, ScrollAmountsAreHeldToTheirRanges)
{
    Open();
    CFakeForm& form = Form(GeneralPage);
    form.Type(General::ScrollPercent, "150");
    form.Type(General::ScrollItems, "0");
    form.Check(General::ScrollByPercent);
    const sChartSettings after = Accepted();
    EXPECT_EQ(after.ScrollPercent, 99);
    EXPECT_EQ(after.ScrollItems, 1);
    EXPECT_FALSE(after.ScrollByItems);
    EXPECT_EQ(form[General::ScrollPercentSpin].High, 99);
    EXPECT_EQ(form[General::ScrollItemsSpin].High, 999);
}

// Data

TEST_F(CSheetTest, PointsOutOfRangeBecomeAThousandWithAMessage)
{
    const std::string message =
        "Invalid Setting: Datapoints outside of range (1 - 2,000,000).  Defaulting to 1000.";
    for (const char* text : {"2000001", "-1", "99999999999"}) {
        m_box.Said.clear();
        Open();
        Form(DataPage).Type(Data::Points, text);
        EXPECT_EQ(Accepted().Request.DatapointCounts[0], 1000) << text;
        EXPECT_EQ(m_box.Said, Texts{message}) << text;
        EXPECT_EQ(Form(DataPage).Text(Data::Points), "1000");
        EXPECT_EQ(m_face->Turns, std::vector<int>{DataPage}) << "the message stands over its page";
    }
    m_box.Said.clear();
    for (const auto& [text, points] : {std::pair{"2000000", 2000000}, {"0", 0}, {"1", 1}, {"abc", 0}}) {
        Open();
        Form(DataPage).Type(Data::Points, text);
        EXPECT_EQ(Accepted().Request.DatapointCounts[0], points) << text;
    }
    EXPECT_EQ(m_box.Said, Texts());
}

TEST_F(CSheetTest, EachDataTypeKeepsItsOwnFields)
{
    Open();
    CFakeForm& form = Form(DataPage);
    EXPECT_EQ(form.Text(Data::PointsLabel), "Ticks");
    form.Type(Data::Points, "77");
    form.Check(Data::LoadDays);
    form.Type(Data::Days, "5");
    form.Check(Data::ExtendedTrades);
    form.Check(Data::Filter);
    form.Type(Data::FilterStart, "10:11:12");
    form.Choose(Data::DataType, 2);
    EXPECT_EQ(form.Text(Data::PointsLabel), "Days");
    EXPECT_EQ(form.Text(Data::Points), "1000");
    EXPECT_FALSE(form.Checked(Data::ExtendedTrades));
    EXPECT_TRUE(form.Checked(Data::LoadPoints));
    form.Check(Data::LoadRange);
    form.Type(Data::StartDate, "2020-02-29");
    form.Choose(Data::DataType, 0);
    EXPECT_EQ(form.Text(Data::Points), "77");
    EXPECT_EQ(form.Text(Data::Days), "5");
    EXPECT_TRUE(form.Checked(Data::LoadDays));
    EXPECT_TRUE(form.Checked(Data::ExtendedTrades));
    EXPECT_TRUE(form.Checked(Data::Filter));
    EXPECT_EQ(form.Text(Data::FilterStart), "10:11:12");
    const sChartSettings after = Accepted();
    EXPECT_EQ(after.Request.DataType, 0);
    EXPECT_EQ(after.Request.RequestKinds, (std::array<std::int32_t, 5>{1, 3, 7, 8, 9}));
    EXPECT_EQ(after.Request.BeginDates[2], "20200229");
    EXPECT_EQ(after.Request.BeginDates[0], "20260101");
    EXPECT_EQ(after.Request.BeginFilterTimes[0], "101112");
    EXPECT_TRUE(after.Request.TimeFilterOn[0]);
    EXPECT_EQ(after.Request.DayCounts[0], 5);
}

TEST_F(CSheetTest, DataFieldsAreEnabledByTypeAndChoice)
{
    const std::vector<int> ids{Data::Interval, Data::LoadPoints, Data::Points,    Data::LoadDays,
                               Data::Days,     Data::LoadRange,  Data::StartDate, Data::StopTime,
                               Data::Filter,   Data::FilterStart};
    Open();
    CFakeForm& form = Form(DataPage);
    EXPECT_EQ(Enabled(form, ids), (Texts{"316", "317", "315", "231", "235"}));
    form.Check(Data::LoadDays);
    EXPECT_EQ(Enabled(form, ids), (Texts{"316", "315", "220", "231", "235"}));
    form.Check(Data::LoadRange);
    form.Check(Data::Filter);
    EXPECT_EQ(Enabled(form, ids), (Texts{"316", "315", "231", "233", "259", "235", "236"}));
    form.Choose(Data::DataType, 1);
    EXPECT_EQ(Enabled(form, ids), (Texts{"243", "316", "317", "315", "231", "235"}));
    form.Choose(Data::DataType, 2);
    EXPECT_EQ(Enabled(form, ids), (Texts{"316", "317", "231"}));
    form.Choose(Data::DataType, 3);
    EXPECT_EQ(Enabled(form, ids), (Texts{"316", "317"}));
    form.Choose(Data::DataType, 4);
    EXPECT_EQ(Enabled(form, ids), (Texts{"316", "317"}));
}

TEST_F(CSheetTest, AnUnknownLoadKindFallsBackToThePoints)
{
    Open();
    Form(DataPage).SetChecked(Data::LoadPoints, false);
    EXPECT_EQ(Accepted().Request.RequestKinds[0], 0);
    EXPECT_EQ(m_box.Said,
              Texts{"Invalid Setting: Unknown request type Selected.\r\nDefaulting to datapoints request."});
    EXPECT_TRUE(Form(DataPage).Checked(Data::LoadPoints));
}

TEST_F(CSheetTest, AnUnknownDataTypeIsReportedAndTheTypeBeforeStays)
{
    m_settings.Request.DataType = 2;
    Open();
    Form(DataPage).SetIndex(Data::DataType, -1);
    EXPECT_EQ(Accepted().Request.DataType, 2);
    EXPECT_EQ(m_box.Said, Texts{"Invalid Setting: Invalid Data Type Selection!"});
}

TEST_F(CSheetTest, ClearingAsksAndShowsTheDefaults)
{
    m_settings.Request.DataType = 1;
    m_settings.Request.DatapointCounts[0] = 5;
    Open();
    CFakeForm& form = Form(DataPage);
    form.Press(Data::ClearSaved);
    EXPECT_EQ(m_box.Said, Texts{"Settings: Do you really want to clear the saved settings?"});
    EXPECT_EQ(m_cleared, 0) << "no is the answer without one";
    EXPECT_EQ(form.Index(Data::DataType), 1);
    m_box.Answers = {BoxAnswer::Yes};
    form.Press(Data::ClearSaved);
    EXPECT_EQ(m_cleared, 1);
    EXPECT_EQ(form.Index(Data::DataType), 0);
    EXPECT_EQ(form.Text(Data::Points), "1000");
    EXPECT_EQ(form.Text(Data::FilterStart), "09:30:00");
    EXPECT_EQ(form.Text(Data::FilterStop), "16:00:00");
}

// Upper studies

TEST_F(CSheetTest, TheBandsPeriodIsFromTwoTo999)
{
    Open();
    CFakeForm& form = Form(UpperPage);
    for (const char* text : {"1", "1000", "", "abc"}) {
        form.Type(Upper::BandPeriod, text);
        ExpectRefusal(UpperPage, Upper::BandPeriod, "Study average period must be from 2 to 999");
    }
    for (const auto& [text, period] : {std::pair{"2", 2}, {"999", 999}, {"12x", 12}}) {
        form.Type(Upper::BandPeriod, text);
        EXPECT_EQ(Accepted().Overlays.BandPeriod, period);
    }
}

TEST_F(CSheetTest, DeviationsAreFromAHundredthToAHundred)
{
    Open();
    CFakeForm& form = Form(UpperPage);
    EXPECT_EQ(form.Text(Upper::Deviations), "2.00");
    form.Type(Upper::Deviations, "");
    ExpectRefusal(UpperPage, Upper::Deviations, "You must select a valid No. of Deviations.");
    for (const char* text : {"0.009", "100.01", "0", "-1", "abc", "nan", "inf"}) {
        form.Type(Upper::Deviations, text);
        ExpectRefusal(UpperPage, Upper::Deviations, "No. of Deviations must be from 0.01 to 100");
    }
    for (const auto& [text, value] : {std::pair{"0.01", 0.01}, {"100", 100.0}, {"2.5", 2.5}}) {
        form.Type(Upper::Deviations, text);
        EXPECT_EQ(Accepted().Overlays.BandDeviations, value);
    }
}

TEST_F(CSheetTest, ThePeriodComesBeforeTheDeviations)
{
    Open();
    Form(UpperPage).Type(Upper::Deviations, "");
    Form(UpperPage).Type(Upper::BandPeriod, "0");
    ExpectRefusal(UpperPage, Upper::BandPeriod, "Study average period must be from 2 to 999");
}

TEST_F(CSheetTest, EachKindOfTrendlineKeepsItsLook)
{
    Open();
    CFakeForm& form = Form(UpperPage);
    form.ChooseColor(Upper::TrendColor, 0x00AA00);
    form.Type(Upper::Width, "7");
    EXPECT_EQ(form[Upper::LinePicture].SampleColor, 0x00AA00u);
    EXPECT_EQ(form[Upper::LinePicture].SampleWidth, 7);
    form.Choose(Upper::TrendKindBox, 6);
    EXPECT_EQ(form.Color(Upper::TrendColor), 0x38B88Bu);
    EXPECT_EQ(form.Text(Upper::Width), "1");
    EXPECT_EQ(form[Upper::LinePicture].SampleWidth, 1);
    form.Check(Upper::Extendable, false);
    form.Choose(Upper::TrendKindBox, 0);
    EXPECT_EQ(form.Text(Upper::Width), "7");
    EXPECT_TRUE(form.Checked(Upper::Extendable));
    const sChartSettings after = Accepted();
    EXPECT_EQ(after.Trends[0].Color, 0x00AA00u);
    EXPECT_EQ(after.Trends[0].Width, 7);
    EXPECT_EQ(after.Trends[6].Extendable, 0);
}

TEST_F(CSheetTest, PeriodsOfMovingAveragesAreTakenAsTheyAre)
{
    Open();
    Form(UpperPage).Type(Upper::Period2, "abc");
    Form(UpperPage).Type(Upper::Period3, "5000");
    EXPECT_EQ(Accepted().Overlays.AveragePoints, (std::array<std::int32_t, 3>{5, 0, 5000}));
}

// Lower studies

TEST_F(CSheetTest, AChoiceFixesThePeriodOfEachStudy)
{
    struct sRow
    {
        int Study, Choice;
        std::int32_t Period;
    };
    const std::vector<sRow> rows{{0, 202, 14}, {0, 203, 9},  {0, 204, 25}, {1, 202, 10}, {1, 203, 30},
                                 {2, 202, 10}, {2, 203, 30}, {3, 202, 9},  {4, 202, 9},  {4, 203, 9},
                                 {5, 202, 5},  {5, 203, 10}, {5, 204, 25}, {6, 202, 1},  {7, 202, 14},
                                 {8, 202, 14}, {9, 202, 14}};
    for (const sRow& row : rows) {
        Open();
        Form(LowerPage).Select(Lower::Available, {row.Study});
        ASSERT_TRUE(Form(LowerPage).CanUse(row.Choice)) << row.Study;
        Form(LowerPage).Check(row.Choice);
        const auto study = static_cast<std::size_t>(row.Study);
        EXPECT_EQ(Accepted().Studies.Periods[study], row.Period) << row.Study << " " << row.Choice;
        EXPECT_EQ(Accepted().Studies.CustomPeriods[study], m_settings.Studies.CustomPeriods[study]);
    }
}

TEST_F(CSheetTest, CustomTakesTheEditsNumberForBothPeriods)
{
    for (int study = 0; study < StudyKinds; ++study) {
        if (study == StudyMACD)
            continue;
        Open();
        Form(LowerPage).Select(Lower::Available, {study});
        Form(LowerPage).Check(Lower::CustomChoice);
        Form(LowerPage).Type(Lower::CustomPeriod, "33");
        const sChartSettings after = Accepted();
        EXPECT_EQ(after.Studies.Periods[static_cast<std::size_t>(study)], 33);
        EXPECT_EQ(after.Studies.CustomPeriods[static_cast<std::size_t>(study)], 33);
    }
}

TEST_F(CSheetTest, ACustomTextThatIsNoNumberGivesPeriodZero)
{
    Open();
    Form(LowerPage).Select(Lower::Available, {StudyRSI});
    Form(LowerPage).Check(Lower::CustomChoice);
    Form(LowerPage).Type(Lower::CustomPeriod, "abc");
    EXPECT_EQ(Accepted().Studies.Periods[0], 0);
    EXPECT_EQ(Accepted().Studies.RsiRadio, 0);
}

TEST_F(CSheetTest, MacdChoicesSetThreePeriods)
{
    Open();
    CFakeForm& form = Form(LowerPage);
    form.Select(Lower::Available, {StudyMACD});
    EXPECT_EQ(form.Text(Lower::Choice1), "buy (8, 17, 9)");
    EXPECT_EQ(form.Text(Lower::Choice2), "sell (12, 25, 9)");
    EXPECT_EQ(form.Text(Lower::CustomChoice), "custom");
    form.Check(Lower::Choice2);
    sStudySettings studies = Accepted().Studies;
    EXPECT_EQ(studies.MacdShort, 12);
    EXPECT_EQ(studies.MacdLong, 25);
    EXPECT_EQ(studies.Periods[4], 9);
    EXPECT_EQ(studies.MacdRadio, 2);
    EXPECT_EQ(studies.MacdCustomShort, 38);
    form.Check(Lower::CustomChoice);
    form.Type(Lower::CustomPeriod, "3");
    form.Type(Lower::SecondNumber, "4");
    form.Type(Lower::ThirdNumber, "5");
    studies = Accepted().Studies;
    EXPECT_EQ(studies.MacdShort, 3);
    EXPECT_EQ(studies.MacdCustomShort, 3);
    EXPECT_EQ(studies.MacdLong, 4);
    EXPECT_EQ(studies.MacdCustomLong, 4);
    EXPECT_EQ(studies.Periods[4], 5);
    EXPECT_EQ(studies.CustomPeriods[4], 5);
}

TEST_F(CSheetTest, AMacdWhoseShortPeriodIsNotShorterIsRefused)
{
    Open();
    CFakeForm& form = Form(LowerPage);
    form.Select(Lower::Available, {StudyMACD});
    form.Check(Lower::CustomChoice);
    form.Type(Lower::CustomPeriod, "12");
    form.Type(Lower::SecondNumber, "12");
    form.Type(Lower::ThirdNumber, "9");
    form.Select(Lower::Available, {StudyADX}); // leaving the study accepts it; the OK does not
    ExpectRefusal(LowerPage, Lower::CustomPeriod, "MACD short period must be shorter then MACD long period");
    EXPECT_EQ(form.Text(Lower::Group), "MACD Properties...");
    form.Type(Lower::SecondNumber, "13");
    EXPECT_EQ(Accepted().Studies.MacdLong, 13);
}

TEST_F(CSheetTest, AStudyThatNobodyVisitedKeepsItsValues)
{
    Open();
    EXPECT_EQ(Accepted().Studies.Periods, m_settings.Studies.Periods);
    Form(LowerPage).Select(Lower::Available, {StudyMomentum});
    Form(LowerPage).Select(Lower::Available, {StudyROC});
    const sStudySettings after = Accepted().Studies;
    EXPECT_EQ(after.Periods[0], 21) << "the choice shows 14, but nobody visited it";
    EXPECT_EQ(after.Periods[1], 10) << "leaving a visited study takes its choice";
}

TEST_F(CSheetTest, FieldsFollowTheStudy)
{
    const std::vector<int> ids{202, 203, 204, 294, 295, 296, 339, 287, 269, 288, 282,
                               292, 289, 285, 293, 290, 297, 291, 300, 298, 301};
    struct sRow
    {
        const char* Group;
        Texts Visible;
    };
    const std::vector<sRow> rows{
        {"RSI Properties...",
         {"202", "203", "204", "294", "287", "269", "288", "282", "292", "289", "285", "293"}},
        {"Momentum Properties...", {"202", "203", "294", "287", "269", "290", "297"}},
        {"ROC Properties...", {"202", "203", "294", "287", "269", "290", "297"}},
        {"OBV Properties...", {"202", "294", "287", "269", "290", "297"}},
        {"MACD Properties...", {"202", "203", "294", "287", "269", "282", "285", "290", "297", "291", "300"}},
        {"STO Properties...",
         {"202", "203", "204", "294", "295", "296", "287", "269", "288", "282", "292", "289", "285", "293",
          "290", "297", "291", "300"}},
        {"Volume Properties...", {"202", "294", "339", "269", "298", "301"}},
        {"Money Flow Properties...", {"202", "294", "287", "269", "290", "297", "291", "300"}},
        {"MFI Properties...", {"202", "294", "287", "269", "288", "282", "292", "289", "285", "293"}},
        {"ADX Properties...", {"202", "294", "287", "269", "290", "297", "291", "300"}}};
    Open();
    for (int study = 0; study < StudyKinds; ++study) {
        Form(LowerPage).Select(Lower::Available, {study});
        Texts visible;
        for (const int id : ids)
            if (Form(LowerPage).Visible(id))
                visible.push_back(std::to_string(id));
        EXPECT_EQ(Form(LowerPage).Text(Lower::Group), rows[static_cast<std::size_t>(study)].Group);
        EXPECT_EQ(visible, rows[static_cast<std::size_t>(study)].Visible) << study;
    }
}

TEST_F(CSheetTest, LevelsAreReadAsIntegersWithoutARange)
{
    Open();
    Form(LowerPage).Select(Lower::Available, {StudyMFI});
    Form(LowerPage).Type(Lower::SecondNumber, "-50");
    Form(LowerPage).Type(Lower::ThirdNumber, "x");
    Form(LowerPage).ChooseColor(Lower::LowerColor, 0x777777);
    const sStudySettings after = Accepted().Studies;
    EXPECT_EQ(after.MfiUpperLevel, -50);
    EXPECT_EQ(after.MfiLowerLevel, 0);
    EXPECT_EQ(after.MfiLowerColor, 0x777777u);
    EXPECT_EQ(after.RsiUpperLevel, 70);
}

TEST_F(CSheetTest, SlowFastAndTheVolumeAverageAreSwitches)
{
    Open();
    CFakeForm& form = Form(LowerPage);
    form.Select(Lower::Available, {StudyStochastics});
    EXPECT_TRUE(form.Checked(Lower::SlowChoice));
    form.Check(Lower::FastChoice);
    form.Select(Lower::Available, {StudyVolume});
    EXPECT_TRUE(form.Checked(Lower::Choice1));
    form.Check(Lower::CustomChoice);
    form.Check(Lower::ShowAverage, false);
    form.ChooseColor(Lower::AverageColor, 0x10);
    const sStudySettings after = Accepted().Studies;
    EXPECT_EQ(after.StoFast, 1);
    EXPECT_EQ(after.VolumeAverageAllData, 0);
    EXPECT_EQ(after.Periods[6], 500);
    EXPECT_EQ(after.ShowVolumeAverage, 0);
    EXPECT_EQ(after.VolumeAverageColor, 0x10u);
}

TEST_F(CSheetTest, ListButtonsAreEnabledWhenTheyWouldDoSomething)
{
    const std::vector<int> ids{Lower::Add, Lower::Up, Lower::Down, Lower::Remove};
    Open();
    CFakeForm& form = Form(LowerPage);
    EXPECT_EQ(Enabled(form, ids), Texts{"340"}) << "the one displayed study is selected";
    form.Select(Lower::Available, {StudyVolume});
    EXPECT_EQ(Enabled(form, ids), Texts{"340"}) << "displayed already";
    form.Select(Lower::Available, {StudyADX});
    EXPECT_EQ(Enabled(form, ids), (Texts{"330", "340"}));
    form.Press(Lower::Add);
    EXPECT_EQ(Displayed(form), (Texts{"Volume (VOL)", "Av. Direct. Movm. Index (ADX)"}));
    EXPECT_EQ(Enabled(form, ids), (Texts{"331", "340"})) << "the added one is selected, at the end";
    form.Press(Lower::Up);
    EXPECT_EQ(Enabled(form, ids), (Texts{"332", "340"}));
    form.Press(Lower::Down);
    form.Press(Lower::Remove);
    form.Press(Lower::Remove);
    EXPECT_EQ(Displayed(form), Texts());
    EXPECT_EQ(Enabled(form, ids), Texts{"330"});
    EXPECT_EQ(Accepted().Panes.StudyCount, 0);
}

TEST_F(CSheetTest, AllTenStudiesCanBeDisplayedOnceEach)
{
    Open();
    CFakeForm& form = Form(LowerPage);
    for (int study = 0; study < StudyKinds; ++study)
        form.DoubleClick(Lower::Available, study);
    for (int study = 0; study < StudyKinds; ++study)
        form.DoubleClick(Lower::Available, study);
    const sChartSettings after = Accepted();
    EXPECT_EQ(after.Panes.StudyCount, 10);
    EXPECT_EQ(after.Panes.StudyTypes, (std::array<std::int32_t, 10>{6, 0, 1, 2, 3, 4, 5, 7, 8, 9}));
    EXPECT_FALSE(form.Enabled(Lower::Add));
    form.DoubleClick(Lower::Displayed, 0);
    EXPECT_EQ(Accepted().Panes.StudyCount, 9);
}

TEST_F(CSheetTest, RowsCanBeDraggedBetweenTheListsAndWithinOne)
{
    m_settings.Panes.StudyCount = 3;
    m_settings.Panes.StudyTypes = {0, 1, 2};
    Open();
    CFakeForm& form = Form(LowerPage);
    form.Drop(Lower::Available, StudyADX, Lower::Displayed, 1);
    EXPECT_EQ(Accepted().Panes.StudyTypes[1], StudyADX);
    form.Drop(Lower::Displayed, 0, Lower::Displayed, 3);
    EXPECT_EQ(Accepted().Panes.StudyTypes, (std::array<std::int32_t, 10>{9, 1, 0, 2}));
    form.Drop(Lower::Displayed, 3, Lower::Displayed, 0);
    EXPECT_EQ(Accepted().Panes.StudyTypes, (std::array<std::int32_t, 10>{2, 9, 1, 0}));
    form.Drop(Lower::Displayed, 1, Lower::Available, 5);
    EXPECT_EQ(Accepted().Panes.StudyCount, 3);
    form.Drop(Lower::Available, StudyROC, Lower::Displayed, 0);
    EXPECT_EQ(Accepted().Panes.StudyCount, 3) << "displayed already";
}

TEST_F(CSheetTest, ShowDisplaysTheStudyWhosePropertiesAreOnShow)
{
    Open();
    CFakeForm& form = Form(LowerPage);
    form.Select(Lower::Available, {StudyOBV});
    EXPECT_FALSE(form.Checked(Lower::ShowStudy));
    form.Check(Lower::ShowStudy);
    EXPECT_EQ(Accepted().Panes.StudyTypes[1], StudyOBV);
    form.Check(Lower::ShowStudy, false);
    EXPECT_EQ(Accepted().Panes.StudyCount, 1);
}

TEST_F(CSheetTest, TheFirstRefusalInTheOrderOfThePagesCounts)
{
    Open();
    Form(LowerPage).Select(Lower::Available, {StudyMACD});
    Form(LowerPage).Check(Lower::CustomChoice);
    Form(LowerPage).Type(Lower::CustomPeriod, "99");
    Form(UpperPage).Type(Upper::BandPeriod, "1");
    ExpectRefusal(UpperPage, Upper::BandPeriod, "Study average period must be from 2 to 999");
    Form(UpperPage).Type(Upper::BandPeriod, "2");
    ExpectRefusal(LowerPage, Lower::CustomPeriod, "MACD short period must be shorter then MACD long period");
}

} // namespace zantroq::test
