// A mutual-exclusion lock and its scope guard that clang's thread-safety analysis understands. Any thread.
#pragma once

#include "platform/ThreadAnnotations.h"

#include <mutex>

namespace zantroq {

class CAPABILITY("mutex") CLock
{
public:
    void lock() ACQUIRE() { m_mutex.lock(); }
    void unlock() RELEASE() { m_mutex.unlock(); }

private:
    std::mutex m_mutex;
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
