// Detects that the program at the other end of a loopback connection has closed its socket.
#pragma once

#include <asio/ip/tcp.hpp>

#include <chrono>

namespace zantroq::feed {

// Watches one connected loopback socket, which must outlive the watch. Feed thread only.
class CPeerWatch
{
public:
    explicit CPeerWatch(asio::ip::tcp::socket& socket) : m_socket(socket) {}

    // True once the peer has closed its socket, even while received bytes wait to be read. A peer that has
    // closed only its sending half can still read and has not left.
    bool HasLeft();

private:
    // A closed socket and a closed sending half look the same on our side; only the system's table of
    // connections tells them apart. Reading the table is slow, so it is read at most this often.
    static constexpr std::chrono::milliseconds TableInterval{100};

    asio::ip::tcp::socket& m_socket;
    std::chrono::steady_clock::time_point m_nextLook{};
};

} // namespace zantroq::feed
