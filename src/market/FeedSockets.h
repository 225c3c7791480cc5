// The two sockets of the chart: bytes in, lines out. A line that fails with std::invalid_argument is dropped
// alone. Both live on the worker thread, Send aside.
#pragma once

#include "market/LineCutter.h"
#include "platform/AsyncSocket.h"

#include <string_view>

namespace zantroq {

class CChartRequestManagerThread;

// A socket that cuts what it receives into lines. When one line fills the buffer, the socket reads no more.
class CQVXLineSocket : public CAsyncSocket
{
public:
    CQVXLineSocket(CWorkerThread& thread, int capacity) : CAsyncSocket(thread), m_cutter(capacity) {}

protected:
    void OnReceive(int errorCode) override;
    // One line without its end, which may be empty. The text holds during the call.
    virtual void OnLine(std::string_view line) = 0;
    // All lines of a receive have been handed out.
    virtual void OnLinesDone() {}

private:
    void GuardedLine(std::string_view line);

    CLineCutter m_cutter;
};

// Requests and replies on the lookup port.
class CQVXLookupSocket : public CQVXLineSocket
{
public:
    explicit CQVXLookupSocket(CWorkerThread& thread) : CQVXLineSocket(thread, CLineCutter::LookupCapacity) {}
};

// The continuous stream on the level 1 port.
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
};

class CQVXLevel1Socket : public CQVXStreamSocket
{
public:
    explicit CQVXLevel1Socket(CWorkerThread& thread) : CQVXStreamSocket(thread) {}
    CChartRequestManagerThread* Owner = nullptr; // null: lines are dropped

protected:
    void OnConnect(int errorCode) override;
    void OnLine(std::string_view line) override;
};

} // namespace zantroq
