// Candles, H/L/O/C bars and bars as rectangles. Where a point is one vertical line of a pixel's width, the
// points of a pixel column are walked backwards and only what no later point covers is kept: their picture is
// that of all of them painted one after the other. Lives for one drawing, on the chart window's thread.
#pragma once

#include "drawing/InkColumns.h"
#include "drawing/InkRect.h"
#include "drawing/PaneGeometry.h"
#include "drawing/SeenPoints.h"
#include "drawing/ValueBlocks.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zantroq {

// What the bars of a group are made of.
struct sBarSource
{
    int Type = 0;
    std::span<const double> High, Low, Open, Close; // bars: High alone
    sBlockedValues Bars;                            // bars: the same as High
    Colour Up = 0, Down = 0, Outline = 0, Hollow = 0;
    bool Outlined = false, Filled = true;
    int Width = 1, Wick = 1, Tick = 0; // device pixels
    double Origin = 0;

    // From the looks of the group's shown series. `barWidth` is in pane pixels, `scale` in device pixels
    // each.
    static sBarSource Of(const CPaneGroup& group, const sPlotMap& map, double scale, int barWidth);
    // Whether a point is one vertical line of a pixel's width.
    bool IsThin() const { return Width == 1 && Tick == 0 && Wick == 1; }
};

class CBarInk
{
public:
    // Rectangles are added to `rects`, columns of candles to `columns`; all four outlive this object.
    CBarInk(const sBarSource& source, const sPlotMap& map, std::vector<sInkRect>& rects,
            CInkColumns& columns);

    // The rectangles of one point.
    void Draw(std::size_t i, int column);

    // What is seen of a column's points, first to last (exclusive), of a thin source. Candles become a column
    // where that can be told at once. Rectangles follow with the next call or with FinishThin, when the
    // memory has had time to bring what their colours depend on; until then the column's first rectangle is
    // the one behind those that are there.
    void DrawThin(std::size_t first, std::size_t last, int column);
    // To be called behind the last DrawThin. False when a point that seemed to be there lacks one of its
    // values: all is then to be drawn again after ExamineAll.
    bool FinishThin();
    void ExamineAll() { m_examineAll = true; }
    void GoPointByPoint() { m_seen.TurnOff(); }

    // Asks the memory for the points of the next column.
    void Foresee(std::size_t first, std::size_t count) const;

private:
    struct sPiece
    {
        int Top, Bottom;
    };
    struct sFound // a part of a column, and the point that shows there
    {
        int Top, Bottom;
        std::size_t Point;
    };

    bool Complete(std::size_t i) const;
    bool IsUp(std::size_t i) const { return m_source.Close[i] >= m_source.Open[i]; }
    void Span(double a, double b, int& top, int& bottom) const;
    void Emit(int left, int top, int right, int bottom, Colour colour);
    void Emit(const std::vector<sFound>& found, int column);
    void DrawBar(std::size_t i, int column);
    void DrawPriceBar(std::size_t i, int column);
    void DrawCandle(std::size_t i, int column);
    void DrawSeen(std::size_t first, int column);
    void Scan(std::size_t first, std::size_t last);
    bool ScanBars(std::size_t first, std::size_t last);
    std::size_t ScanOnePiece(std::size_t first, std::size_t i);
    void TakeAny(std::size_t i);
    void Found(int top, int bottom, std::size_t i);
    void Cover(int top, int bottom, std::size_t i);

    const sBarSource& m_source;
    const sPlotMap& m_map;
    std::vector<sInkRect>& m_rects;
    CInkColumns& m_columns;
    const bool m_bars, m_plainRows; // greater values stand higher
    bool m_examineAll = false, m_allComplete = true;
    int m_column = 0, m_columnBefore = 0;
    std::vector<sFound> m_found, m_before; // of the column at hand and of the one before
    std::size_t m_shown = 8;               // points seen of the column before, about
    std::vector<sPiece> m_pieces;          // covered in the column at hand, in order, apart
    CSeenPoints m_seen;
    std::vector<std::uint8_t> m_shades; // of the column at hand, all rows of the plot and room on both sides
};

} // namespace zantroq
