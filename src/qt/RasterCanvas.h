// Writes a pane's pixels straight into a picture. It remembers in tiles where ink went, so that the next
// painting wipes only those. Everything is cut to a clip of device columns. Chart window's thread.
#pragma once

#include "qt/PaneCanvas.h"
#include "qt/PaneText.h"

#include <QImage>

#include <cstdint>
#include <vector>

namespace zantroq {

class CRasterCanvas : public IPaneCanvas
{
public:
    explicit CRasterCanvas(CPaneText& text) : m_text(text) {}

    // The picture to paint on, 32 bits a pixel; it must live until the next call. A new size forgets all ink.
    void SetPicture(QImage& picture);
    void SetClip(const sPixelRect& clip) { m_clip = clip; }
    const sPixelRect& Clip() const { return m_clip; }

    // Ink drawn while marking is on is wiped by WipeInk. Rect by rect, `wipe` fills the tiles' background.
    void SetMarking(bool marking) { m_marking = marking; }
    template<class F> void WipeInk(F wipe)
    {
        for (int row = 0; row < m_tileRows; ++row)
            for (int column = 0; column < m_tileColumns; ++column)
                if (std::uint8_t& tile = m_tiles[static_cast<std::size_t>(row * m_tileColumns + column)];
                    tile != 0) {
                    tile = 0;
                    int end = column + 1; // neighbours go together
                    while (end < m_tileColumns &&
                           m_tiles[static_cast<std::size_t>(row * m_tileColumns + end)] != 0)
                        m_tiles[static_cast<std::size_t>(row * m_tileColumns + end++)] = 0;
                    wipe(sPixelRect{column * TileWidth, row * TileHeight, end * TileWidth,
                                    (row + 1) * TileHeight});
                    column = end - 1;
                }
    }
    void ForgetInk();

    void Fill(const sPixelRect& rect, QRgb colour) override;
    void Line(const sInkLine& line, const sPixelRect& plot) override;
    void Text(int left, int top, std::string_view text, QRgb colour) override;

private:
    static constexpr int TileWidth = 32, TileHeight = 8;
    struct sExtent
    {
        int Top, Bottom;
    };

    void Mark(int left, int top, int right, int bottom);
    void Cover(int x, int y, int coverage);
    void CoverRows(int x, int top256, int bottom256);
    void Solid(const sPixelRect& rect);
    void Vertical(int column, int top, int bottom, int width);
    void Segment(int column0, int y0, int column1, int y1, const sInkLine& line);
    void Steep(int column0, int y0, int column1, int y1, const sInkLine& line);
    void Blend(QRgb colour);

    CPaneText& m_text;
    QRgb* m_pixels = nullptr;
    int m_stride = 0, m_width = 0, m_height = 0; // in pixels
    sPixelRect m_clip, m_plot;                   // the plot cut to the clip
    QRgb m_colour = 0;                           // of the line at hand
    bool m_marking = false;
    int m_tileColumns = 0, m_tileRows = 0;
    std::vector<std::uint8_t> m_tiles;
    // One line at a time: the coverage of its pixels, the greatest where its parts meet, and the rows touched
    // in each column.
    std::vector<std::uint8_t> m_mask;
    std::vector<sExtent> m_extents;
};

} // namespace zantroq
