#include "platform/MemoryBlock.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <new>

using namespace zantroq;

TEST(MemoryBlock, ContentsSurviveEveryGrowth)
{
    // From the C library's memory over a mapping of its own to a larger mapping.
    sMemoryBlock block;
    std::size_t filled = 0;
    for (const std::size_t bytes :
         {std::size_t(80000), std::size_t(900000), std::size_t(1) << 20, (std::size_t(1) << 20) + 1,
          std::size_t(5) << 20, (std::size_t(32) << 20) + 1, std::size_t(70) << 20}) {
        GrowBlock(block, bytes);
        ASSERT_GE(block.Bytes, bytes);
        auto* const data = static_cast<std::uint8_t*>(block.Data);
        for (; filled < bytes; filled += 1021)
            data[filled] = static_cast<std::uint8_t>(filled * 7);
        for (std::size_t i = 0; i < filled; i += 1021)
            ASSERT_EQ(data[i], static_cast<std::uint8_t>(i * 7)) << bytes;
    }
    FreeBlock(block);
    EXPECT_EQ(block.Data, nullptr);
    EXPECT_EQ(block.Bytes, 0u);
}

TEST(MemoryBlock, WhatCannotBeHadLeavesTheBlockAsItWas)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "the sanitizers end the program where the system's allocator says no";
#else
    sMemoryBlock block;
    GrowBlock(block, 100);
    static_cast<char*>(block.Data)[99] = 'x';
    constexpr std::size_t greatest = std::numeric_limits<std::size_t>::max();
    for (const std::size_t bytes : {greatest / 4, greatest / 2 + 1, greatest / 2 + 2, greatest})
        EXPECT_THROW(GrowBlock(block, bytes), std::bad_alloc) << bytes;
    EXPECT_EQ(static_cast<char*>(block.Data)[99], 'x');
    FreeBlock(block);
#endif
}
