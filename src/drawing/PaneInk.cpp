#include "drawing/PaneInk.h"

#include "drawing/LeastGreatest.h"

#include <bit>
#include <limits>
#include <utility>

namespace zantroq {

namespace {

const CSeriesStyle& StyleOf(const CPaneGroup& group, int series)
{
    static CChart2D none;
    static const CSeriesStyle unset(&none);
    const CSeriesStyle* style = group.FindStyle(series);
    return style ? *style : unset;
}

int DevicePixels(int panePixels, double scale)
{
    return std::max(1, static_cast<int>(std::floor(std::clamp(panePixels, 1, 1000) * scale + 0.5)));
}

// The first of the values from `i` on that may be drawn, as far as whole blocks of holes tell; never beyond
// the end.
std::size_t SkipUndrawn(std::span<const double> y, std::size_t i)
{
    constexpr std::size_t block = 32;
    for (; i + block <= y.size(); i += block) {
        bool any = false;
        for (std::size_t k = 0; k < block; ++k)
            any |= y[i + k] != CPaneData::HoleValue();
        if (any)
            break;
    }
    return i;
}

constexpr int WidestBody = 41; // pane pixels: a handful of points would else be blocks

// Candles, H/L/O/C bars and bars, as functions that turn a point into rectangles. `Points` is all that they
// read.
struct sBarSource
{
    int Type = 0;
    std::span<const double> X, High, Low, Open, Close; // bars: High alone
    Colour Up = 0, Down = 0, Outline = 0, Hollow = 0;
    bool Outlined = false, Filled = true;
    int Width = 1, Wick = 1, Tick = 0; // device pixels
    double Origin = 0;
};

bool IsBarType(int type)
{
    return type == ChartBars || type == ChartBarsFromOrigin;
}
bool IsPriceType(int type)
{
    return type == ChartHiLoOpenClose || type == ChartCandles;
}

// Room between a body and its neighbour: a fifth of the room of a point, nothing below three pixels.
int BodyWidth(int room)
{
    if (room <= 3)
        return std::max(1, room);
    const int body = room - std::max(1, room / 5);
    return body % 2 == 0 ? body - 1 : body; // odd, so that the wick stands in the middle
}

class CBarPainter
{
public:
    CBarPainter(const sBarSource& source, const sPlotMap& map, std::vector<sInkRect>& rects)
        : m_source(source), m_map(map), m_rects(rects)
    {
    }

    void Draw(std::size_t i, int column)
    {
        if (IsBarType(m_source.Type))
            return DrawBar(i, column);
        if (!Complete(i))
            return;
        if (m_source.Type == ChartCandles)
            DrawCandle(i, column);
        else
            DrawPriceBar(i, column);
    }

    // Whether a point is one vertical line of a pixel's width, so that a column's points can be told apart by
    // colour alone.
    bool IsThin() const { return m_source.Width == 1 && m_source.Tick == 0 && m_source.Wick == 1; }

    // The thin line of a point; false when it draws nothing.
    bool ThinSpan(std::size_t i, int& top, int& bottom, Colour& colour) const
    {
        colour = m_source.Up;
        if (IsBarType(m_source.Type)) {
            if (!IsDrawn(m_source.High[i]))
                return false;
            BarSpan(i, top, bottom);
        } else {
            if (!Complete(i))
                return false;
            Span(m_source.High[i], m_source.Low[i], top, bottom);
            if (m_source.Type == ChartCandles && !IsUp(i))
                colour = m_source.Down;
        }
        top = std::max(top, m_map.Plot.Top);
        bottom = std::min(bottom, m_map.Plot.Bottom);
        return top < bottom;
    }

    // Asks the memory for the points of the next column. Columns are walked backwards, which the processor
    // does not foresee; this halves the time of a pane of 245,760 candles.
    void Foresee(std::size_t first, std::size_t count) const
    {
#ifdef __GNUC__
        constexpr std::size_t line = 8; // numbers of a cache line
        const std::size_t end = std::min(first + count, m_source.X.size());
        for (const std::span<const double>* values :
             {&m_source.High, &m_source.Low, &m_source.Open, &m_source.Close})
            for (std::size_t i = first; i < end && i < values->size(); i += line)
                __builtin_prefetch(values->data() + i);
#endif
    }

