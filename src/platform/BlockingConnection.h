// A stream connection to a port of this machine whose calls wait for the peer, for a short exchange of
// question and answer. Used on one thread, except Interrupt; errors raise no signal.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace zantroq {

class IBlockingConnection
{
public:
    virtual ~IBlockingConnection() = default; // closes

    // Prepares the system's sockets. Returns false if they are not available.
    virtual bool Initialise() = 0;
    // Connects to 127.0.0.1 after closing an earlier connection. Returns false on failure.
    virtual bool Connect(std::uint16_t port) = 0;
    // Sends the whole text. Returns false if the connection breaks before its end.
    virtual bool Send(std::string_view text) = 0;
    // Waits for data and reads at most `size` bytes. Returns their number; 0 if the peer has closed or sent
    // nothing within the time limit; -1 if the connection is broken or interrupted.
    virtual int Receive(char* bytes, int size) = 0;
    // Ends the connection in both directions and closes it.
    virtual void Close() = 0;
    // Makes the call in progress fail at once, and every later Connect, Send and Receive. Any thread.
    virtual void Interrupt() = 0;
};

// In milliseconds: the longest time for a connect, for a send and for each wait for data.
inline constexpr int BlockingLimitMs = 5000;

// Only tests need a `limitMs` of their own.
std::unique_ptr<IBlockingConnection> MakeBlockingConnection(int limitMs = BlockingLimitMs);

} // namespace zantroq
