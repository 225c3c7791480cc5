// One group of a pane, reduced to what its device pixels show: rectangles and shaded columns for bars and
// candles, lines with at most a few vertices per pixel column. The amount of ink depends on the pixels, not
// on the points, and the picture is the same as painting every point one after the other:
// - Bars and candles of one column cover each other, the later ones on top. Walking the points of a column
//   backwards, only what no later point covers is kept (OnePixelBars.h).
// - A line runs through the middle of whole pixel columns. Within a column it covers the rows from the lowest
//   to the highest point between two gaps; only the first and the last point matter to the columns beside it
//   (LineInk.h).
// Ink is kept from one painting to the next: a changed last point costs its own column. Chart window's
// thread.
#pragma once

#include "ink/InkColumns.h"
#include "ink/InkLine.h"
#include "ink/InkRect.h"
#include "ink/LineInk.h"
#include "ink/PointColumns.h"
#include "scene/PaneGeometry.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace zantroq {

enum class InkDetail
{
    Reduced,
    PointByPoint, // reduced as on a processor without AVX2
    EveryPoint,   // the plain definition, for comparison
};

enum class PriceCheck;
struct sBarSource;

class CPaneInk
{
public:
    explicit CPaneInk(int group, InkDetail detail = InkDetail::Reduced) : m_group(group), m_detail(detail) {}

    // The device columns that may look different since the last call; the whole plot when Whole.
    struct sDamage
    {
        bool Whole = false;
        int Left = 0, Right = 0; // Right exclusive; equal when nothing changed
    };
    // Brings the ink up to date with the scene. `scale` is device pixels per pane pixel.
    sDamage Update(const CChart2D& chart, const sPlotMap& map, double scale);

    // In painting order: all bars, then all lines. The rectangles' Left ends ascend when RectsAscend().
    // Candles one pixel wide are columns, which ascend, and rectangles in other columns.
    const std::vector<sInkRect>& Rects() const { return m_rects; }
    const CInkColumns& Columns() const { return m_inkColumns; }
    // Whether the group's points are bars of any kind, and bars from the origin; else they are lines with
    // marks.
    bool HasBars() const { return m_hasBars; }
    bool IsHistogram() const { return m_hasBars && m_histogram; }
    bool RectsAscend() const { return m_ascending; }
    // In device pixels; no rectangle or line reaches further from its point's column.
    int WidestRect() const { return m_widest; }
    const std::vector<sInkLine>& Lines() const { return m_lines; }

private:
    struct sLook // everything that decides the ink besides the points
    {
        sPixelRect Plot;
        CAxisMap X, Y;
        double Scale = 0, Origin = 0;
        std::vector<std::uint32_t> Styles;
        bool operator==(const sLook& other) const;
    };
    struct sColumnStart // where the ink of a column begins
    {
        int Column;
        std::size_t FirstPoint, FirstRect, FirstInkColumn;
    };

    sLook LookOf(const CChart2D& chart, const sPlotMap& map, double scale) const;
    void ReadStyle(const CChart2D& chart);
    std::optional<sDamage> DrawChangedPoints(const CPaneGroup& group, const sPointChanges& changes);
    void DrawAll(const CPaneGroup& group);
    bool DrawTail(const CPaneGroup& group, std::size_t firstPoint);
    void DrawBars(const CPaneGroup& group, std::size_t firstPoint);
    std::size_t CutBarsFrom(const CPaneData& data, std::size_t firstPoint);
    void DrawWideBars(const sBarSource& source, std::size_t i);
    bool DrawOnePixelBars(const sBarSource& source, std::size_t i, PriceCheck check);
    bool BeginsColumn(int column) const;
    void CutColumns(std::size_t count);
    void DrawLines(const CPaneGroup& group);
    bool DrawChangedLines(const CPaneGroup& group, std::uint64_t since);
    void DrawLine(const CPaneGroup& group, int series, std::size_t firstPoint, sInkLine& line);
    void DrawMarks(const CPaneGroup& group, int series);
    bool HasBars(const CPaneGroup& group) const;
    LineGrouping Grouping() const;
    bool UsesBlocks() const;
    bool IsCrowded() const;

    int m_group;
    InkDetail m_detail;
    bool m_filledCandles = false;
    double m_scale = 1;
    ColorValue m_hollow = 0;
    sPlotMap m_map;
    sLook m_look;
    std::uint64_t m_revision = ~std::uint64_t{0}; // of the points when they were drawn last
    bool m_drawn = false, m_ascending = true, m_hasBars = false, m_histogram = false;
    int m_widest = 1, m_barWidth = 1;
    double m_origin = 0;
    CPointColumns m_points; // of the current drawing
    std::vector<sInkRect> m_rects;
    CInkColumns m_inkColumns;
    std::vector<sColumnStart> m_columns;
    std::vector<sInkLine> m_lines;
    std::vector<int> m_lineSeries;
    std::vector<sLineRun> m_runs; // of the line drawn last
};

} // namespace zantroq
