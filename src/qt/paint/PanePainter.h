// Paints a pane's scene. The picture of a pane is kept, so that a change costs what it touches: a changed
// last point its own columns, another change the wiping and drawing of ink, never the clearing of the whole.
// The look: straight lines on whole device pixels, sans-serif text, at every scale factor. Chart window's
// thread.
#pragma once

#include "ink/PaneInk.h"
#include "qt/paint/PaneDecorations.h"
#include "qt/paint/RasterCanvas.h"

#include <QImage>
#include <QRect>
#include <QString>

class QPainter;

namespace zantroq {

class CPanePainter
{
public:
    // Neither is owned. The detail is for comparison with the plain definition.
    explicit CPanePainter(const CChart2D& chart, const QString& family = {},
                          InkDetail detail = InkDetail::Reduced);
    CPanePainter(const CPanePainter&) = delete;
    CPanePainter& operator=(const CPanePainter&) = delete;

    // The picture of the scene as it is now, of the size of its AreaBox, with the ratio set on it. Only what
    // changed since the last call is painted; see Damage. The picture is null for a pane without a size.
    const QImage& Picture(double devicePixelRatio);
    // What the last Picture() painted, in pane pixels: the part of a widget to repaint.
    QRect Damage() const;
    // Forgets the kept picture: the next one is painted from nothing.
    void Forget() { m_fresh = true; }

    // Paints the scene into a box of any painter, stretched to fill it, without keeping anything. One unit of
    // the painter is a device pixel: lines and text follow the box's size, so a page of 4,800 units has fine
    // lines and not coarse pixels.
    void PaintInto(QPainter& painter, const QRectF& box);

private:
    struct sKept // what lies under the ink
    {
        sPixelRect Plot;
        QRgb Background = 0, PlotBackground = 0;
        bool operator==(const sKept& other) const;
    };

    void Repaint(const sPlotMap& map, double scale);
    void PaintOverInk(const sPixelRect& whole, const sPlotMap& map);
    void Wipe(const sPixelRect& ink, const sPixelRect& plot);
    void PaintColumns(const sPixelRect& clip, const sPlotMap& map);
    void PaintData(IPaneCanvas& canvas, int left, int right, const sPixelRect& plot);
    void PaintAbove(IPaneCanvas& canvas, const sPixelRect& within);

    const CChart2D& m_chart;
    CPaneText m_text;
    CPaneInk m_ink[2];
    CRasterCanvas m_canvas;
    QImage m_picture;
    bool m_fresh = true;
    double m_ratio = 0;
    std::uint64_t m_revision = 0;
    sKept m_kept;
    sPaneDecorations m_furniture;
    sPixelRect m_damage;
};

// A picture of the scene from nothing.
QImage PanePicture(const CChart2D& chart, double devicePixelRatio, const QString& family = {});

} // namespace zantroq
