// The cost of many controls. The feed runs in a separate process, so that its market does not count.
//
//   life [SPEED]  creates and destroys a control 1,000 times beside one that follows live trades, at SPEED (10)
//                 market seconds per second. After each hundred the remaining control requests its chart
//                 again, so that it has as many points as at the start; then the program prints the resident
//                 memory of the process and the part of its heap in use
//   paint         one frame of one control and of ten, all with live data: median of 30, in processor time
#include "control/ChartBody.h"
#include "feed/server/FeedServer.h"
#include "market/RequestTable.h"
#include "market/ZantroPorts.h"
#include "window/ChartDlg.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <optional>
#include <string>
#include <sys/prctl.h>
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

double HeapMegabytes()
{
    return static_cast<double>(mallinfo2().uordblks) / 1e6;
}

// Serves the simulated markets from a separate process until this process ends.
class CFeedProcess
{
public:
    explicit CFeedProcess(double speed)
    {
        int ends[2];
        if (pipe(ends) != 0 || (m_process = fork()) < 0) {
            std::perror("control_bench");
            std::exit(1);
        }
        if (m_process == 0)
            Serve(speed, ends[1]);
        close(ends[1]);
        if (read(ends[0], m_ports.data(), sizeof m_ports) != sizeof m_ports)
            std::exit(1); // the feed has said why
        close(ends[0]);
    }
    ~CFeedProcess() { kill(m_process, SIGKILL); }
    CFeedProcess(const CFeedProcess&) = delete;
    CFeedProcess& operator=(const CFeedProcess&) = delete;

    std::shared_ptr<ISettingsKey> Key() const { return MakePortKey(m_ports[0], m_ports[1]); }

private:
    [[noreturn]] static void Serve(double speed, int end)
    {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        feed::sFEED_OPTIONS options;
        options.SimulateAll = true;
        options.Speed = speed;
        feed::CFeedServer server(options);
        std::string error;
        if (!server.Start(error)) {
            std::fprintf(stderr, "%s\n", error.c_str());
            _exit(1);
        }
        const std::array<std::uint16_t, 2> ports{server.LookupPort(), server.Level1Port()};
        if (write(end, ports.data(), sizeof ports) != sizeof ports)
            _exit(1);
        for (;;)
            pause();
    }

    pid_t m_process = 0;
    std::array<std::uint16_t, 2> m_ports{};
};

class CControls
{
public:
    explicit CControls(const CFeedProcess& feed) : m_feedKey(feed.Key()) {}

    std::unique_ptr<CChartCtrl> Open(const QString& symbol)
    {
        sChartCtrlSetup setup;
        setup.ChartKey = m_key;
        setup.FeedKey = m_feedKey;
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
    std::shared_ptr<ISettingsKey> m_feedKey;
    std::shared_ptr<ISettingsKey> m_key = MakeMemorySettingsKey();
};

struct sMemory
{
    double Resident = ResidentMegabytes();
    double Heap = HeapMegabytes();
};

double Percent(double now, double before)
{
    return (now / before - 1) * 100;
}

void Live(CControls& controls)
{
    const auto stays = controls.Open("SIM.CALM");
    CControls::AwaitDrawn(*stays);
    std::optional<sMemory> first;
    for (int life = 1; life <= Lives; ++life) {
        {
            const auto passing = controls.Open("SIM.WILD");
            if (life % 2 == 0)
                CControls::AwaitDrawn(*passing); // the others are destroyed while they load
            QApplication::processEvents();
        }
        if (life % Hundred != 0)
            continue;
        const int grown = CChartBody::Of(*stays).Window().Range().knownCount;
        stays->SetStockSymbol("SIM.CALM");
        CControls::AwaitDrawn(*stays);
        const sMemory now;
        if (!first)
            first = now;
        std::printf(
            "%4d lives: %.1f MB resident (%+.2f %%), %.2f MB of the heap in use (%+.2f %%); the chart that "
            "stays has %d points again after %d; %d requests\n",
            life, now.Resident, Percent(now.Resident, first->Resident), now.Heap,
            Percent(now.Heap, first->Heap), CChartBody::Of(*stays).Window().Range().knownCount, grown,
            CountRequests());
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
    // In market seconds per second: with nearly 0 the market stands still.
    const CFeedProcess feed(argc > 2 ? std::atof(argv[2]) : 10); // before there are threads
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(argc, argv);
    CControls controls(feed);
    const char* const what = argc > 1 ? argv[1] : "";
    if (std::strcmp(what, "paint") != 0)
        Live(controls);
    if (std::strcmp(what, "life") != 0)
        Paint(controls);
}
