#include "ink/VisibleSpans.h"

#include "ink/InkStyle.h"
#include "platform/Prefetch.h"
#include "scene/MinMax.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zantroq {

namespace {

// The values that lie for sure within the pixel rows of one piece: the rows' edges taken a little inside.
class CCovered
{
public:
    explicit CCovered(const CAxisMap& map)
        : m_map(map), m_unitsPerPixel(map.PixelsPerUnit() == 0 ? 0 : 1 / map.PixelsPerUnit())
    {
    }
    void Set(int top, int bottom)
    {
        if (m_unitsPerPixel == 0) { // all values lie in one row
            Least = -std::numeric_limits<double>::infinity();
            Greatest = -Least;
            return;
        }
        const double a = Value(top - 0.49), b = Value(bottom - 0.51);
        Greatest = std::max(a, b);
        Least = std::min(a, b);
    }
    double Least = 0, Greatest = 0;

private:
    double Value(double pixel) const { return m_map.Low() + (pixel - m_map.First()) * m_unitsPerPixel; }

    const CAxisMap& m_map;
    const double m_unitsPerPixel;
};

} // namespace

CVisibleSpans::CVisibleSpans(const sBarSource& source, const sPlotMap& map, std::vector<sSeenPart>& found)
    : m_source(source),
      m_map(map),
      m_found(found),
      m_bars(IsBarType(source.Type)),
      m_plainRows(map.Y.PixelsPerUnit() < 0)
{
}

// Finds what is seen of the points, the last one on top.
void CVisibleSpans::Find(std::size_t first, std::size_t last)
{
    m_pieces.clear();
    if (m_bars && FindBars(first, last))
        return;
    std::size_t i = last;
    while (i > first)
        if (m_pieces.size() == 1)
            i = FindBeyondOnePiece(first, i);
        else
            TakeAny(--i);
}

// Bars have one color, and all of them touch the origin: their ends tell what is seen. False, with nothing
// taken, when some are not there.
bool CVisibleSpans::FindBars(std::size_t first, std::size_t last)
{
    sMinMax ends;
    if (!IsDrawn(m_source.Origin) || !FindMinMax(m_source.Bars, first, last, ends))
        return false;
    sRowSpan rows(m_map.Y, std::max(ends.Greatest, m_source.Origin), std::min(ends.Least, m_source.Origin));
    if (rows.CutTo(m_map.Plot))
        Cover(rows.Top, rows.Bottom, last - 1);
    return true;
}

// While what is covered has no gap, only points that reach beyond it matter. Returns where a point was met
// that leaves a gap, which has been taken, or first.
std::size_t CVisibleSpans::FindBeyondOnePiece(std::size_t first, std::size_t i)
{
    const double* const high = m_source.High.data();
    const double* const low = m_bars ? high : m_source.Low.data();
    sPiece& piece = m_pieces[0];
    CCovered covered(m_map.Y);
    covered.Set(piece.Top, piece.Bottom);
    while (i > first) {
        i = SkipWithin(high, low, first, i, covered.Least, covered.Greatest);
        const std::size_t stop = i - std::min<std::size_t>(i - first, 8);
        // Where one point reaches beyond, its neighbours often do.
        while (i > stop) {
            --i;
            const double a = high[i], b = m_bars ? m_source.Origin : low[i];
            const double greatest = std::max(a, b), least = std::min(a, b);
            if (greatest <= covered.Greatest && least >= covered.Least)
                continue;
            if (!IsDrawn(a) || !IsDrawn(b))
                continue;
            if (!m_plainRows || m_examineAll || least > covered.Greatest || greatest < covered.Least) {
                TakeAny(i);
                if (m_pieces.size() != 1)
                    return i;
                covered.Set(piece.Top, piece.Bottom);
                continue;
            }
            // It touches what is covered: it can only lengthen it, at either end.
            if (greatest > covered.Greatest) {
                const int top = std::max(m_map.Y.Pixel(greatest), m_map.Plot.Top);
                if (top < piece.Top)
                    Add(top, std::exchange(piece.Top, top), i);
            }
            if (least < covered.Least) {
                const int bottom = std::min(m_map.Y.Pixel(least) + 1, m_map.Plot.Bottom);
                if (bottom > piece.Bottom)
                    Add(std::exchange(piece.Bottom, bottom), bottom, i);
            }
            covered.Set(piece.Top, piece.Bottom);
            if (piece.Top == m_map.Plot.Top && piece.Bottom == m_map.Plot.Bottom)
                return first;
        }
    }
    return i;
}

// One point, whatever the pieces are.
void CVisibleSpans::TakeAny(std::size_t i)
{
    const double a = m_source.High[i], b = m_bars ? m_source.Origin : m_source.Low[i];
    if (!IsDrawn(a) || !IsDrawn(b) || (m_examineAll && !m_bars && !m_source.IsComplete(i)))
        return;
    sRowSpan rows(m_map.Y, a, b);
    if (rows.CutTo(m_map.Plot))
        Cover(rows.Top, rows.Bottom, i);
}

inline void CVisibleSpans::Add(int top, int bottom, std::size_t i)
{
    m_found.push_back({top, bottom, i});
    if (!m_bars) {
        Prefetch(m_source.Open.data() + i, 1);
        Prefetch(m_source.Close.data() + i, 1);
    }
}

// Finds what [top, bottom) shows beside the pieces that are there, and joins it to them.
void CVisibleSpans::Cover(int top, int bottom, std::size_t i)
{
    int from = top;
    std::size_t at = 0;
    while (at < m_pieces.size() && m_pieces[at].Bottom < top)
        ++at;
    std::size_t end = at;
    sPiece joined{top, bottom};
    for (; end < m_pieces.size() && m_pieces[end].Top <= bottom; ++end) {
        if (from < m_pieces[end].Top)
            Add(from, std::min(bottom, m_pieces[end].Top), i);
        from = std::max(from, m_pieces[end].Bottom);
        joined = {std::min(joined.Top, m_pieces[end].Top), std::max(joined.Bottom, m_pieces[end].Bottom)};
    }
    if (from < bottom)
        Add(from, bottom, i);
    if (at == end)
        m_pieces.insert(m_pieces.begin() + static_cast<std::ptrdiff_t>(at), joined);
    else {
        m_pieces[at] = joined;
        m_pieces.erase(m_pieces.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                       m_pieces.begin() + static_cast<std::ptrdiff_t>(end));
    }
}

} // namespace zantroq
