#include "platform/MemoryBlock.h"

#include <cstdint>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <new>
#include <sstream>
#include <string>

#ifdef __linux__
#include <sys/mman.h>
#endif

// The two compilers name their sanitizers in two ways.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define ZANTROQ_PLAIN_BLOCKS 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ZANTROQ_PLAIN_BLOCKS 1
#endif

using namespace zantroq;

TEST(MemoryBlock, ContentsSurviveEveryGrowth)
{
    // From the C library's memory to a separate mapping and to a larger mapping.
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

#if defined(__linux__) && !defined(ZANTROQ_PLAIN_BLOCKS)
constexpr std::size_t MegaByte = 1024 * 1024;

// True if the whole block is one mapping of the system.
bool IsOneMapping(const sMemoryBlock& block)
{
    const auto begin = reinterpret_cast<std::uintptr_t>(block.Data), end = begin + block.Bytes;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        std::istringstream range(line);
        std::uintptr_t first = 0, last = 0;
        char dash = 0;
        range >> std::hex >> first >> dash >> last;
        if (first <= begin && begin < last)
            return end <= last;
    }
    return false;
}

// Most kernels can remap a block only then; before Linux 6.17 a block of two mappings could not grow.
TEST(MemoryBlock, ALargeOneStaysOneMappingHoweverOftenItGrows)
{
    sMemoryBlock block;
    for (const std::size_t bytes :
         {5 * MegaByte, 33 * MegaByte, 70 * MegaByte, 130 * MegaByte, 300 * MegaByte}) {
        GrowBlock(block, bytes);
        auto* const data = static_cast<std::uint8_t*>(block.Data);
        data[bytes / 2] = data[bytes - 1] = 1;
        EXPECT_TRUE(IsOneMapping(block)) << bytes;
    }
    FreeBlock(block);
}

TEST(MemoryBlock, OneThatTheSystemWillNotMoveGrowsAllTheSame)
{
    sMemoryBlock block;
    GrowBlock(block, 30 * MegaByte);
    auto* data = static_cast<std::uint8_t*>(block.Data);
    for (std::size_t i = 0; i < 30 * MegaByte; i += 1021)
        data[i] = static_cast<std::uint8_t>(i * 7);
    // Two kinds of memory in one block: a reason for older kernels to refuse.
    ASSERT_EQ(::madvise(data + 8 * MegaByte, 8 * MegaByte, MADV_NOHUGEPAGE), 0);
    ASSERT_FALSE(IsOneMapping(block));
    GrowBlock(block, 90 * MegaByte);
    data = static_cast<std::uint8_t*>(block.Data);
    data[90 * MegaByte - 1] = 1;
    for (std::size_t i = 0; i < 30 * MegaByte; i += 1021)
        ASSERT_EQ(data[i], static_cast<std::uint8_t>(i * 7)) << i;
    FreeBlock(block);
}
#endif

TEST(MemoryBlock, WhatCannotBeHadLeavesTheBlockAsItWas)
{
#ifdef ZANTROQ_PLAIN_BLOCKS
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
