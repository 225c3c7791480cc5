// The parts of a picture that were painted since it was cleared, so that the next painting wipes only those.
// Consecutive rectangles are merged where wiping their common rectangle costs no more than wiping both.
// Chart window's thread.
#pragma once

#include "paint/PixelRects.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace zantroq {

class CDirtyRects
{
public:
    void Add(const sPixelRect& rect)
    {
        const std::int64_t cost = Cost(rect);
        if (!m_rects.empty()) {
            const sPixelRect& last = m_rects.back();
            const sPixelRect both = Enclosing(last, rect);
            const std::int64_t bothCost = Cost(both);
            if (bothCost <= m_lastCost + cost) {
                m_rects.back() = both;
                m_lastCost = bothCost;
                return;
            }
        }
        m_rects.push_back(rect);
        m_lastCost = cost;
    }

    void Clear() { m_rects.clear(); }

    // Drops the newest rectangles up to the first that reaches out of `inside`, which the caller repaints
    // from the background up.
    void DropNewest(const sPixelRect& inside)
    {
        while (!m_rects.empty() && LiesInside(m_rects.back(), inside))
            m_rects.pop_back();
        m_lastCost = m_rects.empty() ? 0 : Cost(m_rects.back());
    }

    const std::vector<sPixelRect>& Rects() const { return m_rects; }

private:
    // The cost of wiping a rectangle, in pixels. A row costs at least a cache line of pixels; a rectangle
    // by itself costs about 64 pixels more.
    static std::int64_t Cost(const sPixelRect& rect)
    {
        constexpr int cacheLine = 8, perRect = 64;
        return perRect + std::int64_t{std::max(rect.Width(), cacheLine)} * rect.Height();
    }

    std::vector<sPixelRect> m_rects;
    std::int64_t m_lastCost = 0; // of the last rectangle
};

} // namespace zantroq
