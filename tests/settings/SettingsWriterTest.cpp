#include "settings/SettingsWriter.h"

#include "settings/SettingText.h"
#include "settings/SettingsLoader.h"
#include "support/UnreliableKey.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

struct SettingsWriter : testing::Test
{
    std::unique_ptr<ISettingsKey> Key = MakeMemorySettingsKey();
    sChartSettings Settings = LoadChartSettings(*Key, "20260102");
    std::string Stored(const std::string& name)
    {
        const auto value = Key->Read(name);
        return value ? std::get<std::string>(*value) : "(missing)";
    }
    sSettingChange Set(const std::string& name, const std::string& text)
    {
        CRetryingKey key(*Key);
        return SetByName(Settings, key, name, text);
    }
    void ExpectRefused(const std::string& name, const std::string& text)
    {
        const auto stored = Key->List();
        const auto change = Set(name, text);
        EXPECT_FALSE(change.Error.empty()) << name << " = " << text;
        EXPECT_FALSE(change.Changed);
        EXPECT_EQ(Key->List(), stored) << name;
    }
};

} // namespace

TEST_F(SettingsWriter, OneMemberIsStoredUnderItsName)
{
    Settings.PtsIndex = 7;
    Settings.Studies.DataColors[4] = 0x112233;
    Settings.Panes.Bounds[1] = 0.25;
    StoreSetting(*Key, Settings, 32787);
    StoreSetting(*Key, Settings, 32885, 4);
    StoreSetting(*Key, Settings, 32884, 1);
    EXPECT_EQ(Stored("PTS INDEX"), "7");
    EXPECT_EQ(Stored("Study Data Color 4"), "1122867");
    EXPECT_EQ(Stored("Top of chart 1"), "0.250000");
}

TEST_F(SettingsWriter, NumbersWithoutAMemberWriteNothing)
{
    const auto stored = Key->List();
    StoreSetting(*Key, Settings, 32796);
    StoreSetting(*Key, Settings, 1);
    StoreSetting(*Key, Settings, 32885, 10);
    EXPECT_EQ(Key->List(), stored);
}

TEST_F(SettingsWriter, OnlyWhatDiffersIsWritten)
{
    const sChartSettings before = Settings;
    Key = MakeMemorySettingsKey();
    CRetryingKey key(*Key);
    EXPECT_EQ(StoreChanges(key, before, Settings), unsigned(EffectNone));
    EXPECT_TRUE(Key->List().empty());
    Settings.Grid = 0;
    Settings.Request.DatapointCounts[1] = 50;
    Settings.Trends[3].Width = 4;
    EXPECT_EQ(StoreChanges(key, before, Settings), unsigned(EffectGrid | EffectRequest | EffectTrends));
    EXPECT_EQ(Key->List().size(), 3u);
    EXPECT_EQ(Stored("GRID"), "0");
    EXPECT_EQ(Stored("RequestDatapoints"), "1000,50,1000,1000,1000");
    EXPECT_EQ(Stored("Andrew's Pitchfork Trendline Width"), "4");
}

TEST_F(SettingsWriter, EverySingleChangeIsFoundAndReadsBack)
{
    for (const auto& row : SettingsTable()) {
        if (row.Form != SettingForm::Single || row.Id == 32895 || row.Id == 32816)
            continue;
        const auto key = MakeMemorySettingsKey();
        CRetryingKey userKey(*key);
        sChartSettings changed = LoadChartSettings(*key, "20260102");
        const sSettingPlace place{&row};
        const std::string text = SettingText(changed, place) == "1" ? (row.Low == 1 ? "2" : "0") : "1";
        const sChartSettings before = changed;
        const bool isDouble = row.Type == SettingType::Double;
        const std::string other = isDouble ? "1.5" : row.Low == 2 ? "3" : row.Id == 32817 ? "18" : text;
        const auto change = SetByName(changed, userKey, row.Name, other);
        EXPECT_TRUE(change.Changed) << row.Name << ": " << change.Error;
        EXPECT_EQ(change.Effects, row.Effects);
        EXPECT_EQ(ChangedSettings(before, changed), std::vector{place}) << row.Name;
        EXPECT_TRUE(ChangedSettings(changed, LoadChartSettings(*key, "20260102")).empty()) << row.Name;
    }
}

