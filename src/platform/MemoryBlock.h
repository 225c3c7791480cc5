// Raw memory for arrays that grow in small steps to hundreds of megabytes. A block takes address space by
// powers of two, of which only touched pages take memory, and a large one grows by moving pages, not bytes. A
// block belongs to one owner; no lock.
#pragma once

#include <cstddef>

namespace zantroq {

struct sMemoryBlock
{
    void* Data = nullptr;
    std::size_t Bytes = 0; // address space held, at least what was asked for
};

// Makes the block hold at least `bytes`, its contents kept. Throws std::bad_alloc and leaves the block as it
// was.
void GrowBlock(sMemoryBlock& block, std::size_t bytes);

// Gives the memory back and leaves an empty block.
void FreeBlock(sMemoryBlock& block);

} // namespace zantroq
