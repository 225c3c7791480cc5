#include "platform/Lock.h"

#include <chrono>
#include <thread>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zantroq {

namespace {

constexpr int Spins = 100; // some microseconds: longer than an append holds the lock
constexpr int Yields = 20; // the holder may be waiting for this core
constexpr auto Nap = std::chrono::microseconds(50);

void Pause()
{
#if defined(__SSE2__)
    _mm_pause();
#endif
}

} // namespace

bool CLock::TryTake()
{
    return !m_held.load(std::memory_order_relaxed) && !m_held.exchange(true, std::memory_order_acquire);
}

void CLock::Await()
{
    for (int i = 0; i < Spins; ++i) {
        if (TryTake())
            return;
        Pause();
    }
    for (int i = 0; i < Yields; ++i) {
        if (TryTake())
            return;
        std::this_thread::yield();
    }
    // A bulk read of a large series holds the lock for milliseconds, so sleep.
    while (!TryTake())
        std::this_thread::sleep_for(Nap);
}

} // namespace zantroq
