// The local feed: serves recorded and simulated markets on two TCP ports of the loopback address, from a
// thread of its own, to any number of clients at once. The program zantroq-feed is one of these; a chart host
// can hold one inside its process.
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
    std::uint16_t LookupPort = 0; // 0 takes a free one
    std::uint16_t Level1Port = 0;
    // Folders with recordings, later ones before earlier ones where both have the same symbol and kind. The
    // shipped recordings are the first folder unless ServeShipped is false.
    std::vector<std::filesystem::path> Folders;
    bool ServeShipped = true;
    bool SimulateAll = false;
    bool ReplayTicks = false;
    double Speed = 1; // above 0
    std::uint64_t Seed = 1;
    // A client that has sent no line for so long after it connected is closed; earlier, the oldest first,
    // when descriptors run short.
    std::chrono::milliseconds SilentLimit = std::chrono::seconds(60);
    // Whole sentences for the user: bad rows, simulated data being served. Called inside Start and then on
    // the feed's thread.
    std::function<void(const std::string&)> OnNotice;
};

// Used from one thread, which may be any.
class CFeedServer
{
public:
    explicit CFeedServer(sFEED_OPTIONS options);
    ~CFeedServer();
    CFeedServer(const CFeedServer&) = delete;
    CFeedServer& operator=(const CFeedServer&) = delete;

    // Reads the recordings, opens both ports and begins to serve. False and one sentence when a port cannot
    // be had; may then be called again.
    bool Start(std::string& error);
    // Closes the ports and all connections and ends the thread. Nothing happens when not running.
    void Stop();

    // The ports in use, 0 when not running.
    std::uint16_t LookupPort() const;
    std::uint16_t Level1Port() const;

private:
    class CRunning;
    const sFEED_OPTIONS m_options;
    std::unique_ptr<CRunning> m_running;
};

// Where the recordings that come with the program lie: $ZANTROQ_DATA if set, else share/zantroq-chart/data
// beside the folder of the running program if that exists, else the data folder of the source tree that it
// was built from.
std::filesystem::path ShippedDataFolder();

} // namespace zantroq::feed
