#include "platform/Lock.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace zantroq;

TEST(Lock, OneThreadAtATimeIsInside)
{
    constexpr int Threads = 4, Rounds = 20000;
    CLock lock;
    long count = 0; // not atomic: only the lock protects it
    std::vector<std::thread> threads;
    for (int i = 0; i < Threads; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < Rounds; ++round) {
                CLockGuard guard(lock);
                ++count;
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(count, Threads * Rounds);
}

TEST(Lock, AWaiterGetsInAfterALongHold)
{
    CLock lock;
    bool inside = false;
    lock.lock();
    std::thread waiter([&] {
        CLockGuard guard(lock);
        inside = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(20)); // past the spins and the yields
    EXPECT_FALSE(inside);
    lock.unlock();
    waiter.join();
    EXPECT_TRUE(inside);
}
