// Finds out whether the program at the other end of a connection is still there.
#pragma once

#include <asio/ip/tcp.hpp>

#include <chrono>

namespace zantroq::feed {

// Of one connected loopback socket, which must outlive it. Used on the feed's thread.
class CPeerWatch
{
public:
    explicit CPeerWatch(asio::ip::tcp::socket& socket) : m_socket(socket) {}

    // True once the peer has closed its socket, received bytes that wait to be read or not. A peer that has
    // closed its sending half alone still reads and has not left.
    bool HasLeft();

private:
    // A closed socket and one whose sending half is closed look the same from here; the system's table of
    // connections tells them apart. Reading it takes time, so it is read this often at most.
    static constexpr std::chrono::milliseconds TableInterval{100};

    asio::ip::tcp::socket& m_socket;
    std::chrono::steady_clock::time_point m_nextLook{};
};

} // namespace zantroq::feed
