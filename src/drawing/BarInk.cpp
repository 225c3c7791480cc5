#include "drawing/BarInk.h"

#include "drawing/InkStyle.h"
#include "drawing/LeastGreatest.h"
#include "drawing/Prefetch.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

namespace zantroq {

namespace {

constexpr int WidestBody = 41; // pane pixels: a handful of points would else be blocks

// Room between a body and its neighbour: a fifth of the room of a point, nothing below three pixels.
int BodyWidth(int room)
{
    if (room <= 3)
        return std::max(1, room);
    const int body = room - std::max(1, room / 5);
    return body % 2 == 0 ? body - 1 : body; // odd, so that the wick stands in the middle
}

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

sBarSource sBarSource::Of(const CPaneGroup& group, const sPlotMap& map, double scale, int barWidth)
{
    const CPaneData& data = group.PaneData();
    const int first = data.FirstVisible();
    sBarSource source;
    source.Type = group.Type();
    source.High = data.Y(first);
    const CSeriesStyle& main = StyleOf(group, first);
    source.Up =
        main.LineLook().Pattern() == LineNone ? main.FillLook().FillColour() : main.LineLook().LineColour();
    // A bar is never wider than the room of a point, so that a crowded pane stays readable.
    const int room =
        static_cast<int>(std::clamp(std::abs(map.X.PixelsPerUnit()), 1.0, WidestBody * std::max(1.0, scale)));
    if (IsBarType(source.Type)) {
        source.Bars = data.BlockedY(first);
        source.Width = BodyWidth(std::min(room, DevicePixels(barWidth, scale)));
        return source;
    }
    source.Low = data.Y(first + 1);
    source.Open = data.Y(first + 2);
    source.Close = data.Y(first + 3);
    const int hair = std::max(1, static_cast<int>(scale));
    if (source.Type == ChartHiLoOpenClose) {
        source.Width = std::min(DevicePixels(main.LineLook().Width(), scale), std::max(1, room / 3));
        source.Wick = source.Width;
        source.Tick = room < 3 * source.Width ? 0 : std::min(room * 2 / 5, static_cast<int>(7 * scale));
        return source;
    }
    const CSeriesStyle& up = StyleOf(group, first + 1);
    const CSeriesStyle& down = StyleOf(group, first + 2);
    const CSeriesStyle& outline = StyleOf(group, first + 3);
    source.Up = up.FillLook().FillColour();
    source.Down = down.FillLook().FillColour();
    source.Outline = outline.FillLook().FillColour();
    source.Outlined = outline.LineLook().Pattern() != LineNone;
    const int width = std::max(up.LineLook().Width(), down.LineLook().Width());
    source.Width = width < 1 ? 1 : BodyWidth(std::min(room, DevicePixels(width, scale)));
    source.Wick = std::min(hair, source.Width);
    return source;
}

CBarInk::CBarInk(const sBarSource& source, const sPlotMap& map, std::vector<sInkRect>& rects,
                 CInkColumns& columns)
    : m_source(source),
      m_map(map),
      m_rects(rects),
      m_columns(columns),
      m_bars(IsBarType(source.Type)),
      m_plainRows(map.Y.PixelsPerUnit() < 0),
      m_seen(map)
{
    if (m_source.Type == ChartCandles)
        m_columns.SetColours(source.Up, source.Down);
}

void CBarInk::Draw(std::size_t i, int column)
{
    if (m_bars)
        return DrawBar(i, column);
    if (!Complete(i))
        return;
    if (m_source.Type == ChartCandles)
        DrawCandle(i, column);
    else
        DrawPriceBar(i, column);
}

bool CBarInk::Complete(std::size_t i) const
{
    return IsDrawn(m_source.High[i]) && IsDrawn(m_source.Low[i]) && IsDrawn(m_source.Open[i]) &&
           IsDrawn(m_source.Close[i]);
}

void CBarInk::Span(double a, double b, int& top, int& bottom) const
{
    const int first = m_map.Y.Pixel(a), second = m_map.Y.Pixel(b);
    top = std::min(first, second);
    bottom = std::max(first, second) + 1;
}

void CBarInk::Emit(int left, int top, int right, int bottom, Colour colour)
{
    left = std::max(left, m_map.Plot.Left);
    right = std::min(right, m_map.Plot.Right);
    top = std::max(top, m_map.Plot.Top);
    bottom = std::min(bottom, m_map.Plot.Bottom);
    if (left < right && top < bottom)
        m_rects.push_back({left, top, right, bottom, colour});
}

void CBarInk::DrawBar(std::size_t i, int column)
{
    if (!IsDrawn(m_source.High[i]))
        return;
    int top = 0, bottom = 0;
    Span(m_source.High[i], m_source.Origin, top, bottom);
    const int left = column - m_source.Width / 2;
    Emit(left, top, left + m_source.Width, bottom, m_source.Up);
}

void CBarInk::DrawPriceBar(std::size_t i, int column)
{
    int top = 0, bottom = 0;
    Span(m_source.High[i], m_source.Low[i], top, bottom);
    const int left = column - m_source.Width / 2, right = left + m_source.Width;
    const auto tick = [&](double value, int from, int to) {
        const int y = m_map.Y.Pixel(value) - (m_source.Width - 1) / 2;
        Emit(from, y, to, y + m_source.Width, m_source.Up);
    };
    if (m_source.Tick > 0)
        tick(m_source.Open[i], left - m_source.Tick, left);
    Emit(left, top, right, bottom, m_source.Up);
    if (m_source.Tick > 0)
        tick(m_source.Close[i], right, right + m_source.Tick);
}

void CBarInk::DrawCandle(std::size_t i, int column)
{
    const Colour colour = IsUp(i) ? m_source.Up : m_source.Down;
    int top = 0, bottom = 0;
    Span(m_source.High[i], m_source.Low[i], top, bottom);
    const int wick = column - m_source.Wick / 2;
    Emit(wick, top, wick + m_source.Wick, bottom, colour);
    if (m_source.Width <= m_source.Wick)
        return;
    Span(m_source.Open[i], m_source.Close[i], top, bottom);
    const int left = column - m_source.Width / 2, right = left + m_source.Width, edge = m_source.Wick;
    const bool framed = m_source.Outlined || !m_source.Filled;
    const Colour frame = m_source.Outlined && m_source.Filled ? m_source.Outline : colour;
    const Colour inside = m_source.Filled ? colour : m_source.Hollow;
    if (!framed || m_source.Width < 5 * edge || bottom - top < 3 * edge)
        return Emit(left, top, right, bottom, colour);
    Emit(left, top, right, bottom, frame);
    Emit(left + edge, top + edge, right - edge, bottom - edge, inside);
}

// Columns are walked backwards, which the processor does not foresee.
void CBarInk::Foresee(std::size_t first, std::size_t count) const
{
    const std::size_t end = std::min(first + count, m_source.High.size());
    if (first >= end || m_source.Bars.Blocks() > 0)
        return;
    Prefetch(m_source.High.data() + first, end - first);
    if (!m_bars)
        Prefetch(m_source.Low.data() + first, end - first);
}

void CBarInk::DrawThin(std::size_t first, std::size_t last, int column)
{
    std::swap(m_found, m_before);
    std::swap(m_column, m_columnBefore);
    m_found.clear();
    m_column = column;
    // Finding them together takes as long for few as for many. A column shows about as many points as the
    // one before it.
    constexpr std::size_t pointsForOne = 24;
    if (!m_bars && !m_examineAll && pointsForOne * m_shown >= last - first &&
        m_seen.Find(m_source.High, m_source.Low, first, last)) {
        DrawSeen(first, column);
        m_shown = m_seen.Found().Count;
    } else {
        Scan(first, last);
        m_shown = m_found.size();
    }
    Emit(m_before, m_columnBefore);
}

// The points found become a column of pixels, or a piece where there is one colour only.
void CBarInk::DrawSeen(std::size_t first, int column)
{
    const CSeenPoints::sFound found = m_seen.Found();
    const double *const open = m_source.Open.data() + first, *const close = m_source.Close.data() + first;
    for (std::size_t k = 0; k < found.Count; ++k) {
        Prefetch(open + found.Point[k]);
        Prefetch(close + found.Point[k]);
    }
    const int rows = m_map.Plot.Height();
    if (m_source.Type != ChartCandles) {
        for (std::size_t k = 0; k < found.Count; ++k)
            m_allComplete &= IsDrawn(open[found.Point[k]]) && IsDrawn(close[found.Point[k]]);
        return Found(m_map.Plot.Bottom - found.Up[found.Count - 1],
                     m_map.Plot.Top + found.Down[found.Count - 1], first + found.Point[0]);
    }
    // Every point writes eight pixels beyond each end of what is covered; those behind it write over what is
    // too much.
    constexpr int more = sizeof(std::uint64_t);
    m_shades.resize(static_cast<std::size_t>(rows + 2 * more));
    std::uint8_t* const shades = m_shades.data() + more;
    bool plain = true;
    int top = rows - found.Up[0], bottom = top; // rows of the plot
    for (std::size_t k = 0; k < found.Count; ++k) {
        const double a = open[found.Point[k]], b = close[found.Point[k]];
        plain &= (a < CPaneData::HoleValue()) & (b < CPaneData::HoleValue());
        const std::uint64_t shade = b >= a ? 0 : 0x0101010101010101u;
        const int nextTop = rows - found.Up[k], nextBottom = found.Down[k];
        if (top - nextTop <= more && nextBottom - bottom <= more) {
            std::memcpy(shades + top - more, &shade, more);
            std::memcpy(shades + bottom, &shade, more);
        } else {
            std::fill(shades + nextTop, shades + top, static_cast<std::uint8_t>(shade & 1));
            std::fill(shades + bottom, shades + nextBottom, static_cast<std::uint8_t>(shade & 1));
        }
        top = nextTop;
        bottom = nextBottom;
    }
    m_allComplete &= plain;
    m_columns.Add(column, m_map.Plot.Top + top, m_map.Plot.Top + bottom, shades + top);
}

bool CBarInk::FinishThin()
{
    Emit(m_found, m_column);
    m_found.clear();
    return m_allComplete;
}

// Finds what is seen of the points, the last one on top.
void CBarInk::Scan(std::size_t first, std::size_t last)
{
    m_pieces.clear();
    if (m_bars && ScanBars(first, last))
        return;
    std::size_t i = last;
    while (i > first)
        if (m_pieces.size() == 1)
            i = ScanOnePiece(first, i);
        else
            TakeAny(--i);
}

// Bars have one colour, and all of them touch the origin: their ends tell what is seen. False, with nothing
// taken, when some are not there.
bool CBarInk::ScanBars(std::size_t first, std::size_t last)
{
    sLeastGreatest ends;
    if (!IsDrawn(m_source.Origin) || !FindLeastGreatest(m_source.Bars, first, last, ends))
        return false;
    int top = 0, bottom = 0;
    Span(std::max(ends.Greatest, m_source.Origin), std::min(ends.Least, m_source.Origin), top, bottom);
    top = std::max(top, m_map.Plot.Top);
    bottom = std::min(bottom, m_map.Plot.Bottom);
    if (top < bottom)
        Cover(top, bottom, last - 1);
    return true;
}

// While what is covered has no gap, only points that reach beyond it matter. Returns where a point was met
// that leaves a gap, which has been taken, or first.
std::size_t CBarInk::ScanOnePiece(std::size_t first, std::size_t i)
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
                    Found(top, std::exchange(piece.Top, top), i);
            }
            if (least < covered.Least) {
                const int bottom = std::min(m_map.Y.Pixel(least) + 1, m_map.Plot.Bottom);
                if (bottom > piece.Bottom)
                    Found(std::exchange(piece.Bottom, bottom), bottom, i);
            }
            covered.Set(piece.Top, piece.Bottom);
            if (piece.Top == m_map.Plot.Top && piece.Bottom == m_map.Plot.Bottom)
                return first;
        }
    }
    return i;
}

