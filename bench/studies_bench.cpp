// The studies over 245,760 daily bars of a running request, one thread, with yardsticks in the same run.
//
//   ReadCloses            yardstick: one bulk read of all closes under the series' lock
//   Compute/<study>       the arithmetic of one study over the whole series, reading included; 10000 is a period
//                         far beyond the usual ones, with which the time of some studies grows
//   Plain/<study>         yardstick: the plain definition, point by point over plain vectors without a lock
//   ComputeSlow25Short, PlainSlow25Short   slow stochastics of period 25 over 3,840 bars, because the plain
//                         definition is too slow for more; Compute/Slow25 covers the whole series
//   DrawAll               whole draw of the price pane and all ten studies, from series to scene
//   PaintAll              painting the eleven panes of DrawAll, 1500x1400 together, after a whole draw
//   Tick                  one new tick with ten study panes, all points displayed: from series to scene
//   TickPainted           the same, from series to pixels
#include "studies/AverageConvergence.h"
#include "studies/DirectionalIndex.h"
#include "studies/MomentumArithmetic.h"
#include "studies/MoneyFlowArithmetic.h"
#include "studies/RelativeStrength.h"
#include "studies/StochasticArithmetic.h"
#include "studies/StudyFactory.h"
#include "studies/VolumeBalance.h"
#include "studies/VolumeScale.h"

#include "qt/paint/PanePainter.h"

#include "studies/PlainStudy.h"
#include "support/SeriesFixture.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <vector>

