// The local feed: serves recorded and simulated markets on two TCP ports of the loopback address to any number
// of clients, on its own thread. The program zantroq-feed runs one; a chart host can run one in its process.
#pragma once

#include "feed/protocol/Level1Session.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zantroq::feed {

struct sFEED_OPTIONS
{
    std::uint16_t LookupPort = 0; // 0: any free port
    std::uint16_t Level1Port = 0;
    // Folders with recordings. A later folder overrides an earlier one for the same symbol and kind. The
    // shipped recordings are the first folder unless ServeShipped is false.
    std::vector<std::filesystem::path> Folders;
    bool ServeShipped = true;
    bool SimulateAll = false;
    bool ReplayTicks = false;
    double Speed = 1; // above 0
    std::uint64_t Seed = 1;
    // The feed disconnects a client that sends no line within this time after it connected. If descriptors
    // run short it disconnects such clients earlier, the oldest first.
    std::chrono::milliseconds SilentLimit = std::chrono::seconds(60);
    // Receives whole sentences for the user: bad rows, simulated data being served. Called within Start, then
    // on the feed thread.
    std::function<void(const std::string&)> OnNotice;
};

// One thread at a time.
class CFeedServer
{
public:
    explicit CFeedServer(sFEED_OPTIONS options);
    ~CFeedServer();
    CFeedServer(const CFeedServer&) = delete;
    CFeedServer& operator=(const CFeedServer&) = delete;

    // Reads the recordings, opens both ports and starts the thread. Returns false and sets `error` to one
    // sentence if a port cannot be opened; may be called again then.
    bool Start(std::string& error);
    // Closes the ports and all connections and joins the thread. Does nothing if the feed is not running.
    void Stop();

    // The open ports, 0 if the feed is not running.
    std::uint16_t LookupPort() const;
    std::uint16_t Level1Port() const;

private:
    class CRunning;
    const sFEED_OPTIONS m_options;
    std::unique_ptr<CRunning> m_running;
};

// Returns the folder of the shipped recordings: $ZANTROQ_DATA if set, else share/zantroq-chart/data beside the
// folder of the running program if that exists, else the data folder of the source tree of the build. Any
// thread that does not change the environment.
std::filesystem::path ShippedDataFolder();

} // namespace zantroq::feed
