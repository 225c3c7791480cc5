// The price pane's draw, from series to scene, with a yardstick in the same run.
//
//   OnePass/N            yardstick: one pass over the four price arrays of N bars (lowest low, highest high, two
//                        sums)
//   WholeDraw/N          whole draw of N bars without curves
//   WholeDrawAverages/N  the same with the three averages of the defaults (5, 10, 15)
//   WholeDrawBands/N     the same with bands of period 20
//   LastBar/N            a changed last bar: one live update of the series, and its transfer into the scene
//   Average999/245760    one average of the longest period that the settings offer, arithmetic only
#include "drawing/BollingerBands.h"
#include "support/SeriesFixture.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

namespace zantroq {
namespace {

void Fill(CSeriesFixture& chart, int count)
{
    double close = 100.0;
    for (int i = 0; i < count; ++i) {
        const double open = close;
        close = 100.0 + 20.0 * std::sin(i * 0.001) + 0.01 * ((i * 7919) % 101);
        chart.Add(open, std::max(open, close) + 0.37, std::min(open, close) - 0.41, close, 1000 + i % 977);
    }
    chart.window.settings.PtsIndex = 14;
    chart.window.range.ptsIndex = static_cast<int>(
        std::find(DisplayMaxPoints.begin(), DisplayMaxPoints.end(), count) - DisplayMaxPoints.begin());
}

void OnePass(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    std::vector<double> arrays[4];
    for (auto& array : arrays)
        array.assign(count, 101.25);
    for (auto _ : state) {
        double low = 1e7, high = -1e7, opens = 0, closes = 0;
        for (std::size_t i = 0; i < count; ++i) {
            high = std::max(high, arrays[0][i]);
            low = std::min(low, arrays[1][i]);
            opens += arrays[2][i];
            closes += arrays[3][i];
        }
        benchmark::DoNotOptimize(low + high + opens + closes);
    }
}

void DrawWhole(benchmark::State& state, bool averages, bool bands)
{
    CSeriesFixture chart(MinuteData);
    Fill(chart, static_cast<int>(state.range(0)));
    chart.window.settings.Overlays.ShowAverages = averages;
    chart.window.settings.Overlays.ShowBands = bands;
    chart.manager.FullRedraw();
    for (auto _ : state)
        chart.manager.PriceChart().Draw(0);
}

void WholeDraw(benchmark::State& state)
{
    DrawWhole(state, false, false);
}
void WholeDrawAverages(benchmark::State& state)
{
    DrawWhole(state, true, false);
}
void WholeDrawBands(benchmark::State& state)
{
    DrawWhole(state, false, true);
}

void LastBar(benchmark::State& state)
{
    CSeriesFixture chart(MinuteData);
    const int count = static_cast<int>(state.range(0));
    chart.window.settings.PtsIndex = chart.window.range.ptsIndex = 14;
    Fill(chart, count);
    chart.window.range.ptsIndex = 14;
    chart.manager.FullRedraw();
    sHIST_POINT point;
    chart.request.GetPoint(count - 1, point);
    for (auto _ : state) {
        point.Close += 0.01;
        chart.request.UpdatePoint(count - 1, point);
        chart.manager.Update(0);
    }
}

void Average999(benchmark::State& state)
{
    std::vector<double> closes(static_cast<std::size_t>(state.range(0)), 101.37), out(closes.size());
    for (auto _ : state) {
        SimpleAverages({closes, 0}, 0, 999, out);
        benchmark::DoNotOptimize(out.data());
    }
}

BENCHMARK(OnePass)->Arg(245760)->Unit(benchmark::kMillisecond);
BENCHMARK(WholeDraw)->Arg(120)->Arg(1920)->Arg(15360)->Arg(245760)->Unit(benchmark::kMillisecond);
BENCHMARK(WholeDrawAverages)->Arg(120)->Arg(245760)->Unit(benchmark::kMillisecond);
BENCHMARK(WholeDrawBands)->Arg(120)->Arg(245760)->Unit(benchmark::kMillisecond);
BENCHMARK(LastBar)->Arg(1000)->Arg(245760)->Unit(benchmark::kMicrosecond);
BENCHMARK(Average999)->Arg(245760)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zantroq

BENCHMARK_MAIN();
