// Candles, H/L/O/C bars and bars where a point is one vertical line one pixel wide. Of the points of a pixel
// column only what no later point covers is kept; the picture is the same as if all were painted one after
// the other. Lives for one drawing, on the chart window's thread.
#pragma once

#include "ink/BarSource.h"
#include "ink/InkColumns.h"
#include "ink/InkRect.h"
#include "ink/VisibleSpans.h"
#include "ink/VisibleStrokes.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zantroq {

class COnePixelBars
{
public:
    // Rectangles are added to `rects`, columns of candles to `columns`. All but `check` outlive this object.
    COnePixelBars(const sBarSource& source, const sPlotMap& map, PriceCheck check,
                  std::vector<sInkRect>& rects, CInkColumns& columns);

    // Adds what is visible of a column's points, first to last (exclusive). Candles become a column of ink
    // where the fast path can tell what is visible. Rectangles are added by the next call or by Finish: by
    // then the prefetch of the prices that decide their colors has arrived. Until then the column's first
    // rectangle is the next one to be added to `rects`.
    void Draw(std::size_t first, std::size_t last, int column);
    // Call once after the last Draw. False when a point that was taken lacks its open or close price: the ink
    // is then wrong, and all is to be drawn again with PriceCheck::AllFour.
    bool Finish();
    // Takes the path of processors without AVX2.
    void GoPointByPoint() { m_strokes.TurnOff(); }

    // Prefetches the highs and lows of points that will be drawn next: Draw walks backwards, which the
    // processor does not foresee.
    void PrefetchPoints(std::size_t first, std::size_t count) const;

private:
    bool FindStrokes(std::size_t first, std::size_t last);
    void DrawStrokes(std::size_t first, int column);
    void PrefetchColors(std::size_t first) const;
    void AddSpan(std::size_t first);
    void AddShades(std::size_t first, int column);
    void Emit(const std::vector<sSeenPart>& parts, int column);
    ColorValue ColorOf(std::size_t point);

    const sBarSource& m_source;
    const sPlotMap& m_map;
    std::vector<sInkRect>& m_rects;
    CInkColumns& m_columns;
    const bool m_bars;
    const PriceCheck m_check;
    bool m_allComplete = true;
    int m_column = 0, m_columnBefore = 0;
    std::vector<sSeenPart> m_found, m_before; // of the current column and of the one before
    std::size_t m_visible = 8;                // points visible in the column before; at first a guess
    CVisibleStrokes m_strokes;
    CVisibleSpans m_spans;
    std::vector<std::uint8_t>
        m_shades; // of the current column: all rows of the plot, with room on both sides
};

} // namespace zantroq
