#include "ink/VisibleSpans.h"

#include "ink/InkStyle.h"
#include "platform/Prefetch.h"
#include "scene/MinMax.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zantroq {

// The values that lie for certain within the pixel rows of one piece.
struct sCoveredValues
{
    double Least, Greatest;

    static sCoveredValues OfRows(const CAxisMap& map, int top, int bottom)
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        if (map.PixelsPerUnit() == 0) // all values lie in one row
            return {-infinity, infinity};
        // A row reaches half a pixel to each side of its middle. A hundredth of a pixel less on either side
        // is far more than the arithmetic rounds: values that near to an edge are looked at by themselves.
        constexpr double within = 0.49;
        const double a = map.Value(top - within), b = map.Value(bottom - 1 + within);
        return {std::min(a, b), std::max(a, b)};
    }
};

CVisibleSpans::CVisibleSpans(const sBarSource& source, const sPlotMap& map, PriceCheck check,
                             std::vector<sSeenPart>& found)
    : m_source(source),
      m_map(map),
      m_found(found),
      m_check(check),
      m_bars(IsBarType(source.Type)),
      m_upwards(map.Y.PixelsPerUnit() < 0)
{
}

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

// Bars have one color, and all of them touch the origin: their ends tell what is visible. False, with nothing
// taken, when a bar lacks its value.
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

// While the covered rows have no gap, only points that reach beyond them matter. Returns the place of a point
// that left a gap, which has been taken, or first.
std::size_t CVisibleSpans::FindBeyondOnePiece(std::size_t first, std::size_t i)
{
    // Where one point reaches beyond, its neighbors often do: so many are looked at one by one before points
    // are skipped again, as many as SkipWithin compares at a time.
    constexpr std::size_t neighbors = 8;
    const double* const high = m_source.High.data();
    const double* const low = m_bars ? high : m_source.Low.data();
    const sPiece& piece = m_pieces[0];
    sCoveredValues covered = sCoveredValues::OfRows(m_map.Y, piece.Top, piece.Bottom);
    while (i > first) {
        i = SkipWithin(high, low, first, i, covered.Least, covered.Greatest);
        const std::size_t stop = i - std::min(i - first, neighbors);
        while (i > stop) {
            if (!TakeBeyond(--i, covered))
                continue;
            if (m_pieces.size() != 1)
                return i;
            if (piece.Top == m_map.Plot.Top && piece.Bottom == m_map.Plot.Bottom)
                return first;
            covered = sCoveredValues::OfRows(m_map.Y, piece.Top, piece.Bottom);
        }
    }
    return i;
}

// Takes the point if it reaches beyond the only piece. False when it does not, or has no value.
inline bool CVisibleSpans::TakeBeyond(std::size_t i, const sCoveredValues& covered)
{
    const double a = m_source.High[i], b = m_bars ? m_source.Origin : m_source.Low[i];
    const double greatest = std::max(a, b), least = std::min(a, b);
    if ((greatest <= covered.Greatest && least >= covered.Least) || !IsDrawn(a) || !IsDrawn(b))
        return false;
    const bool touches = least <= covered.Greatest && greatest >= covered.Least;
    if (touches && m_upwards && m_check == PriceCheck::HighAndLow)
        Lengthen(i, least, greatest, covered);
    else
        TakeAny(i);
    return true;
}

// A point that touches the only piece can only lengthen it, at either end.
inline void CVisibleSpans::Lengthen(std::size_t i, double least, double greatest,
                                    const sCoveredValues& covered)
{
    sPiece& piece = m_pieces[0];
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
}

// One point, whatever the pieces are.
void CVisibleSpans::TakeAny(std::size_t i)
{
    const double a = m_source.High[i], b = m_bars ? m_source.Origin : m_source.Low[i];
    if (!IsDrawn(a) || !IsDrawn(b) || (m_check == PriceCheck::AllFour && !m_bars && !m_source.IsComplete(i)))
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

// Adds the rows of [top, bottom) that no piece covers, and joins them to the pieces.
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
