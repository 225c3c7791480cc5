#include "settings/SettingsTable.h"

#include "settings/SettingText.h"
#include "settings/SettingsLoader.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace zantroq {
namespace {

// Number, name, type and stored default of each setting, written independently of the table under test.
struct sExpected
{
    int Id;
    const char* Name;
    SettingType Type;
    const char* Stored;
};

constexpr auto Int = SettingType::Int, Bool = SettingType::Bool, Double = SettingType::Double;

// clang-format off
constexpr sExpected Singles[] = {
    {32785, "GRID", Int, "1"},
    {32787, "PTS INDEX", Int, "3"},
    {32788, "GRID STYLE", Int, "0"},
    {32789, "Show Volume Average", Int, "1"},
    {32790, "SCROLLING BY ITEMS", Bool, "1"},
    {32793, "Y Axis Orientation", Bool, "0"},
    {32794, "Price Bar Show/Hide", Bool, "0"},
    {32795, "MAs SHOW", Int, "0"},
    {32798, "BB STUDY SHOW", Int, "0"},
    {32799, "BB Color", Int, "13553358"},
    {32800, "BB AVG PERIOD", Int, "20"},
    {32801, "BB DIVIATIONS NUMBER", Double, "2.000000"},
    {32804, "RSI Radio Select", Int, "1"},
    {32805, "RSI Upper Level", Int, "70"},
    {32806, "RSI Up Level Color", Int, "14204888"},
    {32807, "RSI Lower Level", Int, "30"},
    {32808, "RSI Low Level Color", Int, "9221330"},
    {32809, "OBV Radio Select", Int, "1"},
    {32810, "OBV zero Color", Int, "16777215"},
    {32811, "MOM Radio Select", Int, "1"},
    {32812, "Momentum zero Color", Int, "14269322"},
    {32813, "ROC Radio Select", Int, "1"},
    {32814, "ROC 100% Color", Int, "12270022"},
    {32815, "MACD Radio Select", Int, "1"},
    {32816, "MACD Short Period", Int, "8"},
    {32817, "MACD Long Period", Int, "17"},
    {32818, "MACD Custom Short Period", Int, "38"},
    {32819, "MACD Custom Long Period", Int, "78"},
    {32820, "MACD Signal Line Color", Int, "12615935"},
    {32821, "STO Radio Select", Int, "0"},
    {32822, "STO Fast", Int, "0"},
    {32823, "STO Upper Level", Int, "80"},
    {32824, "STO Up Level Color", Int, "14204888"},
    {32825, "STO Low Level Color", Int, "9221330"},
    {32826, "STO Lower Level", Int, "20"},
    {32827, "STO %D Line Color", Int, "8388863"},
    {32828, "Background Color", Int, "16777215"},
    {32829, "PriceLabel Color", Int, "0"},
    {32831, "VolumeAverage Color", Int, "255"},
    {32832, "PriceData Color", Int, "0"},
    {32833, "Moving Average 1 Color", Int, "255"},
    {32834, "Moving Average 2 Color", Int, "16711680"},
    {32835, "Moving Average 3 Color", Int, "65535"},
    {32836, "Grid Color", Int, "12632256"},
    {32839, "Moving Average Exponential", Int, "0"},
    {32840, "Moving Average 1 Select", Int, "1"},
    {32841, "Moving Average 1 Points", Int, "5"},
    {32842, "Moving Average 2 Select", Int, "1"},
    {32843, "Moving Average 2 Points", Int, "10"},
    {32844, "Moving Average 3 Select", Int, "1"},
    {32845, "Moving Average 3 Points", Int, "15"},
    {32854, "Candle Price Chart Style", Int, "1"},
    {32855, "Price Up Candle Color", Int, "65280"},
    {32856, "Price Down Candle Color", Int, "255"},
    {32857, "MACD Histogram Color", Int, "11829830"},
    {32860, "Volume Average All Data", Int, "1"},
    {32861, "Horizontal Trendline Color", Int, "8421631"},
    {32862, "Sloping Trendline Color", Int, "11053056"},
    {32863, "Parallel Trendline Color", Int, "10526303"},
    {32864, "Andrew's Pitchfork Trendline Color", Int, "5198559"},
    {32865, "Fibonacci Fan Trendline Color", Int, "15956794"},
    {32866, "Fibonacci Retracements Trendline Color", Int, "16711808"},
    {32867, "Speed Resistance Trendline Color", Int, "3717259"},
    {32868, "Horizontal Trendline Width", Int, "1"},
    {32869, "Sloping Trendline Width", Int, "1"},
    {32870, "Parallel Trendline Width", Int, "1"},
    {32871, "Andrew's Pitchfork Trendline Width", Int, "1"},
    {32872, "Fibonacci Fan Trendline Width", Int, "1"},
    {32873, "Fibonacci Retracements Trendline Width", Int, "1"},
    {32874, "Speed Resistance Trendline Width", Int, "1"},
    {32875, "Horizontal Trendline Extendable", Int, "1"},
    {32876, "Sloping Trendline Extendable", Int, "1"},
    {32877, "Parallel Trendline Extendable", Int, "1"},
    {32878, "Andrew's Pitchfork Trendline Extendable", Int, "1"},
    {32879, "Fibonacci Fan Trendline Extendable", Int, "1"},
    {32880, "Fibonacci Retracements Trendline Extendable", Int, "1"},
    {32881, "Speed Resistance Trendline Extendable", Int, "1"},
    {32882, "Number of displayed study charts", Int, "-1"},
    {32887, "MF Radio Select", Int, "1"},
    {32888, "Negative Flow Line Color", Int, "255"},
    {32889, "Positive Flow Line Color", Int, "11829830"},
    {32890, "MFI Radio Select", Int, "1"},
    {32891, "MFI Upper Level", Int, "80"},
    {32892, "MFI Up Level Color", Int, "14204888"},
    {32893, "MFI Lower Level", Int, "20"},
    {32894, "MFI Low Level Color", Int, "9221330"},
    {32895, "Maximized Chart Index", Int, "999"},
    {32897, "Price Bar Color", Int, "12632256"},
    {32898, "Show Price Bar", Int, "1"},
    {32899, "Negative Directional Indicator Color", Int, "255"},
    {32900, "Positive Directional Indicator Color", Int, "11829830"},
    {32901, "ADX Radio Select", Int, "1"},
    {32902, "Show Level 1", Int, "1"},
    {32903, "STO %K Line Color", Int, "0"},
    {32904, "RequestDataType", Int, "0"},
    {32907, "ReqestType", Int, "0"},
    {32908, "RequestIntervalIndex", Int, "0"},
    {32920, "RequestUseExchangeFormat", Bool, "1"},
};

constexpr std::pair<int, const char*> OtherNames[] = {
    {32796, "STUDY SHOW"},
    {32797, "STUDY INDEX"},
    {32802, "STUDY AVG PERIOD "},
    {32803, "STUDY CUSTOM AVG PERIOD "},
    {32830, "VolumeLabel Color"},
    {32837, "Study Data Color"},
    {32838, "Study Label Color"},
    {32858, "Trendlines Color"},
    {32859, "Volume Average Period"},
    {32883, "Type of study chart %d"},
    {32884, "Top of chart %d"},
    {32885, "Study Data Color %d"},
    {32886, "Study Label Color %d"},
    {32896, "Chart %d Minimized"},
    {32905, "STUDY AVG PERIOD"},
    {32906, "STUDY CUSTOM AVG PERIOD"},
    {32909, "RequestDatapoints"},
    {32910, "RequestDays"},
    {32911, "RequestFilterOn"},
    {32912, "RequestRecentType"},
    {32913, "RequestBeginDate"},
    {32914, "RequestBeginTime"},
    {32915, "RequestBeginFilterTime"},
    {32916, "RequestEndDate"},
    {32917, "RequestEndTime"},
    {32918, "RequestEndFilterTime"},
    {32919, "RequestEnableExtendedTrades"},
};
// clang-format on

constexpr int CountId = 32882;

// A key that records the order in which names are first read.
class CNotingKey final : public ISettingsKey
{
public:
    CSettingRead Read(std::string_view name) override
    {
        if (m_seen.insert(std::string(name)).second)
            Asked.emplace_back(name);
        return m_key->Read(name);
    }
    bool Write(std::string_view name, const SettingValue& value) override
    {
        return m_key->Write(name, value);
    }
    bool Delete(std::string_view name) override { return m_key->Delete(name); }
    std::vector<std::pair<std::string, SettingValue>> List() override { return m_key->List(); }
    std::vector<std::string> Asked;

private:
    std::set<std::string> m_seen;
    std::unique_ptr<ISettingsKey> m_key = MakeMemorySettingsKey();
};

} // namespace

