#include "settings/SettingsLoader.h"

#include "settings/SettingText.h"
#include "settings/SettingsTable.h"
#include "settings/SettingsWriter.h"
#include "support/UnreliableKey.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace zantroq {
namespace {

struct SettingsLoader : testing::Test
{
    std::unique_ptr<ISettingsKey> Key = MakeMemorySettingsKey();
    void Put(const std::string& name, const std::string& text) { Key->Write(name, text); }
    std::string Stored(const std::string& name)
    {
        const auto value = Key->Read(name);
        return value ? std::get<std::string>(*value) : "(missing)";
    }
    sChartSettings Load() { return LoadChartSettings(*Key, "20260102"); }
};

using Ints5 = std::array<std::int32_t, 5>;
using Ints10 = std::array<std::int32_t, 10>;
using Texts5 = std::array<std::string, 5>;

// Everything that users of the record may assume.
void ExpectUsable(const sChartSettings& s, const std::string& what)
{
    SCOPED_TRACE(what);
    EXPECT_TRUE(s.PtsIndex >= 0 && s.PtsIndex <= 14);
    EXPECT_TRUE(s.GridStyle == 0 || s.GridStyle == 1);
    EXPECT_TRUE(s.CandleStyle == 0 || s.CandleStyle == 1);
    EXPECT_TRUE(s.ScrollItems >= 1 && s.ScrollItems <= 999 && s.ScrollPercent >= 1 && s.ScrollPercent <= 999);
    EXPECT_TRUE(s.Request.DataType >= 0 && s.Request.DataType <= 4);
    EXPECT_TRUE(s.Request.IntervalIndex >= 0 && s.Request.IntervalIndex <= 10);
    for (int type = 0; type < 5; ++type)
        EXPECT_TRUE(RequestKindFits(type, s.Request.RequestKinds[static_cast<std::size_t>(type)]));
    for (const auto* texts : {&s.Request.BeginDates, &s.Request.EndDates})
        for (const auto& text : *texts)
            EXPECT_TRUE(text.size() == 8 && text.find_first_not_of("0123456789") == std::string::npos)
                << text;
    for (const auto* texts :
         {&s.Request.BeginTimes, &s.Request.EndTimes, &s.Request.BeginFilterTimes, &s.Request.EndFilterTimes})
        for (const auto& text : *texts)
            EXPECT_TRUE(text.size() == 6 && text.find_first_not_of("0123456789") == std::string::npos)
                << text;
    EXPECT_TRUE(std::isfinite(s.Overlays.BandDeviations));
    for (const auto& style : s.Trends)
        EXPECT_TRUE(style.Width >= 1 && style.Width <= 99 && style.Color <= 0xFFFFFF);
    for (const ColorValue color : {s.BackgroundColor, s.GridColor, s.PriceBarColor, s.Studies.RsiUpperColor})
        EXPECT_LE(color, 0xFFFFFFu);
    ASSERT_TRUE(s.Panes.StudyCount >= 0 && s.Panes.StudyCount <= 10);
    for (int k = 0; k < s.Panes.StudyCount; ++k)
        EXPECT_TRUE(s.Panes.StudyTypes[static_cast<std::size_t>(k)] >= 0 &&
                    s.Panes.StudyTypes[static_cast<std::size_t>(k)] < StudyKinds);
    for (int k = 0; k <= s.Panes.StudyCount; ++k)
        EXPECT_GT(s.Panes.Bounds[static_cast<std::size_t>(k) + 1],
                  s.Panes.Bounds[static_cast<std::size_t>(k)]);
    EXPECT_LE(s.Panes.Bounds[static_cast<std::size_t>(s.Panes.StudyCount) + 1], 1.0);
    EXPECT_TRUE(s.Panes.MaximizedIndex == 999 ||
                (s.Panes.MaximizedIndex >= 0 && s.Panes.MaximizedIndex <= s.Panes.StudyCount));
}

} // namespace

TEST_F(SettingsLoader, ListsPerDataTypeReadFiveEntriesInOrder)
{
    Put("RequestDatapoints", "1,2,3,4,5");
    Put("RequestEnableExtendedTrades", "1,0,1,0,1");
    Put("RequestBeginDate", "20140101,20140102,20140103,20140104,20140105");
    const auto s = Load();
    EXPECT_EQ(s.Request.DatapointCounts, (Ints5{1, 2, 3, 4, 5}));
    EXPECT_EQ(s.Request.ExtendedTrades, (std::array{true, false, true, false, true}));
    EXPECT_EQ(s.Request.BeginDates, (Texts5{"20140101", "20140102", "20140103", "20140104", "20140105"}));
}

