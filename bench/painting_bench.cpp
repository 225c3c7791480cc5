// Painting panes into a cached picture: 1500x700 pane pixels, candles with axes, grid and labels.
//
//   WholePane/P/S      P points at scale factor S, after a change of the value axis: every point is examined and
//                      every pixel of ink is cleared and painted
//   FromNothing/P/S    the same with an empty cache: the whole picture is cleared as well
//   LastBar/P          the last bar changed: its four values are set, then the picture is updated
//   ElevenPanes/P      eleven panes of 1500x127 (1500x1400 together), each after a change of its value axis; the
//                      minima and maxima of blocks of a line's points are kept
//   Pick/P             the nearest point to a mouse that is far from every point, the worst case
//   SaveLoad/P         a pane file written to a text and read back
//   Yardstick/P        scanning four arrays, clearing the picture, one line per column
//   PlotWidget/P       the plot widget in Debian's packages with the same candles (only if it is installed)
#include "qt/paint/PanePainter.h"
#include "scene/PaneFile.h"

#include <QGuiApplication>
#include <QImage>

#include <benchmark/benchmark.h>

#ifdef ZANTROQ_PLOT_WIDGET
#include <QApplication>
#include <qcustomplot.h>
#endif

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace zantroq;

constexpr int Width = 1500, Height = 700;

struct sBars
{
    std::vector<double> High, Low, Open, Close;
    double Least = 1e300, Greatest = -1e300;
};

sBars Wander(int count)
{
    sBars bars;
    std::uint32_t state = 12345;
    const auto next = [&] {
        state = state * 1664525u + 1013904223u;
        return (state >> 8) / double(1 << 24) - 0.5;
    };
    double price = 100;
    for (int i = 0; i < count; ++i) {
        const double open = price, close = open + next();
        bars.Open.push_back(open);
        bars.Close.push_back(close);
        bars.High.push_back(std::max(open, close) + std::abs(next()) * 0.5);
        bars.Low.push_back(std::min(open, close) - std::abs(next()) * 0.5);
        bars.Greatest = std::max(bars.Greatest, bars.High.back());
        bars.Least = std::min(bars.Least, bars.Low.back());
        price = close;
    }
    return bars;
}

void SetRange(CChart2D& pane, double low, double high)
{
    for (CPaneAxis* axis : {&pane.PaneArea().PaneAxes().Y(), &pane.PaneArea().PaneAxes().Y2()}) {
        axis->ViewLow().SetValue(low);
        axis->ViewHigh().SetValue(high);
    }
}

std::unique_ptr<CChart2D> PricePane(int count, const sBars& bars, int height)
{
    auto pane = std::make_unique<CChart2D>();
    CPaneArea& area = pane->PaneArea();
    area.AreaBox().Width().SetValue(Width);
    area.AreaBox().Height().SetValue(height);
    area.PlotFrame().BottomMargin().SetValue(31);
    area.PaneAxes().Y2().SetShown(false);
    area.CandleLook().SetFilled(true);
    CPaneGroup& group = pane->PaneGroups(1);
    CPaneData& data = group.PaneData();
    data.SetSeriesCount(4);
    data.SetPointCount(1, count);
    data.SetYVector(1, bars.High);
    data.SetYVector(2, bars.Low);
    data.SetYVector(3, bars.Open);
    data.SetYVector(4, bars.Close);
    group.SetChartType(ChartCandles);
    const int room = static_cast<int>((Width - 81.0) / (count - 0.5));
    for (int series : {2, 3})
        group.SeriesStyles(series).LineLook().SetWidth(room);
    group.SeriesStyles(2).FillLook().SetColor(0x00ff00);
    group.SeriesStyles(3).FillLook().SetColor(0x0000ff);
    group.SeriesStyles(4).FillLook().SetColor(0xc0c0c0);
    group.SeriesStyles(4).LineLook().SetPattern(room < 3 ? LineNone : LineSolid);
    const double low = bars.Least, high = bars.Greatest, step = (high - low) / 5;
    SetRange(*pane, low, high);
    CPaneAxes& axes = area.PaneAxes();
    axes.X().ViewLow().SetValue(1);
    axes.X().ViewHigh().SetValue(count + 0.5);
    const int spacing = (count - 2) / 5 + 1;
    for (int at = spacing; at < count; at += spacing)
        axes.X().TickLabels().Add(at, "2014/01/02 09:30:" + std::to_string(at % 100));
    axes.X().AxisGrid().SetSpacing(spacing);
    axes.X().AxisGrid().LineLook().SetPattern(LineShortDashes);
    axes.Y().AxisGrid().LineLook().SetPattern(LineShortDashes);
    for (CPaneAxis* axis : {&axes.X(), &axes.Y()})
        axis->AxisGrid().LineLook().SetColor(0xc0c0c0);
    axes.X().TickMarkSpacing().SetValue(spacing);
    axes.Y().TickMarkSpacing().SetValue(step);
    axes.Y().AxisGrid().SetSpacing(step);
    for (int i = 0; i < 5; ++i)
        axes.Y().TickLabels().Add(low + i * step, std::to_string(low + i * step).substr(0, 7));
    CPaneLabel& title = pane->PaneLabels().Add();
    title.SetText("Minute Price: 101.25");
    title.SetAttachment(AttachToPaneTopLeft);
    title.SetShown(true);
    return pane;
}

// Alternates between two value ranges, so that nothing computed for one is useful for the other.
void Shake(CChart2D& pane, const sBars& bars, bool wide)
{
    const double range = bars.Greatest - bars.Least;
    SetRange(pane, bars.Least - (wide ? 0.02 : 0.0) * range, bars.Greatest);
}

