// Paints the scene of a pane: into a cached picture for the screen, or with any QPainter. Straight lines are
// on whole device pixels and text is sans-serif, at every scale factor. Chart window's thread.
#pragma once

#include "paint/PaneRaster.h"
#include "qt/paint/PaneText.h"

#include <QImage>
#include <QRect>
#include <QString>

class QPainter;

namespace zantroq {

class CPanePainter
{
public:
    // The chart is not owned. `family` is the font of all texts; empty for the default. `detail` lets tests
    // compare with the plain definition.
    explicit CPanePainter(const CChart2D& chart, const QString& family = {},
                          InkDetail detail = InkDetail::Reduced);
    CPanePainter(const CPanePainter&) = delete;
    CPanePainter& operator=(const CPanePainter&) = delete;

    // The picture of the current scene, in the size of its AreaBox and with the device pixel ratio set.
    // Paints only what changed since the last call; see Damage. A null image for a pane without a size.
    const QImage& Picture(double devicePixelRatio);
    // The part painted by the last Picture(), in pane pixels: the part of a widget to repaint.
    QRect Damage() const;
    void SetManner(PaneManner manner);
    // Drops the cached picture, so that the next one is painted completely.
    void Forget() { m_raster.Forget(); }

    // Paints the scene into a box of any painter, stretched to fill it, without caching. One unit of the
    // painter is a device pixel: widths of lines and sizes of text follow the size of the box, so a page of
    // 4,800 units has fine lines.
    void PaintInto(QPainter& painter, const QRectF& box);

private:
    const CChart2D& m_chart;
    const InkDetail m_detail;
    CPaneText m_text;
    CPaneRaster m_raster;
    PaneManner m_manner = PaneManner::Plain;
    QImage m_picture;
    double m_ratio = 0;
    sPixelRect m_damage; // device pixels
};

// A picture of the scene, painted completely.
QImage PanePicture(const CChart2D& chart, double devicePixelRatio, const QString& family = {},
                   PaneManner manner = PaneManner::Plain);

} // namespace zantroq
