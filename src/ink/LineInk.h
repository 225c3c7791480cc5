// One line of a group, reduced to vertices: a line runs through the middle of whole pixel columns, and within
// a column it covers the rows from its lowest to its highest point between two gaps. Lives for one drawing,
// on the chart window's thread.
#pragma once

#include "ink/InkLine.h"
#include "ink/PointColumns.h"
#include "scene/BlockMinMax.h"
#include "scene/PaneGeometry.h"

#include <cstddef>
#include <span>
#include <vector>

namespace zantroq {

// How many points of a line are looked at together, from least to most. All but EveryPoint yield the same
// vertices.
enum class LineGrouping
{
    EveryPoint,   // a vertex for each point: the plain definition, for comparison
    PointByPoint, // points of one column share a vertex
    Columns, // the points of a column together, by their least and greatest value; needs columns that ascend
    Blocks,  // likewise, from the least and greatest of the blocks in the column
};

// Points of a line that are examined together: the points of one column, or all points of a level line.
struct sLineRun
{
    std::size_t First, End; // indices from 0, End exclusive
    double Least, Greatest; // meaningless unless Plain
    bool Plain;             // every one of them is a number
};

class CLineInk
{
public:
    // Draws series number `series` of `data` into `line`, whose look is set. All but `grouping` outlive this
    // object.
    CLineInk(const CPaneData& data, int series, const sPlotMap& map, CPointColumns& points,
             LineGrouping grouping, sInkLine& line);

    // Replaces the vertices from the column of point `firstPoint` (from 0) on; those before it stay. `runs`
    // receives the runs of the points drawn. They cover every drawn point only from LineGrouping::Columns on.
    void Draw(std::size_t firstPoint, std::vector<sLineRun>& runs);

private:
    void DrawLevel(std::vector<sLineRun>& runs);
    bool IsLevel() const;
    std::size_t CutFrom(std::size_t firstPoint);
    std::size_t DrawColumn(std::size_t i, std::vector<sLineRun>& runs);
    std::size_t DrawPoints(std::size_t i, std::size_t end);
    void DrawPoint(std::size_t i);
    void Add(const sInkVertex& stay);
    int HeightOf(double value) const;

    const CPaneData& m_data;
    const int m_series;
    const sPlotMap& m_map;
    CPointColumns& m_points;
    const LineGrouping m_grouping;
    sInkLine& m_line;
    const std::span<const double> m_y;
    sBlockedValues m_blocked; // of m_y
    bool m_joined = false;    // the line leads on from the last vertex
};

} // namespace zantroq
