// The chart's two sockets: they receive bytes and pass on lines. A line whose handling throws
// std::invalid_argument is dropped; the lines after it are handled. Worker thread only, except Send.
#pragma once

#include "market/LineCutter.h"
#include "platform/AsyncSocket.h"

#include <string_view>

namespace zantroq {

class CChartRequestManagerThread;

// A socket that cuts received bytes into lines. Once a single line fills the buffer, the socket reads no
// more.
class CQVXLineSocket : public CAsyncSocket
{
public:
    CQVXLineSocket(CWorkerThread& thread, int capacity) : CAsyncSocket(thread), m_cutter(capacity) {}

protected:
    void OnReceive(int errorCode) override;
    // Receives one line without its line end; it may be empty. The view is valid during the call.
    virtual void OnLine(std::string_view line) = 0;
    // Called after the last line of a receive.
    virtual void OnLinesDone() {}
    // The peer has closed the connection, or it broke.
    virtual void OnLost() {}

private:
    void GuardedLine(std::string_view line);

    CLineCutter m_cutter;
};

// The lookup port: commands and replies.
class CQVXLookupSocket : public CQVXLineSocket
{
public:
    explicit CQVXLookupSocket(CWorkerThread& thread) : CQVXLineSocket(thread, CLineCutter::LookupCapacity) {}
};

// The level 1 port: a continuous stream.
class CQVXStreamSocket : public CQVXLineSocket
{
public:
    explicit CQVXStreamSocket(CWorkerThread& thread) : CQVXLineSocket(thread, CLineCutter::StreamCapacity) {}
};

class CQVXHistorySocket : public CQVXLookupSocket
{
public:
    explicit CQVXHistorySocket(CWorkerThread& thread) : CQVXLookupSocket(thread) {}
    CChartRequestManagerThread* Owner = nullptr; // null: lines are dropped

protected:
    void OnConnect(int errorCode) override;
    void OnLine(std::string_view line) override;
    void OnLinesDone() override;
    void OnLost() override;
};

class CQVXLevel1Socket : public CQVXStreamSocket
{
public:
    explicit CQVXLevel1Socket(CWorkerThread& thread) : CQVXStreamSocket(thread) {}
    CChartRequestManagerThread* Owner = nullptr; // null: lines are dropped

protected:
    void OnConnect(int errorCode) override;
    void OnLine(std::string_view line) override;
    void OnLost() override;
};

} // namespace zantroq
