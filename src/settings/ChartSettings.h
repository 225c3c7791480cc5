// All settings of a chart window in memory; the initial values are the defaults of an empty store.
// SettingsTable.h connects each member with its stored name. Window's thread.
#pragma once

#include "platform/Color.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace zantroq {

// The studies in study order, which all ten-entry arrays use.
enum StudyKind : int
{
    StudyRSI = 0,
    StudyMomentum,
    StudyROC,
    StudyOBV,
    StudyMACD,
    StudyStochastics,
    StudyVolume,
    StudyMoneyFlow,
    StudyMFI,
    StudyADX,
    StudyKinds = 10
};

// The kinds of trendline in the order of the trend lists.
enum TrendKind : int
{
    TrendHorizontal = 0,
    TrendSloping,
    TrendParallel,
    TrendPitchfork,
    TrendFibonacciFan,
    TrendFibonacciRetracements,
    TrendSpeedResistance,
    TrendKinds = 7
};

struct sTrendStyle
{
    ColorValue Color = 0;
    std::int32_t Width = 1;
    std::int32_t Extendable = 1;
};

enum class AxisSide
{
    Left,
    Right
};

// What the chart requests from the feed. Arrays have one entry each for ticks, intervals, daily, weekly and
// monthly data.
struct sRequestSettings
{
    std::int32_t DataType = 0;      // "RequestDataType", 0 to 4
    std::int32_t RequestType = 0;   // "ReqestType"
    std::int32_t IntervalIndex = 0; // 0 to 10, an index into IntervalMinutes
    bool UseExchangeFormat = true;
    std::array<std::int32_t, 5> RequestKinds{0, 3, 6, 8, 9};
    std::array<std::int32_t, 5> DatapointCounts{1000, 1000, 1000, 1000, 1000};
    std::array<std::int32_t, 5> DayCounts{};
    std::array<bool, 5> TimeFilterOn{};
    std::array<bool, 5> ExtendedTrades{};
    std::array<std::string, 5> BeginDates, EndDates; // %Y%m%d; today's date by default
    std::array<std::string, 5> BeginTimes{"093000", "093000", "093000", "093000", "093000"};
    std::array<std::string, 5> BeginFilterTimes{"093000", "093000", "093000", "093000", "093000"};
    std::array<std::string, 5> EndTimes{"160000", "160000", "160000", "160000", "160000"};
    std::array<std::string, 5> EndFilterTimes{"160000", "160000", "160000", "160000", "160000"};
};

inline constexpr std::array<int, 11> IntervalMinutes{1, 2, 3, 4, 5, 10, 15, 30, 45, 60, 120};

// The numbers of points that can be shown, by PtsIndex.
inline constexpr std::array<int, 15> DisplayMaxPoints{30,   60,   90,    120,   240,   480,    960,   1920,
                                                      3840, 7680, 15360, 30720, 61440, 122880, 245760};
inline constexpr int LastPointsPlace = static_cast<int>(DisplayMaxPoints.size()) - 1;

// The entry at a place; a place outside the list reads as its nearer end.
constexpr int PointsAtPlace(int place)
{
    return DisplayMaxPoints[static_cast<std::size_t>(std::clamp(place, 0, LastPointsPlace))];
}

// The moving averages and Bollinger Bands of the price pane.
struct sOverlaySettings
{
    std::int32_t ShowAverages = 0; // "MAs SHOW"
    std::int32_t Exponential = 0;
    std::array<std::int32_t, 3> AverageSelected{1, 1, 1};
    std::array<std::int32_t, 3> AveragePoints{5, 10, 15};
    std::array<ColorValue, 3> AverageColors{0x0000FF, 0xFF0000, 0x00FFFF};
    std::int32_t ShowBands = 0; // "BB STUDY SHOW"
    ColorValue BandColor = 0xCECECE;
    std::int32_t BandPeriod = 20;
    double BandDeviations = 2.0;
};