namespace zantroq {
namespace {

constexpr int Points = 245760;

struct sBar
{
    double Open, High, Low, Close;
    std::int64_t Volume;
};

sBar BarAt(int i)
{
    const auto price = [](int n) { return 100.0 + 20.0 * std::sin(n * 0.001) + 0.01 * ((n * 7919LL) % 101); };
    const double open = i == 0 ? 100.0 : price(i - 1), close = price(i);
    return {open, std::max(open, close) + 0.37, std::min(open, close) - 0.41, close,
            1000000 + i % 977 * 1000};
}

class CAllPanes : public CSeriesFixture
{
public:
    explicit CAllPanes(int dataType) : CSeriesFixture(dataType, &m_factory)
    {
        for (int i = 0; i < Points; ++i) {
            const sBar bar = BarAt(i);
            Add(bar.Open, bar.High, bar.Low, bar.Close, bar.Volume);
        }
        window.settings.PtsIndex = window.range.ptsIndex = 14;
        window.range.shown = Points;
        window.settings.Panes.StudyCount = StudyKinds;
        for (int kind = 0; kind < StudyKinds; ++kind)
            window.settings.Panes.StudyTypes[static_cast<std::size_t>(kind)] = kind;
    }

private:
    CStudyFactory m_factory;
};

const CAllPanes& Daily()
{
    static CAllPanes panes(DailyData);
    return panes;
}

const CBarSeries& PlainBars()
{
    static const CBarSeries bars = [] {
        CBarSeries series;
        for (int i = 0; i < Points; ++i) {
            const sBar bar = BarAt(i);
            series.Add(bar.Open, bar.High, bar.Low, bar.Close, bar.Volume);
        }
        return series;
    }();
    return bars;
}

using CCompute = std::function<void(const IPriceSource&, int count, double* a, double* b, double* c)>;

const std::vector<std::pair<const char*, CCompute>>& Computations()
{
    static const std::vector<std::pair<const char*, CCompute>> all{
        {"RSI14",
         [](const IPriceSource& p, int n, double* a, double*, double*) {
             sRSIRunningState state;
             ComputeRSI(p, 0, n, 14, state, a);
         }},
        {"Momentum20",
         [](const IPriceSource& p, int n, double* a, double*, double*) { ComputeMomentum(p, -1, n, 20, a); }},
        {"ROC20",
         [](const IPriceSource& p, int n, double* a, double*, double*) { ComputeROC(p, 0, n, 20, a); }},
        {"OBV9",
         [](const IPriceSource& p, int n, double* a, double*, double*) { ComputeOBV(p, 0, n, 9, a); }},
        {"MACD12/25/9",
         [](const IPriceSource& p, int n, double* a, double* b, double*) {
             sMACDRunningState state;
             ComputeMACD(p, 0, n, {12, 25, 9}, state, a, b);
         }},
        {"Slow25", [](const IPriceSource& p, int n, double* a, double* b,
                      double*) { ComputeStochastic(p, 0, n, 25, StochasticSpeed::Slow, a, b); }},
        {"Volume",
         [](const IPriceSource& p, int n, double* a, double*, double*) {
             const sVolumeScale scale = ScaleVolumes(p, 0, n, VolumeMaximum::OfThePoints, a);
             benchmark::DoNotOptimize(AverageVolume(p, n, scale.Divisor));
         }},
        {"MoneyFlow14", [](const IPriceSource& p, int n, double* a, double* b,
                           double*) { ComputeMoneyFlow(p, 0, n, 14, a, b); }},
        {"MFI14",
         [](const IPriceSource& p, int n, double* a, double*, double*) { ComputeMFI(p, 0, n, 14, a); }},
        {"MoneyFlow10000", [](const IPriceSource& p, int n, double* a, double* b,
                              double*) { ComputeMoneyFlow(p, 0, n, 10000, a, b); }},
        {"Slow10000", [](const IPriceSource& p, int n, double* a, double* b,
                         double*) { ComputeStochastic(p, 0, n, 10000, StochasticSpeed::Slow, a, b); }},
        {"ADX14",
         [](const IPriceSource& p, int n, double* a, double* b, double* c) {
             sADXRunningState state;
             ComputeADX(p, 0, n, 14, state, a, b, c);
         }},
    };
    return all;
}

void Compute(benchmark::State& state, const CCompute& compute, int count)
{
    std::vector<double> a(Points), b(Points), c(Points);
    const IPriceSource& prices = Daily().prices;
    for (auto _ : state) {
        compute(prices, count, a.data(), b.data(), c.data());
        benchmark::ClobberMemory();
    }
}

void Plain(benchmark::State& state, int kind, int count)
{
    sChartSettings settings;
    settings.Studies.Periods = {14, 20, 20, 9, 9, 25, 10, 14, 14, 14};
    settings.Studies.MacdShort = 12;
    settings.Studies.MacdLong = 25;
    double a = 0, b = 0, c = 0;
    for (auto _ : state) {
        plain::sStates states;
        plain::CFormulas formulas(PlainBars(), settings, states);
        for (int i = 0; i < count; ++i) {
            switch (kind) {
            case StudyRSI:
                a = formulas.Rsi(i);
                break;
            case StudyMomentum:
                a = formulas.Momentum(i);
                break;
            case StudyROC:
                a = formulas.Roc(i);
                break;
            case StudyOBV:
                a = formulas.Obv(i);
                break;
            case StudyMACD:
                formulas.Macd(i, a, b);
                break;
            case StudyStochastics:
                formulas.Stochastic(i, a, b);
                break;
            case StudyMoneyFlow:
                formulas.MoneyFlow(i, 14, a, b);
                break;
            case StudyMFI:
                a = formulas.Mfi(i);
                break;
            default:
                formulas.Adx(i, a, b, c);
            }
            benchmark::DoNotOptimize(a);
        }
    }
}

void ReadCloses(benchmark::State& state)
{
    std::vector<double> closes(Points);
    for (auto _ : state) {
        Daily().prices.ReadClose(0, Points, closes.data());
        benchmark::ClobberMemory();
    }
}

void DrawAll(benchmark::State& state)
{
    CAllPanes panes(DailyData);
    panes.manager.FullRedraw();
    for (auto _ : state)
        panes.manager.Draw(0);
}

// The eleven panes of a window, each with its own picture.
class CPaintedPanes
{
public:
    explicit CPaintedPanes(CAllPanes& panes)
    {
        for (int pane = 0; pane <= StudyKinds; ++pane) {
            CAreaBox& box = panes.window.Pane(pane).PaneArea().AreaBox();
            box.Width().SetValue(1500);
            box.Height().SetValue(pane == 0 ? 400 : 100);
            m_painters.push_back(std::make_unique<CPanePainter>(panes.window.Pane(pane)));
        }
    }
    void Paint()
    {
        for (const auto& painter : m_painters)
            benchmark::DoNotOptimize(painter->Picture(1).constBits());
    }

private:
    std::vector<std::unique_ptr<CPanePainter>> m_painters;
};

void PaintAll(benchmark::State& state)
{
    CAllPanes panes(DailyData);
    panes.manager.FullRedraw();
    CPaintedPanes painted(panes);
    for (auto _ : state) {
        state.PauseTiming();
        panes.manager.Draw(0);
        state.ResumeTiming();
        painted.Paint();
    }
}

void Ticks(benchmark::State& state, bool painting)
{
    CAllPanes panes(TickData);
    panes.manager.FullRedraw();
    CPaintedPanes painted(panes);
    painted.Paint();
    int i = Points;
    for (auto _ : state) {
        const sBar bar = BarAt(i++);
        panes.Add(bar.Open, bar.High, bar.Low, bar.Close, 100);
        panes.window.scrollLimit = i - Points;
        panes.manager.Update(1);
        if (painting)
            painted.Paint();
    }
}

void Register()
{
    benchmark::RegisterBenchmark("ReadCloses", ReadCloses)->Unit(benchmark::kMillisecond);
    for (const auto& [name, compute] : Computations())
        benchmark::RegisterBenchmark((std::string("Compute/") + name).c_str(), [&compute = compute](
                                                                                   benchmark::State& s) {
            Compute(s, compute, Points);
        })->Unit(benchmark::kMillisecond);
    const std::pair<const char*, int> plainStudies[] = {
        {"RSI14", StudyRSI},        {"Momentum20", StudyMomentum},
        {"ROC20", StudyROC},        {"OBV9", StudyOBV},
        {"MACD12/25/9", StudyMACD}, {"MoneyFlow14", StudyMoneyFlow},
        {"MFI14", StudyMFI},        {"ADX14", StudyADX}};
    for (const auto& [name, kind] : plainStudies)
        benchmark::RegisterBenchmark((std::string("Plain/") + name).c_str(), [kind =
                                                                                  kind](benchmark::State& s) {
            Plain(s, kind, Points);
        })->Unit(benchmark::kMillisecond);
    constexpr int few = 3840;
    benchmark::RegisterBenchmark("ComputeSlow25Short", [](benchmark::State& s) {
        Compute(s, Computations()[5].second, few);
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("PlainSlow25Short", [](benchmark::State& s) {
        Plain(s, StudyStochastics, few);
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("DrawAll", DrawAll)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("PaintAll", PaintAll)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Tick", [](benchmark::State& s) {
        Ticks(s, false);
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("TickPainted", [](benchmark::State& s) {
        Ticks(s, true);
    })->Unit(benchmark::kMillisecond);
}

} // namespace
} // namespace zantroq

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv); // needed for the fonts of the painted panes
    zantroq::Register();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
