#include "qt/paint/CutShapes.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace zantroq {

namespace {

enum class Edge
{
    Left,
    Top,
    Right,
    Bottom
};

// Distance of a point inside an edge; negative outside.
double Inside(const QPointF& point, const QRectF& box, Edge edge)
{
    switch (edge) {
    case Edge::Left:
        return point.x() - box.left();
    case Edge::Top:
        return point.y() - box.top();
    case Edge::Right:
        return box.right() - point.x();
    case Edge::Bottom:
        break;
    }
    return box.bottom() - point.y();
}

// The fractions of the way from a to b between which the line is inside the box; false if it is outside.
bool LiesWithin(const QPointF& a, const QPointF& b, const QRectF& box, double& from, double& to)
{
    from = 0;
    to = 1;
    for (const Edge edge : {Edge::Left, Edge::Top, Edge::Right, Edge::Bottom}) {
        const double begin = Inside(a, box, edge), end = Inside(b, box, edge);
        if (begin < 0 && end < 0)
            return false;
        if (begin < 0)
            from = std::max(from, begin / (begin - end));
        else if (end < 0)
            to = std::min(to, begin / (begin - end));
    }
    return from < to;
}

class CStrokeCutter
{
public:
    CStrokeCutter(double width, const QRectF& box) : m_half(width / 2), m_box(box)
    {
        Out.Filled.setFillRule(Qt::WindingFill);
    }

    // Adds a straight piece; joins it to the piece before if that ended at the same point.
    void Add(const QPointF& from, const QPointF& to, bool goesOn)
    {
        const QRectF ink = QRectF(from, to).normalized().adjusted(-m_half, -m_half, m_half, m_half);
        const bool whole = m_box.contains(ink);
        const bool extends = goesOn && whole && m_wholeBefore && Out.Stroked.currentPosition() == from;
        if (goesOn && !extends)
            Fill(Disc(from));
        if (!whole) {
            Fill(Bar(from, to));
        } else {
            if (!extends)
                Out.Stroked.moveTo(from);
            Out.Stroked.lineTo(to);
        }
        m_wholeBefore = whole;
    }

    sCutStroke Out;

private:
    void Fill(const QPolygonF& polygon)
    {
        const QPolygonF cut = CutPolygon(polygon, m_box);
        if (cut.isEmpty())
            return;
        Out.Filled.addPolygon(cut);
        Out.Filled.closeSubpath();
    }

    // Bars and discs have the same orientation, so that their overlap is filled too.
    QPolygonF Bar(const QPointF& from, const QPointF& to) const
    {
        const QPointF way = to - from;
        const double length = std::hypot(way.x(), way.y());
        const QPointF aside = QPointF(-way.y(), way.x()) * (m_half / length);
        return {{from + aside, to + aside, to - aside, from - aside}};
    }

    QPolygonF Disc(const QPointF& middle) const
    {
        constexpr double turn = 6.283185307179586;
        const int corners = std::clamp(static_cast<int>(4 * m_half), 8, 64);
        QPolygonF disc;
        for (int i = 0; i < corners; ++i)
            disc << middle + QPointF(std::sin(i * turn / corners), std::cos(i * turn / corners)) * m_half;
        return disc;
    }

    const double m_half;
    const QRectF m_box;
    bool m_wholeBefore = false;
};

} // namespace

QPolygonF CutPolygon(const QPolygonF& polygon, const QRectF& box)
{
    // One edge of the box after the other (Sutherland and Hodgman, 1974).
    QPolygonF cut = polygon;
    for (const Edge edge : {Edge::Left, Edge::Top, Edge::Right, Edge::Bottom}) {
        const QPolygonF whole = std::move(cut);
        cut = {};
        for (qsizetype i = 0; i < whole.size(); ++i) {
            const QPointF &point = whole[i], &before = whole[i > 0 ? i - 1 : whole.size() - 1];
            const double here = Inside(point, box, edge), there = Inside(before, box, edge);
            if ((here < 0) != (there < 0))
                cut << before + (point - before) * (there / (there - here));
            if (here >= 0)
                cut << point;
        }
    }
    return cut;
}

QPainterPath CutPath(const QPainterPath& path, const QRectF& box)
{
    constexpr double fine = 16;
    QPainterPath cut;
    cut.setFillRule(path.fillRule());
    for (const QPolygonF& polygon : path.toSubpathPolygons(QTransform::fromScale(fine, fine))) {
        const QPolygonF part = CutPolygon(QTransform::fromScale(1 / fine, 1 / fine).map(polygon), box);
        if (part.isEmpty())
            continue;
        cut.addPolygon(part);
        cut.closeSubpath();
    }
    return cut;
}

sCutStroke CutStroke(const QPainterPath& path, double width, const std::optional<sDashes>& dashes,
                     const QRectF& box)
{
    CStrokeCutter cutter(width, box);
    // Parts further out leave no ink in the box, and their dashes need not be counted.
    const QRectF near = box.adjusted(-width, -width, width, width);
    double passed = 0; // length passed in this part of the path
    bool first = true;
    for (int i = 1; i < path.elementCount(); ++i) {
        const QPointF a = path.elementAt(i - 1), b = path.elementAt(i);
        if (path.elementAt(i).isMoveTo()) {
            passed = 0;
            first = true;
            continue;
        }
        const double length = std::hypot(b.x() - a.x(), b.y() - a.y());
        double from = 0, to = 1;
        if (length > 0 && LiesWithin(a, b, near, from, to)) {
            const auto at = [&](double share) { return share == 1 ? b : a + (b - a) * share; };
            if (!dashes) {
                cutter.Add(at(from), at(to), !first && from == 0);
            } else {
                const double period = dashes->On + dashes->Off;
                for (double dash = std::floor((passed + from * length) / period) * period;
                     dash < passed + to * length; dash += period) {
                    const double begin = std::max(from, (dash - passed) / length),
                                 end = std::min(to, (dash + dashes->On - passed) / length);
                    if (begin < end)
                        cutter.Add(at(begin), at(end), from == 0 && dash < passed);
                }
            }
        }
        passed += length;
        first = first && length == 0;
    }
    return std::move(cutter.Out);
}

} // namespace zantroq
