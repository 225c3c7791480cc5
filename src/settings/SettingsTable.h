// The one table of all stored values: number, name, form, member and range. The loader, the writer, the
// comparison of records, the search by name and docs/settings.md all use it. The default of a row is the
// value of its member in a new sChartSettings. Constant data, any thread.
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
    Single,       // one value; if missing, its default is written
    Unnamed,      // the same without a name; both such rows share the value with the empty name
    DataTypeList, // one text of five entries: ticks, intervals, daily, weekly, monthly
    PeriodList,   // one text of ten entries in study order; if missing, built from older single values
    Indexed,      // one value per number; the name is a pattern with %d
    PaneCount,    // the number of panes; its reader loads the whole stack
    OldIndexed,   // older values, named with a number at the end; read once, then deleted
    SheetOnly,    // read and written by the settings sheet only
    Unused,       // has a name but is not used
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

// What the chart must do when a setting of the row changes. Values can be combined.
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
    EffectTrends = 1u << 8,     // color, width or extension of a kind of trendline
    EffectPriceBar = 1u << 9,
    EffectRequest = 1u << 10, // the data requested from the feed
    EffectStudies = 1u << 11, // a value or color of a study
    EffectColors = 1u << 12,  // a general color, or the chart type of the price pane
    EffectLevel1 = 1u << 13,
};

// How a stored number outside Low to High is handled.
enum class OutOfRange
{            // use the nearest end of the range, in memory only
    Keep,    // use the default, in memory only
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
    unsigned Effects;         // combination of SettingEffect
    std::string_view Meaning; // one sentence for the documentation
    double Low = 0, High = 0; // inclusive; both 0: any number that can be stored
    OutOfRange Outside = OutOfRange::Keep;
    int FirstNumber = 0, LastNumber = 0; // numbers of an indexed row, inclusive

    bool HasMember() const { return !std::holds_alternative<std::monostate>(Member); }
    bool HasRange() const { return Low != 0 || High != 0; }
    bool IsList() const { return Form == SettingForm::DataTypeList || Form == SettingForm::PeriodList; }
};

// All rows in loading order; rows that are not loaded come last.
std::span<const sSettingRow> SettingsTable();

// The row with this string number, or null.
const sSettingRow* FindSetting(int id);

// The name of a string number; empty if it has none.
std::string_view SettingName(int id);

// The stored name of one value of an indexed row, such as "Top of chart 2"; for any other row its name.
std::string SettingName(const sSettingRow& row, int number);
std::string SettingName(int id, int number); // empty for an unknown id

struct sSettingPlace
{
    const sSettingRow* Row = nullptr;
    int Number = 0; // number of an indexed row, otherwise 0
    bool operator==(const sSettingPlace&) const = default;
};

// The row that stores its values under this name. The empty name gives the first unnamed row; "#32791" gives
// the row with that number, which is the only way to the second unnamed row.
std::optional<sSettingPlace> FindSetting(std::string_view storedName);

} // namespace zantroq
