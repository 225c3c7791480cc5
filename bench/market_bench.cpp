// Market engine benchmarks. Each prints lines per second ("items_per_second"); the yardsticks run in the same
// call.
//
//   YardstickFastFloat     the tick text in memory: a plain loop with fast_float into reserved vectors
//   YardstickWarm          the same into vectors whose memory has been used before, which no chart has
//   TicksFromMemory        the same text through line cutter, parser, range check and append into a series
//   TicksFromMemoryBounded the same with date and time bounds set, all points inside
//   YardstickSocket        the text over a loopback socket, only receiving and finding line ends
//   YardstickSocketKept    the same, and 60 bytes per line, as many as a tick takes, written to fresh memory
//   TicksOverSocket        the text from a loopback feed to Complete, first byte to flag, while another thread
//                          polls every 1 ms; counters give the bytes per tick that the series added and the
//                          resident memory of the process in MB
//   LiveTick               one level 1 trade merged into a tick series
#include "market/HistoryReply.h"
#include "market/Level1Stream.h"
#include "market/LineCutter.h"
#include "market/ManagerThreadHolder.h"
#include "platform/MemoryBlock.h"

#include <algorithm>
#include <arpa/inet.h>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fast_float/fast_float.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

using namespace zantroq;

namespace {

constexpr int Lines = 2000000;

// 72 bytes per line, CR LF included, with the identifier of the given request.
std::string TickText(const std::string& identifier)
{
    std::string text;
    text.reserve(Lines * 80ull);
    char line[128];
    for (int i = 0; i < Lines; ++i) {
        const int second = 9 * 3600 + i / 90;
        const int cents = 10000 + (i * 7) % 900;
        std::snprintf(line, sizeof line,
                      "%s,2014-01-02 %02d:%02d:%02d.%03d,%d.%02d,%d,%d,%d.%02d,%d.%02d,%d,C\r\n",
                      identifier.c_str(), second / 3600, second / 60 % 60, second % 60, i % 1000, cents / 100,
                      cents % 100, 1 + i % 900, 100000 + i * 3, (cents - 1) / 100, (cents - 1) % 100,
                      (cents + 1) / 100, (cents + 1) % 100, i);
        text += line;
    }
    return text;
}

long ResidentBytes()
{
    long pages = 0, resident = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld %ld", &pages, &resident) != 2)
            resident = 0;
        std::fclose(file);
    }
    return resident * ::sysconf(_SC_PAGESIZE);
}

struct sChart
{
    sChart()
    {
        Request->SetSymbol("SYM");
        Request->SetRequestKind(TicksByDatapoints);
        Request->SetDataDirection("1");
        Identifier = "0" + std::to_string(Request->Handle());
    }
    std::unique_ptr<CChartHistRequest> Request = std::make_unique<CChartHistRequest>();
    std::string Identifier;
};

struct sColumns
{
    sColumns()
    {
        for (std::vector<double>* column : {&Time, &Last, &Bid, &Ask})
            column->reserve(Lines);
        Size.reserve(Lines);
        Id.reserve(Lines);
        Volume.reserve(Lines);
        Basis.reserve(Lines);
    }
    void Clear()
    {
        for (std::vector<double>* column : {&Time, &Last, &Bid, &Ask})
            column->clear();
        Size.clear();
        Id.clear();
        Volume.clear();
        Basis.clear();
    }
    std::vector<double> Time, Last, Bid, Ask;
    std::vector<int> Size, Id;
    std::vector<std::int64_t> Volume;
    std::vector<char> Basis;
};

// A loop as one would write it by hand: finds commas one by one, reads numbers with fast_float, checks
// nothing.
void PlainLoop(const std::string& text, sColumns& columns)
{
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at < end) {
        const char* const lineEnd =
            static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        const char* field[10];
        int count = 0;
        field[count++] = at;
        for (const char* c = at; c < lineEnd && count < 9; ++c)
            if (*c == ',')
                field[count++] = c + 1;
        const auto pair = [](const char* c) { return (c[0] - '0') * 10 + (c[1] - '0'); };
        const char* const t = field[1];
        columns.Time.push_back(pair(t + 11) * 3600 + pair(t + 14) * 60 + pair(t + 17));
        const auto number = [&](int i) {
            double value = 0;
            fast_float::from_chars(field[i], field[i + 1] - 1, value);
            return value;
        };
        const auto integer = [&](int i) {
            std::int64_t value = 0;
            for (const char* c = field[i]; *c != ','; ++c)
                value = value * 10 + (*c - '0');
            return value;
        };
        columns.Last.push_back(number(2));
        columns.Size.push_back(static_cast<int>(integer(3)));
        columns.Volume.push_back(integer(4));
        columns.Bid.push_back(number(5));
        columns.Ask.push_back(number(6));
        columns.Id.push_back(static_cast<int>(integer(7)));
        columns.Basis.push_back(*field[8]);
        at = lineEnd + 1;
    }
}

