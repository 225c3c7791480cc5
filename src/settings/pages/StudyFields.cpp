#include "settings/pages/StudyFields.h"

#include "settings/pages/LowerStudiesSettingPage.h"

namespace zantroq {
namespace {

using S = sStudySettings;
using Page = CLowerStudiesSettingPage;

constexpr sStudyField Upper(std::int32_t S::*level, ColorValue S::*color)
{
    return {Page::UpperLabel, "Upper level:", Page::SecondNumber, level, Page::UpperColor, color};
}
constexpr sStudyField Lower(std::int32_t S::*level, ColorValue S::*color)
{
    return {Page::LowerLabel, "Lower level:", Page::ThirdNumber, level, Page::LowerColor, color};
}
constexpr sStudyField FirstColor(const char* label, ColorValue S::*color)
{
    return {Page::FirstColorLabel, label, 0, nullptr, Page::FirstColorButton, color};
}
constexpr sStudyField SecondColor(const char* label, ColorValue S::*color)
{
    return {Page::SecondColorLabel, label, 0, nullptr, Page::SecondColorButton, color};
}

constexpr const char* Custom = "Custom";
constexpr const char* Lookback = "Lookback period:";
constexpr const char* Smoothing = "Smoothing period:";

constexpr std::array<sStudyFields, StudyKinds> Table{{
    {"RSI Properties...",
     {{{"14", 14}, {"9", 9}, {"25", 25}}},
     Custom,
     Lookback,
     &S::RsiRadio,
     {{Upper(&S::RsiUpperLevel, &S::RsiUpperColor), Lower(&S::RsiLowerLevel, &S::RsiLowerColor)}}},
    {"Momentum Properties...",
     {{{"10", 10}, {"30", 30}}},
     Custom,
     Lookback,
     &S::MomRadio,
     {{FirstColor("Zero level color:", &S::MomZeroColor)}}},
    {"ROC Properties...",
     {{{"10", 10}, {"30", 30}}},
     Custom,
     Lookback,
     &S::RocRadio,
     {{FirstColor("Color of 100% :", &S::Roc100Color)}}},
    {"OBV Properties...",
     {{{"9", 9}}},
     Custom,
     Smoothing,
     &S::ObvRadio,
     {{FirstColor("Zero level color:", &S::ObvZeroColor)}}},
    {"MACD Properties...",
     {{{"buy (8, 17, 9)", 9, 8, 17}, {"sell (12, 25, 9)", 9, 12, 25}}},
     "custom",
     "Periods:",
     &S::MacdRadio,
     {{FirstColor("Signal line color:", &S::MacdSignalColor),
       SecondColor("Histogram color:", &S::MacdHistogramColor)}},
     true},
    {"STO Properties...",
     {{{"5", 5}, {"10", 10}, {"25", 25}}},
     Custom,
     Lookback,
     &S::StoRadio,
     {{Upper(&S::StoUpperLevel, &S::StoUpperColor), Lower(&S::StoLowerLevel, &S::StoLowerColor),
       FirstColor("Color of %K line:", &S::StoKColor), SecondColor("Color of %D line:", &S::StoDColor)}},
     false,
     &S::StoFast},
    {"Volume Properties...",
     {{{"For all data", 1}}},
     Custom,
     nullptr,
     &S::VolumeAverageAllData,
     {{{Page::AverageColorLabel, "Average color:", 0, nullptr, Page::AverageColor, &S::VolumeAverageColor}}},
     false,
     nullptr,
     &S::ShowVolumeAverage},
    {"Money Flow Properties...",
     {{{"14", 14}}},
     Custom,
     Lookback,
     &S::MfRadio,
     {{FirstColor("Positive Flow color:", &S::MfPositiveColor),
       SecondColor("Negative Flow color:", &S::MfNegativeColor)}}},
    {"MFI Properties...",
     {{{"14", 14}}},
     Custom,
     Lookback,
     &S::MfiRadio,
     {{Upper(&S::MfiUpperLevel, &S::MfiUpperColor), Lower(&S::MfiLowerLevel, &S::MfiLowerColor)}}},
    {"ADX Properties...",
     {{{"14", 14}}},
     Custom,
     Smoothing,
     &S::AdxRadio,
     {{FirstColor("+ DI color:", &S::AdxPositiveColor), SecondColor("-  DI color:", &S::AdxNegativeColor)}}},
}};

} // namespace

const sStudyFields& FieldsOf(int study)
{
    return Table.at(static_cast<std::size_t>(study));
}

} // namespace zantroq