TEST_F(SettingsWriter, SettingAValueToWhatItIsWritesNothing)
{
    Key->Delete("PTS INDEX");
    const auto change = Set("PTS INDEX", "3");
    EXPECT_EQ(change.Error, "");
    EXPECT_FALSE(change.Changed);
    EXPECT_EQ(Stored("PTS INDEX"), "(missing)");
}

TEST_F(SettingsWriter, TheSheetsRulesHold)
{
    for (const char* text : {"-1", "15", "x", "", "3.5", "99999999999"})
        ExpectRefused("PTS INDEX", text);
    for (const char* text : {"1", "1000"})
        ExpectRefused("BB AVG PERIOD", text);
    EXPECT_EQ(Set("BB AVG PERIOD", "2").Error, "");
    EXPECT_EQ(Set("BB AVG PERIOD", "999").Error, "");
    for (const char* text : {"0.009", "100.5", "", "abc", "nan", "inf"})
        ExpectRefused("BB DIVIATIONS NUMBER", text);
    EXPECT_EQ(Set("BB DIVIATIONS NUMBER", "0.01").Error, "");
    EXPECT_EQ(Set("BB DIVIATIONS NUMBER", "100").Error, "");
    ExpectRefused("RequestDatapoints", "2000001");
    ExpectRefused("RequestDatapoints", "-1");
    EXPECT_EQ(Set("RequestDatapoints", "2000000").Error, "");
    ExpectRefused("RequestRecentType", "0,0");
    ExpectRefused("RequestBeginDate", "20141301");
    ExpectRefused("RequestBeginTime", "240000");
    ExpectRefused("SCROLLING BY ITEMS", "2");
    ExpectRefused("Grid Color", "16777216");
    ExpectRefused("Number of displayed study charts", "11");
    ExpectRefused("Maximized Chart Index", "2");
    ExpectRefused("Top of chart 1", "1");
    ExpectRefused("STUDY SHOW", "1");
    ExpectRefused("STUDY AVG PERIOD 0", "1");
    ExpectRefused("no such name", "1");
    EXPECT_EQ(Set("MACD Short Period", "17").Error,
              "MACD short period must be shorter then MACD long period");
    EXPECT_EQ(Settings.Studies.MacdShort, 8);
}

TEST_F(SettingsWriter, AShortListLeavesTheOtherEntries)
{
    Settings.Request.DatapointCounts = {1, 2, 3, 4, 5};
    EXPECT_TRUE(Set("RequestDatapoints", "10,20").Changed);
    EXPECT_EQ(Stored("RequestDatapoints"), "10,20,3,4,5");
    EXPECT_TRUE(Set("STUDY AVG PERIOD", "14").Changed);
    EXPECT_EQ(Stored("STUDY AVG PERIOD"), "14,20,20,9,18,5,10,14,14,14");
}

TEST_F(SettingsWriter, EntriesOfAnUnreadListThatWereNotChangedStay)
{
    test::sUnreliableKey key;
    key.Put("RequestDatapoints", "1,2,3,4,5");
    key.Put("STUDY AVG PERIOD", "9,8,7,6,5,4,3,2,1,0");
    key.Put("STUDY CUSTOM AVG PERIOD 2", "33");
    key.Reads = false;
    Settings = LoadChartSettings(key, "20260102");
    key.Reads = true;
    CRetryingKey userKey(key);
    EXPECT_TRUE(SetByName(Settings, userKey, "RequestDatapoints", "1000,50").Changed);
    sChartSettings wanted = Settings;
    wanted.Studies.Periods[9] = 77;
    wanted.Studies.CustomPeriods[0] = 88;
    StoreChanges(userKey, Settings, wanted);
    EXPECT_EQ(key.Stored("RequestDatapoints"), "1,50,3,4,5");
    EXPECT_EQ(key.Stored("STUDY AVG PERIOD"), "9,8,7,6,5,4,3,2,1,77");
    EXPECT_EQ(key.Stored("STUDY CUSTOM AVG PERIOD"), "88,20,33,9,18,5,500,9,9,10");
    EXPECT_EQ(key.Stored("STUDY CUSTOM AVG PERIOD 2"), "(missing)");
}

