// A visible window of 1400x900 with eleven panes of 1,920 daily bars (prices and all ten studies), on widgets
// without a display. Each time includes everything from the event to the flushed picture.
//
//   Resize       the client size changes by ten pixels each way: layout, whole draw of prices and studies, painting
//   DragStep     the mouse moves by one pixel while a border is dragged
//   DragDrop     a border is pressed, moved by ten pixels and released: layout, whole draw, painting
//   MarkerStep   the mouse moves from bar to bar: markers, titles and study headers
//   Yardstick    one picture of the window's size is cleared and copied
#include "control/ChartBody.h"
#include "feed/server/FeedServer.h"
#include "market/ZantroPorts.h"
#include "qt/widgets/ChartView.h"
#include "window/ChartDlg.h"
#include "window/ChartsResizer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <memory>

namespace {

using namespace zantroq;

constexpr int Width = 1400, Height = 900, Bars = 2000, Shown = 1920, ShownPlace = 7;

class CBenchWindow
{
public:
    CBenchWindow()
    {
        WriteRecording();
        feed::sFEED_OPTIONS options;
        options.Folders.emplace_back(m_folder.path().toStdString());
        m_feed = std::make_unique<feed::CFeedServer>(options);
        std::string error;
        if (!m_feed->Start(error)) {
            std::fprintf(stderr, "%s\n", error.c_str());
            std::exit(1);
        }
        const std::shared_ptr<ISettingsKey> key = MakeMemorySettingsKey();
        key->Write("RequestDataType", "2");
        key->Write("PTS INDEX", std::to_string(ShownPlace));
        key->Write("RequestDatapoints", "1000,1000,2000,1000,1000");
        key->Write("Number of displayed study charts", "10");
        for (int k = 0; k < 10; ++k) {
            key->Write("Type of study chart " + std::to_string(k), std::to_string(k));
            key->Write("Top of chart " + std::to_string(k + 1), std::to_string((k + 1) / 11.0));
        }
        key->Write("Top of chart 11", "1");
        sChartCtrlSetup setup;
        setup.ChartKey = key;
        setup.FeedKey = MakePortKey(m_feed->LookupPort(), m_feed->Level1Port());
        setup.Popups = false;
        Chart = CChartBody::MakeControl(nullptr, setup);
        CChartBody::Of(*Chart).SetClientSize({Width, Height});
        Chart->show();
        Chart->SetStockSymbol("WAVE");
        QElapsedTimer clock;
        clock.start();
        while (!Window().CompleteAndDrawn() && clock.elapsed() < 30'000)
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        if (Window().Range().shown != Shown || Window().ShownPanes() != PaneControls) {
            std::fprintf(stderr, "the chart did not come up: %d points in %d panes\n", Window().Range().shown,
                         Window().ShownPanes());
            std::exit(1);
        }
        Settle();
    }

    CChartDlg& Window() const { return CChartBody::Of(*Chart).Window(); }
    int Border() const { return Window().Layout().PaneRect(0).Height; }
    // Waits until everything requested is painted.
    static void Settle()
    {
        for (int turn = 0; turn < 3; ++turn) {
            QApplication::sendPostedEvents();
            QApplication::processEvents();
        }
    }

    std::unique_ptr<CChartCtrl> Chart;

private:
    void WriteRecording() const
    {
        std::ofstream file(m_folder.filePath("WAVE.daily.csv").toStdString());
        file << "date,open,high,low,close,volume,open_interest\n";
        for (int day = 0; day < Bars; ++day) {
            const double open = 100 + 0.01 * day + 8 * std::sin(day / 40.0);
            const double close = open + std::sin(day / 3.0);
            char row[120];
            std::snprintf(row, sizeof row, "%04d-%02d-%02d,%.2f,%.2f,%.2f,%.2f,%d,0\n", 2000 + day / 336,
                          1 + day / 28 % 12, 1 + day % 28, open, std::max(open, close) + 0.4,
                          std::min(open, close) - 0.4, close, 100'000 + day * 7919 % 90'000);
            file << row;
        }
    }

    QTemporaryDir m_folder;
    std::unique_ptr<feed::CFeedServer> m_feed;
};

std::unique_ptr<CBenchWindow> TheWindow;

void Resize(benchmark::State& state)
{
    CBenchWindow& bench = *TheWindow;
    int grown = 0;
    for (auto _ : state) {
        grown = 10 - grown;
        bench.Chart->resize(Width + grown, Height + grown);
        CBenchWindow::Settle();
    }
    bench.Chart->resize(Width, Height);
    CBenchWindow::Settle();
}

void DragStep(benchmark::State& state)
{
    CBenchWindow& bench = *TheWindow;
    const int border = bench.Border();
    CChartDlg& window = bench.Window();
    window.OnChartMouseMove(FirstPaneControl, MouseNone, 0, 300, border - 1);
    window.OnChartMouseDown(FirstPaneControl, MouseLeft, 0, 300, border - 1);
    int step = 0;
    for (auto _ : state) {
        step = (step + 1) % 20;
        window.OnChartMouseMove(FirstPaneControl, MouseLeft, 0, 300, border - 10 + step);
        CBenchWindow::Settle();
    }
    window.OnChartMouseUp(FirstPaneControl, MouseLeft, 0, 300, border);
    CBenchWindow::Settle();
}

void DragDrop(benchmark::State& state)
{
    CBenchWindow& bench = *TheWindow;
    CChartDlg& window = bench.Window();
    int way = 10;
    for (auto _ : state) {
        const int border = bench.Border();
        window.OnChartMouseMove(FirstPaneControl, MouseNone, 0, 300, border);
        window.OnChartMouseDown(FirstPaneControl, MouseLeft, 0, 300, border);
        window.OnChartMouseUp(FirstPaneControl, MouseLeft, 0, 300, border - way);
        CBenchWindow::Settle();
        way = -way;
    }
}

void MarkerStep(benchmark::State& state)
{
    CBenchWindow& bench = *TheWindow;
    int x = 100;
    for (auto _ : state) {
        x = x < 1300 ? x + 2 : 100;
        bench.Window().OnChartMouseMove(FirstPaneControl, MouseNone, 0, x, 20);
        CBenchWindow::Settle();
    }
}

void Yardstick(benchmark::State& state)
{
    QImage picture(Width, Height, QImage::Format_RGB32), copy(Width, Height, QImage::Format_RGB32);
    for (auto _ : state) {
        picture.fill(Qt::white);
        copy = picture.copy();
        benchmark::DoNotOptimize(copy.constBits());
    }
}

BENCHMARK(Resize)->Unit(benchmark::kMillisecond);
BENCHMARK(DragStep)->Unit(benchmark::kMillisecond);
BENCHMARK(DragDrop)->Unit(benchmark::kMillisecond);
BENCHMARK(MarkerStep)->Unit(benchmark::kMillisecond);
BENCHMARK(Yardstick)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    TheWindow = std::make_unique<CBenchWindow>();
    benchmark::RunSpecifiedBenchmarks();
    TheWindow.reset();
    return 0;
}
