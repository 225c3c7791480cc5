// Where ink went on a picture, so that the next painting wipes that and nothing else. Neighbouring pieces are
// kept as one rectangle as long as that is not much larger than they are. Chart window's thread.
#pragma once

#include "scene/PaneObjects.h"

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
            const sPixelRect both{std::min(last.Left, rect.Left), std::min(last.Top, rect.Top),
                                  std::max(last.Right, rect.Right), std::max(last.Bottom, rect.Bottom)};
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

    // Forgets the newest ink as far as it lies inside: it is about to be painted over.
    void DropNewest(const sPixelRect& inside)
    {
        while (!m_rects.empty() && m_rects.back().Left >= inside.Left &&
               m_rects.back().Right <= inside.Right && m_rects.back().Top >= inside.Top &&
               m_rects.back().Bottom <= inside.Bottom)
            m_rects.pop_back();
        m_lastCost = m_rects.empty() ? 0 : Cost(m_rects.back());
    }

    const std::vector<sPixelRect>& Rects() const { return m_rects; }

private:
    // What wiping a rectangle costs, in pixels: a row of a few pixels takes as long as one of a cache line.
    static std::int64_t Cost(const sPixelRect& rect)
    {
        constexpr int cacheLine = 8, perRect = 64;
        return perRect + std::int64_t{std::max(rect.Width(), cacheLine)} * rect.Height();
    }

    std::vector<sPixelRect> m_rects;
    std::int64_t m_lastCost = 0; // of the last rectangle
};

} // namespace zantroq