void Cut(const std::string& text, CHistoryReply& reply)
{
    CLineCutter cutter(CLineCutter::LookupCapacity);
    for (std::size_t at = 0; at < text.size();) {
        const auto room = cutter.Room();
        const std::size_t size = std::min(room.size(), text.size() - at);
        std::memcpy(room.data(), text.data() + at, size);
        at += size;
        cutter.Received(static_cast<int>(size), [&](std::string_view line) { reply.OnLineOfMany(line); });
    }
    reply.EndOfLines();
}

void ReportLines(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * Lines);
}

void YardstickFastFloat(benchmark::State& state)
{
    const std::string text = TickText("0123456");
    for (auto _ : state) {
        // As for the series below, allocating fresh memory counts and freeing it does not.
        sColumns columns;
        PlainLoop(text, columns);
        benchmark::DoNotOptimize(columns.Last.data());
        state.PauseTiming();
        columns = sColumns();
        state.ResumeTiming();
    }
    ReportLines(state);
}

void YardstickWarm(benchmark::State& state)
{
    const std::string text = TickText("0123456");
    sColumns columns;
    PlainLoop(text, columns);
    for (auto _ : state) {
        columns.Clear();
        PlainLoop(text, columns);
        benchmark::DoNotOptimize(columns.Last.data());
    }
    ReportLines(state);
}

void FromMemory(benchmark::State& state, bool bounded)
{
    sChart chart;
    if (bounded) {
        chart.Request->SetBeginDate("20140101");
        chart.Request->SetEndDate("20140103");
        chart.Request->SetBeginTime("000000");
        chart.Request->SetEndFilterTime("235959");
    }
    BeginReply(*chart.Request);
    CHistoryReply reply(nullptr);
    const std::string text = TickText(chart.Identifier);
    for (auto _ : state) {
        Cut(text, reply);
        if (chart.Request->GetCount(FieldTime) != Lines)
            state.SkipWithError("points are missing");
        state.PauseTiming();
        chart.Request->ClearSeries();
        state.ResumeTiming();
    }
    ReportLines(state);
}

void TicksFromMemory(benchmark::State& state)
{
    FromMemory(state, false);
}

void TicksFromMemoryBounded(benchmark::State& state)
{
    FromMemory(state, true);
}

// A listening loopback socket on a free port.
struct sListener
{
    sListener()
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        if (::bind(Handle, reinterpret_cast<sockaddr*>(&address), size) != 0 || ::listen(Handle, 4) != 0)
            std::abort();
        ::getsockname(Handle, reinterpret_cast<sockaddr*>(&address), &size);
        Port = ntohs(address.sin_port);
    }
    ~sListener() { ::close(Handle); }
    int Handle = ::socket(AF_INET, SOCK_STREAM, 0);
    std::uint16_t Port = 0;
};

void SendAll(int connection, const std::string& text)
{
    for (std::size_t at = 0; at < text.size();) {
        const auto sent = ::send(connection, text.data() + at,
                                 std::min<std::size_t>(text.size() - at, 1 << 18), MSG_NOSIGNAL);
        if (sent <= 0)
            return;
        at += static_cast<std::size_t>(sent);
    }
}

using Clock = std::chrono::steady_clock;

double Seconds(Clock::time_point from)
{
    return std::chrono::duration<double>(Clock::now() - from).count();
}

