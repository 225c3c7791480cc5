#include "search/FindLookup.h"

#include "search/FindReply.h"

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace zantroq {

namespace {

constexpr int BlockSize = 65'535;

// One search from its command to its end. The worker reads and passes blocks on; everything else happens on
// the window's thread.
class CSearch : public std::enable_shared_from_this<CSearch>
{
public:
    CSearch(std::unique_ptr<IBlockingConnection> connection, std::uint16_t port, std::string command, int id,
            ISymbolLookupEvents& events, IWindowThread& thread)
        : m_connection(std::move(connection)),
          m_port(port),
          m_command(std::move(command)),
          m_events(&events),
          m_reply(id, events),
          m_thread(thread)
    {
    }

    // `connected`: the connection is already made.
    void Start(bool connected)
    {
        m_worker = std::thread([this, connected] { Work(connected); });
    }

    // No event follows. Waits for the worker, whose connection is interrupted, so that it ends at once.
    void Drop()
    {
        m_events = nullptr;
        {
            const std::lock_guard guard(m_lock);
            m_dropped = true;
        }
        m_taken.notify_all();
        m_connection->Interrupt();
        m_worker.join();
    }

private:
    void Work(bool connected)
    {
        if ((connected || m_connection->Connect(m_port)) && m_connection->Send(m_command))
            Read();
        m_connection->Close();
        Hand([](CSearch& search) { search.End(); });
    }

    void Read()
    {
        std::vector<char> block(BlockSize);
        for (;;) {
            const int received = m_connection->Receive(block.data(), BlockSize);
            if (received <= 0)
                return;
            std::string text(block.data(), static_cast<std::size_t>(received));
            if (!Hand([text = std::move(text)](CSearch& search) { search.Take(text); }))
                return;
        }
    }

    // Runs `work` on the window's thread and waits until it has run, so that a feed that sends without end
    // neither fills the memory with blocks nor starves the window's other events. Returns false if the search
    // is dropped or has ended.
    template<class TWork> bool Hand(TWork work)
    {
        std::unique_lock guard(m_lock);
        if (m_dropped || m_ended)
            return false;
        m_waiting = true;
        m_thread.Post([self = shared_from_this(), work = std::move(work)] {
            work(*self);
            self->Taken();
        });
        m_taken.wait(guard, [this] { return m_dropped || !m_waiting; });
        return !m_dropped && !m_ended;
    }

    void Taken()
    {
        {
            const std::lock_guard guard(m_lock);
            m_waiting = false;
        }
        m_taken.notify_all();
    }

    void Take(const std::string& text)
    {
        if (m_events == nullptr || m_reply.Take(text))
            return;
        const std::lock_guard guard(m_lock);
        m_ended = true;
    }

    void End()
    {
        if (m_events != nullptr)
            m_events->OnNoAnswer();
    }

    const std::unique_ptr<IBlockingConnection> m_connection;
    const std::uint16_t m_port;
    const std::string m_command;
    ISymbolLookupEvents* m_events; // window's thread; null once dropped
    CFindReply m_reply;            // window's thread
    IWindowThread& m_thread;
    std::thread m_worker;
    std::mutex m_lock;
    std::condition_variable m_taken;
    bool m_waiting = false, m_dropped = false, m_ended = false; // guarded by m_lock
};

class CFindLookup : public ISymbolLookup
{
public:
    CFindLookup(std::unique_ptr<IBlockingConnection> connection,
                CFindLookupMaker::TMakeConnection makeConnection, std::uint16_t port,
                ISymbolLookupEvents& events, IWindowThread& thread)
        : m_first(std::move(connection)),
          m_makeConnection(std::move(makeConnection)),
          m_port(port),
          m_events(events),
          m_thread(thread)
    {
    }
    ~CFindLookup() override { DropSearch(); }

    void Stop() override { DropSearch(); }

    void Find(const std::string& field, const std::string& text, const std::string& filterKind,
              const std::string& filterIds, const std::string&) override
    {
        DropSearch();
        const bool connected = m_first != nullptr;
        auto connection = connected ? std::move(m_first) : m_makeConnection();
        ++m_id;
        m_search = std::make_shared<CSearch>(std::move(connection), m_port,
                                             FindCommand(m_id, field, text, filterKind, filterIds), m_id,
                                             m_events, m_thread);
        m_search->Start(connected);
    }

private:
    void DropSearch()
    {
        if (m_search == nullptr)
            return;
        m_search->Drop();
        m_search.reset();
    }

    std::unique_ptr<IBlockingConnection> m_first; // made by the constructor; null once used
    const CFindLookupMaker::TMakeConnection m_makeConnection;
    const std::uint16_t m_port;
    ISymbolLookupEvents& m_events;
    IWindowThread& m_thread;
    std::shared_ptr<CSearch> m_search;
    int m_id = 0;
};

} // namespace

CFindLookupMaker::CFindLookupMaker(std::shared_ptr<ISettingsKey> feedKey, IWindowThread& thread,
                                   TMakeConnection makeConnection)
    : m_ports(std::move(feedKey)),
      m_thread(thread),
      m_makeConnection(makeConnection ? std::move(makeConnection) : [] { return MakeBlockingConnection(); })
{
}

std::unique_ptr<ISymbolLookup> CFindLookupMaker::Make(ISymbolLookupEvents& events)
{
    const std::uint16_t port = m_ports.LookupPort();
    auto connection = m_makeConnection();
    if (!connection->Initialise() || !connection->Connect(port))
        return nullptr;
    return std::make_unique<CFindLookup>(std::move(connection), m_makeConnection, port, events, m_thread);
}

} // namespace zantroq
