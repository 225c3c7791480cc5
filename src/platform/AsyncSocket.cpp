#include "platform/AsyncSocket.h"

#include "platform/WorkerLoop.h"

#include <asio/ip/tcp.hpp>
#include <atomic>
#include <cerrno>
#include <sys/socket.h>

namespace zantroq {

namespace {

constexpr int MostReceivesInARow = 16;

} // namespace

struct CAsyncSocket::sState
{
    explicit sState(asio::io_context& context) : Socket(context) {}

    asio::ip::tcp::socket Socket;
    std::atomic<int> Native{-1}; // for Send on other threads; -1: no socket
    CAsyncSocket* Owner = nullptr;
    bool Wanted = false; // Receive was called since the last notification
    bool Filled = false; // that Receive filled its buffer, so more bytes have most likely arrived
};

CAsyncSocket::CAsyncSocket(CWorkerThread& thread) : m_state(std::make_shared<sState>(thread.m_loop->Context))
{
    m_state->Owner = this;
}

CAsyncSocket::~CAsyncSocket()
{
    m_state->Owner = nullptr;
    Close();
}

bool CAsyncSocket::Create()
{
    asio::error_code error;
    m_state->Socket.open(asio::ip::tcp::v4(), error);
    if (error)
        return false;
    m_state->Socket.native_non_blocking(true, error);
    // Commands are short texts sent in a row; none may wait for the acknowledgement of the one before.
    m_state->Socket.set_option(asio::ip::tcp::no_delay(true), error);
    m_state->Native = m_state->Socket.native_handle();
    return true;
}

void CAsyncSocket::Connect(std::uint16_t port)
{
    const asio::ip::tcp::endpoint peer(asio::ip::address_v4::loopback(), port);
    m_state->Socket.async_connect(peer, [state = m_state](const asio::error_code& error) {
        CAsyncSocket* const self = state->Owner;
        if (!self || error == asio::error::operation_aborted)
            return;
        self->OnConnect(error.value());
        if (!error && state->Owner)
            self->AwaitBytes();
    });
}

void CAsyncSocket::AwaitBytes()
{
    m_state->Socket.async_wait(asio::ip::tcp::socket::wait_read,
                               [state = m_state](const asio::error_code& error) {
                                   CAsyncSocket* const self = state->Owner;
                                   if (!self || error == asio::error::operation_aborted)
                                       return;
                                   // Reads a large reply in one go, but lets the other socket and posted
                                   // messages wait for a few milliseconds at most.
                                   for (int i = 0; i < MostReceivesInARow; ++i) {
                                       state->Wanted = state->Filled = false;
                                       self->OnReceive(error.value());
                                       if (!state->Owner || !state->Wanted)
                                           return;
                                       if (!state->Filled)
                                           break;
                                   }
                                   self->AwaitBytes();
                               });
}

int CAsyncSocket::Receive(char* bytes, int size)
{
    if (size <= 0)
        return 0;
    const auto received = ::recv(m_state->Native, bytes, static_cast<std::size_t>(size), MSG_DONTWAIT);
    const bool nothingYet = received < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR);
    m_state->Wanted = received > 0 || nothingYet;
    m_state->Filled = received == size;
    return static_cast<int>(received);
}

bool CAsyncSocket::IsOpen() const
{
    return m_state->Wanted;
}

int CAsyncSocket::Send(std::string_view text)
{
    const int native = m_state->Native;
    if (native < 0)
        return -1;
    return static_cast<int>(::send(native, text.data(), text.size(), MSG_DONTWAIT | MSG_NOSIGNAL));
}

bool CAsyncSocket::ShutDown()
{
    asio::error_code error;
    m_state->Socket.shutdown(asio::ip::tcp::socket::shutdown_both, error);
    return !error;
}

void CAsyncSocket::Close()
{
    m_state->Native = -1;
    asio::error_code error;
    m_state->Socket.close(error);
}

void CAsyncSocket::OnConnect(int) {}

void CAsyncSocket::OnReceive(int) {}

} // namespace zantroq