// Receives the text, finds line ends, and calls onLine(number of the line) for each.
template<class F> void ReceiveLines(benchmark::State& state, F makeOnLine)
{
    for (auto _ : state) {
        const std::string text = TickText("0123456"); // new, as below: this decides which memory is fresh
        sListener listener;
        std::thread feed([&] {
            const int connection = ::accept(listener.Handle, nullptr, nullptr);
            SendAll(connection, text);
            ::close(connection);
        });
        const int client = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(listener.Port);
        if (::connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
            state.SkipWithError("no connection");
        std::vector<char> buffer(65536);
        auto onLine = makeOnLine();
        std::size_t lines = 0;
        Clock::time_point first{};
        for (;;) {
            const auto count = ::recv(client, buffer.data(), buffer.size(), 0);
            if (first == Clock::time_point{})
                first = Clock::now();
            if (count <= 0)
                break;
            const char* at = buffer.data();
            const char* const end = at + count;
            while ((at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)))))
                onLine(lines++), ++at;
        }
        state.SetIterationTime(Seconds(first));
        ::close(client);
        feed.join();
        if (lines != Lines)
            state.SkipWithError("lines are missing");
    }
    ReportLines(state);
}

void YardstickSocket(benchmark::State& state)
{
    ReceiveLines(state, [] { return [](std::size_t) {}; });
}

struct sFreshMemory
{
    sFreshMemory() = default;
    sFreshMemory(const sFreshMemory&) = delete;
    sFreshMemory& operator=(const sFreshMemory&) = delete;
    ~sFreshMemory() { FreeBlock(Block); }
    void operator()(std::size_t line)
    {
        constexpr std::size_t bytesALine = 60, step = 10000;
        if (line % step == 0)
            GrowBlock(Block, (line + step) * bytesALine);
        std::memset(static_cast<char*>(Block.Data) + line * bytesALine, static_cast<int>(line), bytesALine);
    }
    sMemoryBlock Block;
};

void YardstickSocketKept(benchmark::State& state)
{
    ReceiveLines(state, [] { return sFreshMemory(); });
}

void TicksOverSocket(benchmark::State& state)
{
    double bytesATick = 0, processMegabytes = 0;
    for (auto _ : state) {
        sListener lookup, level1;
        sChart chart;
        std::string text = TickText(chart.Identifier) + chart.Identifier + ",!ENDMSG!,\r\n";
        CManagerThreadHolder holder;
        holder.StartManagerThread(MakePortKey(lookup.Port, level1.Port));
        const int connection = ::accept(lookup.Handle, nullptr, nullptr);
        const long before = ResidentBytes();
        holder.SendHistoryRequest(*chart.Request);
        std::thread feed([&] { SendAll(connection, text); });
        // The window's side: reads the count like its timer, but far more often.
        while (chart.Request->GetCount(FieldTime) == 0)
            std::this_thread::yield();
        const Clock::time_point first = Clock::now();
        while (!chart.Request->IsComplete()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            benchmark::DoNotOptimize(chart.Request->GetCount(FieldTime));
        }
        state.SetIterationTime(Seconds(first));
        feed.join();
        bytesATick = static_cast<double>(ResidentBytes() - before) / Lines;
        processMegabytes = static_cast<double>(ResidentBytes() - static_cast<long>(text.size())) / 1e6;
        if (chart.Request->GetCount(FieldTime) != Lines)
            state.SkipWithError("points are missing");
        holder.StopManagerThread();
        ::close(connection);
    }
    state.counters["bytes_per_tick"] = bytesATick;
    state.counters["process_MB"] = processMegabytes;
    ReportLines(state);
}

void LiveTick(benchmark::State& state)
{
    sChart chart;
    BeginReply(*chart.Request);
    EndReply(*chart.Request);
    CWatchTable watches;
    watches.Add("SYM", EnterRequest(*chart.Request));
    CLevel1Stream stream(watches, [](std::string_view) {});
    const std::string line =
        "Q,SYM,5000,100,102,99,101.2,101.3,3,4,09:30:01.250,0,100,101,01/02/2014,101.25,14,77,5,5,5,C,01";
    int points = 0;
    for (auto _ : state) {
        stream.OnLine(line);
        if (++points % 100000 == 0)
            chart.Request->ClearSeries();
    }
    state.SetItemsProcessed(state.iterations());
}

} // namespace

BENCHMARK(YardstickFastFloat)->Unit(benchmark::kMillisecond);
BENCHMARK(YardstickWarm)->Unit(benchmark::kMillisecond);
BENCHMARK(TicksFromMemory)->Unit(benchmark::kMillisecond);
BENCHMARK(TicksFromMemoryBounded)->Unit(benchmark::kMillisecond);
BENCHMARK(YardstickSocket)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(YardstickSocketKept)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(TicksOverSocket)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(LiveTick);

BENCHMARK_MAIN();