TEST(SettingsTable, EveryNumberHasItsNameAndType)
{
    for (const auto& expected : Singles) {
        ASSERT_TRUE(FindSetting(expected.Id)) << expected.Id;
        EXPECT_EQ(SettingName(expected.Id), expected.Name);
        const auto type = FindSetting(expected.Id)->Type;
        // Colors are whole numbers in the store.
        EXPECT_EQ(type == SettingType::Color ? Int : type, expected.Type) << expected.Name;
    }
    for (const auto& [id, name] : OtherNames)
        EXPECT_EQ(SettingName(id), name) << id;
    EXPECT_EQ(SettingName(32791), "");
    EXPECT_EQ(SettingName(32792), "");
    EXPECT_EQ(SettingName(1), "");
    EXPECT_EQ(SettingsTable().size(), std::size(Singles) + std::size(OtherNames) + 2);
}

TEST(SettingsTable, NoNumberAndNoNameStandsTwice)
{
    std::set<int> ids;
    std::set<std::string_view> names;
    for (const auto& row : SettingsTable()) {
        EXPECT_TRUE(ids.insert(row.Id).second) << row.Id;
        if (row.Form != SettingForm::Unnamed) {
            EXPECT_TRUE(names.insert(row.Name).second) << row.Name;
        }
    }
}

