// The one table of all stored values: number, name, form, member and range. Loading, writing, comparing,
// finding by name and docs/settings.md all walk it. A row's default is what its member holds in a fresh
// sChartSettings. Constant data, any thread.
#pragma once

#include "settings/ChartSettings.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace zantroq {

enum class SettingForm
{
    Single,       // one value, missing: the default is written
    Unnamed,      // the same without a name of its own: both such rows share the value with the empty name
    DataTypeList, // one text of five entries: ticks, intervals, daily, weekly, monthly
    PeriodList,   // one text of ten entries in study order, built from older single values where missing
    Indexed,      // one value a number: the name is a pattern with %d
    PaneCount,    // opens the stack of panes
    OldIndexed,   // older values, named with a number behind; read once, then deleted
    SheetOnly,    // read and written by the settings sheet alone
    Unused,       // has a name and no user
};

enum class SettingType
{
    Int,
    Bool,
    Double,
    Color,
    Date,
    Time,
    None
};

// What a chart has to do when a setting of the row changes; may be combined.
enum SettingEffect : unsigned
{
    EffectNone = 0,
    EffectGrid = 1u << 0,       // rebuild the grid of all panes
    EffectPoints = 1u << 1,     // the number of points shown
    EffectScrollStep = 1u << 2, // recompute the scroll step
    EffectAxisSide = 1u << 3,   // move the value axis on all panes
    EffectFixedScale = 1u << 4, // rescale
    EffectStudyList = 1u << 5,  // rebuild the study panes
    EffectPaneLayout = 1u << 6, // lay the panes out again
    EffectOverlays = 1u << 7,   // averages and bands of the price pane
    EffectTrends = 1u << 8,     // color, width, extendable of a kind of trendline
    EffectPriceBar = 1u << 9,
    EffectRequest = 1u << 10, // what is asked of the feed
    EffectStudies = 1u << 11, // a value or color of a study
    EffectColors = 1u << 12,  // a general color, or the style of the price pane
    EffectLevel1 = 1u << 13,
};

// What to make of a stored number outside Low to High.
enum class OutOfRange
{
    Keep,    // keep it as stored; the range is only what the settings sheet accepts
    Nearest, // the nearest end of the range, in memory only
    Default, // the default, in memory only
};

using SettingMember = std::variant<
    std::monostate, std::int32_t& (*)(sChartSettings&), ColorValue& (*)(sChartSettings&),
    bool& (*)(sChartSettings&), double& (*)(sChartSettings&),
    std::array<std::int32_t, 5>& (*)(sChartSettings&), std::array<bool, 5>& (*)(sChartSettings&),
    std::array<std::string, 5>& (*)(sChartSettings&), std::array<std::int32_t, 10>& (*)(sChartSettings&),
    std::array<std::int32_t, 11>& (*)(sChartSettings&), std::array<ColorValue, 10>& (*)(sChartSettings&),
    std::array<double, 12>& (*)(sChartSettings&)>;

struct sSettingRow
{
    int Id;                // number in the string table
    std::string_view Name; // exact, trailing blanks included; empty where the string table has no text
    SettingForm Form;
    SettingType Type;
    SettingMember Member;
    unsigned Effects;         // of SettingEffect
    std::string_view Meaning; // one sentence for the documentation
    double Low = 0, High = 0; // inclusive; both 0: any number that can be stored
    OutOfRange Outside = OutOfRange::Keep;
    int FirstNumber = 0, LastNumber = 0; // numbers of an indexed row

    bool HasMember() const { return !std::holds_alternative<std::monostate>(Member); }
    bool HasRange() const { return Low != 0 || High != 0; }
    bool IsList() const { return Form == SettingForm::DataTypeList || Form == SettingForm::PeriodList; }
};

// All rows in the order in which they are loaded; those that are not loaded stand at the end.
std::span<const sSettingRow> SettingsTable();

// The row of a string number; null when there is none.
const sSettingRow* FindSetting(int id);

// The string table: the name of a number, empty where it has no text.
std::string_view SettingName(int id);

// The stored name of one value of an indexed row, such as "Top of chart 2"; any other row's name as it
// stands.
std::string SettingName(const sSettingRow& row, int number);

struct sSettingPlace
{
    const sSettingRow* Row = nullptr;
    int Number = 0; // of an indexed row, else 0
    bool operator==(const sSettingPlace&) const = default;
};

// The row that keeps its values under this stored name. The empty name is that of the first unnamed row;
// "#32791" is the row with that number, which is the only way to the second.
std::optional<sSettingPlace> FindSetting(std::string_view storedName);

} // namespace zantroq
