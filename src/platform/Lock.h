// A mutual-exclusion lock and its scope guard that clang's thread-safety analysis understands. Any thread.
// Made for sections of a few dozen instructions that are entered millions of times a second by one thread and
// now and then by another: taking a free lock is one atomic exchange and giving it back a plain store, half
// the cost of std::mutex. Whoever finds it taken spins shortly, then yields, then naps. Not recursive, not
// fair.
#pragma once

#include "platform/ThreadAnnotations.h"

#include <atomic>

namespace zantroq {

class CAPABILITY("mutex") CLock
{
public:
    void lock() ACQUIRE()
    {
        if (m_held.exchange(true, std::memory_order_acquire)) [[unlikely]]
            Await();
    }
    void unlock() RELEASE() { m_held.store(false, std::memory_order_release); }

private:
    bool TryTake();
    void Await();

    std::atomic<bool> m_held{false};
};

// Holds the lock for the span of its scope.
class SCOPED_CAPABILITY CLockGuard
{
public:
    explicit CLockGuard(CLock& lock) ACQUIRE(lock) : m_lock(lock) { m_lock.lock(); }
    ~CLockGuard() RELEASE() { m_lock.unlock(); }
    CLockGuard(const CLockGuard&) = delete;
    CLockGuard& operator=(const CLockGuard&) = delete;

private:
    CLock& m_lock;
};

} // namespace zantroq
