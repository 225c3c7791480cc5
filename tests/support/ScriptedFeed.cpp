#include "support/ScriptedFeed.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace zantroq::test {

namespace {

int MakeListener(std::uint16_t& port)
{
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (listener < 0 || ::bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
        ::listen(listener, 16) != 0 ||
        ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        throw std::runtime_error("no loopback port for the test feed");
    port = ntohs(address.sin_port);
    return listener;
}

} // namespace

CScriptedPort::CScriptedPort() : m_listener(MakeListener(m_port))
{
    if (::pipe(m_wake) != 0)
        throw std::runtime_error("no pipe for the test feed");
    m_thread = std::thread([this] { Run(); });
}

CScriptedPort::~CScriptedPort()
{
    {
        const std::lock_guard guard(m_lock);
        m_stop = true;
        if (m_connection >= 0)
            ::shutdown(m_connection, SHUT_RDWR);
    }
    const char byte = 0;
    (void)!::write(m_wake[1], &byte, 1);
    m_thread.join();
    for (const int handle : {m_listener, m_wake[0], m_wake[1], m_connection})
        if (handle >= 0)
            ::close(handle);
}

void CScriptedPort::SetResponder(Responder responder)
{
    const std::lock_guard guard(m_lock);
    m_responder = std::move(responder);
}

void CScriptedPort::Run()
{
    for (;;) {
        int connection = -1;
        {
            const std::lock_guard guard(m_lock);
            if (m_stop)
                return;
            connection = m_peerClosed ? -1 : m_connection;
        }
        pollfd waits[3] = {{m_wake[0], POLLIN, 0}, {m_listener, POLLIN, 0}, {connection, POLLIN, 0}};
        ::poll(waits, 3, -1);
        if (waits[1].revents)
            Accept();
        else if (waits[2].revents && !ReadSome(connection)) {
            const std::lock_guard guard(m_lock);
            m_peerClosed = true;
            m_changed.notify_all();
        }
    }
}

void CScriptedPort::Accept()
{
    const int connection = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0)
        return;
    const int on = 1;
    ::setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    const std::lock_guard guard(m_lock);
    if (m_connection >= 0)
        ::close(m_connection);
    m_connection = connection;
    m_partialLine.clear();
    ++m_connections;
    m_peerClosed = false;
    m_changed.notify_all();
}

bool CScriptedPort::ReadSome(int connection)
{
    char bytes[65536];
    const auto count = ::recv(connection, bytes, sizeof bytes, 0);
    if (count <= 0)
        return false;
    Responder responder;
    {
        const std::lock_guard guard(m_lock);
        m_received.append(bytes, static_cast<std::size_t>(count));
        responder = m_responder;
        m_changed.notify_all();
    }
    for (const char c : std::string_view(bytes, static_cast<std::size_t>(count))) {
        if (c != '\n') {
            if (c != '\r')
                m_partialLine += c;
            continue;
        }
        const std::string line = std::exchange(m_partialLine, {});
        if (responder)
            Send(responder(line));
    }
    return true;
}

std::string CScriptedPort::Received() const
{
    const std::lock_guard guard(m_lock);
    return m_received;
}

bool CScriptedPort::AwaitReceived(std::string_view text, std::chrono::milliseconds timeout) const
{
    std::unique_lock guard(m_lock);
    return m_changed.wait_for(guard, timeout, [&] { return m_received.find(text) != std::string::npos; });
}

bool CScriptedPort::AwaitConnection(std::chrono::milliseconds timeout) const
{
    std::unique_lock guard(m_lock);
    return m_changed.wait_for(guard, timeout, [&] { return m_connections > 0; });
}

int CScriptedPort::Connections() const
{
    const std::lock_guard guard(m_lock);
    return m_connections;
}

bool CScriptedPort::PeerClosed() const
{
    const std::lock_guard guard(m_lock);
    return m_peerClosed;
}

bool CScriptedPort::Send(std::string_view text)
{
    // A client is connected before this side has accepted.
    if (!AwaitConnection())
        return false;
    int connection = -1;
    {
        const std::lock_guard guard(m_lock);
        connection = m_connection;
    }
    while (!text.empty()) {
        const auto sent = ::send(connection, text.data(), text.size(), MSG_NOSIGNAL);
        if (sent <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

bool CScriptedPort::SendCut(std::string_view text, const std::vector<std::size_t>& cuts)
{
    std::size_t from = 0;
    for (const std::size_t cut : cuts) {
        if (!Send(text.substr(from, cut - from)))
            return false;
        from = cut;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return Send(text.substr(from));
}

void CScriptedPort::CloseConnection()
{
    const std::lock_guard guard(m_lock);
    if (m_connection >= 0)
        ::shutdown(m_connection, SHUT_RDWR);
}

std::uint16_t RefusingPort()
{
    std::uint16_t port = 0;
    ::close(MakeListener(port));
    return port;
}

bool AwaitTrue(const std::function<bool()>& ask, std::chrono::milliseconds timeout)
{
    const auto end = std::chrono::steady_clock::now() + timeout;
    while (!ask()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

} // namespace zantroq::test
