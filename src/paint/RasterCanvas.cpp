#include "paint/RasterCanvas.h"

#include "paint/DashPattern.h"
#include "platform/Prefetch.h"

#include <algorithm>
#include <cmath>

namespace zantroq {

namespace {

constexpr int One = sInkVertex::One;

// The whole pixel row of a height in 1/256 pixels.
int Row(int height)
{
    return (height + One / 2) >> 8;
}

bool LiesInside(const sInkRect& inner, const sInkRect& outer)
{
    return inner.Left >= outer.Left && inner.Right <= outer.Right && inner.Top >= outer.Top &&
           inner.Bottom <= outer.Bottom;
}

// Dashes depend on the position of the pixel, so they do not move while points are added and dropped.
bool InDash(const sInkLine& line, int place)
{
    const std::optional<sDashPattern> dashes = CurveDashes(line.Pattern);
    if (!dashes)
        return true;
    const int width = std::max(1, line.Width), period = dashes->Period() * width;
    return (place % period + period) % period < dashes->On * width;
}

PixelColor BlendPixel(PixelColor under, PixelColor over, int coverage)
{
    // Red and blue together, then green: 8 bits each with room between them.
    const std::uint32_t weight = static_cast<std::uint32_t>(coverage + (coverage >> 7));
    const std::uint32_t rb = under & 0xff00ff, g = under & 0x00ff00;
    const std::uint32_t mixedRb = (rb + ((((over & 0xff00ff) - rb) * weight) >> 8)) & 0xff00ff;
    const std::uint32_t mixedG = (g + ((((over & 0x00ff00) - g) * weight) >> 8)) & 0x00ff00;
    return 0xff000000 | mixedRb | mixedG;
}

} // namespace

void CRasterCanvas::SetPicture(const sRaster& picture)
{
    m_pixels = picture.Pixels;
    m_stride = picture.Stride;
    if (picture.Width == m_width && picture.Height == m_height)
        return;
    m_width = picture.Width;
    m_height = picture.Height;
    m_record.Clear();
    m_mask.assign(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height), 0);
    m_extents.assign(static_cast<std::size_t>(m_width), {m_height, 0});
    m_solid.assign(static_cast<std::size_t>(m_width), {0, 0});
    m_clip = {0, 0, m_width, m_height};
}

void CRasterCanvas::SetClip(const sPixelRect& clip)
{
    m_clip = CommonPart(clip, {0, 0, m_width, m_height});
}

void CRasterCanvas::Fill(const sPixelRect& rect, PixelColor color)
{
    const sPixelRect cut = CommonPart(rect, m_clip);
    if (cut.Left >= cut.Right || cut.Top >= cut.Bottom)
        return;
    PixelColor* line = m_pixels + static_cast<std::ptrdiff_t>(cut.Top) * m_stride + cut.Left;
    if (cut.Width() == 1)
        for (int y = cut.Top; y < cut.Bottom; ++y, line += m_stride)
            *line = color;
    else
        for (int y = cut.Top; y < cut.Bottom; ++y, line += m_stride) {
            if (cut.Width() <= 64)
                PrefetchPixel(line + cut.Width()); // the piece beside a narrow one is wiped next
            std::fill_n(line, cut.Width(), color);
        }
    Record(cut);
}

void CRasterCanvas::Rects(std::span<const sInkRect> rects)
{
    for (std::size_t i = 0; i < rects.size();) {
        const sInkRect& rect = rects[i];
        if (rect.Right - rect.Left == 1) {
            i = ThinRects(rects, i);
        } else if (i + 1 < rects.size() && LiesInside(rects[i + 1], rect)) {
            Framed(rect, rects[i + 1]);
            i += 2;
        } else {
            Fill({rect.Left, rect.Top, rect.Right, rect.Bottom}, PixelOf(rect.Color));
            ++i;
        }
    }
}

// A rectangle and one inside it, each pixel once.
void CRasterCanvas::Framed(const sInkRect& frame, const sInkRect& inside)
{
    const sPixelRect outer = CommonPart({frame.Left, frame.Top, frame.Right, frame.Bottom}, m_clip);
    const sPixelRect inner = CommonPart({inside.Left, inside.Top, inside.Right, inside.Bottom}, m_clip);
    if (inner.Left >= inner.Right || inner.Top >= inner.Bottom)
        return Fill(outer, PixelOf(frame.Color));
    const PixelColor edge = PixelOf(frame.Color), filling = PixelOf(inside.Color);
    PixelColor* line = m_pixels + static_cast<std::ptrdiff_t>(outer.Top) * m_stride;
    for (int y = outer.Top; y < outer.Bottom; ++y, line += m_stride) {
        if (y < inner.Top || y >= inner.Bottom) {
            std::fill(line + outer.Left, line + outer.Right, edge);
            continue;
        }
        std::fill(line + outer.Left, line + inner.Left, edge);
        std::fill(line + inner.Left, line + inner.Right, filling);
        std::fill(line + inner.Right, line + outer.Right, edge);
    }
    Record(outer);
}

