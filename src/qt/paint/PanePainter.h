// Paints a pane's scene: into a kept picture for the screen, or through any QPainter. Straight lines lie on
// whole device pixels and text is sans-serif, at every scale factor. Chart window's thread.
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
    // The chart is not owned. `family` is the font of all texts; empty for the usual one. The detail serves
    // comparison with the plain definition.
    explicit CPanePainter(const CChart2D& chart, const QString& family = {},
                          InkDetail detail = InkDetail::Reduced);
    CPanePainter(const CPanePainter&) = delete;
    CPanePainter& operator=(const CPanePainter&) = delete;

    // The picture of the scene in its present state, sized as its AreaBox, with the ratio set on it. Paints
    // only what changed since the last call; see Damage. The picture is null for a pane without a size.
    const QImage& Picture(double devicePixelRatio);
    // The part that the last Picture() painted, in pane pixels: the part of a widget to repaint.
    QRect Damage() const;
    // Drops the kept picture: the next one is painted from nothing.
    void Forget() { m_raster.Forget(); }

    // Paints the scene into a box of any painter, stretched to fill it, without keeping anything. One unit of
    // the painter is a device pixel: lines and text follow the box's size, so a page of 4,800 units has fine
    // lines and not coarse pixels.
    void PaintInto(QPainter& painter, const QRectF& box);

private:
    const CChart2D& m_chart;
    const InkDetail m_detail;
    CPaneText m_text;
    CPaneRaster m_raster;
    QImage m_picture;
    double m_ratio = 0;
    sPixelRect m_damage; // device pixels
};

// A picture of the scene from nothing.
QImage PanePicture(const CChart2D& chart, double devicePixelRatio, const QString& family = {});

} // namespace zantroq
