// Candles, H/L/O/C bars and bars where a point is one vertical line of a pixel's width: of the points of a
// pixel column only what no later point covers is kept, and their picture is that of all of them painted one
// after the other. Lives for one drawing, on the chart window's thread.
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
    // Rectangles are added to `rects`, columns of candles to `columns`; all four outlive this object.
    COnePixelBars(const sBarSource& source, const sPlotMap& map, std::vector<sInkRect>& rects,
                  CInkColumns& columns);

    // What is seen of a column's points, first to last (exclusive). Candles become a column of ink where that
    // can be told at once. Rectangles follow with the next call or with Finish, when the memory has had time
    // to bring what their colors depend on; until then the column's first rectangle is the one behind those
    // that are there.
    void Draw(std::size_t first, std::size_t last, int column);
    // To be called behind the last Draw. False when a point that seemed to be there lacks one of its values:
    // all is then to be drawn again after ExamineAll.
    bool Finish();
    void ExamineAll();
    // As on a processor that cannot look at several points at a time.
    void GoPointByPoint() { m_seen.TurnOff(); }

    // Asks the memory for the points of the next column.
    void Foresee(std::size_t first, std::size_t count) const;

private:
    void DrawSeen(std::size_t first, int column);
    void Emit(const std::vector<sSeenPart>& parts, int column);

    const sBarSource& m_source;
    const sPlotMap& m_map;
    std::vector<sInkRect>& m_rects;
    CInkColumns& m_columns;
    const bool m_bars;
    bool m_examineAll = false, m_allComplete = true;
    int m_column = 0, m_columnBefore = 0;
    std::vector<sSeenPart> m_found, m_before; // of the column at hand and of the one before
    std::size_t m_shown = 8;                  // points seen of the column before, about
    CVisibleStrokes m_seen;
    CVisibleSpans m_parts;
    std::vector<std::uint8_t> m_shades; // of the column at hand, all rows of the plot and room on both sides
};

} // namespace zantroq