TEST_F(SettingsLoader, EntriesPastTheFifthAreIgnored)
{
    Put("RequestDays", "1,2,3,4,5,6,7");
    EXPECT_EQ(Load().Request.DayCounts, (Ints5{1, 2, 3, 4, 5}));
}

TEST_F(SettingsLoader, ShortListsArePadded)
{
    Put("RequestDatapoints", "7,8");
    Put("RequestBeginDate", "20140101");
    Put("RequestEndTime", "120000,130000");
    Put("RequestBeginTime", "");
    const auto s = Load();
    EXPECT_EQ(s.Request.DatapointCounts, (Ints5{7, 8, 1000, 1000, 1000}));
    EXPECT_EQ(s.Request.BeginDates, (Texts5{"20140101", "20260102", "20260102", "20260102", "20260102"}));
    EXPECT_EQ(s.Request.EndTimes, (Texts5{"120000", "130000", "160000", "160000", "160000"}));
    EXPECT_EQ(s.Request.BeginTimes, (Texts5{"093000", "093000", "093000", "093000", "093000"}));
    EXPECT_EQ(Stored("RequestDatapoints"), "7,8");
}

TEST_F(SettingsLoader, OnlyThe1OfASwitchListIsOn)
{
    Put("RequestFilterOn", "1,01,2,on,1");
    EXPECT_EQ(Load().Request.TimeFilterOn, (std::array{true, false, false, false, true}));
}

TEST_F(SettingsLoader, ListsPerDataTypeAreNotWrittenToAFreshKey)
{
    Load();
    for (const auto& row : SettingsTable())
        if (row.Form == SettingForm::DataTypeList) {
            EXPECT_EQ(Stored(std::string(row.Name)), "(missing)") << row.Name;
        }
}

TEST_F(SettingsLoader, OlderPeriodsEndAsOneListAndAreGone)
{
    for (int study = 0; study < 10; ++study) {
        Put("STUDY AVG PERIOD " + std::to_string(study), std::to_string(100 + study));
        Put("STUDY CUSTOM AVG PERIOD " + std::to_string(study), std::to_string(200 + study));
    }
    const auto s = Load();
    EXPECT_EQ(s.Studies.Periods, (Ints10{100, 101, 102, 103, 104, 105, 106, 107, 108, 109}));
    EXPECT_EQ(s.Studies.CustomPeriods, (Ints10{200, 201, 202, 203, 204, 205, 206, 207, 208, 209}));
    EXPECT_EQ(Stored("STUDY AVG PERIOD"), "100,101,102,103,104,105,106,107,108,109");
    EXPECT_EQ(Stored("STUDY CUSTOM AVG PERIOD"), "200,201,202,203,204,205,206,207,208,209");
    for (const auto& [name, value] : Key->List())
        EXPECT_FALSE(name.starts_with("STUDY AVG PERIOD ") || name.starts_with("STUDY CUSTOM AVG PERIOD "))
            << name;
}

// Otherwise, a process that is killed in between or a read-only file would lose the periods.
TEST_F(SettingsLoader, OlderPeriodsGoOnlyWhenTheListStands)
{
    struct sKey : ISettingsKey
    {
        std::unique_ptr<ISettingsKey> Memory = MakeMemorySettingsKey();
        bool Writes = true;
        int DeletedBefore = 0;
        CSettingRead Read(std::string_view name) override { return Memory->Read(name); }
        bool Write(std::string_view name, const SettingValue& value) override
        {
            return Writes && Memory->Write(name, value);
        }
        bool Delete(std::string_view name) override
        {
            const bool custom = name.starts_with("STUDY CUSTOM");
            if (!Memory->Read(custom ? "STUDY CUSTOM AVG PERIOD" : "STUDY AVG PERIOD"))
                ++DeletedBefore;
            return Memory->Delete(name);
        }
        std::vector<std::pair<std::string, SettingValue>> List() override { return Memory->List(); }
    };
    sKey key;
    key.Write("STUDY AVG PERIOD 3", std::string("44"));
    key.Writes = false;
    EXPECT_EQ(LoadChartSettings(key, "20260102").Studies.Periods[3], 44);
    EXPECT_EQ(key.Read("STUDY AVG PERIOD 3"), SettingValue(std::string("44")));
    key.Writes = true;
    EXPECT_EQ(LoadChartSettings(key, "20260102").Studies.Periods[3], 44);
    EXPECT_FALSE(key.Read("STUDY AVG PERIOD 3"));
    EXPECT_EQ(key.DeletedBefore, 0);
}

