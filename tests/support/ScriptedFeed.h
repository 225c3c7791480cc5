// A feed for tests: two loopback ports on free numbers that record what clients send and send back what a
// test tells them. A port serves its newest connection; everything a test asks of it may be asked on any
// thread.
#pragma once

#include "market/ZantroPorts.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace zantroq::test {

class CScriptedPort
{
public:
    // Called with each line that comes, without its end, on the port's own thread; what it returns is sent
    // back.
    using Responder = std::function<std::string(std::string_view line)>;

    CScriptedPort();
    ~CScriptedPort();
    CScriptedPort(const CScriptedPort&) = delete;
    CScriptedPort& operator=(const CScriptedPort&) = delete;

    std::uint16_t Port() const { return m_port; }
    void SetResponder(Responder responder);

    // Everything received so far, from all connections in order of arrival.
    std::string Received() const;
    // Waits until what was received contains the text; false after the time-out.
    bool AwaitReceived(std::string_view text,
                       std::chrono::milliseconds timeout = std::chrono::seconds(10)) const;
    // Waits for a client; false after the time-out.
    bool AwaitConnection(std::chrono::milliseconds timeout = std::chrono::seconds(10)) const;
    int Connections() const; // ever accepted
    bool PeerClosed() const; // the newest client has closed its side

    // Sends all of the text to the newest client, waiting as needed, for the first client too. False when
    // there is none.
    bool Send(std::string_view text);
    // Sends the text in pieces that end at these positions, with a pause between them so that each is
    // received by itself.
    bool SendCut(std::string_view text, const std::vector<std::size_t>& cuts);
    // Hangs up on the newest client.
    void CloseConnection();

private:
    void Run();
    void Accept();
    bool ReadSome(int connection);

    std::uint16_t m_port = 0; // before the listener, which sets it
    int m_listener = -1;
    int m_wake[2] = {-1, -1};
    mutable std::mutex m_lock;
    mutable std::condition_variable m_changed;
    std::string m_received;
    std::string m_partialLine; // the port's thread only
    Responder m_responder;
    int m_connection = -1;
    int m_connections = 0;
    bool m_peerClosed = false;
    bool m_stop = false;
    std::thread m_thread;
};

struct CScriptedFeed
{
    CScriptedPort Lookup, Level1;
    std::shared_ptr<ISettingsKey> Key() const { return MakePortKey(Lookup.Port(), Level1.Port()); }
};

// A port number that refuses connections.
std::uint16_t RefusingPort();

// Asks every millisecond until the answer is true; false after the time-out.
bool AwaitTrue(const std::function<bool()>& ask,
               std::chrono::milliseconds timeout = std::chrono::seconds(20));

} // namespace zantroq::test
