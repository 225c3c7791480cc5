#include "studies/StudyTable.h"

#include "studies/HistADXChart.h"
#include "studies/HistMACDChart.h"
#include "studies/HistMFChart.h"
#include "studies/HistMFIChart.h"
#include "studies/HistMOMChart.h"
#include "studies/HistOBVChart.h"
#include "studies/HistROCChart.h"
#include "studies/HistRSIChart.h"
#include "studies/HistSTOChart.h"
#include "studies/HistVOLChart.h"

#include <array>

namespace zantroq {

namespace {

template<class Study> std::unique_ptr<CStudyChart> Make()
{
    return std::make_unique<Study>();
}

constexpr sStudyColumn RSIColumns[]{{"rsi", 1, 1}};
constexpr sStudyColumn MOMColumns[]{{"momentum", 1, 1}};
constexpr sStudyColumn ROCColumns[]{{"roc", 1, 1}};
constexpr sStudyColumn OBVColumns[]{{"obv", 1, 1}};
constexpr sStudyColumn MACDColumns[]{{"macd", 1, 1}, {"macd_signal", 1, 2}, {"macd_histogram", 2, 1}};
constexpr sStudyColumn STOColumns[]{{"stochastic_k", 1, 1}, {"stochastic_d", 1, 2}};
constexpr sStudyColumn MFColumns[]{
    {"money_flow", 1, 1}, {"money_flow_positive", 1, 2}, {"money_flow_negative", 1, 3}};
constexpr sStudyColumn MFIColumns[]{{"mfi", 1, 1}};
constexpr sStudyColumn ADXColumns[]{{"adx", 1, 1}, {"plus_di", 1, 2}, {"minus_di", 1, 3}};

// In the order of StudyKind.
constexpr std::array<sStudyRow, StudyKinds> Rows{{
    {StudyRSI, Make<CHistRSIChart>, RSIColumns},
    {StudyMomentum, Make<CHistMOMChart>, MOMColumns},
    {StudyROC, Make<CHistROCChart>, ROCColumns},
    {StudyOBV, Make<CHistOBVChart>, OBVColumns},
    {StudyMACD, Make<CHistMACDChart>, MACDColumns},
    {StudyStochastics, Make<CHistSTOChart>, STOColumns},
    {StudyVolume, Make<CHistVOLChart>, {}},
    {StudyMoneyFlow, Make<CHistMFChart>, MFColumns},
    {StudyMFI, Make<CHistMFIChart>, MFIColumns},
    {StudyADX, Make<CHistADXChart>, ADXColumns},
}};

} // namespace

const sStudyRow* FindStudy(int kind)
{
    return kind >= 0 && kind < StudyKinds ? &Rows[static_cast<std::size_t>(kind)] : nullptr;
}

} // namespace zantroq
