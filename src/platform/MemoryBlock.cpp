#include "platform/MemoryBlock.h"

#include <bit>
#include <cstdlib>
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

// From here on a block is mapped on its own and its size is a power of two.
constexpr std::size_t LargeBlock = 256 * 1024;

std::size_t RoundedSize(std::size_t bytes)
{
    return bytes < LargeBlock ? bytes : std::bit_ceil(bytes);
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
void* Mapped(void* data)
{
    return data == MAP_FAILED ? nullptr : data;
}

void* Map(std::size_t bytes)
{
    return Mapped(
        ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
}

void* Resize(void* data, std::size_t oldBytes, std::size_t bytes)
{
    if (bytes < LargeBlock)
        return std::realloc(data, bytes);
    if (oldBytes >= LargeBlock)
        return Mapped(::mremap(data, oldBytes, bytes, MREMAP_MAYMOVE));
    void* moved = Map(bytes);
    if (moved && data) {
        __builtin_memcpy(moved, data, oldBytes);
        std::free(data);
    }
    return moved;
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