// The rectangles from `i` on that lie in one column, one pixel wide. Returns the first after them.
std::size_t CRasterCanvas::ThinRects(std::span<const sInkRect> rects, std::size_t i)
{
    const int column = rects[i].Left;
    const bool inSight = column >= m_clip.Left && column < m_clip.Right;
    sPixelRect inked{column, m_clip.Bottom, column + 1, m_clip.Top};
    for (; i < rects.size() && rects[i].Left == column && rects[i].Right == column + 1; ++i) {
        const int top = std::max(rects[i].Top, m_clip.Top), bottom = std::min(rects[i].Bottom, m_clip.Bottom);
        if (!inSight || top >= bottom)
            continue;
        const PixelColor color = PixelOf(rects[i].Color);
        PixelColor* pixel = m_pixels + static_cast<std::ptrdiff_t>(top) * m_stride + column;
        for (int y = top; y < bottom; ++y, pixel += m_stride)
            *pixel = color;
        inked.Top = std::min(inked.Top, top);
        inked.Bottom = std::max(inked.Bottom, bottom);
    }
    if (inked.Top < inked.Bottom)
        Record(inked);
    return i;
}

// Adjacent columns are recorded together: wiping then writes whole cache lines, which hold 16 pixels.
void CRasterCanvas::Columns(const CInkColumns& ink, std::span<const sInkColumn> columns)
{
    constexpr int together = 16;
    const PixelColor colors[] = {PixelOf(ink.ColorOf(0)), PixelOf(ink.ColorOf(1))};
    for (std::size_t i = 0; i < columns.size();) {
        const int end = columns[i].Column / together * together + together;
        sPixelRect inked{m_clip.Right, m_clip.Bottom, m_clip.Left, m_clip.Top};
        for (; i < columns.size() && columns[i].Column < end; ++i) {
            const sInkColumn& column = columns[i];
            const int top = std::max(column.Top, m_clip.Top), bottom = std::min(column.Bottom, m_clip.Bottom);
            if (column.Column < m_clip.Left || column.Column >= m_clip.Right || top >= bottom)
                continue;
            const std::uint8_t* shade = ink.Shades(column).data() + (top - column.Top);
            PixelColor* pixel = m_pixels + static_cast<std::ptrdiff_t>(top) * m_stride + column.Column;
            for (int y = top; y < bottom; ++y, pixel += m_stride)
                *pixel = colors[*shade++];
            inked = {std::min(inked.Left, column.Column), std::min(inked.Top, top), column.Column + 1,
                     std::max(inked.Bottom, bottom)};
        }
        if (inked.Top < inked.Bottom)
            Record(inked);
    }
}

void CRasterCanvas::Text(int left, int top, std::string_view text, PixelColor color)
{
    const sTextMask& mask = m_text.Mask(text);
    const sPixelRect box{left + mask.Left, top + mask.Top, left + mask.Left + mask.Width,
                         top + mask.Top + mask.Height};
    const sPixelRect cut = CommonPart(box, m_clip);
    if (cut.Left >= cut.Right || cut.Top >= cut.Bottom)
        return;
    for (int y = cut.Top; y < cut.Bottom; ++y) {
        const std::uint8_t* coverage =
            mask.Coverage.data() + static_cast<std::ptrdiff_t>(y - box.Top) * mask.Width - box.Left;
        PixelColor* line = m_pixels + static_cast<std::ptrdiff_t>(y) * m_stride;
        for (int x = cut.Left; x < cut.Right; ++x)
            if (coverage[x] != 0)
                line[x] = coverage[x] == 255 ? color : BlendPixel(line[x], color, coverage[x]);
    }
    Record(cut);
}

