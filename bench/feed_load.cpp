// The response time of a zantroq-feed under the load of other clients.
//
//   quiet       100 one-minute bars of a simulated symbol, no other client connected
//   no lines    the same, beside 8 clients that each sent 50 requests whose filter admits no point
//   new symbols the same, beside 8 clients that each sent 3,000 requests for new simulated symbols
//   watches     the same, beside 8 clients that each watch 2,000 new simulated symbols
//   closed      the same, right after the 8 clients of "no lines" have disconnected
//   end         from SIGTERM to the end of the program, beside the clients of "no lines"
//
// Usage: feed_load PATH-OF-ZANTROQ-FEED [REQUESTS]     (default 200)
#include <asio.hpp>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <list>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using tcp = asio::ip::tcp;
using TClock = std::chrono::steady_clock;

double MillisecondsSince(TClock::time_point start)
{
    return std::chrono::duration<double, std::milli>(TClock::now() - start).count();
}

// A run of the program on free ports.
class CFeedProgram
{
public:
    explicit CFeedProgram(const char* path)
    {
        int ends[2];
        if (pipe(ends) != 0)
            std::exit(1);
        m_pid = fork();
        if (m_pid == 0) {
            dup2(ends[1], 1);
            std::freopen("/dev/null", "w", stderr);
            execl(path, path, "--lookup-port", "0", "--level1-port", "0", nullptr);
            std::_Exit(127);
        }
        close(ends[1]);
        std::FILE* const output = fdopen(ends[0], "r");
        if (std::fscanf(output, "listening on 127.0.0.1:%d and 127.0.0.1:%d", &LookupPort, &Level1Port) !=
            2) {
            std::fprintf(stderr, "%s: did not start\n", path);
            std::exit(1);
        }
    }
    double MillisecondsToEnd()
    {
        const auto start = TClock::now();
        kill(m_pid, SIGTERM);
        waitpid(m_pid, nullptr, 0);
        return MillisecondsSince(start);
    }
    int LookupPort = 0, Level1Port = 0;

private:
    pid_t m_pid = 0;
};

asio::io_context Context;

class CClient
{
public:
    explicit CClient(int port)
    {
        m_socket.connect({asio::ip::address_v4::loopback(), static_cast<std::uint16_t>(port)});
        m_socket.set_option(tcp::no_delay(true));
    }
    void Send(const std::string& text) { asio::write(m_socket, asio::buffer(text)); }
    double MillisecondsOf(const std::string& request)
    {
        const auto start = TClock::now();
        Send(request);
        std::string reply;
        asio::read_until(m_socket, asio::dynamic_buffer(reply), "!ENDMSG!,\r\n");
        return MillisecondsSince(start);
    }
    // Reads everything, so that this client never delays the feed.
    void Drain()
    {
        m_reader = std::thread([this] {
            std::vector<char> bytes(1 << 16);
            std::error_code error;
            while (!error)
                m_socket.read_some(asio::buffer(bytes), error);
        });
    }
    void Close()
    {
        std::error_code ignored;
        m_socket.shutdown(tcp::socket::shutdown_receive, ignored);
        if (m_reader.joinable())
            m_reader.join();
        m_socket.close(ignored);
    }
    ~CClient() { Close(); }

private:
    tcp::socket m_socket{Context};
    std::thread m_reader;
};

std::string Lines(int client, int count, const std::string& before, const std::string& after)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += before + std::to_string(client * count + i) + after + "\n";
    return text;
}

void Report(const char* name, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    std::printf("%-12s %4zu requests: median %7.2f ms, greatest %7.2f ms\n", name, times.size(),
                times[times.size() / 2], times.back());
    std::fflush(stdout);
}

std::vector<double> Ask(int port, int requests)
{
    CClient client(port);
    std::vector<double> times;
    for (int i = 0; i < requests; ++i) {
        times.push_back(
            client.MillisecondsOf("S,SET PROTOCOL,5.0\nHIX,SIM.CALM,60,100,1,3" + std::to_string(i) + "\n"));
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return times;
}

enum class Load
{
    NoLines,
    NewSymbols,
    Watches
};

void Attack(std::list<CClient>& clients, const CFeedProgram& feed, Load load)
{
    for (int i = 0; i < 8; ++i) {
        CClient& client = clients.emplace_back(load == Load::Watches ? feed.Level1Port : feed.LookupPort);
        client.Drain();
        if (load == Load::NoLines)
            client.Send(Lines(i, 50, "HID,SIM.BIG,7,9999999,,030000,030001,1,Z", ""));
        else if (load == Load::NewSymbols)
            client.Send(Lines(i, 3000, "HTX,SIM.K", ",1,1,q"));
        else
            client.Send(Lines(i, 2000, "wSIM.L", ""));
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: feed_load PATH-OF-ZANTROQ-FEED [REQUESTS]\n");
        return 2;
    }
    const int requests = argc > 2 ? std::max(1, std::atoi(argv[2])) : 200;
    {
        CFeedProgram feed(argv[1]);
        Report("quiet", Ask(feed.LookupPort, requests));
        feed.MillisecondsToEnd();
    }
    const struct
    {
        const char* Name;
        Load Kind;
    } loads[] = {{"no lines", Load::NoLines}, {"new symbols", Load::NewSymbols}, {"watches", Load::Watches}};
    for (const auto& load : loads) {
        CFeedProgram feed(argv[1]);
        std::list<CClient> clients;
        Attack(clients, feed, load.Kind);
        Report(load.Name, Ask(feed.LookupPort, requests));
        feed.MillisecondsToEnd();
    }
    {
        CFeedProgram feed(argv[1]);
        std::list<CClient> clients;
        Attack(clients, feed, Load::NoLines);
        clients.clear();
        Report("closed", Ask(feed.LookupPort, requests));
        feed.MillisecondsToEnd();
    }
    CFeedProgram feed(argv[1]);
    std::list<CClient> clients;
    Attack(clients, feed, Load::NoLines);
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    std::printf("%-12s %.0f ms\n", "end", feed.MillisecondsToEnd());
    return 0;
}
