// The layers of a pane, from the background up: backgrounds, grid, data of both groups, and above the data
// marker, frame, axis texts and labels. Keeps the ink of both groups from one painting to the next. Chart
// window's thread.
#pragma once

#include "ink/PaneInk.h"
#include "paint/PaneCanvas.h"
#include "paint/PaneDecorations.h"
#include "scene/PaneGeometry.h"

#include <array>

namespace zantroq {

class CPaneLayers
{
public:
    explicit CPaneLayers(InkDetail detail = InkDetail::Reduced)
        : m_ink{CPaneInk(1, detail), CPaneInk(2, detail)}
    {
    }

    // Updates the ink of both groups. Returns the pixel columns that may look different since the last call.
    CPaneInk::sDamage UpdateInk(const CChart2D& chart, const sPlotMap& map, double scale);
    void SetManner(PaneManner manner) { m_manner = manner; }
    PaneManner Manner() const { return m_manner; }
    void SetDecorations(sPaneDecorations decorations) { m_decorations = std::move(decorations); }
    const sPaneDecorations& Decorations() const { return m_decorations; }
    bool HasLines() const { return !m_ink[0].Lines().empty() || !m_ink[1].Lines().empty(); }

    // Fills `within` with the two backgrounds, each pixel once. REQUIRES: the canvas clips to `within`.
    void PaintBackgrounds(IPaneCanvas& canvas, const sPixelRect& within, const sPixelRect& plot) const;
    // Paint the parts of a layer inside `within`, and possibly more.
    void PaintGrid(IPaneCanvas& canvas, const sPixelRect& within) const;
    void PaintData(IPaneCanvas& canvas, const sPixelRect& within, const sPixelRect& plot) const;
    void PaintAbove(IPaneCanvas& canvas, const sPixelRect& within) const;

private:
    void PaintLines(IPaneCanvas& canvas, const CPaneInk& ink, const sPixelRect& plot) const;
    static void PaintBars(IPaneCanvas& canvas, const CPaneInk& ink, int left, int right,
                          const sPixelRect& plot);
    static void PaintLabel(IPaneCanvas& canvas, const sPlacedLabel& label);

    std::array<CPaneInk, 2> m_ink;
    sPaneDecorations m_decorations;
    PaneManner m_manner = PaneManner::Plain;
};

} // namespace zantroq