// x and y are in the plot.
inline void CRasterCanvas::Cover(int x, int y, int coverage)
{
    const sExtent& solid = m_solid[static_cast<std::size_t>(x)];
    if (coverage <= 0 || (y >= solid.Top && y < solid.Bottom))
        return;
    std::uint8_t& pixel = *MaskAt(x, y);
    pixel = static_cast<std::uint8_t>(std::max<int>(pixel, std::min(coverage, 255)));
    sExtent& extent = m_extents[static_cast<std::size_t>(x)];
    extent.Top = std::min(extent.Top, y);
    extent.Bottom = std::max(extent.Bottom, y + 1);
}

// The part of a column between two edges, in 1/256 pixels from the top of the picture.
void CRasterCanvas::CoverRows(int x, int top256, int bottom256)
{
    top256 = std::max(top256, m_plot.Top * One);
    bottom256 = std::min(bottom256, m_plot.Bottom * One);
    const sExtent& solid = m_solid[static_cast<std::size_t>(x)];
    if (top256 >= solid.Top * One && bottom256 <= solid.Bottom * One)
        return;
    for (int y = top256 >> 8; y * One < bottom256; ++y)
        Cover(x, y, std::min(bottom256, (y + 1) * One) - std::max(top256, y * One));
}

void CRasterCanvas::Vertical(int column, int top, int bottom, int width)
{
    const int left = column - width / 2, above = (width - 1) / 2, below = width / 2;
    const int first = std::max(Row(top) - above, m_plot.Top),
              last = std::min(Row(bottom) + below, m_plot.Bottom - 1);
    Solid({std::max(left, m_plot.Left), first, std::min(left + width, m_plot.Right), last + 1});
    NoteSolid(std::max(left, m_plot.Left), std::min(left + width, m_plot.Right), {first, last + 1});
}

// The rows that are solid in all columns from first to last that lie in the plot.
CRasterCanvas::sExtent CRasterCanvas::SolidRows(int first, int last) const
{
    sExtent rows{m_plot.Top, m_plot.Bottom};
    for (int x = std::max(first, m_plot.Left); x <= std::min(last, m_plot.Right - 1); ++x) {
        const sExtent& solid = m_solid[static_cast<std::size_t>(x)];
        rows = {std::max(rows.Top, solid.Top), std::min(rows.Bottom, solid.Bottom)};
        if (rows.Top >= rows.Bottom)
            return {0, 0};
    }
    return rows;
}

// Only the longest solid part of a column is kept.
inline void CRasterCanvas::NoteSolid(int left, int right, const sExtent& rows)
{
    for (int x = left; x < right; ++x) {
        sExtent& solid = m_solid[static_cast<std::size_t>(x)];
        if (rows.Bottom - rows.Top > solid.Bottom - solid.Top)
            solid = rows;
    }
}

// Full coverage needs no mask: other parts of the line have the same color and do not change it.
void CRasterCanvas::Solid(const sPixelRect& rect)
{
    if (rect.Left >= rect.Right || rect.Top >= rect.Bottom)
        return;
    PixelColor* line = m_pixels + static_cast<std::ptrdiff_t>(rect.Top) * m_stride + rect.Left;
    if (rect.Width() == 1)
        for (int y = rect.Top; y < rect.Bottom; ++y, line += m_stride)
            *line = m_color;
    else
        for (int y = rect.Top; y < rect.Bottom; ++y, line += m_stride)
            std::fill_n(line, rect.Width(), m_color);
    Record(rect);
}

void CRasterCanvas::Segment(int column0, int y0, int column1, int y1, const sInkLine& line)
{
    if (column0 > column1) {
        std::swap(column0, column1);
        std::swap(y0, y1);
    }
    const std::int64_t run = column1 - column0, rise = static_cast<std::int64_t>(y1) - y0;
    const int first = std::max(column0, m_plot.Left), last = std::min(column1, m_plot.Right - 1);
    if (run == 0) {
        if (InDash(line, column0))
            Vertical(column0, std::min(y0, y1), std::max(y0, y1), line.Width);
        return;
    }
    if (rise == 0) {
        const int row = Row(y0) - (line.Width - 1) / 2;
        const int top = std::max(row, m_plot.Top), bottom = std::min(row + line.Width, m_plot.Bottom);
        for (int from = first, to; from <= last; from = to) {
            const bool inked = InDash(line, from);
            for (to = line.Pattern == LineSolid ? last + 1 : from + 1;
                 to <= last && InDash(line, to) == inked;)
                ++to;
            if (inked)
                Solid({from, top, to, bottom});
        }
        return;
    }
    if (std::abs(rise) > run * One)
        return Steep(column0, y0, column1, y1, line);
    const double slope = static_cast<double>(rise) / static_cast<double>(run * One);
    const int half = static_cast<int>(line.Width * One * std::sqrt(1 + slope * slope) / 2);
    for (int x = first; x <= last; ++x)
        if (InDash(line, x)) {
            const int middle = static_cast<int>(y0 + rise * (x - column0) / run) + One / 2;
            CoverRows(x, middle - half, middle + half);
        }
}

