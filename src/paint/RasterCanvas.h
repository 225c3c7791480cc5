// Writes a pane's pixels into 32-bit memory. It records where it painted, so that the next painting wipes
// only those places. Everything is clipped to a rectangle inside the picture; a plot may reach past the
// picture. Chart window's thread.
#pragma once

#include "paint/DirtyRects.h"
#include "paint/PaneCanvas.h"
#include "paint/TextMeasure.h"

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace zantroq {

// A picture's memory, not owned.
struct sRaster
{
    PixelColor* Pixels = nullptr;
    int Stride = 0; // pixels from one row to the next
    int Width = 0, Height = 0;
};

class CRasterCanvas : public IPaneCanvas
{
public:
    // Not owned.
    explicit CRasterCanvas(ITextMasks& text) : m_text(text) {}

    // Sets the picture to paint on, which must live until the next call. A new size drops the record and
    // resets the clip to the whole picture.
    void SetPicture(const sRaster& picture);
    // Clips to the part of `clip` inside the picture.
    void SetClip(const sPixelRect& clip);
    const sPixelRect& Clip() const { return m_clip; }

    // Whether painting is recorded. Backgrounds are not: they need no wiping.
    enum class Recording
    {
        Off,
        On,
    };
    void SetRecording(Recording recording) { m_recording = recording; }
    // Returns the recorded rectangles and starts a new record. Valid until the next call.
    const std::vector<sPixelRect>& TakeRecord()
    {
        std::swap(m_taken, m_record);
        m_record.Clear();
        return m_taken.Rects();
    }
    void DropRecord() { m_record.Clear(); }
    // Drops the newest rectangles inside `inside`, which the caller repaints from the background up.
    void DropRecord(const sPixelRect& inside) { m_record.DropNewest(inside); }

    void Fill(const sPixelRect& rect, PixelColor color) override;
    void Rects(std::span<const sInkRect> rects) override;
    void Columns(const CInkColumns& ink, std::span<const sInkColumn> columns) override;
    void Line(const sInkLine& line, const sPixelRect& plot) override;
    void Text(int left, int top, std::string_view text, PixelColor color) override;

private:
    struct sExtent
    {
        int Top, Bottom;
    };

    void Record(const sPixelRect& rect)
    {
        if (m_recording == Recording::On)
            m_record.Add(rect);
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
    void Blend(PixelColor color);

    ITextMasks& m_text;
    PixelColor* m_pixels = nullptr;
    int m_stride = 0, m_width = 0, m_height = 0; // in pixels
    sPixelRect m_clip, m_plot;                   // the plot cut to the clip
    PixelColor m_color = 0;                      // of the line at hand
    Recording m_recording = Recording::Off;
    CDirtyRects m_record;
    CDirtyRects m_taken; // a member to reuse its memory
    // One line at a time: the coverage of its pixels, column by column, the greatest where its parts meet;
    // the rows touched in each column; and rows of it that are the line's color already.
    std::vector<std::uint8_t> m_mask;
    std::vector<sExtent> m_extents, m_solid;
};

} // namespace zantroq
