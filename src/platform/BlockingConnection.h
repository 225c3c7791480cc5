// A stream connection to a port of this machine that waits for its peer. For short exchanges of one question
// and one answer. Used from one thread, Interrupt aside; errors never raise a signal.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace zantroq {

class IBlockingConnection
{
public:
    virtual ~IBlockingConnection() = default; // closes

    // Makes the system's sockets ready for use. False: there are none to be had.
    virtual bool Initialise() = 0;
    // Connects to 127.0.0.1. An earlier connection is closed first.
    virtual bool Connect(std::uint16_t port) = 0;
    // Sends the whole text; false when the connection broke before its end.
    virtual bool Send(std::string_view text) = 0;
    // At most `size` bytes, as soon as there is one. 0 when the peer has closed, or when nothing came for the
    // connection's time limit; -1 when the connection is broken or was interrupted.
    virtual int Receive(char* bytes, int size) = 0;
    // Ends the connection in both directions and closes it.
    virtual void Close() = 0;
    // Any thread: whatever is under way fails at once, and so does every later Connect, Send and Receive.
    virtual void Interrupt() = 0;
};

// Connecting, sending and each wait for a byte take five seconds at most.
inline constexpr int BlockingLimitMs = 5000;

// `limitMs` is a test's to shorten.
std::unique_ptr<IBlockingConnection> MakeBlockingConnection(int limitMs = BlockingLimitMs);

} // namespace zantroq