    // The column's points, first to last (exclusive), as the pieces that are seen.
    void DrawThin(std::size_t first, std::size_t last, int column)
    {
        m_pieces.clear();
        const bool bars = IsBarType(m_source.Type);
        const double* high = m_source.High.data();
        const double* low = bars ? high : m_source.Low.data();
        double greatest = 0, least = 0;
        for (std::size_t i = last; i-- > first;) {
            // Inside of what is covered already, unless that has gaps. A feed's low may lie above its high.
            if (m_pieces.size() == 1) {
                i = SkipWithin(high, low, first, i + 1, least, greatest);
                if (i-- == first)
                    break;
            }
            int top = 0, bottom = 0;
            Colour colour = 0;
            if (!ThinSpan(i, top, bottom, colour))
                continue;
            const bool none = m_pieces.empty();
            if (m_pieces.size() == 1 && top <= m_pieces[0].Bottom && bottom >= m_pieces[0].Top)
                Extend(m_pieces[0], top, bottom, colour, column);
            else
                Cover(top, bottom, colour, column);
            // What lies within the pixels that are covered shows nothing new. The edges are taken a little
            // inside of the true ones.
            const double a = m_map.Y.Value(m_pieces.front().Top - 0.49),
                         b = m_map.Y.Value(m_pieces.front().Bottom - 0.51);
            greatest = none ? std::max(a, b) : std::max(greatest, std::max(a, b));
            least = none ? std::min(a, b) : std::min(least, std::min(a, b));
        }
    }

private:
    struct sPiece
    {
        int Top, Bottom;
    };

    bool Complete(std::size_t i) const
    {
        return IsDrawn(m_source.High[i]) && IsDrawn(m_source.Low[i]) && IsDrawn(m_source.Open[i]) &&
               IsDrawn(m_source.Close[i]);
    }
    bool IsUp(std::size_t i) const
    {
        return m_source.Close[i] >= m_source.Open[i];
    }

    void Span(double a, double b, int& top, int& bottom) const
    {
        const int first = m_map.Y.Pixel(a), second = m_map.Y.Pixel(b);
        top = std::min(first, second);
        bottom = std::max(first, second) + 1;
    }
    void BarSpan(std::size_t i, int& top, int& bottom) const
    {
        Span(m_source.High[i], m_source.Origin, top, bottom);
    }

    void Emit(int left, int top, int right, int bottom, Colour colour)
    {
        left = std::max(left, m_map.Plot.Left);
        right = std::min(right, m_map.Plot.Right);
        top = std::max(top, m_map.Plot.Top);
        bottom = std::min(bottom, m_map.Plot.Bottom);
        if (left < right && top < bottom)
            m_rects.push_back({left, top, right, bottom, colour});
    }

    void DrawBar(std::size_t i, int column)
    {
        if (!IsDrawn(m_source.High[i]))
            return;
        int top = 0, bottom = 0;
        BarSpan(i, top, bottom);
        const int left = column - m_source.Width / 2;
        Emit(left, top, left + m_source.Width, bottom, m_source.Up);
    }

    void DrawPriceBar(std::size_t i, int column)
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

    void DrawCandle(std::size_t i, int column)
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

    // Cover for the usual case: one piece, which the span touches.
    void Extend(sPiece& piece, int top, int bottom, Colour colour, int column)
    {
        if (top < piece.Top) {
            m_rects.push_back({column, top, column + 1, piece.Top, colour});
            piece.Top = top;
        }
        if (bottom > piece.Bottom) {
            m_rects.push_back({column, piece.Bottom, column + 1, bottom, colour});
            piece.Bottom = bottom;
        }
    }

    // Emits what [top, bottom) shows beside the pieces that are there, and joins it to them. Pieces are kept
    // in order, apart.
    void Cover(int top, int bottom, Colour colour, int column)
    {
        int from = top;
        std::size_t at = 0;
        while (at < m_pieces.size() && m_pieces[at].Bottom < top)
            ++at;
        std::size_t end = at;
        sPiece joined{top, bottom};
        for (; end < m_pieces.size() && m_pieces[end].Top <= bottom; ++end) {
            if (from < m_pieces[end].Top)
                m_rects.push_back({column, from, column + 1, std::min(bottom, m_pieces[end].Top), colour});
            from = std::max(from, m_pieces[end].Bottom);
            joined = {std::min(joined.Top, m_pieces[end].Top), std::max(joined.Bottom, m_pieces[end].Bottom)};
        }
        if (from < bottom)
            m_rects.push_back({column, from, column + 1, bottom, colour});
        if (at == end)
            m_pieces.insert(m_pieces.begin() + static_cast<std::ptrdiff_t>(at), joined);
        else {
            m_pieces[at] = joined;
            m_pieces.erase(m_pieces.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                           m_pieces.begin() + static_cast<std::ptrdiff_t>(end));
        }
    }

