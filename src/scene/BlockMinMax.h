// The least and greatest of every few numbers of a long vector, so that whoever looks for those of a stretch,
// or for the next number outside of a range, need not read them all. Worked out when it is asked for and kept
// as far as the numbers stay as they are.
#pragma once

#include "scene/MinMax.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace zantroq {

// Numbers and what is known of blocks of them. Good until the numbers change.
struct sBlockedValues
{
    static constexpr std::size_t BlockSize = 16;

    std::span<const double> Values;
    std::span<const double>
        Bounds;           // the least and the greatest of each block in turn; empty: nothing is known
    std::size_t Lead = 0; // numbers before the first block

    std::size_t Blocks() const { return Bounds.size() / 2; }
    std::size_t BeginOf(std::size_t block) const { return Lead + block * BlockSize; }
    // The blocks that lie wholly between two numbers (the second exclusive); First is not below End when none
    // does.
    std::size_t FirstBlock(std::size_t from) const
    {
        return from <= Lead ? 0 : (from - Lead + BlockSize - 1) / BlockSize;
    }
    std::size_t EndBlock(std::size_t to) const
    {
        return to <= Lead ? 0 : std::min(Blocks(), (to - Lead) / BlockSize);
    }
};

// As for a plain stretch of numbers, with the same answer.
bool FindMinMax(const sBlockedValues& values, std::size_t first, std::size_t end, sMinMax& found);
// A place from `i` on before which no number is drawn: whole stretches of holes and not-a-numbers are passed.
std::size_t SkipUndrawn(const sBlockedValues& values, std::size_t i);

class CBlockMinMax
{
public:
    // The numbers from this place on may have become other ones, or be gone.
    void ForgetFrom(std::size_t place) { m_known = std::min(m_known, place / sBlockedValues::BlockSize); }
    // `places` are the numbers by place; those before `begin` are gone.
    void Learn(std::span<const double> places, std::size_t begin);
    // Those from `begin` on with what is known of them.
    sBlockedValues Of(std::span<const double> places, std::size_t begin) const;

private:
    std::vector<double> m_bounds;
    std::size_t m_known = 0; // blocks
};

} // namespace zantroq
