// Drawing trendlines with the mouse over candles, in a pane of 1500x700 pixels.
//
//   Move/K/P        one mouse move while a line of kind K is drawn with P points displayed: the line is computed
//                   and the picture updated. The pointer moves over the whole plot. K: 0 horizontal, 1 sloping,
//                   2 parallel (its second line), 3 pitchfork (its third point), 4 fan, 5 retracements, 6 speed
//   Compute/K/P     the same without painting
//   DeleteClick/P   finding the line of a click with one line of each kind in the pane, none of them near
//   Yardstick/P     one array of P numbers written, and the picture cleared
#include "qt/paint/PanePainter.h"
#include "trends/TrendInteraction.h"
#include "trends/TrendWindow.h"

#include <QGuiApplication>
#include <QImage>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using namespace zantroq;

constexpr int Width = 1500, Height = 700;
constexpr int Commands[]{DrawHorizontal, DrawSloping,      DrawParallel,       DrawPitchfork,
                         DrawFan,        DrawRetracements, DrawSpeedResistance};

struct sSilentStatus : IStatusBar
{
    void SetPart(int, const std::string&) override {}
};
struct sSilentBox : IMessageBox
{
    BoxAnswer Ask(const std::string&, const std::string&, BoxButtons, BoxIcon) override
    {
        return BoxAnswer::No;
    }
};
struct sSilentTimer : IWindowTimer
{
    void Start(int, int) override {}
    void Stop(int) override {}
};

// A pane with candles and three averages, and the mouse state machine.
struct sTrendPane
{
    explicit sTrendPane(int points)
    {
        prices.count = points + 1000;
        window.Show(1000, points, 50, 150);
        CPaneArea& area = window.pane.PaneArea();
        area.AreaBox().Width().SetValue(Width);
        area.AreaBox().Height().SetValue(Height);
        area.PaneAxes().X().ViewHigh().SetValue(points + 0.5);
        CPaneGroup& bars = window.pane.PaneGroups(1);
        bars.SetChartType(ChartCandles);
        area.CandleLook().SetFilled(true);
        bars.SeriesStyles(2).FillLook().SetColor(0x3c8c1e);
        bars.SeriesStyles(3).FillLook().SetColor(0x2828d2);
        const std::span<double> high = bars.PaneData().YForOverwrite(1),
                                low = bars.PaneData().YForOverwrite(2),
                                open = bars.PaneData().YForOverwrite(3),
                                close = bars.PaneData().YForOverwrite(4);
        std::uint32_t state = 12345;
        const auto next = [&] {
            state = state * 1664525u + 1013904223u;
            return (state >> 8) / double(1 << 24) - 0.5;
        };
        double price = 100;
        for (std::size_t i = 0; i < high.size(); ++i) {
            open[i] = price;
            price += next() + (100 - price) * 0.001;
            close[i] = price;
            high[i] = std::max(open[i], close[i]) + 0.2;
            low[i] = std::min(open[i], close[i]) - 0.2;
        }
        CPaneGroup& curves = window.pane.PaneGroups(2);
        for (int series = 1; series <= 3; ++series) {
            const std::span<double> y = curves.PaneData().YForOverwrite(series);
            std::copy(close.begin(), close.end(), y.begin());
        }
        bars.CommitPaneData();
        curves.CommitPaneData();
    }

    void Click(int x, int y) { machine.OnMouseDown(341, 1, x, y); }
    // Starts a line up to the last part that follows the mouse.
    void Begin(int kind)
    {
        machine.OnCommand(Commands[kind]);
        Click(Width / 2, Height / 2);
        if (kind == TrendParallel || kind == TrendPitchfork) {
            machine.OnMouseMove(Width - 200, Height / 3);
            Click(Width - 200, Height / 3);
        }
    }
    void Finish(int kind)
    {
        machine.OnMouseMove(kind == TrendPitchfork ? Width / 3 : Width - 300, Height / 2 + 40);
        Click(0, 0);
    }
    void Move()
    {
        // Moves over the plot in steps that reach every part; a third point stays left of the middle.
        m_x = (m_x + 37) % (Width - 200);
        m_y = (m_y + 23) % (Height - 100);
        machine.OnMouseMove(100 + m_x * (machine.State() == PitchforkThird ? 5 : 10) / 10, 40 + m_y);
    }

    test::CTrendWindow window;
    test::CVectorPrices prices;
    sSilentStatus status;
    sSilentBox box;
    sSilentTimer timer;
    CTrendLists lists{window};
    CTrendInteraction machine{window, prices, lists, status, box, timer};

private:
    int m_x = 0, m_y = 0;
};

void Move(benchmark::State& state)
{
    sTrendPane pane(static_cast<int>(state.range(1)));
    CPanePainter painter(pane.window.pane);
    pane.Begin(static_cast<int>(state.range(0)));
    painter.Picture(1);
    for (auto _ : state) {
        pane.Move();
        benchmark::DoNotOptimize(painter.Picture(1).constBits());
    }
}

void Compute(benchmark::State& state)
{
    sTrendPane pane(static_cast<int>(state.range(1)));
    pane.Begin(static_cast<int>(state.range(0)));
    for (auto _ : state)
        pane.Move();
}

void DeleteClick(benchmark::State& state)
{
    sTrendPane pane(static_cast<int>(state.range(0)));
    for (int kind = 0; kind < TrendKinds; ++kind) {
        pane.Begin(kind);
        pane.Finish(kind);
    }
    for (auto _ : state) {
        int distance = 0;
        benchmark::DoNotOptimize(pane.lists.FindNearest(70, 30, &distance));
    }
}

void Yardstick(benchmark::State& state)
{
    std::vector<double> values(static_cast<std::size_t>(state.range(0)));
    QImage picture(Width, Height, QImage::Format_RGB32);
    double start = 0;
    for (auto _ : state) {
        start += 1;
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = start + 0.25 * static_cast<double>(i);
        picture.fill(0xff000000u + static_cast<unsigned>(start));
        benchmark::DoNotOptimize(values.data());
        benchmark::DoNotOptimize(picture.constBits());
    }
}

BENCHMARK(Move)->ArgsProduct({{0, 1, 2, 3, 4, 5, 6}, {120, 245760}})->Unit(benchmark::kMillisecond);
BENCHMARK(Compute)->ArgsProduct({{0, 1, 2, 3, 4, 5, 6}, {245760}})->Unit(benchmark::kMillisecond);
BENCHMARK(DeleteClick)->Arg(245760)->Unit(benchmark::kMillisecond);
BENCHMARK(Yardstick)->Arg(245760)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
