#include "scene/BlockMinMax.h"

#include "scene/HoleValue.h"
#include "scene/MinMaxLanes.h"

#include <limits>

namespace zantroq {

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

bool AnyDrawn(std::span<const double> values)
{
    bool any = false;
    for (const double value : values)
        any |= IsDrawn(value);
    return any;
}

constexpr sMinMax Undrawn{HoleValue, HoleValue};

sMinMax BoundsOf(std::span<const double> block)
{
    CMinMaxLanes lanes;
    lanes.Take(block.first<sBlockedValues::BlockSize>());
    sMinMax found;
    if (lanes.Finish(HoleValue, found))
        return found;
    return AnyDrawn(block) ? sMinMax{-Infinity, Infinity} : Undrawn;
}

} // namespace

void CBlockMinMax::Learn(std::span<const double> places, std::size_t begin)
{
    constexpr std::size_t size = sBlockedValues::BlockSize;
    const std::size_t blocks = places.size() / size, first = (begin + size - 1) / size;
    if (m_bounds.size() < 2 * blocks)
        m_bounds.resize(2 * blocks);
    for (std::size_t block = std::max(m_known, first); block < blocks; ++block) {
        const sMinMax found = BoundsOf(places.subspan(block * size, size));
        m_bounds[2 * block] = found.Least;
        m_bounds[2 * block + 1] = found.Greatest;
    }
    m_known = std::max(m_known, blocks);
}

sBlockedValues CBlockMinMax::Of(std::span<const double> places, std::size_t begin) const
{
    const std::size_t first = (begin + sBlockedValues::BlockSize - 1) / sBlockedValues::BlockSize;
    sBlockedValues values{places.subspan(begin), {}, first * sBlockedValues::BlockSize - begin};
    if (first < m_known)
        values.Bounds = std::span<const double>(m_bounds).subspan(2 * first, 2 * (m_known - first));
    return values;
}

bool FindMinMax(const sBlockedValues& values, std::size_t first, std::size_t end, sMinMax& found)
{
    const std::size_t block = values.FirstBlock(first), endBlock = values.EndBlock(end);
    if (endBlock < block + 2)
        return FindMinMax(values.Values.subspan(first, end - first), found);
    CMinMaxLanes lanes;
    lanes.Take(values.Values.subspan(first, values.BeginOf(block) - first));
    lanes.Take(values.Bounds.subspan(2 * block, 2 * (endBlock - block)));
    lanes.Take(values.Values.subspan(values.BeginOf(endBlock), end - values.BeginOf(endBlock)));
    return lanes.Finish(HoleValue, found);
}

std::size_t SkipUndrawn(const sBlockedValues& values, std::size_t i)
{
    constexpr std::size_t size = sBlockedValues::BlockSize;
    std::size_t block = values.FirstBlock(i);
    if (block < values.Blocks()) {
        if (AnyDrawn(values.Values.subspan(i, values.BeginOf(block) - i)))
            return i;
        while (block < values.Blocks() && values.Bounds[2 * block] == Undrawn.Least)
            ++block;
        return values.BeginOf(block);
    }
    for (; i + size <= values.Values.size(); i += size)
        if (AnyDrawn(values.Values.subspan(i, size)))
            return i;
    return i;
}

} // namespace zantroq
