#include "platform/BlockingConnection.h"

#include <arpa/inet.h>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <mutex>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace zantroq {

namespace {

using TClock = std::chrono::steady_clock;

// Like poll, but continues with the rest of the time after a signal.
bool WaitFor(int native, short events, int milliseconds)
{
    const auto end = TClock::now() + std::chrono::milliseconds(milliseconds);
    pollfd entry{native, events, 0};
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - TClock::now()).count();
        const int ready = ::poll(&entry, 1, left > 0 ? static_cast<int>(left) : 0);
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

bool IsNothingYet(int error)
{
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

// The socket is non-blocking and all waiting is done with poll, so that every wait has a limit.
class CBlockingConnection : public IBlockingConnection
{
public:
    explicit CBlockingConnection(int limitMs) : m_limitMs(limitMs) {}
    ~CBlockingConnection() override { Close(); }

    bool Initialise() override { return true; } // these sockets need no preparation
    bool Connect(std::uint16_t port) override;
    bool Send(std::string_view text) override;
    int Receive(char* bytes, int size) override;
    void Close() override;
    void Interrupt() override;

private:
    bool Keep(int native);
    bool Await(short events) const { return WaitFor(m_native, events, m_limitMs); }

    const int m_limitMs;
    std::mutex m_closing; // keeps Interrupt from shutting down a descriptor that was closed and reused
    int m_native = -1;    // -1: none. Written under the lock.
    bool m_interrupted = false;
};

// Returns false if Interrupt was called meanwhile.
bool CBlockingConnection::Keep(int native)
{
    const std::lock_guard guard(m_closing);
    if (!m_interrupted)
        m_native = native;
    return !m_interrupted;
}

bool CBlockingConnection::Connect(std::uint16_t port)
{
    Close();
    const int native = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (native < 0)
        return false;
    if (!Keep(native)) {
        ::close(native);
        return false;
    }
    sockaddr_in peer{};
    peer.sin_family = AF_INET;
    peer.sin_port = htons(port);
    peer.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(native, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) == 0)
        return true;
    int error = errno;
    if (error == EINPROGRESS && Await(POLLOUT)) {
        socklen_t size = sizeof error;
        ::getsockopt(native, SOL_SOCKET, SO_ERROR, &error, &size);
    }
    if (error != 0)
        Close();
    return error == 0;
}

bool CBlockingConnection::Send(std::string_view text)
{
    while (!text.empty() && m_native >= 0) {
        const auto sent = ::send(m_native, text.data(), text.size(), MSG_NOSIGNAL);
        if (sent >= 0)
            text.remove_prefix(static_cast<std::size_t>(sent));
        else if (!IsNothingYet(errno) || !Await(POLLOUT))
            return false;
    }
    return text.empty();
}

int CBlockingConnection::Receive(char* bytes, int size)
{
    while (m_native >= 0) {
        const auto received = ::recv(m_native, bytes, static_cast<std::size_t>(size), 0);
        if (received >= 0)
            return static_cast<int>(received);
        if (!IsNothingYet(errno))
            return -1;
        if (!Await(POLLIN))
            return 0;
    }
    return -1;
}

void CBlockingConnection::Close()
{
    const std::lock_guard guard(m_closing);
    if (m_native < 0)
        return;
    ::shutdown(m_native, SHUT_RDWR);
    ::close(m_native);
    m_native = -1;
}

void CBlockingConnection::Interrupt()
{
    const std::lock_guard guard(m_closing);
    m_interrupted = true;
    if (m_native >= 0)
        ::shutdown(m_native, SHUT_RDWR);
}

} // namespace

std::unique_ptr<IBlockingConnection> MakeBlockingConnection(int limitMs)
{
    return std::make_unique<CBlockingConnection>(limitMs);
}

} // namespace zantroq
