// The services of the symbol search, in memory.
#pragma once

#include "platform/BlockingConnection.h"
#include "platform/WindowServices.h"
#include "platform/WindowThread.h"
#include "search/SymbolLookup.h"

#include <algorithm>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <mutex>
#include <string>
#include <vector>

namespace zantroq::test {

// The behaviour of a peer, and what it received. Shared by the connections created from it.
struct sPeer
{
    bool Refuses = false, HasSockets = true;
    std::vector<std::string> Blocks{}; // returned one by one; then the peer closes
    int Connects = 0, Closes = 0;
    std::uint16_t Port = 0;
    std::string Sent{};
};

class CFakeConnection : public IBlockingConnection
{
public:
    explicit CFakeConnection(sPeer& peer) : m_peer(peer) {}
    bool Initialise() override { return m_peer.HasSockets; }
    bool Connect(std::uint16_t port) override
    {
        ++m_peer.Connects;
        m_peer.Port = port;
        m_next = 0;
        return !m_peer.Refuses;
    }
    bool Send(std::string_view text) override
    {
        m_peer.Sent += text;
        return true;
    }
    int Receive(char* bytes, int size) override
    {
        if (m_next == m_peer.Blocks.size())
            return 0;
        const std::string& block = m_peer.Blocks[m_next++];
        const auto count = std::min(block.size(), static_cast<std::size_t>(size));
        std::memcpy(bytes, block.data(), count);
        return static_cast<int>(count);
    }
    void Close() override { ++m_peer.Closes; }
    void Interrupt() override {}

private:
    sPeer& m_peer;
    std::size_t m_next = 0;
};

struct sFakeBox : IMessageBox
{
    std::vector<std::string> Asked; // "caption: text"
    BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons, BoxIcon) override
    {
        Asked.push_back(caption + ": " + text);
        return BoxAnswer::Ok;
    }
};

// The test's thread as the window's thread: posted work waits for Run.
class CTestWindowThread : public IWindowThread
{
public:
    void Post(std::function<void()> work) override
    {
        const std::lock_guard guard(m_lock);
        m_due.push_back(std::move(work));
    }
    // Runs posted work; false if there was none.
    bool Run()
    {
        std::deque<std::function<void()>> due;
        {
            const std::lock_guard guard(m_lock);
            due.swap(m_due);
        }
        for (const auto& work : due)
            work();
        return !due.empty();
    }

private:
    std::mutex m_lock;
    std::deque<std::function<void()>> m_due;
};

// Records the events of a search: "R line", "X line" for errors, "-" for a search that ended without an
// answer.
struct sRecordedEvents : ISymbolLookupEvents
{
    std::vector<std::string> Lines;
    void OnResultLine(std::string_view line) override { Lines.push_back("R " + std::string(line)); }
    void OnEvent2() override {}
    void OnEvent3() override {}
    void OnErrorLine(std::string_view line) override { Lines.push_back("X " + std::string(line)); }
    void OnNoAnswer() override { Lines.push_back("-"); }
};

} // namespace zantroq::test
