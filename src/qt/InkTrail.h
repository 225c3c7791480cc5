// Where ink went on a picture, so that the next painting wipes that and nothing else. Neighbouring pieces are
// kept as one rectangle as long as that is not much larger than they are. Chart window's thread.
#pragma once

#include "drawing/PaneObjects.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace zantroq {

class CInkTrail
{
public:
    void Add(const sPixelRect& rect)
    {
        const std::int64_t area = Area(rect);
        if (!m_rects.empty()) {
            const sPixelRect& last = m_rects.back();
            const sPixelRect both{std::min(last.Left, rect.Left), std::min(last.Top, rect.Top),
                                  std::max(last.Right, rect.Right), std::max(last.Bottom, rect.Bottom)};
            const std::int64_t bothArea = Area(both);
            if (bothArea <= 2 * (m_inked + area) + Slack) {
                m_rects.back() = both;
                m_inked = std::min(m_inked + area, bothArea);
                return;
            }
        }
        m_rects.push_back(rect);
        m_inked = area;
    }

    void Clear() { m_rects.clear(); }

    // Forgets the newest ink as far as it lies inside: it is about to be painted over.
    void DropNewest(const sPixelRect& inside)
    {
        while (!m_rects.empty() && m_rects.back().Left >= inside.Left &&
               m_rects.back().Right <= inside.Right && m_rects.back().Top >= inside.Top &&
               m_rects.back().Bottom <= inside.Bottom)
            m_rects.pop_back();
        m_inked = m_rects.empty() ? 0 : Area(m_rects.back());
    }

    const std::vector<sPixelRect>& Rects() const { return m_rects; }

private:
    static constexpr std::int64_t Slack = 64; // pixels that are cheaper to wipe than a rectangle is to keep

    static std::int64_t Area(const sPixelRect& rect) { return std::int64_t{rect.Width()} * rect.Height(); }

    std::vector<sPixelRect> m_rects;
    std::int64_t m_inked = 0; // pixels of ink in the last rectangle, at most
};

} // namespace zantroq
