#include "feed/server/PeerWatch.h"

#include <arpa/inet.h>

#include <cstdio>
#include <fstream>
#include <poll.h>
#include <string>

namespace zantroq::feed {
namespace {

using tcp = asio::ip::tcp;

// An address as the table writes it: the bytes of the address in memory order, then the port.
std::string TableAddress(const tcp::endpoint& endpoint)
{
    char text[16];
    std::snprintf(text, sizeof text, "%08X:%04X", htonl(endpoint.address().to_v4().to_uint()),
                  static_cast<unsigned>(endpoint.port()));
    return text;
}

// True if a program holds the socket at `peer`. Also true if the table cannot be read: finishing the work of
// a client that has gone does less harm than dropping the work of a client that waits.
bool IsHeld(const tcp::endpoint& peer, const tcp::endpoint& own)
{
    std::ifstream table("/proc/net/tcp");
    std::string row;
    if (!std::getline(table, row))
        return true;
    const std::string addresses = TableAddress(peer) + ' ' + TableAddress(own);
    while (std::getline(table, row)) {
        if (row.find(addresses) == std::string::npos)
            continue;
        unsigned long inode = 0;
        // slot, two addresses, state, two queues, timer, retransmits, user, timeout, inode
        std::sscanf(row.c_str(), "%*s %*s %*s %*s %*s %*s %*s %*s %*s %lu", &inode);
        return inode != 0;
    }
    return false;
}

} // namespace

bool CPeerWatch::HasLeft()
{
    pollfd state{m_socket.native_handle(), POLLRDHUP, 0};
    if (poll(&state, 1, 0) < 1)
        return false;
    if (state.revents & (POLLERR | POLLHUP | POLLNVAL))
        return true;
    const auto now = std::chrono::steady_clock::now();
    if (now < m_nextLook)
        return false;
    m_nextLook = now + TableInterval;
    std::error_code error;
    const tcp::endpoint peer = m_socket.remote_endpoint(error);
    return error || !IsHeld(peer, m_socket.local_endpoint());
}

} // namespace zantroq::feed
