#include "feed/server/WorkTurns.h"

#include <algorithm>
#include <utility>

namespace zantroq::feed {

void CWorkTurns::Add(const std::shared_ptr<CWorker>& worker)
{
    if (worker->m_hasTurns)
        return;
    worker->m_hasTurns = true;
    worker->m_used = std::max(worker->m_used, m_leastUsed);
    m_workers.push_back(worker);
    Plan();
}

void CWorkTurns::WakeWaiting()
{
    for (const auto& worker : std::exchange(m_waiting, {})) {
        worker->m_hasTurns = false;
        Add(worker);
    }
}

void CWorkTurns::Plan()
{
    if (m_planned || m_workers.empty())
        return;
    m_planned = true;
    // One handler runs one slice, so that the context serves the sockets between two slices.
    asio::post(m_context, [this] {
        m_planned = false;
        RunNext();
        Plan();
    });
}

std::shared_ptr<CWorker> CWorkTurns::TakeLeastServed()
{
    // Of workers with equal time, the newest one: it most likely has a short request.
    const auto least = std::min_element(m_workers.rbegin(), m_workers.rend(),
                                        [](const auto& a, const auto& b) { return a->m_used < b->m_used; });
    std::shared_ptr<CWorker> worker = *least;
    m_workers.erase(std::next(least).base());
    return worker;
}

void CWorkTurns::RunNext()
{
    if (m_workers.empty())
        return;
    const std::shared_ptr<CWorker> worker = TakeLeastServed();
    m_leastUsed = std::max(m_leastUsed, worker->m_used);
    const auto start = CWorkSlice::TClock::now();
    CWorkSlice slice(start + SliceLength);
    const WorkProgress progress = worker->Work(slice);
    worker->m_used += CWorkSlice::TClock::now() - start;
    worker->m_hasTurns = progress != WorkProgress::Ended;
    if (progress == WorkProgress::More)
        m_workers.push_back(worker);
    else if (progress == WorkProgress::Waiting)
        m_waiting.push_back(worker);
}

} // namespace zantroq::feed