// A window that starts while another process has locked the file reads nothing, and the lock may be released
// at any moment.
TEST_F(SettingsLoader, NothingIsWrittenInPlaceOfWhatCouldNotBeRead)
{
    test::sUnreliableKey key;
    key.Reads = false;
    const sChartSettings fresh = LoadChartSettings(key, "20260102");
    EXPECT_TRUE(ChangedSettings(fresh, DefaultChartSettings("20260102")).empty());
    EXPECT_TRUE(key.List().empty());

    for (const auto& row : SettingsTable())
        for (int number = row.FirstNumber; number <= row.LastNumber; ++number)
            key.Put(SettingName(row, number), row.IsList() ? "2,2,2,2,2" : "2");
    const auto stored = key.List();
    EXPECT_TRUE(ChangedSettings(LoadChartSettings(key, "20260102"), fresh).empty());
    EXPECT_EQ(key.List(), stored);
}

TEST_F(SettingsLoader, OlderPeriodsStayWhereOneOfThemCouldNotBeRead)
{
    test::sUnreliableKey key;
    key.Put("STUDY AVG PERIOD 3", "44");
    key.Put("STUDY AVG PERIOD 7", "55");
    key.Unreadable = {"STUDY AVG PERIOD 7"};
    LoadChartSettings(key, "20260102");
    EXPECT_EQ(key.Stored("STUDY AVG PERIOD"), "(missing)");
    EXPECT_EQ(key.Stored("STUDY AVG PERIOD 3"), "44");
    key.Unreadable = {};
    LoadChartSettings(key, "20260102");
    EXPECT_EQ(key.Stored("STUDY AVG PERIOD"), "21,20,20,44,18,5,10,55,14,14");
}

TEST_F(SettingsLoader, AMissingOlderPeriodTakesItsDefault)
{
    Put("STUDY AVG PERIOD 4", "77");
    Put("STUDY CUSTOM AVG PERIOD 6", "88");
    Load();
    EXPECT_EQ(Stored("STUDY AVG PERIOD"), "21,20,20,9,77,5,10,14,14,14");
    EXPECT_EQ(Stored("STUDY CUSTOM AVG PERIOD"), "21,20,20,9,18,5,88,9,9,10");
}

TEST_F(SettingsLoader, AnEmptyPeriodListIsBuiltAnew)
{
    Put("STUDY AVG PERIOD", "");
    Put("STUDY AVG PERIOD 0", "33");
    EXPECT_EQ(Load().Studies.Periods[0], 33);
    EXPECT_EQ(Stored("STUDY AVG PERIOD"), "33,20,20,9,18,5,10,14,14,14");
}

