// A stream connection to a port of this machine. Its notifications run on one worker thread; all functions
// except Send must be called on that thread. Errors are reported by results alone, and a lost connection is
// not restored.
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

    // Creates the socket. Returns false if the system has none left; Connect must not be called then.
    bool Create();

    // Starts to connect to 127.0.0.1. OnConnect reports the result.
    void Connect(std::uint16_t port);

    // Reads up to `size` received bytes. Returns their number; 0 if the peer has closed or `size` is 0; -1 if
    // no byte has arrived or the connection is broken. OnReceive is called again only after a Receive with a
    // `size` above 0.
    int Receive(char* bytes, int size);

    // Whether the last Receive with room found the connection open.
    bool IsOpen() const;

    // Passes the text to the system without waiting. Returns the number of bytes accepted, or -1 for none:
    // not connected yet, connection lost, or the peer reads too slowly. Any thread, while the socket exists.
    int Send(std::string_view text);

    // Ends the connection in both directions. Returns false on failure.
    bool ShutDown();
    void Close();

protected:
    // Called on the worker thread. `errorCode` is 0 for success, otherwise the system's error number.
    virtual void OnConnect(int errorCode);
    virtual void OnReceive(int errorCode);

private:
    struct sState;

    void AwaitBytes();

    const std::shared_ptr<sState> m_state; // outlives the socket while a notification is pending
};

} // namespace zantroq