void CRasterCanvas::Steep(int column0, int y0, int column1, int y1, const sInkLine& line)
{
    const std::int64_t run = column1 - column0, rise = static_cast<std::int64_t>(y1) - y0;
    const double slope = static_cast<double>(run * One) / static_cast<double>(rise);
    const int half = static_cast<int>(line.Width * One * std::sqrt(1 + slope * slope) / 2);
    const int first = std::max(Row(std::min(y0, y1)), m_plot.Top),
              last = std::min(Row(std::max(y0, y1)), m_plot.Bottom - 1);
    const sExtent solid =
        SolidRows((column0 * One + One / 2 - half) >> 8, (column1 * One + One / 2 + half - 1) >> 8);
    const std::int64_t begin = std::int64_t{column0} * One, end = std::int64_t{column1} * One;
    const std::int64_t plotLeft = std::int64_t{m_plot.Left} * One,
                       plotRight = std::int64_t{m_plot.Right} * One;
    for (int y = first; y <= last; ++y) {
        if (y >= solid.Top && y < solid.Bottom) {
            y = solid.Bottom - 1;
            continue;
        }
        if (!InDash(line, y))
            continue;
        const std::int64_t middle =
            std::clamp(begin + (std::int64_t{y} * One - y0) * run * One / rise, begin, end) + One / 2;
        const std::int64_t left = std::max(middle - half, plotLeft);
        const std::int64_t right = std::min(middle + half, plotRight);
        for (int x = static_cast<int>(left >> 8); x * std::int64_t{One} < right; ++x)
            Cover(x, y,
                  static_cast<int>(std::min(right, (x + 1) * std::int64_t{One}) -
                                   std::max(left, x * std::int64_t{One})));
    }
}

void CRasterCanvas::Line(const sInkLine& line, const sPixelRect& plot)
{
    m_plot = CommonPart(plot, m_clip);
    if (m_plot.Left >= m_plot.Right || m_plot.Top >= m_plot.Bottom)
        return;
    m_color = PixelOf(line.Color);
    std::fill(m_solid.begin() + m_plot.Left, m_solid.begin() + m_plot.Right, sExtent{0, 0});
    const std::vector<sInkVertex>& vertices = line.Vertices;
    const int reach = line.Width + 1;
    const auto goesOn = [&](std::size_t i) { return i + 1 < vertices.size() && vertices[i + 1].Joined; };
    // Solid parts first: the slanting parts between them need not be computed where these cover them.
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const sInkVertex& vertex = vertices[i];
        const bool inSight = vertex.Column >= m_plot.Left - reach && vertex.Column < m_plot.Right + reach;
        if (inSight && (vertex.Several || (!vertex.Joined && !goesOn(i))) && InDash(line, vertex.Column))
            Vertical(vertex.Column, vertex.Top, vertex.Bottom, line.Width);
    }
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        if (!goesOn(i))
            continue;
        const sInkVertex &vertex = vertices[i], &next = vertices[i + 1];
        if (std::max(vertex.Column, next.Column) >= m_plot.Left - reach &&
            std::min(vertex.Column, next.Column) < m_plot.Right + reach)
            Segment(vertex.Column, vertex.Last, next.Column, next.First, line);
    }
    Blend(m_color);
}

void CRasterCanvas::Blend(PixelColor color)
{
    for (int x = m_plot.Left; x < m_plot.Right; ++x) {
        sExtent& extent = m_extents[static_cast<std::size_t>(x)];
        if (extent.Top >= extent.Bottom)
            continue;
        std::uint8_t* mask = MaskAt(x, extent.Top);
        PixelColor* pixel = m_pixels + static_cast<std::ptrdiff_t>(extent.Top) * m_stride + x;
        for (int y = extent.Top; y < extent.Bottom; ++y, ++mask, pixel += m_stride) {
            if (*mask == 0)
                continue;
            *pixel = *mask == 255 ? color : BlendPixel(*pixel, color, *mask);
            *mask = 0;
        }
        Record({x, extent.Top, x + 1, extent.Bottom});
        extent = {m_height, 0};
    }
}

} // namespace zantroq
