#include "studies/StudyFactory.h"

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

namespace zantroq {

namespace {

CStudyChart* Make(int kind)
{
    switch (kind) {
    case StudyRSI:
        return new CHistRSIChart;
    case StudyMomentum:
        return new CHistMOMChart;
    case StudyROC:
        return new CHistROCChart;
    case StudyOBV:
        return new CHistOBVChart;
    case StudyMACD:
        return new CHistMACDChart;
    case StudyStochastics:
        return new CHistSTOChart;
    case StudyVolume:
        return new CHistVOLChart;
    case StudyMoneyFlow:
        return new CHistMFChart;
    case StudyMFI:
        return new CHistMFIChart;
    case StudyADX:
        return new CHistADXChart;
    default:
        return nullptr;
    }
}

} // namespace

CStudyChart* CStudyFactory::Create(int kind)
{
    CStudyChart* study = Make(kind);
    if (study)
        study->kind = kind;
    return study;
}

} // namespace zantroq
