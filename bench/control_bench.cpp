// The cost of many controls.
//
//   life [SPEED]  creates and destroys a control 1,000 times beside one that follows live trades, at SPEED (10)
//                 market seconds per second; prints the memory of the process after each hundred
//   paint         one frame of one control and of ten, all with live data: median of 30, in processor time
#include "control/ChartBody.h"
#include "feed/server/FeedServer.h"
#include "market/ZantroPorts.h"
#include "window/ChartDlg.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fstream>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace zantroq;

constexpr int Lives = 1000, Hundred = 100, Frames = 30, Many = 10;

double ResidentMegabytes()
{
    std::ifstream file("/proc/self/statm");
    long total = 0, resident = 0;
    file >> total >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

class CControls
{
public:
    explicit CControls(double speed)
    {
        feed::sFEED_OPTIONS options;
        options.SimulateAll = true;
        options.Speed = speed;
        m_feed = std::make_unique<feed::CFeedServer>(options);
        std::string error;
        if (!m_feed->Start(error)) {
            std::fprintf(stderr, "%s\n", error.c_str());
            std::exit(1);
        }
    }

    std::unique_ptr<CChartCtrl> Open(const QString& symbol)
    {
        sChartCtrlSetup setup;
        setup.ChartKey = m_key;
        setup.FeedKey = MakePortKey(m_feed->LookupPort(), m_feed->Level1Port());
        setup.Popups = false;
        auto control = CChartBody::MakeControl(nullptr, setup);
        CChartBody::Of(*control).SetClientSize({700, 500});
        control->show();
        control->SetStockSymbol(symbol);
        return control;
    }
    static void AwaitDrawn(CChartCtrl& control)
    {
        QElapsedTimer clock;
        clock.start();
        while (!CChartBody::Of(control).Window().CompleteAndDrawn() && clock.elapsed() < 60'000)
            QApplication::processEvents(QEventLoop::AllEvents, 20);
    }

private:
    std::unique_ptr<feed::CFeedServer> m_feed;
    std::shared_ptr<ISettingsKey> m_key = MakeMemorySettingsKey();
};

void Live(CControls& controls)
{
    const auto stays = controls.Open("SIM.CALM");
    CControls::AwaitDrawn(*stays);
    double afterHundred = 0;
    for (int life = 1; life <= Lives; ++life) {
        const auto passing = controls.Open("SIM.WILD");
        if (life % 2 == 0)
            CControls::AwaitDrawn(*passing); // the others are destroyed while they load
        QApplication::processEvents();
        if (life % Hundred != 0)
            continue;
        const double now = ResidentMegabytes();
        if (life == Hundred)
            afterHundred = now;
        std::printf("%4d lives: %.1f MB, %+.2f %% of the first hundred\n", life, now,
                    (now / afterHundred - 1) * 100);
        std::fflush(stdout);
    }
}

// Processor time of this thread only, without the worker, the feed and other programs.
double ProcessorMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double FrameMilliseconds(const std::vector<std::unique_ptr<CChartCtrl>>& controls)
{
    std::vector<double> times;
    for (int frame = 0; frame < Frames; ++frame) {
        const double from = ProcessorMilliseconds();
        for (const auto& control : controls)
            control->grab();
        times.push_back(ProcessorMilliseconds() - from);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void Paint(CControls& controls)
{
    std::vector<std::unique_ptr<CChartCtrl>> open;
    open.push_back(controls.Open("SIM.CALM"));
    CControls::AwaitDrawn(*open.front());
    const double one = FrameMilliseconds(open);
    for (int k = 1; k < Many; ++k) {
        open.push_back(controls.Open("SIM.CALM"));
        CControls::AwaitDrawn(*open.back());
    }
    const double ten = FrameMilliseconds(open);
    std::printf("one control: %.2f ms a frame; ten: %.2f ms, %.2f times ten of one\n", one, ten,
                ten / (one * Many));
}

} // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(argc, argv);
    // In market seconds per second: with nearly 0, neither the remaining chart nor the market grows.
    CControls controls(argc > 2 ? std::atof(argv[2]) : 10);
    const char* const what = argc > 1 ? argv[1] : "";
    if (std::strcmp(what, "paint") != 0)
        Live(controls);
    if (std::strcmp(what, "life") != 0)
        Paint(controls);
}
