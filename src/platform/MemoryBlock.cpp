#include "platform/MemoryBlock.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

// The sanitizers follow memory through realloc; pages moved behind their back would keep stale shadow state.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define ZANTROQ_PLAIN_BLOCKS 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || !defined(__linux__)
#define ZANTROQ_PLAIN_BLOCKS 1
#endif

#ifndef ZANTROQ_PLAIN_BLOCKS
#include <sys/mman.h>
#endif

namespace zantroq {

namespace {

// From here on a block is mapped on its own, with address space to grow in; only what is written to takes
// memory.
constexpr std::size_t LargeBlock = 2 * 1024 * 1024;
constexpr std::size_t Reservation = 16 * LargeBlock;

// By powers of two, since the C library copies a block wherever it cannot extend it. 0: too large for one.
std::size_t RoundedSize(std::size_t bytes)
{
    constexpr std::size_t Greatest = std::numeric_limits<std::size_t>::max() / 2 + 1;
    const std::size_t size = bytes > Greatest ? 0 : std::bit_ceil(bytes);
    return size < LargeBlock ? size : std::max(size, Reservation);
}

#ifdef ZANTROQ_PLAIN_BLOCKS
void* Resize(void* data, std::size_t, std::size_t bytes)
{
    return std::realloc(data, bytes);
}

void Release(void* data, std::size_t)
{
    std::free(data);
}
#else
// Filling a series is faster by a fifth when the system may back it with pages of this size.
constexpr std::size_t HugePage = 2 * 1024 * 1024;

// From the first of them on: it is at least half full when a block comes here.
void AdviseHugePages(void* data, std::size_t bytes)
{
    ::madvise(data, bytes, MADV_HUGEPAGE);
}

// `bytes` of fresh address space on a huge page's border, `bytes` being a multiple of one. Null: none is
// left.
void* Map(std::size_t bytes)
{
    void* const whole = ::mmap(nullptr, bytes + HugePage, PROT_READ | PROT_WRITE,
                               MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (whole == MAP_FAILED)
        return nullptr;
    char* const start = static_cast<char*>(whole);
    const std::size_t before = (HugePage - reinterpret_cast<std::uintptr_t>(start) % HugePage) % HugePage;
    if (before > 0)
        ::munmap(start, before);
    if (before < HugePage)
        ::munmap(start + before + bytes, HugePage - before);
    AdviseHugePages(start + before, bytes);
    return start + before;
}

void* Resize(void* data, std::size_t oldBytes, std::size_t bytes)
{
    if (bytes < LargeBlock)
        return std::realloc(data, bytes);
    void* const moved = Map(bytes);
    if (!moved || !data)
        return moved;
    if (oldBytes < LargeBlock) {
        std::memcpy(moved, data, oldBytes);
        std::free(data);
        return moved;
    }
    // Moved and enlarged in one step it stays one mapping; kernels before Linux 6.17 move nothing else.
    if (::mremap(data, oldBytes, bytes, MREMAP_MAYMOVE | MREMAP_FIXED, moved) != MAP_FAILED)
        return moved;
    // What lies at `moved` is unknown now: the system may have made room there before it refused. Address
    // space is all that is lost with it.
    void* const copy = Map(bytes);
    if (copy) {
        std::memcpy(copy, data, oldBytes);
        ::munmap(data, oldBytes);
    }
    return copy;
}

void Release(void* data, std::size_t bytes)
{
    if (bytes < LargeBlock)
        std::free(data);
    else
        ::munmap(data, bytes);
}
#endif

} // namespace

void GrowBlock(sMemoryBlock& block, std::size_t bytes)
{
    if (bytes <= block.Bytes)
        return;
    const std::size_t size = RoundedSize(bytes);
    void* data = size < bytes ? nullptr : Resize(block.Data, block.Bytes, size);
    if (!data)
        throw std::bad_alloc();
    block.Data = data;
    block.Bytes = size;
}

void FreeBlock(sMemoryBlock& block)
{
    if (block.Data)
        Release(block.Data, block.Bytes);
    block = {};
}

} // namespace zantroq
