#include "settings/SettingsTable.h"

#include <algorithm>
#include <charconv>

namespace zantroq {
namespace {

using S = sChartSettings;
using Row = sSettingRow;
using Form = SettingForm;
using Type = SettingType;
using Text = std::string_view;

#define MEMBER(path) SettingMember(+[](S & s) -> auto& { return s.path; })

constexpr Row Int(int id, Text name, SettingMember member, unsigned effects, Text meaning)
{
    return {id, name, Form::Single, Type::Int, member, effects, meaning};
}
constexpr Row Int(int id, Text name, SettingMember member, double low, double high, OutOfRange outside,
                  unsigned effects, Text meaning)
{
    return {id, name, Form::Single, Type::Int, member, effects, meaning, low, high, outside};
}
constexpr Row Bool(int id, Text name, SettingMember member, unsigned effects, Text meaning)
{
    return {id, name, Form::Single, Type::Bool, member, effects, meaning, 0, 1};
}
constexpr Row ColorOf(int id, Text name, SettingMember member, unsigned effects, Text meaning)
{
    return {id, name, Form::Single, Type::Color, member, effects, meaning, 0, 0xFFFFFF};
}
constexpr Row Unnamed(int id, SettingMember member, Text meaning)
{
    return {id, "", Form::Unnamed, Type::Int, member, EffectScrollStep, meaning, 1, 999, OutOfRange::Nearest};
}
constexpr Row DataTypes(int id, Text name, Type type, SettingMember member, Text meaning, double low = 0,
                        double high = 0)
{
    return {id, name, Form::DataTypeList, type, member, EffectRequest, meaning, low, high};
}
constexpr Row Periods(int id, Text name, SettingMember member, Text meaning)
{
    return {id, name, Form::PeriodList, Type::Int, member, EffectStudies, meaning};
}
constexpr Row Indexed(int id, Text name, Type type, SettingMember member, int first, int last,
                      unsigned effects, Text meaning, double low = 0, double high = 0,
                      OutOfRange outside = OutOfRange::Keep)
{
    return {id, name, Form::Indexed, type, member, effects, meaning, low, high, outside, first, last};
}
constexpr Row NoUse(int id, Text name, Text meaning)
{
    return {id, name, Form::Unused, Type::None, {}, EffectNone, meaning};
}

constexpr auto Nearest = OutOfRange::Nearest;
constexpr auto Keep = OutOfRange::Keep;
constexpr auto Default = OutOfRange::Default;

// clang-format off
const Row Rows[] = {
    // The window and its price pane.
    Int(32898, "Show Price Bar", MEMBER(ShowPriceBar), EffectPriceBar, "Price bar shown: 0 no, 1 yes"),
    Int(32902, "Show Level 1", MEMBER(ShowLevel1), EffectLevel1, "Last price and size in the status bar: 0 no, 1 yes"),
    Int(32787, "PTS INDEX", MEMBER(PtsIndex), 0, 14, Nearest, EffectPoints, "Place in the list of point counts shown: 30, 60, 90, 120, 240, 480 and on, doubling, to 245760"),
    Int(32785, "GRID", MEMBER(Grid), EffectGrid, "Grid: 0 off, 1 on"),
    Int(32788, "GRID STYLE", MEMBER(GridStyle), 0, 1, Default, EffectGrid, "0 short dashes, 1 line"),
    Bool(32790, "SCROLLING BY ITEMS", MEMBER(ScrollByItems), EffectScrollStep, "Scroll step in time increments (1) or in per cent of the screen (0)"),
    Unnamed(32791, MEMBER(ScrollItems), "Scroll step in time increments, 1 to 999"),
    Unnamed(32792, MEMBER(ScrollPercent), "Scroll step in per cent of the screen, 1 to 99"),
    Bool(32793, "Y Axis Orientation", MEMBER(AxisOnRight), EffectAxisSide, "Side of the value axis: 0 left, 1 right"),
    Bool(32794, "Price Bar Show/Hide", MEMBER(FixedScale), EffectFixedScale, "Fixed scale: 0 off, 1 on (the price bar itself is \"Show Price Bar\")"),
    Int(32854, "Candle Price Chart Style", MEMBER(CandleStyle), 0, 1, Default, EffectColors, "0 H/L/O/C bars, 1 candles"),
    // The data requested from the feed.
    Int(32904, "RequestDataType", MEMBER(Request.DataType), 0, 4, Default, EffectRequest, "0 ticks, 1 intervals, 2 daily, 3 weekly, 4 monthly"),
    Int(32907, "ReqestType", MEMBER(Request.RequestType), EffectRequest, "Kept as it is; the request kind is in \"RequestRecentType\""),
    Int(32908, "RequestIntervalIndex", MEMBER(Request.IntervalIndex), 0, 10, Nearest, EffectRequest, "Place in the list of intervals in minutes: 1, 2, 3, 4, 5, 10, 15, 30, 45, 60, 120"),
    Bool(32920, "RequestUseExchangeFormat", MEMBER(Request.UseExchangeFormat), EffectRequest, "Prices in the exchange's own format"),
    DataTypes(32919, "RequestEnableExtendedTrades", Type::Bool, MEMBER(Request.ExtendedTrades), "Extended trades accepted, per data type", 0, 1),
    DataTypes(32912, "RequestRecentType", Type::Int, MEMBER(Request.RequestKinds), "Request kind per data type: ticks 0, 1 or 2 (points, days, range), intervals 3, 4 or 5, daily 6 or 7 (points, range), weekly 8, monthly 9", 0, 9),
    DataTypes(32909, "RequestDatapoints", Type::Int, MEMBER(Request.DatapointCounts), "Number of points asked for, per data type; 0 asks for all", 0, 2000000),
    DataTypes(32910, "RequestDays", Type::Int, MEMBER(Request.DayCounts), "Number of calendar days asked for, per data type; 1 is the current day"),
    DataTypes(32911, "RequestFilterOn", Type::Bool, MEMBER(Request.TimeFilterOn), "Time-of-day filter, per data type", 0, 1),
    DataTypes(32913, "RequestBeginDate", Type::Date, MEMBER(Request.BeginDates), "First day of a range, per data type"),
    DataTypes(32914, "RequestBeginTime", Type::Time, MEMBER(Request.BeginTimes), "Time of the first day of a range, per data type"),
    DataTypes(32915, "RequestBeginFilterTime", Type::Time, MEMBER(Request.BeginFilterTimes), "Begin of the time-of-day filter, per data type"),
    DataTypes(32916, "RequestEndDate", Type::Date, MEMBER(Request.EndDates), "Last day of a range, per data type"),
    DataTypes(32917, "RequestEndTime", Type::Time, MEMBER(Request.EndTimes), "Time of the last day of a range, per data type"),
    DataTypes(32918, "RequestEndFilterTime", Type::Time, MEMBER(Request.EndFilterTimes), "End of the time-of-day filter, per data type"),
    // Moving averages and Bollinger Bands.
    Int(32795, "MAs SHOW", MEMBER(Overlays.ShowAverages), EffectOverlays, "Moving averages: 0 off, 1 on"),
    Int(32839, "Moving Average Exponential", MEMBER(Overlays.Exponential), EffectOverlays, "0 simple, 1 exponential"),
    Int(32840, "Moving Average 1 Select", MEMBER(Overlays.AverageSelected[0]), EffectOverlays, "First average: 0 off, 1 on"),
    Int(32841, "Moving Average 1 Points", MEMBER(Overlays.AveragePoints[0]), EffectOverlays, "Period of the first average"),
    ColorOf(32833, "Moving Average 1 Color", MEMBER(Overlays.AverageColors[0]), EffectOverlays, "Colour of the first average"),
    Int(32842, "Moving Average 2 Select", MEMBER(Overlays.AverageSelected[1]), EffectOverlays, "Second average: 0 off, 1 on"),
    Int(32843, "Moving Average 2 Points", MEMBER(Overlays.AveragePoints[1]), EffectOverlays, "Period of the second average"),
    ColorOf(32834, "Moving Average 2 Color", MEMBER(Overlays.AverageColors[1]), EffectOverlays, "Colour of the second average"),
    Int(32844, "Moving Average 3 Select", MEMBER(Overlays.AverageSelected[2]), EffectOverlays, "Third average: 0 off, 1 on"),
    Int(32845, "Moving Average 3 Points", MEMBER(Overlays.AveragePoints[2]), EffectOverlays, "Period of the third average"),
    ColorOf(32835, "Moving Average 3 Color", MEMBER(Overlays.AverageColors[2]), EffectOverlays, "Colour of the third average"),
    Int(32798, "BB STUDY SHOW", MEMBER(Overlays.ShowBands), EffectOverlays, "Bollinger Bands: 0 off, 1 on"),
    ColorOf(32799, "BB Color", MEMBER(Overlays.BandColor), EffectOverlays, "Colour of the bands"),
    Int(32800, "BB AVG PERIOD", MEMBER(Overlays.BandPeriod), 2, 999, Keep, EffectOverlays, "Period of the bands' average"),
    {32801, "BB DIVIATIONS NUMBER", Form::Single, Type::Double, MEMBER(Overlays.BandDeviations), EffectOverlays, "Number of standard deviations", 0.01, 100},
    // Trendline styles by kind.
    ColorOf(32861, "Horizontal Trendline Color", MEMBER(Trends[0].Color), EffectTrends, "Colour of new horizontal lines"),
    Int(32868, "Horizontal Trendline Width", MEMBER(Trends[0].Width), 1, 99, Nearest, EffectTrends, "Width in pixels"),
    Int(32875, "Horizontal Trendline Extendable", MEMBER(Trends[0].Extendable), EffectTrends, "Extended to the right: 0 no, 1 yes"),
    ColorOf(32862, "Sloping Trendline Color", MEMBER(Trends[1].Color), EffectTrends, "Colour of new sloping lines"),
    Int(32869, "Sloping Trendline Width", MEMBER(Trends[1].Width), 1, 99, Nearest, EffectTrends, "Width in pixels"),
    Int(32876, "Sloping Trendline Extendable", MEMBER(Trends[1].Extendable), EffectTrends, "Extended to the right: 0 no, 1 yes"),
    ColorOf(32863, "Parallel Trendline Color", MEMBER(Trends[2].Color), EffectTrends, "Colour of new parallel lines"),
    Int(32870, "Parallel Trendline Width", MEMBER(Trends[2].Width), 1, 99, Nearest, EffectTrends, "Width in pixels"),
    Int(32877, "Parallel Trendline Extendable", MEMBER(Trends[2].Extendable), EffectTrends, "Extended to the right: 0 no, 1 yes"),
    ColorOf(32864, "Andrew's Pitchfork Trendline Color", MEMBER(Trends[3].Color), EffectTrends, "Colour of new pitchforks"),
    Int(32871, "Andrew's Pitchfork Trendline Width", MEMBER(Trends[3].Width), 1, 99, Nearest, EffectTrends, "Width in pixels"),
    Int(32878, "Andrew's Pitchfork Trendline Extendable", MEMBER(Trends[3].Extendable), EffectTrends, "Stored; the prongs always run to the right"),
    ColorOf(32865, "Fibonacci Fan Trendline Color", MEMBER(Trends[4].Color), EffectTrends, "Colour of new fans"),
    Int(32872, "Fibonacci Fan Trendline Width", MEMBER(Trends[4].Width), 1, 99, Nearest, EffectTrends, "Width in pixels"),
    Int(32879, "Fibonacci Fan Trendline Extendable", MEMBER(Trends[4].Extendable), EffectTrends, "Stored; the fan always runs to the right"),
    ColorOf(32866, "Fibonacci Retracements Trendline Color", MEMBER(Trends[5].Color), EffectTrends, "Colour of new retracements"),
    Int(32873, "Fibonacci Retracements Trendline Width", MEMBER(Trends[5].Width), 1, 99, Nearest, EffectTrends, "Width in pixels"),
    Int(32880, "Fibonacci Retracements Trendline Extendable", MEMBER(Trends[5].Extendable), EffectTrends, "Stored; the levels always run to the right"),
    ColorOf(32867, "Speed Resistance Trendline Color", MEMBER(Trends[6].Color), EffectTrends, "Colour of new speed resistance lines"),
    Int(32874, "Speed Resistance Trendline Width", MEMBER(Trends[6].Width), 1, 99, Nearest, EffectTrends, "Width in pixels"),
    Int(32881, "Speed Resistance Trendline Extendable", MEMBER(Trends[6].Extendable), EffectTrends, "Stored; the lines always run to the right"),
    // Studies.
    Periods(32905, "STUDY AVG PERIOD", MEMBER(Studies.Periods), "Period per study; of MACD the signal period, of Volume the period of its average"),
    Periods(32906, "STUDY CUSTOM AVG PERIOD", MEMBER(Studies.CustomPeriods), "Period per study that the choice Custom takes"),
    Int(32804, "RSI Radio Select", MEMBER(Studies.RsiRadio), EffectStudies, "Period choice: 0 custom, then the choices in order"),
    Int(32805, "RSI Upper Level", MEMBER(Studies.RsiUpperLevel), EffectStudies, "Upper level line"),
    ColorOf(32806, "RSI Up Level Color", MEMBER(Studies.RsiUpperColor), EffectStudies, "Colour of the upper level line"),
    Int(32807, "RSI Lower Level", MEMBER(Studies.RsiLowerLevel), EffectStudies, "Lower level line"),
    ColorOf(32808, "RSI Low Level Color", MEMBER(Studies.RsiLowerColor), EffectStudies, "Colour of the lower level line"),
    Int(32809, "OBV Radio Select", MEMBER(Studies.ObvRadio), EffectStudies, "Period choice"),
    ColorOf(32810, "OBV zero Color", MEMBER(Studies.ObvZeroColor), EffectStudies, "Colour of the zero line"),
    Int(32811, "MOM Radio Select", MEMBER(Studies.MomRadio), EffectStudies, "Period choice"),
    ColorOf(32812, "Momentum zero Color", MEMBER(Studies.MomZeroColor), EffectStudies, "Colour of the zero line"),
    Int(32813, "ROC Radio Select", MEMBER(Studies.RocRadio), EffectStudies, "Period choice"),
    ColorOf(32814, "ROC 100% Color", MEMBER(Studies.Roc100Color), EffectStudies, "Colour of the 100 % line"),
    Int(32815, "MACD Radio Select", MEMBER(Studies.MacdRadio), EffectStudies, "Period choice: 0 custom, 1 buy, 2 sell"),
    Int(32816, "MACD Short Period", MEMBER(Studies.MacdShort), EffectStudies, "Short period, below the long one"),
    Int(32817, "MACD Long Period", MEMBER(Studies.MacdLong), EffectStudies, "Long period"),
    Int(32818, "MACD Custom Short Period", MEMBER(Studies.MacdCustomShort), EffectStudies, "Short period of the choice custom"),
    Int(32819, "MACD Custom Long Period", MEMBER(Studies.MacdCustomLong), EffectStudies, "Long period of the choice custom"),
    ColorOf(32820, "MACD Signal Line Color", MEMBER(Studies.MacdSignalColor), EffectStudies, "Colour of the signal line"),
    ColorOf(32857, "MACD Histogram Color", MEMBER(Studies.MacdHistogramColor), EffectStudies, "Colour of the histogram"),
    Int(32821, "STO Radio Select", MEMBER(Studies.StoRadio), EffectStudies, "Period choice"),
    Int(32822, "STO Fast", MEMBER(Studies.StoFast), EffectStudies, "0 slow, anything else fast"),
    Int(32823, "STO Upper Level", MEMBER(Studies.StoUpperLevel), EffectStudies, "Upper level line"),
    ColorOf(32824, "STO Up Level Color", MEMBER(Studies.StoUpperColor), EffectStudies, "Colour of the upper level line"),
    Int(32826, "STO Lower Level", MEMBER(Studies.StoLowerLevel), EffectStudies, "Lower level line"),
    ColorOf(32825, "STO Low Level Color", MEMBER(Studies.StoLowerColor), EffectStudies, "Colour of the lower level line"),
    ColorOf(32903, "STO %K Line Color", MEMBER(Studies.StoKColor), EffectStudies, "Stored; %K is drawn in the study's data colour"),
    ColorOf(32827, "STO %D Line Color", MEMBER(Studies.StoDColor), EffectStudies, "Colour of the %D line"),
    Int(32789, "Show Volume Average", MEMBER(Studies.ShowVolumeAverage), EffectStudies, "Average over the volume bars: 0 off, 1 on"),
    ColorOf(32831, "VolumeAverage Color", MEMBER(Studies.VolumeAverageColor), EffectStudies, "Colour of the volume average"),
    Int(32860, "Volume Average All Data", MEMBER(Studies.VolumeAverageAllData), EffectStudies, "Average over all data (1) or over the Volume period (0)"),
    Int(32887, "MF Radio Select", MEMBER(Studies.MfRadio), EffectStudies, "Period choice"),
    ColorOf(32888, "Negative Flow Line Color", MEMBER(Studies.MfNegativeColor), EffectStudies, "Colour of the negative flow"),
    ColorOf(32889, "Positive Flow Line Color", MEMBER(Studies.MfPositiveColor), EffectStudies, "Colour of the positive flow"),
    Int(32890, "MFI Radio Select", MEMBER(Studies.MfiRadio), EffectStudies, "Period choice"),
    Int(32891, "MFI Upper Level", MEMBER(Studies.MfiUpperLevel), EffectStudies, "Upper level line"),
    ColorOf(32892, "MFI Up Level Color", MEMBER(Studies.MfiUpperColor), EffectStudies, "Colour of the upper level line"),
    Int(32893, "MFI Lower Level", MEMBER(Studies.MfiLowerLevel), EffectStudies, "Lower level line"),
    ColorOf(32894, "MFI Low Level Color", MEMBER(Studies.MfiLowerColor), EffectStudies, "Colour of the lower level line"),
    ColorOf(32899, "Negative Directional Indicator Color", MEMBER(Studies.AdxNegativeColor), EffectStudies, "Colour of -DI"),
    ColorOf(32900, "Positive Directional Indicator Color", MEMBER(Studies.AdxPositiveColor), EffectStudies, "Colour of +DI"),
    Int(32901, "ADX Radio Select", MEMBER(Studies.AdxRadio), EffectStudies, "Period choice"),
    // The stack of panes.
    {32882, "Number of displayed study charts", Form::PaneCount, Type::Int, MEMBER(Panes.StudyCount), EffectStudyList, "How many study panes show; missing: one, of study 6, with the borders 0.66 and 1", 0, 10},
    Indexed(32883, "Type of study chart %d", Type::Int, MEMBER(Panes.StudyTypes), 0, 9, EffectStudyList, "Study of each study pane, the uppermost having number 0; 10 or above ends the stack", 0, 9),
    Indexed(32884, "Top of chart %d", Type::Double, MEMBER(Panes.Bounds), 1, 11, EffectPaneLayout, "Bottom of the pane above, as a fraction of the height: number 1 is the bottom of the price pane", 0, 1),
    Int(32895, "Maximized Chart Index", MEMBER(Panes.MaximizedIndex), EffectPaneLayout, "The maximised pane, 0 being the price pane; 999: none"),
    Indexed(32896, "Chart %d Minimized", Type::Int, MEMBER(Panes.Minimized), 0, 10, EffectPaneLayout, "Pane minimised: 0 no, 1 yes; 0 is the price pane", 0, 1),
    Indexed(32885, "Study Data Color %d", Type::Color, MEMBER(Studies.DataColors), 0, 9, EffectStudies, "Data colour per study, in study order", 0, 0xFFFFFF),
    Indexed(32886, "Study Label Color %d", Type::Color, MEMBER(Studies.LabelColors), 0, 9, EffectStudies, "Label colour per study, in study order", 0, 0xFFFFFF),
    // General colors.
    ColorOf(32828, "Background Color", MEMBER(BackgroundColor), EffectColors, "Background of all panes"),
    ColorOf(32829, "PriceLabel Color", MEMBER(PriceLabelColor), EffectColors, "Labels of the price pane"),
    ColorOf(32832, "PriceData Color", MEMBER(PriceDataColor), EffectColors, "Price line and bars"),
    ColorOf(32836, "Grid Color", MEMBER(GridColor), EffectGrid, "Grid lines and candle outlines"),
    ColorOf(32855, "Price Up Candle Color", MEMBER(UpCandleColor), EffectColors, "Body of a rising candle"),
    ColorOf(32856, "Price Down Candle Color", MEMBER(DownCandleColor), EffectColors, "Body of a falling candle"),
    ColorOf(32897, "Price Bar Color", MEMBER(PriceBarColor), EffectPriceBar, "The price bar"),
    // Settings that the window does not load.
    {32830, "VolumeLabel Color", Form::SheetOnly, Type::Color, MEMBER(VolumeLabelColor), EffectNone, "Passes through the colour page; no control shows it", 0, 0xFFFFFF},
    {32802, "STUDY AVG PERIOD ", Form::OldIndexed, Type::Int, {}, EffectNone, "Older form of \"STUDY AVG PERIOD\", a value a study: the name, its trailing blank and 0 to 9", 0, 0, Keep, 0, 9},
    {32803, "STUDY CUSTOM AVG PERIOD ", Form::OldIndexed, Type::Int, {}, EffectNone, "Older form of \"STUDY CUSTOM AVG PERIOD\", likewise", 0, 0, Keep, 0, 9},
    NoUse(32796, "STUDY SHOW", "Not used"),
    NoUse(32797, "STUDY INDEX", "Not used"),
    NoUse(32837, "Study Data Color", "Not used"),
    NoUse(32838, "Study Label Color", "Not used"),
    NoUse(32858, "Trendlines Color", "Not used"),
    NoUse(32859, "Volume Average Period", "Not used; the period is in \"STUDY AVG PERIOD\""),
};
// clang-format on

#undef MEMBER

// The number in a name that follows the pattern. Returns nothing unless it is written as the pattern would
// print it.
std::optional<int> NumberIn(std::string_view name, std::string_view before, std::string_view behind)
{
    if (name.size() <= before.size() + behind.size() || !name.starts_with(before) || !name.ends_with(behind))
        return std::nullopt;
    const auto digits = name.substr(before.size(), name.size() - before.size() - behind.size());
    int number = 0;
    const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (end.ec != std::errc() || std::to_string(number) != digits)
        return std::nullopt;
    return number;
}

} // namespace

std::span<const sSettingRow> SettingsTable()
{
    return Rows;
}

const sSettingRow* FindSetting(int id)
{
    const auto found = std::ranges::find(Rows, id, &sSettingRow::Id);
    return found == std::end(Rows) ? nullptr : found;
}

std::string_view SettingName(int id)
{
    const auto* row = FindSetting(id);
    return row ? row->Name : std::string_view();
}

std::string SettingName(const sSettingRow& row, int number)
{
    std::string name(row.Name);
    if (row.Form == SettingForm::OldIndexed)
        return name + std::to_string(number);
    if (row.Form == SettingForm::Indexed)
        name.replace(name.find("%d"), 2, std::to_string(number));
    return name;
}

std::string SettingName(int id, int number)
{
    const auto* row = FindSetting(id);
    return row ? SettingName(*row, number) : std::string();
}

std::optional<sSettingPlace> FindSetting(std::string_view storedName)
{
    for (const Row& row : Rows) {
        if (row.Form == SettingForm::Unnamed && storedName == "#" + std::to_string(row.Id))
            return sSettingPlace{&row};
        std::optional<int> number = 0;
        if (row.Form == SettingForm::Indexed) {
            const auto hole = row.Name.find("%d");
            number = NumberIn(storedName, row.Name.substr(0, hole), row.Name.substr(hole + 2));
        } else if (row.Form == SettingForm::OldIndexed) {
            number = NumberIn(storedName, row.Name, "");
        } else if (row.Name != storedName) {
            continue;
        }
        if (number && *number >= row.FirstNumber && *number <= row.LastNumber)
            return sSettingPlace{&row, *number};
    }
    return std::nullopt;
}

} // namespace zantroq
