#include "platform/LargePages.h"

#include <cstdlib>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace zantroq {

namespace {

constexpr std::size_t LargePage = 2 * 1024 * 1024;
constexpr std::size_t WorthIt = LargePage / 2;

} // namespace

void* AllocateLarge(std::size_t bytes)
{
    if (bytes < WorthIt)
        return std::malloc(bytes > 0 ? bytes : 1);
    const std::size_t whole = (bytes + LargePage - 1) / LargePage * LargePage;
    void* const data = std::aligned_alloc(LargePage, whole);
#ifdef __linux__
    if (data)
        ::madvise(data, whole, MADV_HUGEPAGE); // harmless where the system has no huge pages
#endif
    return data;
}

void FreeLarge(void* data)
{
    std::free(data);
}

} // namespace zantroq
