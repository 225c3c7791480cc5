// The order in which clients get the feed's thread, and the detection of clients that have left.
#include "feed/server/PeerWatch.h"
#include "feed/server/WorkTurns.h"

#include <asio.hpp>

#include <gtest/gtest.h>
#include <thread>

namespace zantroq::feed {
namespace {

// Uses each slice completely until it has had enough of them.
class CBusyWorker : public CWorker
{
public:
    explicit CBusyWorker(int slices) : Slices(slices) {}
    WorkProgress Work(CWorkSlice& slice) override
    {
        while (!slice.IsOver()) {
        }
        return --Slices > 0 ? WorkProgress::More : WorkProgress::Ended;
    }
    int Slices;
};

// Has one short piece of work and gets another as soon as it is done, like a client that does not wait.
class CEagerWorker : public CWorker, public std::enable_shared_from_this<CEagerWorker>
{
public:
    CEagerWorker(asio::io_context& context, CWorkTurns& turns) : m_context(context), m_turns(turns) {}
    WorkProgress Work(CWorkSlice&) override
    {
        std::this_thread::sleep_for(std::chrono::microseconds(200));
        if (++Done < 5000)
            asio::post(m_context, [self = shared_from_this()] { self->m_turns.Add(self); });
        return WorkProgress::Ended;
    }
    int Done = 0;

private:
    asio::io_context& m_context;
    CWorkTurns& m_turns;
};

class CWaitingWorker : public CWorker
{
public:
    WorkProgress Work(CWorkSlice&) override
    {
        ++Calls;
        return Ready ? WorkProgress::Ended : WorkProgress::Waiting;
    }
    bool Ready = false;
    int Calls = 0;
};

struct sCONNECTION
{
    using tcp = asio::ip::tcp;
    sCONNECTION()
    {
        tcp::acceptor acceptor(Context, tcp::endpoint(asio::ip::address_v4::loopback(), 0));
        Peer.connect(acceptor.local_endpoint());
        Own = acceptor.accept();
    }
    asio::io_context Context;
    tcp::socket Peer{Context}, Own{Context};
};

// An action of a peer reaches the other socket a moment later.
bool LeavesSoon(CPeerWatch& watch)
{
    for (int i = 0; i < 1000; ++i) {
        if (watch.HasLeft())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

} // namespace

TEST(WorkTurns, AShortRequestComesBeforeTheRestOfALongOne)
{
    asio::io_context context;
    CWorkTurns turns(context);
    std::vector<std::shared_ptr<CBusyWorker>> busy;
    for (int i = 0; i < 4; ++i)
        turns.Add(busy.emplace_back(std::make_shared<CBusyWorker>(20)));
    const auto late = std::make_shared<CBusyWorker>(1);
    for (int i = 0; i < 20; ++i)
        context.run_one();
    turns.Add(late);
    for (int i = 0; i < 2; ++i)
        context.run_one();
    EXPECT_EQ(late->Slices, 0);
    context.run();
    for (const auto& worker : busy)
        EXPECT_EQ(worker->Slices, 0);
}

TEST(WorkTurns, LongWorkOfSeveralGoesOnSideBySide)
{
    asio::io_context context;
    CWorkTurns turns(context);
    const auto one = std::make_shared<CBusyWorker>(100), other = std::make_shared<CBusyWorker>(100);
    turns.Add(one);
    turns.Add(other);
    for (int i = 0; i < 40; ++i)
        context.run_one();
    EXPECT_LT(one->Slices, 100);
    EXPECT_LT(other->Slices, 100);
}

TEST(WorkTurns, AClientThatAlwaysAsksAgainStarvesNobody)
{
    asio::io_context context;
    CWorkTurns turns(context);
    const auto eager = std::make_shared<CEagerWorker>(context, turns);
    const auto busy = std::make_shared<CBusyWorker>(20);
    turns.Add(busy);
    turns.Add(eager);
    while (busy->Slices > 0)
        context.run_one();
    EXPECT_LT(eager->Done, 5000);
}

TEST(WorkTurns, AWaitingWorkerIsCalledAgainWhenItIsWoken)
{
    asio::io_context context;
    CWorkTurns turns(context);
    const auto worker = std::make_shared<CWaitingWorker>();
    turns.Add(worker);
    context.run();
    EXPECT_EQ(worker->Calls, 1);
    worker->Ready = true;
    turns.WakeWaiting();
    context.restart();
    context.run();
    EXPECT_EQ(worker->Calls, 2);
}

TEST(PeerWatch, AConnectedPeerHasNotLeft)
{
    sCONNECTION connection;
    EXPECT_FALSE(CPeerWatch(connection.Own).HasLeft());
}

TEST(PeerWatch, AClosedPeerHasLeftWithItsBytesUnread)
{
    sCONNECTION connection;
    asio::write(connection.Peer, asio::buffer("unread", 6));
    connection.Peer.close();
    CPeerWatch watch(connection.Own);
    EXPECT_TRUE(LeavesSoon(watch));
}

TEST(PeerWatch, APeerThatStopsSendingStillListens)
{
    sCONNECTION connection;
    connection.Peer.shutdown(asio::socket_base::shutdown_send);
    char byte;
    std::error_code error;
    connection.Own.read_some(asio::buffer(&byte, 1), error);
    ASSERT_EQ(error, asio::error::eof);
    CPeerWatch watch(connection.Own);
    EXPECT_FALSE(watch.HasLeft());
    connection.Peer.close();
    EXPECT_TRUE(LeavesSoon(watch));
}

} // namespace zantroq::feed