TEST_F(SettingsWriter, ChangesMadeWhileTheFileIsLockedAreWrittenWhenItIsNot)
{
    test::sUnreliableKey key;
    key.Put("PTS INDEX", "7");
    key.Put("GRID", "0");
    key.Put("RequestDatapoints", "1,2,3,4,5");
    key.SetLocked(true);
    Settings = LoadChartSettings(key, "20260102");
    CRetryingKey userKey(key);
    EXPECT_TRUE(SetByName(Settings, userKey, "PTS INDEX", "5").Changed);
    EXPECT_TRUE(SetByName(Settings, userKey, "RequestDatapoints", "1000,50").Changed);
    EXPECT_TRUE(SetByName(Settings, userKey, "RequestDatapoints", "1000,50,60").Changed);
    key.SetLocked(false);
    userKey.Retry();
    EXPECT_FALSE(userKey.IsWaiting());
    EXPECT_EQ(key.Stored("PTS INDEX"), "5");
    EXPECT_EQ(key.Stored("RequestDatapoints"), "1,50,60,4,5");
    EXPECT_EQ(key.Stored("GRID"), "0");
}

TEST_F(SettingsWriter, AColorMayBeHexadecimal)
{
    EXPECT_TRUE(Set("Background Color", "0x00FF10").Changed);
    EXPECT_EQ(Settings.BackgroundColor, 0x00FF10u);
    EXPECT_EQ(Stored("Background Color"), "65296");
    ExpectRefused("Background Color", "0x");
    ExpectRefused("Background Color", "0x-1");
}

TEST_F(SettingsWriter, TheEmptyNameIsTheAmountOfTheScrollingModeThatIsOn)
{
    EXPECT_TRUE(Set("", "5").Changed);
    EXPECT_EQ(Settings.ScrollItems, 5);
    EXPECT_TRUE(Set("SCROLLING BY ITEMS", "0").Changed);
    EXPECT_TRUE(Set("", "30").Changed);
    EXPECT_EQ(Settings.ScrollPercent, 30);
    EXPECT_EQ(Settings.ScrollItems, 5);
    EXPECT_EQ(Stored(""), "30");
    EXPECT_TRUE(Set("#32791", "200").Changed);
    EXPECT_EQ(Settings.ScrollItems, 200);
    ExpectRefused("#32792", "100");
}

TEST_F(SettingsWriter, AChangeOfTheStudyListWritesCountAndTypes)
{
    EXPECT_TRUE(Set("Type of study chart 1", "4").Changed);
    const auto change = Set("Number of displayed study charts", "2");
    EXPECT_EQ(change.Effects, unsigned(EffectStudyList));
    EXPECT_EQ(Stored("Number of displayed study charts"), "2");
    EXPECT_EQ(Stored("Type of study chart 0"), "6");
    EXPECT_EQ(Stored("Type of study chart 1"), "4");
}

TEST_F(SettingsWriter, TheWholeStackReadsBack)
{
    Settings.Panes.StudyCount = 2;
    Settings.Panes.StudyTypes = {3, 9};
    Settings.Panes.Bounds = {0, 0.5, 0.75, 1};
    Settings.Panes.MaximizedIndex = 1;
    Settings.Panes.Minimized = {1, 0, 1};
    StorePaneStack(*Key, Settings.Panes);
    EXPECT_TRUE(ChangedSettings(Settings, LoadChartSettings(*Key, "20260102")).empty());
}

TEST_F(SettingsWriter, RequestSettingsAreStoredAndClearedTogether)
{
    Settings.Request.DataType = 2;
    Settings.Request.EndDates[2] = "20150101";
    StoreRequestSettings(*Key, Settings);
    EXPECT_TRUE(ChangedSettings(Settings, LoadChartSettings(*Key, "20260102")).empty());
    ClearRequestSettings(*Key);
    EXPECT_EQ(Stored("RequestDataType"), "(missing)");
    EXPECT_EQ(Stored("RequestEndDate"), "(missing)");
    EXPECT_EQ(Stored("PTS INDEX"), "3");
}

TEST_F(SettingsWriter, AScriptsLineCanBeCheckedWithoutAChart)
{
    EXPECT_EQ(CheckSetting("PTS INDEX", "4"), "");
    EXPECT_EQ(CheckSetting("MACD Short Period", "400"), "");
    EXPECT_EQ(CheckSetting("Top of chart 3", "0.5"), "");
    EXPECT_EQ(CheckSetting("Maximized Chart Index", "10"), "");
    EXPECT_NE(CheckSetting("PTS INDEX", "40"), "");
    EXPECT_NE(CheckSetting("PTS  INDEX", "4"), "");
    EXPECT_NE(CheckSetting("Top of chart 3", "1.5"), "");
}

} // namespace zantroq
