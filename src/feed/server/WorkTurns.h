// Divides the time of the feed's thread among the clients that have work. A slice of at most 2 ms goes to the
// client that has used the least time so far; between two slices the sockets are served. A short request
// therefore waits for a slice or two, however long the requests of the other clients take. Feed thread only.
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
    // Works until the slice is over or no work is left.
    virtual WorkProgress Work(CWorkSlice& slice) = 0;

private:
    friend class CWorkTurns;
    // Time used so far. When an idle worker becomes busy, it is raised to what the busy workers have used, so
    // that idle time earns no long run later.
    CWorkSlice::TClock::duration m_used{};
    bool m_hasTurns = false;
};

class CWorkTurns
{
public:
    static constexpr std::chrono::milliseconds SliceLength{2};

    explicit CWorkTurns(asio::io_context& context) : m_context(context) {}

    // Gives turns to the worker until its Work returns Ended. Does nothing if the worker has turns already.
    void Add(const std::shared_ptr<CWorker>& worker);
    // Gives turns again to all workers whose Work returned Waiting.
    void WakeWaiting();

private:
    void Plan();
    void RunNext();
    std::shared_ptr<CWorker> TakeLeastServed();

    asio::io_context& m_context;
    std::vector<std::shared_ptr<CWorker>> m_workers, m_waiting;
    CWorkSlice::TClock::duration m_leastUsed{}; // Time used by the workers that had turns last.
    bool m_planned = false;
};

} // namespace zantroq::feed
