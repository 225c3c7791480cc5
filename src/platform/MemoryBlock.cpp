#include "platform/MemoryBlock.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

// The sanitizers track memory through realloc; remapped pages would keep stale shadow state.
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

// Blocks of this size and more get a mapping of their own, with address space to grow in. Only written pages
// take memory.
constexpr std::size_t LargeBlock = 2 * 1024 * 1024;
constexpr std::size_t Reservation = 16 * LargeBlock;

// Powers of two, because the C library copies a block that it cannot extend. Returns 0 if the size is too
// large.
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
// Filling a series is a fifth faster if the system can use pages of this size.
constexpr std::size_t HugePage = 2 * 1024 * 1024;

// Used from the first huge page on: a block that gets here fills at least half of it.
void AdviseHugePages(void* data, std::size_t bytes)
{
    ::madvise(data, bytes, MADV_HUGEPAGE);
}

// Maps `bytes` of fresh address space, aligned to a huge page; `bytes` is a multiple of one. Null: no address
// space left.
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
    // Moving and enlarging in one call keeps one mapping; kernels before Linux 6.17 can remap only one
    // mapping at a time.
    if (::mremap(data, oldBytes, bytes, MREMAP_MAYMOVE | MREMAP_FIXED, moved) != MAP_FAILED)
        return moved;
    // The state of the range at `moved` is unknown now: the system may have unmapped it before the failure.
    // It is abandoned, which costs only address space.
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
