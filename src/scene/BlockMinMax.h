// The least and greatest of each block of a long vector, so that a search for the extremes of a range, or for
// the next value that is drawn, need not read all values. Computed on request and kept as long as the values
// do not change. Chart window's thread.
#pragma once

#include "scene/MinMax.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace zantroq {

// Values with the known bounds of their blocks. Valid until the values change.
struct sBlockedValues
{
    // With blocks of 16, whose bounds take an eighth of the memory of the values, a tick at a full window takes 8.3 ms
    // instead of 42 (bench/RESULTS.md, Studies). Other sizes were not compared.
    static constexpr std::size_t BlockSize = 16;

    std::span<const double> Values;
    // Least and greatest of each block in turn; empty: no bounds are known. A block with nothing drawable is
    // stored as {hole, hole}; a block that mixes numbers with holes, not-a-numbers or infinities as {-inf,
    // +inf}, so that callers fall back to its values.
    std::span<const double> Bounds;
    std::size_t Lead = 0; // values before the first block

    std::size_t Blocks() const { return Bounds.size() / 2; }
    std::size_t BeginOf(std::size_t block) const { return Lead + block * BlockSize; }
    // The blocks that lie completely between two positions, the second exclusive; none does if First is not
    // below End.
    std::size_t FirstBlock(std::size_t from) const
    {
        return from <= Lead ? 0 : (from - Lead + BlockSize - 1) / BlockSize;
    }
    std::size_t EndBlock(std::size_t to) const
    {
        return to <= Lead ? 0 : std::min(Blocks(), (to - Lead) / BlockSize);
    }
};

// As FindMinMax in MinMax.h, with the same result.
bool FindMinMax(const sBlockedValues& values, std::size_t first, std::size_t end, sMinMax& found);
// Skips holes and not-a-numbers by whole blocks. Returns a position from `i` on; no value between the two is
// drawn.
std::size_t SkipUndrawn(const sBlockedValues& values, std::size_t i);

class CBlockMinMax
{
public:
    // The values from this place on may have changed or been removed.
    void ForgetFrom(std::size_t place) { m_known = std::min(m_known, place / sBlockedValues::BlockSize); }
    // Computes the bounds of blocks that are not known. `places` are the values by place; those before
    // `begin` were dropped.
    void Learn(std::span<const double> places, std::size_t begin);
    // The values from `begin` on with the bounds that are known.
    sBlockedValues Of(std::span<const double> places, std::size_t begin) const;

private:
    std::vector<double> m_bounds;
    std::size_t m_known = 0; // blocks whose bounds are known
};

} // namespace zantroq
