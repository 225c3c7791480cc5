// Raw memory for arrays that grow in small steps to hundreds of megabytes. A block reserves address space in
// powers of two; only touched pages take memory, and a large block grows by remapping its pages without
// copying. Each block has one owner; no lock.
#pragma once

#include <cstddef>

namespace zantroq {

struct sMemoryBlock
{
    void* Data = nullptr;
    std::size_t Bytes = 0; // reserved address space, at least the requested size
};

// Makes the block hold at least `bytes` and keeps its contents. Throws std::bad_alloc and leaves the block
// unchanged if memory is short.
void GrowBlock(sMemoryBlock& block, std::size_t bytes);

// Frees the memory; the block is empty afterwards.
void FreeBlock(sMemoryBlock& block);

} // namespace zantroq