TEST_F(SettingsLoader, APeriodListLeavesOlderValuesAlone)
{
    Put("STUDY AVG PERIOD", "1,2,3,4,5,6,7,8,9,10");
    Put("STUDY AVG PERIOD 0", "33");
    EXPECT_EQ(Load().Studies.Periods, (Ints10{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(Stored("STUDY AVG PERIOD 0"), "33");
}

TEST_F(SettingsLoader, AShortPeriodListIsPaddedByIndex)
{
    Put("STUDY CUSTOM AVG PERIOD", "1,2,3,4,5,6");
    EXPECT_EQ(Load().Studies.CustomPeriods, (Ints10{1, 2, 3, 4, 5, 6, 500, 9, 9, 10}));
}

TEST_F(SettingsLoader, BothScrollAmountsComeFromTheOneUnnamedValue)
{
    Put("", "25");
    const auto s = Load();
    EXPECT_EQ(s.ScrollItems, 25);
    EXPECT_EQ(s.ScrollPercent, 25);
}

TEST_F(SettingsLoader, IndexesOutOfRangeAreMendedInMemoryOnly)
{
    Put("PTS INDEX", "99");
    Put("RequestIntervalIndex", "-7");
    Put("RequestDataType", "5");
    Put("GRID STYLE", "9");
    const auto s = Load();
    EXPECT_EQ(s.PtsIndex, 14);
    EXPECT_EQ(s.Request.IntervalIndex, 0);
    EXPECT_EQ(s.Request.DataType, 0);
    EXPECT_EQ(s.GridStyle, 0);
    EXPECT_EQ(Stored("PTS INDEX"), "99");
    EXPECT_EQ(Stored("RequestDataType"), "5");
}

TEST_F(SettingsLoader, ARequestKindThatDoesNotFitItsDataTypeTakesTheDefault)
{
    Put("RequestRecentType", "3,0,7,9,8");
    EXPECT_EQ(Load().Request.RequestKinds, (Ints5{0, 3, 7, 8, 9}));
}

TEST_F(SettingsLoader, WeeklyAndMonthlyDataHaveNoKindByDaysOrByRange)
{
    for (std::int32_t kind = -1; kind <= 10; ++kind) {
        EXPECT_EQ(RequestKindFits(3, kind), kind == 8);
        EXPECT_EQ(RequestKindFits(4, kind), kind == 9);
    }
}

TEST_F(SettingsLoader, TextsThatCouldBreakACommandNeverGetIn)
{
    Put("RequestBeginDate", "2014\n010,20140102x,,2014,20140105");
    Put("RequestEndFilterTime", "16:00,160000,9,99\r\n9,180000");
    const auto s = Load();
    EXPECT_EQ(s.Request.BeginDates, (Texts5{"20260102", "20260102", "20260102", "20260102", "20140105"}));
    EXPECT_EQ(s.Request.EndFilterTimes, (Texts5{"160000", "160000", "160000", "160000", "180000"}));
}

TEST_F(SettingsLoader, PeriodsAndLevelsAreKeptAsStored)
{
    Put("STUDY AVG PERIOD", "0,-3,999999999,4,5,6,7,8,9,10");
    Put("RSI Upper Level", "-250");
    Put("MACD Short Period", "30");
    const auto s = Load();
    EXPECT_EQ(s.Studies.Periods[0], 0);
    EXPECT_EQ(s.Studies.Periods[1], -3);
    EXPECT_EQ(s.Studies.Periods[2], 999999999);
    EXPECT_EQ(s.Studies.RsiUpperLevel, -250);
    EXPECT_EQ(s.Studies.MacdShort, 30);
}

TEST_F(SettingsLoader, ColorsKeepTheirLow24Bits)
{
    Put("Background Color", "33554431"); // 0x1FFFFFF
    Put("Study Data Color 3", "-2");
    const auto s = Load();
    EXPECT_EQ(s.BackgroundColor, 0xFFFFFFu);
    EXPECT_EQ(s.Studies.DataColors[3], 0xFFFFFEu);
}

TEST_F(SettingsLoader, DeviationsThatAreNoNumberTakeTheDefault)
{
    for (const char* text : {"nan", "inf", "-inf", "1e999"}) {
        Put("BB DIVIATIONS NUMBER", text);
        EXPECT_EQ(Load().Overlays.BandDeviations, 2.0) << text;
    }
}

TEST_F(SettingsLoader, StudyColorsAreLoadedInStudyOrder)
{
    for (int study = 0; study < 10; ++study) {
        Put("Study Data Color " + std::to_string(study), std::to_string(1000 + study));
        Put("Study Label Color " + std::to_string(study), std::to_string(2000 + study));
    }
    const auto s = Load();
    for (std::size_t study = 0; study < 10; ++study) {
        EXPECT_EQ(s.Studies.DataColors[study], 1000u + study);
        EXPECT_EQ(s.Studies.LabelColors[study], 2000u + study);
    }
}

// Ten thousand nonsensical values: the record remains usable.
TEST_F(SettingsLoader, NoStoredNonsenseMakesTheRecordUnusable)
{
    const std::vector<std::string> nonsense{"",
                                            "0",
                                            "-1",
                                            "-2",
                                            "1",
                                            "2",
                                            "10",
                                            "11",
                                            "999",
                                            "999999999",
                                            "-99999999",
                                            "4294967296",
                                            "nan",
                                            "inf",
                                            "-inf",
                                            "0.5",
                                            "1e9",
                                            "abc",
                                            ",",
                                            ",,,,,,,,,,,,",
                                            "9,9,9,9,9",
                                            "-5,-5,-5,-5,-5",
                                            "1,2",
                                            std::string(300, '9'),
                                            std::string("\0\1\2", 3),
                                            "\xff\xfe",
                                            " 7",
                                            "+3",
                                            "20140230",
                                            "1\n2"};
    std::mt19937 random(20260102);
    for (int round = 0; round < 60; ++round) {
        Key = MakeMemorySettingsKey();
        std::string what;
        for (const auto& row : SettingsTable()) {
            for (int number = row.FirstNumber; number <= row.LastNumber; ++number) {
                const auto& text = nonsense[random() % nonsense.size()];
                Put(SettingName(row, number), text);
                what += SettingName(row, number) + "=" + text + ";";
            }
        }
        ExpectUsable(Load(), what);
    }
}

} // namespace zantroq
