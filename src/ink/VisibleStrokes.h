// Which points of a pixel column are visible when each is a stroke from its high to its low and later points
// cover earlier ones: walking backwards, those that reach beyond all points walked before. Looks at eight
// points at a time, without a branch, as long as the strokes leave no gap between them; needs a processor
// with AVX2. Lives for one drawing, on the chart window's thread.
#pragma once

#include "ink/BarSource.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zantroq {

class CVisibleStrokes
{
public:
    explicit CVisibleStrokes(const sPlotMap& map);

    // Whether Find can succeed for this plot on this processor.
    bool Available() const { return m_available; }
    // From here on Find fails at once.
    void TurnOff() { m_available = false; }

    // Points first to last, last exclusive, all of one column. False, with nothing found, when the column
    // needs the slow path: fewer than eight points, points without a value or very far outside, the last
    // point outside the plot, or a gap between the strokes.
    bool Find(std::span<const double> high, std::span<const double> low, std::size_t first, std::size_t last);

    // The visible points, the last one first. Each reaches further than those found before it; together with
    // it they cover from Up rows above the plot's bottom to Down rows below its top. Valid until the next
    // Find.
    struct sFound
    {
        std::size_t Count;
        const std::int16_t *Point, *Up, *Down; // Point counts from `first`
    };
    sFound Found() const { return {m_count, m_points.data(), m_up.data(), m_down.data()}; }

private:
    struct sWalk;
    void MakeRoom(std::size_t points);
    std::size_t Walk(const double* high, const double* low, std::size_t count, int up, int down);

    const sPlotMap& m_map;
    bool m_available;
    std::size_t m_count = 0;
    std::vector<std::int16_t> m_points, m_up, m_down;
};

} // namespace zantroq
