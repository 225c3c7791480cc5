// A feed for tests: two free loopback ports that record what clients send and send what a test tells them. A
// port serves its newest connection. Tests may call all functions on any thread.
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
    // Called with each received line, without its line end, on the port's own thread; its result is sent
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
    // Waits until the received text contains `text`; false after the time-out.
    bool AwaitReceived(std::string_view text,
                       std::chrono::milliseconds timeout = std::chrono::seconds(10)) const;
    // Waits for a client; false after the time-out.
    bool AwaitConnection(std::chrono::milliseconds timeout = std::chrono::seconds(10)) const;
    int Connections() const; // ever accepted
    bool PeerClosed() const; // the newest client has closed its side

    // Sends all of the text to the newest client; waits as needed, also for the first client. False if there
    // is none.
    bool Send(std::string_view text);
    // Sends the text in pieces that end at these positions, with a pause after each so that it is received
    // separately.
    bool SendCut(std::string_view text, const std::vector<std::size_t>& cuts);
    // Closes the connection of the newest client.
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

// Calls `ask` every millisecond until it returns true; false after the time-out.
bool AwaitTrue(const std::function<bool()>& ask,
               std::chrono::milliseconds timeout = std::chrono::seconds(20));

} // namespace zantroq::test