    const sBarSource& m_source;
    const sPlotMap& m_map;
    std::vector<sInkRect>& m_rects;
    std::vector<sPiece> m_pieces;
};

// What the bars of a group are made of.
sBarSource BarSource(const CPaneGroup& group, const sPlotMap& map, double scale, int barWidth, double origin,
                     bool filled, Colour hollow)
{
    const CPaneData& data = group.PaneData();
    const int first = data.FirstVisible();
    sBarSource source;
    source.Type = group.Type();
    source.X = data.X();
    source.High = data.Y(first);
    source.Origin = origin;
    source.Filled = filled;
    source.Hollow = hollow;
    const CSeriesStyle& main = StyleOf(group, first);
    source.Up =
        main.LineLook().Pattern() == LineNone ? main.FillLook().FillColour() : main.LineLook().LineColour();
    // A bar is never wider than the room of a point, so that a crowded pane stays readable.
    const int room =
        static_cast<int>(std::clamp(std::abs(map.X.PixelsPerUnit()), 1.0, WidestBody * std::max(1.0, scale)));
    if (IsBarType(source.Type)) {
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

} // namespace

bool CPaneInk::sLook::operator==(const sLook& other) const
{
    return Plot.Left == other.Plot.Left && Plot.Top == other.Plot.Top && Plot.Right == other.Plot.Right &&
           Plot.Bottom == other.Plot.Bottom && X == other.X && Y == other.Y && Scale == other.Scale &&
           Origin == other.Origin && Styles == other.Styles;
}

CPaneInk::sLook CPaneInk::LookOf(const CChart2D& chart, const sPlotMap& map, double scale) const
{
    const CPaneGroup& group = chart.PaneGroups(m_group);
    const CPaneData& data = group.PaneData();
    sLook look{map.Plot, map.X, map.Y, scale, m_origin, {}};
    const auto add = [&](auto value) { look.Styles.push_back(static_cast<std::uint32_t>(value)); };
    add(group.Type());
    add(m_barWidth);
    add(m_filledCandles);
    add(m_hollow);
    add(data.FirstVisible());
    add(data.LastVisible());
    for (int series = data.FirstVisible(); series <= data.LastVisible(); ++series) {
        const CSeriesStyle& style = StyleOf(group, series);
        add(style.LineLook().Pattern());
        add(style.LineLook().LineColour());
        add(style.LineLook().Width());
        add(style.FillLook().FillColour());
        add(style.SymbolLook().Shape());
        add(style.SymbolLook().SymbolColour());
        add(style.SymbolLook().Size());
    }
    return look;
}

bool CPaneInk::HasBars(const CPaneGroup& group) const
{
    const int series = group.PaneData().LastVisible() - group.PaneData().FirstVisible() + 1;
    return (IsBarType(group.Type()) && series >= 1) || (IsPriceType(group.Type()) && series >= 4);
}

CPaneInk::sDamage CPaneInk::Update(const CChart2D& chart, const sPlotMap& map, double scale)
{
    const CPaneGroup& group = chart.PaneGroups(m_group);
    const CPaneData& data = group.PaneData();
    const CPaneArea& area = chart.PaneArea();
    const CAxisBound& origin = area.PaneAxes().Y().AxisOrigin();
    m_origin = origin.Automatic() || !IsDrawn(origin.Value()) ? 0.0 : origin.Value();
    m_barWidth = area.BarLook().BarWidth();
    m_filledCandles = area.CandleLook().Filled();
    m_hollow = area.PlotBackground(chart.PaneInterior());
    m_scale = scale;
    sLook look = LookOf(chart, map, scale);
    const sPointChanges changes = data.ChangesSince(m_revision);
    const bool known = m_drawn && look == m_look;
    const std::uint64_t since = std::exchange(m_revision, data.Revision());
    if (known && !changes.Whole && changes.Last < changes.First)
        return {};
    m_map = map;
    m_look = std::move(look);
    if (known && !changes.Whole) {
        const auto first = static_cast<std::size_t>(changes.First - 1);
        // From the point before to the one behind: lines lead from the one and to the other.
        const double* x = data.X().data();
        const std::size_t last = std::min(static_cast<std::size_t>(changes.Last), data.X().size() - 1);
        const int reach = m_widest + 1;
        if (data.XAscending() && DrawTail(group, first))
            return {false, std::max(m_map.Plot.Left, m_map.X.Pixel(x[first > 0 ? first - 1 : 0]) - reach),
                    std::min(m_map.Plot.Right, m_map.X.Pixel(x[last]) + reach + 1)};
    }
    if (!known || !DrawChangedLines(group, since))
        DrawAll(group);
    m_drawn = true;
    return {true, m_map.Plot.Left, m_map.Plot.Right};
}

// The first point from `from` on that lies in the column or right of it.
std::size_t CPaneInk::FirstOfColumn(const CPaneData& data, std::size_t from, int column) const
{
    const std::span<const double> x = data.X();
    const auto found =
        std::partition_point(x.begin() + static_cast<std::ptrdiff_t>(std::min(from, x.size())), x.end(),
                             [&](double value) { return m_map.X.Pixel(value) < column; });
    return static_cast<std::size_t>(found - x.begin());
}

// The end of the column's points, i being one of them; x ascends. The columns before tell how far to look.
std::size_t CPaneInk::EndOfColumn(std::span<const double> x, std::size_t i, int column)
{
    std::size_t inside = i, step = std::max<std::size_t>(m_stride, 1);
    std::size_t outside = std::min(i + step, x.size());
    while (outside < x.size() && m_map.X.Pixel(x[outside]) == column) {
        inside = outside;
        step *= 2;
        outside = std::min(outside + step, x.size());
    }
    const auto found = std::partition_point(x.begin() + static_cast<std::ptrdiff_t>(inside),
                                            x.begin() + static_cast<std::ptrdiff_t>(outside),
                                            [&](double value) { return m_map.X.Pixel(value) == column; });
    const auto end = static_cast<std::size_t>(found - x.begin());
    m_stride = end - i + 1;
    return end;
}

bool CPaneInk::IsCrowded() const
{
    return m_detail == InkDetail::Reduced && m_ascending && m_map.X.PixelsPerUnit() < 0.5;
}

void CPaneInk::DrawAll(const CPaneGroup& group)
{
    m_rects.clear();
    m_columns.clear();
    m_lines.clear();
    m_lineSeries.clear();
    m_widest = 1;
    m_ascending = group.PaneData().XAscending();
    if (m_map.Empty())
        return;
    if (HasBars(group))
        DrawBars(group, 0);
    else
        DrawLines(group);
}

// Draws the points behind firstPoint anew; false when everything has to be drawn.
bool CPaneInk::DrawTail(const CPaneGroup& group, std::size_t firstPoint)
{
    if (m_map.Empty())
        return true;
    if (HasBars(group))
        return DrawBars(group, firstPoint);
    for (std::size_t i = 0; i < m_lines.size(); ++i)
        if (StyleOf(group, m_lineSeries[i]).SymbolLook().Shape() == SymbolMark)
            return false;
    for (const int series : m_lineSeries)
        if (series == 0)
            return false;
    if (!m_rects.empty())
        return false;
    for (std::size_t i = 0; i < m_lines.size(); ++i)
        DrawLine(group, m_lineSeries[i], firstPoint, m_lines[i]);
    return true;
}

bool CPaneInk::DrawBars(const CPaneGroup& group, std::size_t firstPoint)
{
    const CPaneData& data = group.PaneData();
    const sBarSource source =
        BarSource(group, m_map, m_scale, m_barWidth, m_origin, m_filledCandles, m_hollow);
    const std::size_t points = data.X().size();
    const double* x = source.X.data();
    m_widest = source.Width + 2 * source.Tick;
    CBarPainter painter(source, m_map, m_rects);
    std::size_t i = static_cast<std::size_t>(std::max(0, data.FirstPoint(data.FirstVisible()) - 1));
    if (firstPoint > 0) {
        // Back to the column of the first changed point.
        const int column = IsDrawn(x[firstPoint]) ? m_map.X.Pixel(x[firstPoint]) : 0;
        while (!m_columns.empty() && m_columns.back().Column >= column) {
            m_rects.resize(m_columns.back().FirstRect);
            m_columns.pop_back();
        }
        i = FirstOfColumn(data, i, column);
    }
    const bool thin = painter.IsThin() && m_ascending && m_detail == InkDetail::Reduced;
    while (i < points) {
        if (!IsDrawn(x[i]) || std::isinf(x[i])) {
            ++i;
            continue;
        }
        const int column = m_map.X.Pixel(x[i]);
        std::size_t end = i + 1;
        if (thin) {
            end = EndOfColumn(source.X, i, column);
            if (end - i > 8)
                painter.Foresee(end, end - i);
        }
        if (column >= m_map.Plot.Left - m_widest && column < m_map.Plot.Right + m_widest) {
            if (m_columns.empty() || m_columns.back().Column != column)
                m_columns.push_back({column, i, m_rects.size()});
            if (!thin)
                painter.Draw(i, column);
            else if (column >= m_map.Plot.Left && column < m_map.Plot.Right)
                painter.DrawThin(i, end, column);
        }
        i = end;
    }
    return true;
}

void CPaneInk::DrawLines(const CPaneGroup& group)
{
    const CPaneData& data = group.PaneData();
    for (int series = data.FirstVisible(); series <= data.LastVisible(); ++series) {
        const CSeriesStyle& style = StyleOf(group, series);
        const CLineLook& look = style.LineLook();
        const bool marked = style.SymbolLook().Shape() != SymbolNone;
        if (look.Pattern() == LineNone && !marked)
            continue;
        sInkLine line{look.LineColour(), DevicePixels(look.Width(), m_scale), look.Pattern(), {}};
        DrawLine(group, series, 0, line);
        if (marked)
            DrawSymbols(group, series);
        if (look.Pattern() == LineNone)
            continue;
        m_widest = std::max(m_widest, 2 * line.Width);
        m_lines.push_back(std::move(line));
        m_lineSeries.push_back(series);
    }
    m_ascending = m_ascending && m_rects.empty(); // marks stand series by series
}

// Lines of one look whose points alone changed: the others stay as they are. False when everything has to be
// drawn.
bool CPaneInk::DrawChangedLines(const CPaneGroup& group, std::uint64_t since)
{
    const CPaneData& data = group.PaneData();
    if (m_map.Empty() || HasBars(group) || data.FrameChangedSince(since))
        return false;
    m_rects.clear();
    m_ascending = data.XAscending();
    sInkLine bare;
    std::size_t next = 0;
    for (int series = data.FirstVisible(); series <= data.LastVisible(); ++series) {
        const bool drawn = next < m_lineSeries.size() && m_lineSeries[next] == series;
        const bool marked = StyleOf(group, series).SymbolLook().Shape() != SymbolNone;
        if (marked || (drawn && data.SeriesChangedSince(series, since)))
            DrawLine(group, series, 0, drawn ? m_lines[next] : bare);
        if (marked)
            DrawSymbols(group, series);
        next += drawn;
    }
    m_ascending = m_ascending && m_rects.empty();
    return true;
}

void CPaneInk::DrawLine(const CPaneGroup& group, int series, std::size_t firstPoint, sInkLine& line)
{
    const CPaneData& data = group.PaneData();
    const double* x = data.X().data();
    const double* y = data.Y(series).data();
    const std::size_t points = data.X().size();
    std::size_t i = static_cast<std::size_t>(std::max(0, data.FirstPoint(series) - 1));
    if (firstPoint == 0) {
        line.Vertices.clear();
    } else {
        const int column = IsDrawn(x[firstPoint]) ? m_map.X.Pixel(x[firstPoint]) : 0;
        while (!line.Vertices.empty() && line.Vertices.back().Column >= column)
            line.Vertices.pop_back();
        i = FirstOfColumn(data, i, column);
    }
    const double top = m_map.Plot.Top, bottom = m_map.Plot.Bottom - 1;
    const auto height = [&](double value) {
        const double place = std::isinf(value) ? (value > 0 ? top : bottom) : m_map.Y.Position(value);
        return NearestPixel(place * sInkVertex::One);
    };
    const bool reduced = m_detail == InkDetail::Reduced, crowded = IsCrowded();
    m_runs.clear();
    bool joined = i > 0 && i <= points && !line.Vertices.empty() && IsDrawn(y[i - 1]);
    for (; i < points; ++i) {
        if (!IsDrawn(y[i]) || !IsDrawn(x[i]) || std::isinf(x[i])) {
            joined = false;
            i = SkipUndrawn(data.Y(series), i + 1) - 1;
            continue;
        }
        const int column = m_map.X.Pixel(x[i]), h = height(y[i]);
        if (crowded) {
            // A column of plain numbers at once: the least and greatest decide, the order of the points
            // between does not.
            const std::size_t end = EndOfColumn(data.X(), i, column);
            sLeastGreatest found;
            const bool plain = end - i > 2 && FindLeastGreatest({y + i, y + end}, found);
            if (m_runs.empty() || m_runs.back().End <= i) // else a column with gaps, begun already
                m_runs.push_back({i, end, found.Least, found.Greatest, plain});
            if (plain) {
                const int a = height(found.Least), b = height(found.Greatest);
                if (joined && line.Vertices.back().Column == column) {
                    sInkVertex& vertex = line.Vertices.back();
                    vertex = {column,
                              vertex.First,
                              height(y[end - 1]),
                              std::min({vertex.Top, a, b}),
                              std::max({vertex.Bottom, a, b}),
                              vertex.Joined,
                              true};
                } else {
                    line.Vertices.push_back(
                        {column, h, height(y[end - 1]), std::min(a, b), std::max(a, b), joined, true});
                }
                joined = true;
                i = end - 1;
                continue;
            }
        }
        if (reduced && joined && line.Vertices.back().Column == column) {
            sInkVertex& vertex = line.Vertices.back();
            vertex.Last = h;
            vertex.Several = true;
            vertex.Top = std::min(vertex.Top, h);
            vertex.Bottom = std::max(vertex.Bottom, h);
        } else {
            line.Vertices.push_back({column, h, h, h, h, joined, false});
        }
        joined = true;
    }
}

// The marks of the line drawn last.
void CPaneInk::DrawSymbols(const CPaneGroup& group, int series)
{
    const CPaneData& data = group.PaneData();
    const CSymbolLook& look = StyleOf(group, series).SymbolLook();
    const int size = DevicePixels(look.Size(), m_scale), half = size / 2;
    const std::span<const double> x = data.X(), y = data.Y(series);
    sInkRect before{};
    const auto emit = [&](int column, int top, int bottom) {
        const sInkRect box{std::max(column - half, m_map.Plot.Left), std::max(top - half, m_map.Plot.Top),
                           std::min(column - half + size, m_map.Plot.Right),
                           std::min(bottom - half + size, m_map.Plot.Bottom), look.SymbolColour()};
        // One colour: the same box again shows nothing new.
        if (box.Left < box.Right && box.Top < box.Bottom && !(box == before))
            m_rects.push_back(box);
        before = box;
    };
    const auto single = [&](std::size_t i) {
        if (!IsDrawn(y[i]) || !IsDrawn(x[i]) || std::isinf(x[i]) || std::isinf(y[i]))
            return;
        const int row = m_map.Y.Pixel(y[i]);
        emit(m_map.X.Pixel(x[i]), row, row);
    };
    m_widest = std::max(m_widest, size);
    if (!IsCrowded()) {
        for (std::size_t i = 0; i < x.size(); ++i)
            single(i);
        return;
    }
    for (const sRun& run : m_runs) {
        if (run.Plain) {
            // Where the marks that stand furthest apart leave no gap, they are one.
            const int a = m_map.Y.Pixel(run.Least), b = m_map.Y.Pixel(run.Greatest);
            if (std::abs(a - b) <= size || std::min(a, b) - half >= m_map.Plot.Bottom ||
                std::max(a, b) - half + size <= m_map.Plot.Top) {
                emit(m_map.X.Pixel(x[run.First]), std::min(a, b), std::max(a, b));
                continue;
            }
        }
        for (std::size_t i = run.First; i < run.End; ++i)
            single(i);
    }
}

} // namespace zantroq
