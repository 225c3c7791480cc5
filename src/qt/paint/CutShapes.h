// Shapes cut to a rectangle by arithmetic, for painters that do not clip. Any thread.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <optional>

namespace zantroq {

// The part of a polygon in the box. What it winds around inside is wound around as often as before, so the
// pieces of a shape with holes may be cut one by one.
QPolygonF CutPolygon(const QPolygonF& polygon, const QRectF& box);

// The part of a filled path in the box, its curves as polygons of a sixteenth of a unit.
QPainterPath CutPath(const QPainterPath& path, const QRectF& box);

struct sDashes
{
    double On, Off; // units of the path
};

struct sCutStroke
{
    QPainterPath Stroked; // to be stroked solid with the same width, flat ends and round joins
    QPainterPath Filled;  // to be filled with the same color: the parts that the edge of the box cuts
};

// A stroke of a path of straight lines, as far as its ink lies in the box. Dashes begin anew with each part
// of the path.
sCutStroke CutStroke(const QPainterPath& path, double width, const std::optional<sDashes>& dashes,
                     const QRectF& box);

} // namespace zantroq
