// Shares the feed's thread between the clients that have work: one slice of at most 2 ms at a time goes to
// the client that has used the least time so far, and the sockets are served between any two slices. A short
// request is therefore answered after a slice or two, however long the work of the others is. Used on the
// feed's thread.
#pragma once

#include "feed/markets/WorkSlice.h"

#include <asio.hpp>

#include <memory>
#include <vector>

namespace zantroq::feed {

class CWorker
{
public:
    virtual ~CWorker() = default;
    // Works until the slice is over or nothing is left to do.
    virtual WorkProgress Work(CWorkSlice& slice) = 0;

private:
    friend class CWorkTurns;
    // Time used. Raised to what busy workers have used when this one becomes busy again, so that idle time
    // gives no claim to a long run later.
    CWorkSlice::TClock::duration m_used{};
    bool m_hasTurns = false;
};

class CWorkTurns
{
public:
    static constexpr std::chrono::milliseconds SliceLength{2};

    explicit CWorkTurns(asio::io_context& context) : m_context(context) {}

    // Gives the worker turns until it reports that it has ended. Nothing happens when it has turns already.
    void Add(const std::shared_ptr<CWorker>& worker);
    // Gives turns again to the workers that reported that they are waiting.
    void WakeWaiting();

private:
    void Plan();
    void RunNext();
    std::shared_ptr<CWorker> TakeLeastServed();

    asio::io_context& m_context;
    std::vector<std::shared_ptr<CWorker>> m_workers, m_waiting;
    CWorkSlice::TClock::duration m_leastUsed{}; // of the workers that had turns last
    bool m_planned = false;
};

} // namespace zantroq::feed
