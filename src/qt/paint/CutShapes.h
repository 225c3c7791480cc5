// Cuts shapes to a rectangle by computation, for painters that do not clip. Pure functions, any thread.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <optional>

namespace zantroq {

// The part of a polygon inside the box. Winding numbers inside do not change, so the parts of a shape with
// holes may be cut separately.
QPolygonF CutPolygon(const QPolygonF& polygon, const QRectF& box);

// The part of a filled path inside the box, with curves as polygons accurate to a sixteenth of a unit.
QPainterPath CutPath(const QPainterPath& path, const QRectF& box);

struct sDashes
{
    double On, Off; // units of the path
};

struct sCutStroke
{
    QPainterPath Stroked; // to stroke with solid lines of the same width, flat ends and round joins
    QPainterPath Filled;  // to fill with the same color: the parts cut by the edge of the box
};

// The part of a stroke of straight lines that is inside the box. Dashes restart with each part of the path.
sCutStroke CutStroke(const QPainterPath& path, double width, const std::optional<sDashes>& dashes,
                     const QRectF& box);

} // namespace zantroq