TEST(SettingsTable, EveryRowOfAnEmptyStoreLeavesItsDefault)
{
    const auto key = MakeMemorySettingsKey();
    LoadChartSettings(*key, "20260102");
    std::map<std::string, std::string> expected;
    for (const auto& single : Singles)
        expected[single.Name] = single.Stored;
    expected["Number of displayed study charts"] = "1"; // missing means one, not -1
    expected["Type of study chart 0"] = "6";
    expected["Top of chart 1"] = "0.660000";
    expected["Top of chart 2"] = "1.000000";
    expected["STUDY AVG PERIOD"] = "21,20,20,9,18,5,10,14,14,14";
    expected["STUDY CUSTOM AVG PERIOD"] = "21,20,20,9,18,5,500,9,9,10";
    expected[""] = "1"; // the second unnamed number finds what the first one wrote
    std::map<std::string, std::string> stored;
    for (const auto& [name, value] : key->List())
        stored[name] = std::get<std::string>(value);
    EXPECT_EQ(stored, expected);
}

TEST(SettingsTable, AFreshRecordHoldsTheDefaultOfEveryRow)
{
    const auto key = MakeMemorySettingsKey();
    const sChartSettings loaded = LoadChartSettings(*key, "20260102");
    for (const auto& single : Singles)
        if (single.Id != CountId) {
            EXPECT_EQ(SettingText(loaded, {FindSetting(single.Id)}), single.Stored) << single.Name;
        }
    const std::map<int, std::string> lists{
        {32909, "1000,1000,1000,1000,1000"},
        {32910, "0,0,0,0,0"},
        {32911, "0,0,0,0,0"},
        {32912, "0,3,6,8,9"},
        {32919, "0,0,0,0,0"},
        {32913, "20260102,20260102,20260102,20260102,20260102"},
        {32916, "20260102,20260102,20260102,20260102,20260102"},
        {32914, "093000,093000,093000,093000,093000"},
        {32915, "093000,093000,093000,093000,093000"},
        {32917, "160000,160000,160000,160000,160000"},
        {32918, "160000,160000,160000,160000,160000"},
    };
    for (const auto& [id, text] : lists)
        EXPECT_EQ(SettingText(loaded, {FindSetting(id)}), text) << id;
    EXPECT_EQ(loaded.ScrollItems, 1);
    EXPECT_EQ(loaded.ScrollPercent, 1);
    EXPECT_EQ(loaded.Panes.StudyCount, 1);
    EXPECT_EQ(loaded.Panes.StudyTypes[0], 6);
    EXPECT_EQ(loaded.Panes.Bounds[1], 0.66);
    EXPECT_EQ(loaded.Panes.Bounds[2], 1.0);
    for (int study = 0; study < StudyKinds; ++study) {
        EXPECT_EQ(SettingText(loaded, {FindSetting(32885), study}), "0");
        EXPECT_EQ(SettingText(loaded, {FindSetting(32886), study}), "0");
    }
}

