// Writes a pane's pixels straight into a picture. It remembers where ink went, so that the next painting
// wipes only that. Everything is cut to a clip, which is never larger than the picture: a plot may be. Chart
// window's thread.
#pragma once

#include "qt/paint/DirtyRects.h"
#include "qt/paint/PaneCanvas.h"
#include "qt/paint/PaneText.h"

#include <QImage>

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace zantroq {

class CRasterCanvas : public IPaneCanvas
{
public:
    explicit CRasterCanvas(CPaneText& text) : m_text(text) {}

    // The picture to paint on, 32 bits a pixel; it must live until the next call. A new size forgets all ink.
    void SetPicture(QImage& picture);
    void SetClip(const sPixelRect& clip); // what of it lies in the picture
    const sPixelRect& Clip() const { return m_clip; }

    // Ink drawn while marking is on is what TakeInk tells next time, to be wiped.
    void SetMarking(bool marking) { m_marking = marking; }
    const std::vector<sPixelRect>& TakeInk()
    {
        std::swap(m_wiped, m_trail);
        m_trail.Clear();
        return m_wiped.Rects();
    }
    void ForgetInk() { m_trail.Clear(); }
    // What lies inside is about to be painted from nothing.
    void ForgetInk(const sPixelRect& inside) { m_trail.DropNewest(inside); }

    void Fill(const sPixelRect& rect, QRgb color) override;
    void Rects(std::span<const sInkRect> rects) override;
    void Columns(const CInkColumns& ink, std::span<const sInkColumn> columns) override;
    void Line(const sInkLine& line, const sPixelRect& plot) override;
    void Text(int left, int top, std::string_view text, QRgb color) override;

private:
    struct sExtent
    {
        int Top, Bottom;
    };

    void Mark(const sPixelRect& rect)
    {
        if (m_marking)
            m_trail.Add(rect);
    }
    std::uint8_t* MaskAt(int x, int y)
    {
        return m_mask.data() + static_cast<std::ptrdiff_t>(x) * m_height + y;
    }
    void Framed(const sInkRect& frame, const sInkRect& inside);
    std::size_t ThinRects(std::span<const sInkRect> rects, std::size_t i);
    sExtent SolidRows(int first, int last) const;
    void NoteSolid(int left, int right, const sExtent& rows);
    void Cover(int x, int y, int coverage);
    void CoverRows(int x, int top256, int bottom256);
    void Solid(const sPixelRect& rect);
    void Vertical(int column, int top, int bottom, int width);
    void Segment(int column0, int y0, int column1, int y1, const sInkLine& line);
    void Steep(int column0, int y0, int column1, int y1, const sInkLine& line);
    void Blend(QRgb color);

    CPaneText& m_text;
    QRgb* m_pixels = nullptr;
    int m_stride = 0, m_width = 0, m_height = 0; // in pixels
    sPixelRect m_clip, m_plot;                   // the plot cut to the clip
    QRgb m_color = 0;                            // of the line at hand
    bool m_marking = false;
    CDirtyRects m_trail;
    CDirtyRects m_wiped; // kept for its memory
    // One line at a time: the coverage of its pixels, column by column, the greatest where its parts meet;
    // the rows touched in each column; and rows of it that are the line's color already.
    std::vector<std::uint8_t> m_mask;
    std::vector<sExtent> m_extents, m_solid;
};

} // namespace zantroq
