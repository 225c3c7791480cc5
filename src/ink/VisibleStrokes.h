// Which points of a pixel column are seen when each is a stroke from its high to its low and the later ones
// lie on top: walked backwards, those that reach beyond all walked before. Eight points at a time and without
// a branch, for points that hang together; it needs a processor with AVX2. Lives for one drawing, on the
// chart window's thread.
#pragma once

#include "scene/PaneGeometry.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zantroq {

class CVisibleStrokes
{
public:
    explicit CVisibleStrokes(const sPlotMap& map);

    // Whether Find is of any use for this plot on this processor.
    bool Available() const { return m_available; }
    // From here on Find gives up at once.
    void TurnOff() { m_available = false; }

    // Points first to last, exclusive. False, with nothing found, when it takes another way to tell: fewer
    // than eight points, some that are not drawn or lie very far outside, the last one out of sight, a gap
    // between the strokes.
    bool Find(std::span<const double> high, std::span<const double> low, std::size_t first, std::size_t last);

    // What was found, the last point first. Each point reaches further than those in front of it; with it,
    // what they cover reaches from Up rows above the plot's bottom to Down rows below its top.
    struct sFound
    {
        std::size_t Count;
        const std::int16_t *Point, *Up, *Down; // Point behind `first`
    };
    sFound Found() const { return {m_count, m_points.data(), m_up.data(), m_down.data()}; }

private:
    struct sWalk;
    std::size_t Walk(const double* high, const double* low, std::size_t count, int up, int down);

    const sPlotMap& m_map;
    bool m_available;
    std::size_t m_count = 0;
    std::vector<std::int16_t> m_points, m_up, m_down;
};

} // namespace zantroq
