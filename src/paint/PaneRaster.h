// Paints a pane into 32-bit pixels that are kept from one painting to the next, so that a change costs only
// what it touches: a changed last point repaints its own pixel columns, any other change wipes and redraws
// what was painted, and only a new background or size clears the whole picture. Chart window's thread.
#pragma once

#include "paint/PaneLayers.h"
#include "paint/RasterCanvas.h"

namespace zantroq {

// How much of a kept picture has to be painted again, from least to most.
enum class PaneChange
{
    None,
    Columns,    // some pixel columns of the plot
    Ink,        // everything except the backgrounds
    Everything, // backgrounds included
};

class CPaneRaster
{
public:
    // Neither is owned. The detail serves comparison with the plain definition.
    CPaneRaster(const CChart2D& chart, ITextMasks& text, InkDetail detail = InkDetail::Reduced);

    // Brings the picture up to date with the scene and returns the part that was painted, in device pixels.
    // `scale` is device pixels per pane pixel, and the scale of the text. REQUIRES: the pixels are those that
    // the last call left, unless Forget was called.
    sPixelRect Paint(const sRaster& picture, double scale);
    // The next Paint starts from nothing.
    void SetManner(PaneManner manner);
    // The next Paint starts from nothing, whatever the picture holds.
    void Forget() { m_fresh = true; }

private:
    struct sBackdrop // decides the pixels below the ink
    {
        sPixelRect Plot;
        PixelColor Background = 0, PlotBackground = 0;
    };
    static bool IsSame(const sBackdrop& a, const sBackdrop& b);

    PaneChange FindChange(const sPlotMap& map, double scale, const sPixelRect& whole);
    void RepaintInk(const sPixelRect& whole, const sPixelRect& plot);
    void Wipe(const sPixelRect& rect, const sPixelRect& plot);
    void RepaintFromNothing(const sPixelRect& clip, const sPixelRect& plot);

    const CChart2D& m_chart;
    ITextMasks& m_text;
    CPaneLayers m_layers;
    CRasterCanvas m_canvas;
    bool m_fresh = true;
    std::uint64_t m_revision = 0; // of the scene when decorations were placed
    sBackdrop m_backdrop;
    sPixelRect m_columns; // to repaint when the change is Columns
};

} // namespace zantroq
