#include "platform/WorkerThread.h"
#include "platform/AsyncSocket.h"
#include "support/ScriptedFeed.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace zantroq;
using namespace zantroq::test;

namespace {

class CRecordingThread : public CWorkerThread
{
public:
    ~CRecordingThread() override { Stop(); }
    std::vector<std::string> Events; // read after Stop
    std::thread::id Id;

protected:
    void InitInstance() override
    {
        Id = std::this_thread::get_id();
        Events.push_back("init");
    }
    void ExitInstance() override { Events.push_back("exit"); }
    void OnThreadMessage(std::uint32_t message, std::int32_t first, std::int32_t second) override
    {
        Events.push_back(std::to_string(message) + " " + std::to_string(first) + " " +
                         std::to_string(second));
    }
};

class CEchoSocket : public CAsyncSocket
{
public:
    using CAsyncSocket::CAsyncSocket;
    std::atomic<int> ConnectError{-1};
    std::atomic<int> Notifications{0};
    std::atomic<bool> Read{true};
    std::atomic<int> Bytes{0};
    std::atomic<bool> SawEnd{false};

protected:
    void OnConnect(int errorCode) override { ConnectError = errorCode; }
    void OnReceive(int) override
    {
        ++Notifications;
        char bytes[100];
        const int count = Receive(bytes, Read ? 100 : 0);
        if (count > 0)
            Bytes += count;
        else if (Read && count == 0)
            SawEnd = true;
    }
};

} // namespace

TEST(WorkerThread, RunsSetUpWorkAndTearDownInOrderOnItsThread)
{
    CRecordingThread thread;
    thread.PostThreadMessage(0x406, 5, 0);
    thread.Start();
    thread.Post([&] {
        thread.Events.push_back(std::this_thread::get_id() == thread.Id ? "own thread" : "other thread");
    });
    thread.Stop();
    EXPECT_EQ(thread.Events, (std::vector<std::string>{"init", "1030 5 0", "own thread", "exit"}));
}

TEST(WorkerThread, StopsTwiceAndWithoutStart)
{
    CRecordingThread idle;
    idle.Stop();
    CRecordingThread thread;
    thread.Start();
    thread.Stop();
    thread.Stop();
    EXPECT_EQ(thread.Events.size(), 2u);
}

TEST(AsyncSocket, ReceivesAndSendsUntilThePeerHangsUp)
{
    CScriptedPort port;
    CRecordingThread thread;
    thread.Start();
    CEchoSocket socket(thread);
    EXPECT_EQ(socket.Send("too early"), -1);
    thread.Post([&] {
        socket.Create();
        socket.Connect(port.Port());
    });
    ASSERT_TRUE(AwaitTrue([&] { return socket.ConnectError == 0; }));
    EXPECT_EQ(socket.Send("hello"), 5);
    EXPECT_TRUE(port.AwaitReceived("hello"));
    ASSERT_TRUE(port.Send(std::string(1000, 'x')));
    EXPECT_TRUE(AwaitTrue([&] { return socket.Bytes == 1000; }));
    port.CloseConnection();
    EXPECT_TRUE(AwaitTrue([&] { return socket.SawEnd.load(); }));
    // Neither a signal nor a wait for a closed peer.
    AwaitTrue([&] { return socket.Send("late") < 0; });
    EXPECT_EQ(socket.Send("late"), -1);
    thread.Stop();
}

TEST(AsyncSocket, ARefusedConnectionIsAnErrorCode)
{
    CRecordingThread thread;
    thread.Start();
    CEchoSocket socket(thread);
    thread.Post([&] {
        socket.Create();
        socket.Connect(RefusingPort());
    });
    EXPECT_TRUE(AwaitTrue([&] { return socket.ConnectError > 0; }));
    EXPECT_EQ(socket.Send("nobody"), -1);
    thread.Stop();
}

TEST(AsyncSocket, AReceiveWithoutRoomEndsTheNotifications)
{
    CScriptedPort port;
    CRecordingThread thread;
    thread.Start();
    CEchoSocket socket(thread);
    socket.Read = false;
    thread.Post([&] {
        socket.Create();
        socket.Connect(port.Port());
    });
    ASSERT_TRUE(port.AwaitConnection());
    port.Send("one");
    ASSERT_TRUE(AwaitTrue([&] { return socket.Notifications == 1; }));
    port.Send("two");
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(socket.Notifications, 1);
    EXPECT_EQ(socket.Bytes, 0);
    thread.Stop();
}
