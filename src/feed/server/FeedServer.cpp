#include "feed/server/FeedServer.h"

#include "feed/server/Descriptors.h"
#include "feed/server/Level1Connection.h"
#include "feed/server/LookupConnection.h"
#include "feed/server/SilentClients.h"

#include <chrono>
#include <cstdlib>
#include <functional>
#include <thread>

namespace zantroq::feed {

std::filesystem::path ShippedDataFolder()
{
    if (const char* const given = std::getenv("ZANTROQ_DATA"); given && *given)
        return given;
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto installed = program.parent_path().parent_path() / "share" / "zantroq-chart" / "data";
    if (!error && std::filesystem::is_directory(installed, error))
        return installed;
    return ZANTROQ_SOURCE_DATA;
}

// The state of a running feed, from Start to Stop. After construction only the feed's thread uses it, except
// that Stop posts to it once.
class CFeedServer::CRunning
{
public:
    explicit CRunning(const sFEED_OPTIONS& options)
        : m_catalog(options.Seed, options.OnNotice),
          m_live{options.SimulateAll, options.ReplayTicks, options.Speed},
          m_silent(m_context, options.SilentLimit)
    {
        if (options.ServeShipped)
            m_catalog.AddFolder(ShippedDataFolder());
        for (const auto& folder : options.Folders)
            m_catalog.AddFolder(folder);
    }

    ~CRunning()
    {
        m_context.stop();
        if (m_thread.joinable())
            m_thread.join();
    }

    bool Open(const sFEED_OPTIONS& options, std::string& error)
    {
        return Listen(m_lookup, options.LookupPort, "lookup", error) &&
               Listen(m_level1, options.Level1Port, "level 1", error);
    }

    void Run()
    {
        Accept(m_lookup);
        Accept(m_level1);
        m_thread = std::thread([this] { m_context.run(); });
    }

    std::uint16_t LookupPort() const { return m_lookup.Port; }
    std::uint16_t Level1Port() const { return m_level1.Port; }

private:
    using tcp = asio::ip::tcp;

    // An open port and the factory of its connections.
    struct sListener
    {
        tcp::acceptor Acceptor;
        asio::steady_timer Pause;
        std::function<std::shared_ptr<IFeedConnection>(tcp::socket)> Start;
        std::uint16_t Port = 0;
    };

    bool Listen(sListener& listener, std::uint16_t port, const std::string& name, std::string& error)
    {
        tcp::acceptor& acceptor = listener.Acceptor;
        const tcp::endpoint endpoint(asio::ip::address_v4::loopback(), port);
        std::error_code code;
        acceptor.open(endpoint.protocol(), code);
        // Allows binding a port that a feed has just released.
        if (!code)
            acceptor.set_option(tcp::acceptor::reuse_address(true), code);
        if (!code)
            acceptor.bind(endpoint, code);
        if (!code)
            acceptor.listen(asio::socket_base::max_listen_connections, code);
        if (code) {
            error = "cannot listen on " + name + " port 127.0.0.1:" + std::to_string(port) + ": " +
                    code.message() + "; choose another port, or 0 for a free one";
            return false;
        }
        listener.Port = acceptor.local_endpoint().port();
        return true;
    }

    // Accepts the next client, provided that a few descriptors remain for files.
    void Accept(sListener& listener)
    {
        while (IsShortOfDescriptors()) {
            if (!m_silent.CloseOldest()) {
                AcceptLater(listener);
                return;
            }
        }
        listener.Acceptor.async_accept([this, &listener](std::error_code error, tcp::socket socket) {
            if (error == asio::error::operation_aborted)
                return;
            if (error) {
                // The most likely cause is that the whole system is short of descriptors.
                AcceptLater(listener);
                return;
            }
            SendAtOnce(socket);
            m_silent.Add(listener.Start(std::move(socket)));
            Accept(listener);
        });
    }

    // An immediate retry would fail until a client disconnects.
    void AcceptLater(sListener& listener)
    {
        listener.Pause.expires_after(std::chrono::milliseconds(100));
        listener.Pause.async_wait([this, &listener](std::error_code error) {
            if (!error)
                Accept(listener);
        });
    }

    template<class TConnection> static std::shared_ptr<TConnection> Started(std::shared_ptr<TConnection> made)
    {
        made->Start();
        return made;
    }

    static void SendAtOnce(tcp::socket& socket)
    {
        std::error_code ignored;
        socket.set_option(tcp::no_delay(true), ignored);
    }

    CMarketCatalog m_catalog;
    const sLIVE_OPTIONS m_live;
    // Declared after the catalog, so that connections still held by the context's handlers are destroyed
    // before the catalog they refer to.
    asio::io_context m_context{1};
    CWorkTurns m_turns{m_context};
    CSilentClients m_silent;
    sListener m_lookup{tcp::acceptor(m_context), asio::steady_timer(m_context), [this](tcp::socket socket) {
                           return Started(
                               std::make_shared<CLookupConnection>(std::move(socket), m_catalog, m_turns));
                       }};
    sListener m_level1{tcp::acceptor(m_context), asio::steady_timer(m_context), [this](tcp::socket socket) {
                           return Started(std::make_shared<CLevel1Connection>(std::move(socket), m_catalog,
                                                                              m_live, m_turns));
                       }};
    std::thread m_thread;
};

CFeedServer::CFeedServer(sFEED_OPTIONS options) : m_options(std::move(options)) {}

CFeedServer::~CFeedServer() = default;

bool CFeedServer::Start(std::string& error)
{
    if (m_running)
        return true;
    auto running = std::make_unique<CRunning>(m_options);
    if (!running->Open(m_options, error))
        return false;
    running->Run();
    m_running = std::move(running);
    return true;
}

void CFeedServer::Stop()
{
    m_running.reset();
}

std::uint16_t CFeedServer::LookupPort() const
{
    return m_running ? m_running->LookupPort() : 0;
}

std::uint16_t CFeedServer::Level1Port() const
{
    return m_running ? m_running->Level1Port() : 0;
}

} // namespace zantroq::feed
