// A pane's points reduced to ink, without painting them and without Qt: 1419x652 pixels, after a change of
// the value axis, so that every point is looked at again. /P is the number of points.
//
//   Yardstick/P      scanning two arrays   Candles/P        candles, one pixel wide from 1,920 points on
// SlowCandles/P    the same on the path of processors without AVX2   PriceBars/P      H/L/O/C bars
// Histogram/P      bars from the origin   Line/P           one line   BrokenLine/P     one line with a hole
// at every 50th point: no column can be taken together   Marks/P          marks of 3 pixels without a line
#include "ink/PaneInk.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace {

using namespace zantroq;

enum class Shape
{
    Line,
    BrokenLine,
    Marks,
};

class CBenchPane
{
public:
    explicit CBenchPane(int count) : m_count(count)
    {
        CPaneArea& area = Pane.PaneArea();
        area.AreaBox().Width().SetValue(1500);
        area.AreaBox().Height().SetValue(700);
        area.PlotFrame().BottomMargin().SetValue(31);
        area.PaneAxes().X().ViewLow().SetValue(1);
        area.PaneAxes().X().ViewHigh().SetValue(count + 0.5);
        std::uint32_t state = 12345;
        const auto next = [&] {
            state = state * 1664525u + 1013904223u;
            return (state >> 8) / double(1 << 24) - 0.5;
        };
        double price = 1000;
        for (int i = 0; i < count; ++i) {
            const double open = price, close = open + next();
            Open.push_back(open);
            Close.push_back(close);
            High.push_back(std::max(open, close) + std::abs(next()) * 0.5);
            Low.push_back(std::min(open, close) - std::abs(next()) * 0.5);
            price = close;
        }
        m_least = *std::min_element(Low.begin(), Low.end());
        m_greatest = *std::max_element(High.begin(), High.end());
    }

    void Fill(int type, const std::vector<const std::vector<double>*>& vectors)
    {
        CPaneGroup& group = Pane.PaneGroups(1);
        CPaneData& data = group.PaneData();
        data.SetSeriesCount(static_cast<int>(vectors.size()));
        data.SetPointCount(1, m_count);
        for (std::size_t i = 0; i < vectors.size(); ++i)
            data.SetYVector(static_cast<int>(i) + 1, *vectors[i]);
        group.SetChartType(type);
        Shake();
    }

    // Two value ranges in turn.
    void Shake()
    {
        m_wide = !m_wide;
        CPaneAxis& axis = Pane.PaneArea().PaneAxes().Y();
        axis.ViewLow().SetValue(m_least - (m_wide ? 3.0 : 0.0));
        axis.ViewHigh().SetValue(m_greatest);
    }

    CChart2D Pane;
    std::vector<double> High, Low, Open, Close;

private:
    const int m_count;
    bool m_wide = false;
    double m_least = 0, m_greatest = 1;
};

void Run(benchmark::State& state, CBenchPane& pane, InkDetail detail)
{
    CPaneInk ink(1, detail);
    for (auto _ : state) {
        pane.Shake();
        benchmark::DoNotOptimize(ink.Update(pane.Pane, sPlotMap(pane.Pane, 1.0), 1.0).Right);
    }
}

void Bars(benchmark::State& state, int type, InkDetail detail)
{
    CBenchPane pane(static_cast<int>(state.range(0)));
    if (type == ChartBarsFromOrigin)
        pane.Fill(type, {&pane.High});
    else
        pane.Fill(type, {&pane.High, &pane.Low, &pane.Open, &pane.Close});
    pane.Pane.PaneArea().PaneAxes().Y().AxisOrigin().SetValue(1000);
    Run(state, pane, detail);
}

void Lines(benchmark::State& state, Shape shape)
{
    CBenchPane pane(static_cast<int>(state.range(0)));
    if (shape == Shape::BrokenLine)
        for (std::size_t i = 0; i < pane.Close.size(); i += 50)
            pane.Close[i] = std::nan("");
    pane.Fill(ChartLines, {&pane.Close});
    CSeriesStyle& style = pane.Pane.PaneGroups(1).SeriesStyles(1);
    if (shape == Shape::Marks) {
        style.LineLook().SetPattern(LineNone);
        style.SymbolLook().SetShape(SymbolMark);
        style.SymbolLook().SetSize(3);
    }
    Run(state, pane, InkDetail::Reduced);
}

void Yardstick(benchmark::State& state)
{
    const CBenchPane pane(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        double least = 1e300, greatest = -1e300;
        for (std::size_t i = 0; i < pane.High.size(); ++i) {
            greatest = std::max(greatest, pane.High[i]);
            least = std::min(least, pane.Low[i]);
        }
        benchmark::DoNotOptimize(least + greatest);
    }
}

#define POINTS Arg(1920)->Arg(245760)->Unit(benchmark::kMicrosecond)
BENCHMARK(Yardstick)->POINTS;
BENCHMARK_CAPTURE(Bars, Candles, ChartCandles, InkDetail::Reduced)->POINTS;
BENCHMARK_CAPTURE(Bars, SlowCandles, ChartCandles, InkDetail::PointByPoint)->POINTS;
BENCHMARK_CAPTURE(Bars, PriceBars, ChartHiLoOpenClose, InkDetail::Reduced)->POINTS;
BENCHMARK_CAPTURE(Bars, Histogram, ChartBarsFromOrigin, InkDetail::Reduced)->POINTS;
BENCHMARK_CAPTURE(Lines, Line, Shape::Line)->POINTS;
BENCHMARK_CAPTURE(Lines, BrokenLine, Shape::BrokenLine)->POINTS;
BENCHMARK_CAPTURE(Lines, Marks, Shape::Marks)->POINTS;

} // namespace

BENCHMARK_MAIN();