// Periods, levels and colors of the ten studies.
struct sStudySettings
{
    std::array<std::int32_t, StudyKinds> Periods{21, 20, 20, 9, 18, 5, 10, 14, 14, 14}; // "STUDY AVG PERIOD"
    std::array<std::int32_t, StudyKinds> CustomPeriods{21, 20,  20, 9, 18,
                                                       5,  500, 9,  9, 10}; // "STUDY CUSTOM AVG PERIOD"
    std::array<ColorValue, StudyKinds> DataColors{};                        // "Study Data Color %d"
    std::array<ColorValue, StudyKinds> LabelColors{};                       // "Study Label Color %d"
    std::int32_t RsiRadio = 1, RsiUpperLevel = 70, RsiLowerLevel = 30;
    ColorValue RsiUpperColor = 0xD8BFD8, RsiLowerColor = 0x8CB4D2;
    std::int32_t ObvRadio = 1;
    ColorValue ObvZeroColor = 0xFFFFFF;
    std::int32_t MomRadio = 1;
    ColorValue MomZeroColor = 0xD9BB8A;
    std::int32_t RocRadio = 1;
    ColorValue Roc100Color = 0xBB39C6;
    std::int32_t MacdRadio = 1, MacdShort = 8, MacdLong = 17, MacdCustomShort = 38, MacdCustomLong = 78;
    ColorValue MacdSignalColor = 0xC080FF, MacdHistogramColor = 0xB48246;
    std::int32_t StoRadio = 0, StoFast = 0, StoUpperLevel = 80, StoLowerLevel = 20;
    ColorValue StoUpperColor = 0xD8BFD8, StoLowerColor = 0x8CB4D2, StoKColor = 0x000000, StoDColor = 0x8000FF;
    std::int32_t ShowVolumeAverage = 1, VolumeAverageAllData = 1;
    ColorValue VolumeAverageColor = 0x0000FF;
    std::int32_t MfRadio = 1;
    ColorValue MfNegativeColor = 0x0000FF, MfPositiveColor = 0xB48246;
    std::int32_t MfiRadio = 1, MfiUpperLevel = 80, MfiLowerLevel = 20;
    ColorValue MfiUpperColor = 0xD8BFD8, MfiLowerColor = 0x8CB4D2;
    std::int32_t AdxRadio = 1;
    ColorValue AdxNegativeColor = 0x0000FF, AdxPositiveColor = 0xB48246;
};

inline constexpr int MaxPanes = StudyKinds + 1; // the price pane and every study
inline constexpr int NoMaximizedPane = 999;

// The stack of panes: which studies are displayed, and the pane borders as fractions of the height.
struct sPaneStack
{
    std::int32_t StudyCount = 1; // 0 to 10
    std::array<std::int32_t, StudyKinds> StudyTypes{StudyVolume};
    // Bounds[0] is 0; Bounds[k + 1] is the bottom of pane k.
    std::array<double, MaxPanes + 1> Bounds{0.0, 0.66, 1.0};
    std::int32_t MaximizedIndex = NoMaximizedPane;
    std::array<std::int32_t, MaxPanes> Minimized{};
};

struct sChartSettings
{
    std::int32_t ShowPriceBar = 1;
    std::int32_t ShowLevel1 = 1;
    std::int32_t PtsIndex = 3; // 0 to 14
    std::int32_t Grid = 1;
    std::int32_t GridStyle = 0; // 0 short dashes, 1 line
    bool ScrollByItems = true;
    // Both are stored under the same unnamed value, so loading makes them equal: 1 with an empty store, never
    // 20.
    std::int32_t ScrollItems = 1, ScrollPercent = 20;
    bool AxisOnRight = false;     // "Y Axis Orientation"
    bool FixedScale = false;      // "Price Bar Show/Hide"
    std::int32_t CandleStyle = 1; // 0 H/L/O/C, 1 candles
    sRequestSettings Request;
    sOverlaySettings Overlays;
    std::array<sTrendStyle, TrendKinds> Trends{
        {{0x8080FF}, {0xA8A800}, {0xA09E5F}, {0x4F52DF}, {0xF37B3A}, {0xFF0080}, {0x38B88B}}};
    sStudySettings Studies;
    sPaneStack Panes;
    ColorValue BackgroundColor = 0xFFFFFF;
    ColorValue PriceLabelColor = 0x000000;
    ColorValue PriceDataColor = 0x000000;
    ColorValue GridColor = 0xC0C0C0;
    ColorValue UpCandleColor = 0x00FF00, DownCandleColor = 0x0000FF;
    ColorValue PriceBarColor = 0xC0C0C0;
    ColorValue VolumeLabelColor = 0x000000; // edited by the settings sheet only

    AxisSide ValueAxisSide() const { return AxisOnRight ? AxisSide::Right : AxisSide::Left; }
};

} // namespace zantroq
