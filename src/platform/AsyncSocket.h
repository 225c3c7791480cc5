// A stream connection to a port of this machine whose notifications run on one worker thread. Everything but
// Send belongs to that thread. Nothing is reported beyond the results; a connection that is lost stays lost.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

namespace zantroq {

class CWorkerThread;

class CAsyncSocket
{
public:
    explicit CAsyncSocket(CWorkerThread& thread);
    CAsyncSocket(const CAsyncSocket&) = delete;
    CAsyncSocket& operator=(const CAsyncSocket&) = delete;
    virtual ~CAsyncSocket(); // closes

    // Makes the socket; false, and nothing to connect, when the system has none to give.
    bool Create();

    // Begins to connect to 127.0.0.1; OnConnect tells how it went.
    void Connect(std::uint16_t port);

    // Up to `size` bytes that have come: more than 0, or 0 when the peer has closed or `size` is 0, or -1
    // when there is nothing or the connection is broken. OnReceive comes again only after a call with room
    // for a byte.
    int Receive(char* bytes, int size);

    // Hands the text to the system without waiting. Returns how many bytes it took, -1 for none: before the
    // connection stands, after it is lost, or when the peer reads too slowly. Any thread, as long as the
    // socket lives.
    int Send(std::string_view text);

    // Ends the connection in both directions.
    bool ShutDown();
    void Close();

protected:
    // Error codes are 0 for success, else the system's.
    virtual void OnConnect(int errorCode);
    virtual void OnReceive(int errorCode);

private:
    struct sState;

    void AwaitBytes();

    const std::shared_ptr<sState> m_state; // outlives the socket where a notification is still under way
};

} // namespace zantroq