// One point, whatever the pieces are.
void CBarInk::TakeAny(std::size_t i)
{
    const double a = m_source.High[i], b = m_bars ? m_source.Origin : m_source.Low[i];
    if (!IsDrawn(a) || !IsDrawn(b) || (m_examineAll && !m_bars && !Complete(i)))
        return;
    int top = 0, bottom = 0;
    Span(a, b, top, bottom);
    top = std::max(top, m_map.Plot.Top);
    bottom = std::min(bottom, m_map.Plot.Bottom);
    if (top < bottom)
        Cover(top, bottom, i);
}

inline void CBarInk::Found(int top, int bottom, std::size_t i)
{
    m_found.push_back({top, bottom, i});
    if (!m_bars) {
        Prefetch(m_source.Open.data() + i, 1);
        Prefetch(m_source.Close.data() + i, 1);
    }
}

// Finds what [top, bottom) shows beside the pieces that are there, and joins it to them.
void CBarInk::Cover(int top, int bottom, std::size_t i)
{
    int from = top;
    std::size_t at = 0;
    while (at < m_pieces.size() && m_pieces[at].Bottom < top)
        ++at;
    std::size_t end = at;
    sPiece joined{top, bottom};
    for (; end < m_pieces.size() && m_pieces[end].Top <= bottom; ++end) {
        if (from < m_pieces[end].Top)
            Found(from, std::min(bottom, m_pieces[end].Top), i);
        from = std::max(from, m_pieces[end].Bottom);
        joined = {std::min(joined.Top, m_pieces[end].Top), std::max(joined.Bottom, m_pieces[end].Bottom)};
    }
    if (from < bottom)
        Found(from, bottom, i);
    if (at == end)
        m_pieces.insert(m_pieces.begin() + static_cast<std::ptrdiff_t>(at), joined);
    else {
        m_pieces[at] = joined;
        m_pieces.erase(m_pieces.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                       m_pieces.begin() + static_cast<std::ptrdiff_t>(end));
    }
}

// What was found becomes rectangles, neighbours of one colour together.
void CBarInk::Emit(const std::vector<sFound>& found, int column)
{
    const bool candles = m_source.Type == ChartCandles;
    const std::size_t begin = m_rects.size();
    for (const sFound& part : found) {
        Colour colour = m_source.Up;
        if (!m_bars) {
            m_allComplete =
                m_allComplete && IsDrawn(m_source.Open[part.Point]) && IsDrawn(m_source.Close[part.Point]);
            if (candles && !IsUp(part.Point))
                colour = m_source.Down;
        }
        if (m_rects.size() > begin && m_rects.back().Color == colour) {
            sInkRect& last = m_rects.back();
            if (part.Bottom == last.Top) {
                last.Top = part.Top;
                continue;
            }
            if (part.Top == last.Bottom) {
                last.Bottom = part.Bottom;
                continue;
            }
        }
        m_rects.push_back({column, part.Top, column + 1, part.Bottom, colour});
    }
}

} // namespace zantroq