void WholePane(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const sBars bars = Wander(count);
    const auto pane = PricePane(count, bars, Height);
    CPanePainter painter(*pane);
    bool wide = false;
    for (auto _ : state) {
        Shake(*pane, bars, wide = !wide);
        benchmark::DoNotOptimize(painter.Picture(static_cast<double>(state.range(1))).constBits());
    }
}

void FromNothing(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const sBars bars = Wander(count);
    const auto pane = PricePane(count, bars, Height);
    CPanePainter painter(*pane);
    bool wide = false;
    for (auto _ : state) {
        Shake(*pane, bars, wide = !wide);
        painter.Forget();
        benchmark::DoNotOptimize(painter.Picture(static_cast<double>(state.range(1))).constBits());
    }
}

void LastBar(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const sBars bars = Wander(count);
    const auto pane = PricePane(count, bars, Height);
    CPanePainter painter(*pane);
    painter.Picture(1.0);
    const double middle = (bars.Greatest + bars.Least) / 2;
    int turn = 0;
    CPaneData& data = pane->PaneGroups(1).PaneData();
    for (auto _ : state) {
        const double close = middle + (++turn % 7);
        data.SetPointY(1, count, close + 1);
        data.SetPointY(2, count, close - 1);
        data.SetPointY(4, count, close);
        benchmark::DoNotOptimize(painter.Picture(1.0).constBits());
    }
}

void ElevenPanes(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const sBars bars = Wander(count);
    std::vector<std::unique_ptr<CChart2D>> panes;
    std::vector<std::unique_ptr<CPanePainter>> painters;
    for (int i = 0; i < 11; ++i) {
        panes.push_back(PricePane(count, bars, 127));
        if (i % 3 == 1)
            panes.back()->PaneGroups(1).SetChartType(ChartLines);
        painters.push_back(std::make_unique<CPanePainter>(*panes.back()));
    }
    bool wide = false;
    for (auto _ : state) {
        wide = !wide;
        for (std::size_t i = 0; i < panes.size(); ++i) {
            Shake(*panes[i], bars, wide);
            benchmark::DoNotOptimize(painters[i]->Picture(1.0).constBits());
        }
    }
}

void Pick(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const sBars bars = Wander(count);
    const auto pane = PricePane(count, bars, Height);
    SetRange(*pane, bars.Least, bars.Greatest + 3 * (bars.Greatest - bars.Least));
    int series = 0, point = 0, distance = 0, x = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            pane->PaneGroups(1).PickPoint(400 + ++x % 700, 30, FocusAny, series, point, distance));
}

void SaveLoad(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const sBars bars = Wander(count);
    const auto pane = PricePane(count, bars, Height);
    CChart2D copy;
    for (auto _ : state)
        PaneFromText(PaneToText(*pane), copy);
}

void Yardstick(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const sBars bars = Wander(count);
    QImage picture(Width, Height, QImage::Format_RGB32);
    for (auto _ : state) {
        double greatest = -1e300, least = 1e300, sum = 0;
        for (int i = 0; i < count; ++i) {
            const auto at = static_cast<std::size_t>(i);
            greatest = std::max(greatest, bars.High[at]);
            least = std::min(least, bars.Low[at]);
            sum += bars.Open[at] < bars.Close[at] ? 1 : 0;
        }
        benchmark::DoNotOptimize(greatest + least + sum);
        picture.fill(Qt::white);
        auto* pixels = reinterpret_cast<QRgb*>(picture.bits());
        for (int x = 58; x < Width - 23; ++x)
            for (int y = 250; y < 450; ++y)
                pixels[y * Width + x] = 0xff00ff00;
    }
}

#ifdef ZANTROQ_PLOT_WIDGET
void PlotWidget(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const sBars bars = Wander(count);
    QCustomPlot plot;
    plot.resize(Width, Height);
    auto* candles = new QCPFinancial(plot.xAxis, plot.yAxis);
    candles->setChartStyle(QCPFinancial::csCandlestick);
    candles->setTwoColored(true);
    candles->setWidth(0.8);
    QVector<QCPFinancialData> data;
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        data.append(QCPFinancialData(i + 1, bars.Open[at], bars.High[at], bars.Low[at], bars.Close[at]));
    }
    candles->data()->set(data, true);
    plot.xAxis->setRange(1, count + 0.5);
    plot.yAxis->setRange(bars.Least, bars.Greatest);
    QImage picture(Width, Height, QImage::Format_RGB32);
    for (auto _ : state) {
        picture.fill(Qt::white);
        QCPPainter painter(&picture);
        plot.toPainter(&painter, Width, Height);
    }
}
BENCHMARK(PlotWidget)->Arg(120)->Arg(1920)->Arg(15360)->Arg(245760)->Unit(benchmark::kMillisecond);
#endif

BENCHMARK(Yardstick)->Arg(120)->Arg(1920)->Arg(15360)->Arg(245760)->Unit(benchmark::kMillisecond);
BENCHMARK(WholePane)->ArgsProduct({{120, 1920, 15360, 245760}, {1, 2}})->Unit(benchmark::kMillisecond);
BENCHMARK(FromNothing)->ArgsProduct({{120, 1920, 15360, 245760}, {1, 2}})->Unit(benchmark::kMillisecond);
BENCHMARK(LastBar)->Arg(1000)->Arg(245760)->Unit(benchmark::kMillisecond);
BENCHMARK(ElevenPanes)->Arg(120)->Arg(1920)->Arg(245760)->Unit(benchmark::kMillisecond);
BENCHMARK(Pick)->Arg(1920)->Arg(245760)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveLoad)->Arg(1920)->Arg(245760)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef ZANTROQ_PLOT_WIDGET
    QApplication application(argc, argv);
#else
    QGuiApplication application(argc, argv);
#endif
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