TEST(SettingsTable, ValuesAreLoadedInTheirOrder)
{
    CNotingKey key;
    LoadChartSettings(key, "20260102");
    const std::vector<std::string> begin{"Show Price Bar",
                                         "Show Level 1",
                                         "PTS INDEX",
                                         "GRID",
                                         "GRID STYLE",
                                         "SCROLLING BY ITEMS",
                                         "",
                                         "Y Axis Orientation",
                                         "Price Bar Show/Hide",
                                         "Candle Price Chart Style",
                                         "RequestDataType",
                                         "ReqestType",
                                         "RequestIntervalIndex",
                                         "RequestUseExchangeFormat",
                                         "RequestEnableExtendedTrades",
                                         "RequestRecentType",
                                         "RequestDatapoints",
                                         "RequestDays",
                                         "RequestFilterOn",
                                         "RequestBeginDate",
                                         "RequestBeginTime",
                                         "RequestBeginFilterTime",
                                         "RequestEndDate",
                                         "RequestEndTime",
                                         "RequestEndFilterTime",
                                         "MAs SHOW"};
    ASSERT_GE(key.Asked.size(), begin.size());
    EXPECT_EQ(
        std::vector<std::string>(key.Asked.begin(), key.Asked.begin() + static_cast<long>(begin.size())),
        begin);
    const std::vector<std::string> milestones{"MAs SHOW",
                                              "Moving Average 3 Color",
                                              "BB STUDY SHOW",
                                              "BB DIVIATIONS NUMBER",
                                              "Horizontal Trendline Color",
                                              "Sloping Trendline Color",
                                              "Parallel Trendline Color",
                                              "Andrew's Pitchfork Trendline Color",
                                              "Fibonacci Fan Trendline Color",
                                              "Fibonacci Retracements Trendline Color",
                                              "Speed Resistance Trendline Color",
                                              "STUDY AVG PERIOD",
                                              "STUDY CUSTOM AVG PERIOD",
                                              "RSI Radio Select",
                                              "ADX Radio Select",
                                              "Number of displayed study charts",
                                              "Maximized Chart Index",
                                              "Background Color",
                                              "Price Bar Color"};
    auto from = key.Asked.begin();
    for (const auto& name : milestones) {
        from = std::find(from, key.Asked.end(), name);
        ASSERT_NE(from, key.Asked.end()) << name << " is not asked for after those before it";
    }
    EXPECT_EQ(key.Asked.back(), "Price Bar Color");
}

TEST(SettingsTable, UnusedNamesAndThoseOfTheSheetAreNotLoaded)
{
    CNotingKey key;
    LoadChartSettings(key, "20260102");
    for (const char* name : {"STUDY SHOW", "STUDY INDEX", "Study Data Color", "Study Label Color",
                             "Trendlines Color", "Volume Average Period", "VolumeLabel Color"})
        EXPECT_EQ(std::count(key.Asked.begin(), key.Asked.end(), name), 0) << name;
}

TEST(SettingsTable, ASecondRunReadsTheSameBack)
{
    const auto key = MakeMemorySettingsKey();
    const sChartSettings first = LoadChartSettings(*key, "20260102");
    const auto stored = key->List();
    const sChartSettings second = LoadChartSettings(*key, "20260102");
    EXPECT_EQ(key->List(), stored);
    for (const auto& row : SettingsTable())
        for (int number = row.FirstNumber; number <= row.LastNumber; ++number)
            EXPECT_EQ(SettingText(first, {&row, number}), SettingText(second, {&row, number})) << row.Name;
}

TEST(SettingsTable, EveryRowReadsBackWhatIsStoredUnderItsName)
{
    // Each row in a store of its own, with a value that is not its default.
    for (const auto& single : Singles) {
        if (single.Id == CountId || single.Id == 32895)
            continue;
        const auto key = MakeMemorySettingsKey();
        const std::string other = single.Type == Double               ? "3.500000"
                                  : std::string(single.Stored) == "1" ? "0"
                                                                      : "1";
        // A width of 0 is held at 1.
        const std::string text = std::string(single.Name).ends_with("Trendline Width") ? "2" : other;
        key->Write(single.Name, text);
        EXPECT_EQ(SettingText(LoadChartSettings(*key, "20260102"), {FindSetting(single.Id)}), text)
            << single.Name;
    }
}

TEST(SettingsTable, StoredNamesFindTheirRows)
{
    for (const auto& single : Singles)
        EXPECT_EQ(FindSetting(std::string_view(single.Name))->Row->Id, single.Id);
    EXPECT_EQ(FindSetting("Study Data Color 9"), (sSettingPlace{FindSetting(32885), 9}));
    EXPECT_EQ(FindSetting("Top of chart 11"), (sSettingPlace{FindSetting(32884), 11}));
    EXPECT_EQ(FindSetting("Chart 0 Minimized"), (sSettingPlace{FindSetting(32896), 0}));
    EXPECT_EQ(FindSetting("STUDY AVG PERIOD 3"), (sSettingPlace{FindSetting(32802), 3}));
    EXPECT_EQ(FindSetting("STUDY AVG PERIOD")->Row->Id, 32905);
    EXPECT_EQ(FindSetting("")->Row->Id, 32791);
    EXPECT_EQ(FindSetting("#32792")->Row->Id, 32792);
    for (const char* name :
         {"Study Data Color 10", "Study Data Color -1", "Study Data Color 01", "Top of chart 0",
          "Top of chart 12", "PTS INDEX ", "pts index", "Chart  Minimized", "#32785", "nothing"})
        EXPECT_FALSE(FindSetting(std::string_view(name))) << name;
}

} // namespace zantroq
