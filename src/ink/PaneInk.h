// One group of a pane, reduced to what its device pixels show: rectangles for bars and candles, lines with at
// most a few vertices per pixel column. The amount of ink depends on the pixels, not on the points, and the
// picture is the same as painting every point one after the other:
// - Bars and candles of one column cover each other, the later ones on top. Walking the points of a column
//   backwards, only what no later point covers is kept.
// - A line runs through the middle of whole pixel columns. Within a column it covers the span from the lowest
//   to the highest point between two gaps; only the first and the last point matter to the columns beside it.
// Ink is kept from one painting to the next: a changed last point costs its own column. Chart window's thread.
#pragma once

#include "ink/InkColumns.h"
#include "ink/InkRect.h"
#include "ink/PointColumns.h"
#include "scene/PaneGeometry.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace zantroq {

// One stay of a line in a pixel column. Heights are in 1/256 device pixels from the top of the picture to the
// middle of the line.
struct sInkVertex
{
    static constexpr int One = 256;
    int Column;
    int First, Last, Top, Bottom; // Top <= First, Last <= Bottom
    bool Joined;                  // a line leads here from the vertex before
    bool Several;                 // more than one point
    bool operator==(const sInkVertex&) const = default;
};

struct sInkLine
{
    ColorValue Color = 0;
    int Width = 1;   // device pixels
    int Pattern = 0; // a LinePattern other than LineNone
    std::vector<sInkVertex> Vertices;
    bool Level = false; // known by its ends: columns between them have no vertices
};

enum class InkDetail
{
    Reduced,
    PointByPoint, // reduced as a processor does it that cannot look at several points at a time
    EveryPoint,   // the plain definition, for comparison
};

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
    // Brings the ink up to date with the scene. `scale` is device pixels a pane pixel.
    sDamage Update(const CChart2D& chart, const sPlotMap& map, double scale);

    // In painting order: all bars, then all lines. The rectangles' Left ends ascend when RectsAscend(). Thin
    // candles are columns, which ascend, and rectangles in other columns.
    const std::vector<sInkRect>& Rects() const { return m_rects; }
    const CInkColumns& Columns() const { return m_inkColumns; }
    // What the group's points are: bars of any kind, such that stand on the origin, or else lines with marks.
    bool HasBars() const { return m_hasBars; }
    bool IsHistogram() const { return m_hasBars && m_histogram; }
    bool RectsAscend() const { return m_ascending; }
    int WidestRect() const { return m_widest; }
    const std::vector<sInkLine>& Lines() const { return m_lines; }

private:
    struct sLook // whatever decides the ink besides the points
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

    struct sRun // points of a line in one column, or of a level in many, looked at together
    {
        std::size_t First, End;
        double Least, Greatest; // when Plain
        bool Plain;             // every one of them a number
    };

    sLook LookOf(const CChart2D& chart, const sPlotMap& map, double scale) const;
    void ReadStyle(const CChart2D& chart);
    std::optional<sDamage> DrawChangedPoints(const CPaneGroup& group, const sPointChanges& changes);
    void DrawAll(const CPaneGroup& group);
    bool DrawTail(const CPaneGroup& group, std::size_t firstPoint);
    bool DrawBars(const CPaneGroup& group, std::size_t firstPoint);
    void DrawWideBars(const sBarSource& source, std::size_t i);
    bool DrawThinBars(const sBarSource& source, std::size_t i, bool examineAll);
    bool BeginsColumn(int column) const;
    void CutColumns(std::size_t count);
    void DrawLines(const CPaneGroup& group);
    bool DrawChangedLines(const CPaneGroup& group, std::uint64_t since);
    void DrawSymbols(const CPaneGroup& group, int series);
    void DrawLine(const CPaneGroup& group, int series, std::size_t firstPoint, sInkLine& line);
    bool HasBars(const CPaneGroup& group) const;
    bool DrawLevel(const CPaneGroup& group, int series, sInkLine& line);
    int HeightOf(double value) const; // in 1/256 device pixels
    bool UsesBlocks() const;
    bool IsCrowded() const; // many points a column, in order: they may be looked at together

    int m_group;
    InkDetail m_detail;
    bool m_filledCandles = false;
    double m_scale = 1;
    ColorValue m_hollow = 0;
    sPlotMap m_map;
    sLook m_look;
    std::uint64_t m_revision = ~std::uint64_t{0};
    bool m_drawn = false, m_ascending = true, m_hasBars = false, m_histogram = false;
    int m_widest = 1, m_barWidth = 1;
    double m_origin = 0;
    CPointColumns m_points; // of the drawing at hand
    std::vector<sInkRect> m_rects;
    CInkColumns m_inkColumns;
    std::vector<sColumnStart> m_columns;
    std::vector<sInkLine> m_lines;
    std::vector<int> m_lineSeries;
    std::vector<sRun> m_runs; // of the line drawn last
};

} // namespace zantroq
