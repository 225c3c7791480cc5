#include "platform/LargePages.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <new>
#include <numeric>
#include <vector>

namespace zantroq {
namespace {

TEST(LargePages, AVectorGrowsThroughAllSizesAndKeepsItsNumbers)
{
    std::vector<int, CLargePages<int>> numbers;
    for (const std::size_t size : {1u, 100u, 262143u, 262144u, 300000u, 524288u, 524289u, 2000000u, 5u}) {
        const std::size_t had = numbers.size();
        numbers.resize(size);
        if (size > had)
            std::iota(numbers.begin() + static_cast<std::ptrdiff_t>(had), numbers.end(),
                      static_cast<int>(had));
        numbers.shrink_to_fit();
        for (std::size_t i = 0; i < size; ++i)
            ASSERT_EQ(numbers[i], static_cast<int>(i)) << "of " << size;
    }
}

TEST(LargePages, AMegabyteAndMoreBeginsAtALargePage)
{
    void* const data = AllocateLarge(1024 * 1024);
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(data) % (2 * 1024 * 1024), 0u);
    FreeLarge(data);
}

TEST(LargePages, WhatNoMemoryHoldsThrows)
{
    CLargePages<double> pages;
    EXPECT_THROW(static_cast<void>(pages.allocate(static_cast<std::size_t>(-1) / 8)), std::bad_alloc);
}

} // namespace
} // namespace zantroq
