// Places the straight lines of a pane: grid, frame, tick marks and marker.
#pragma once

#include "paint/Placement.h"

namespace zantroq {

class CRulePlacer
{
public:
    // Neither is owned. Lines are added to `out`, whose colors must be set.
    CRulePlacer(const sPlacement& placement, sPaneDecorations& out);

    // REQUIRES: the plot is not empty.
    void Place();

private:
    void PlaceGrid();
    void PlaceFrame();
    void PlaceValueTicks(const CPaneAxis& axis, PlotSide side);
    void PlacePointTicks();
    void PlaceMarker();
    void AddSolid(const sPixelRect& rect);
    void AddCut(std::vector<sRuledLine>& lines, sRuledLine line) const;
    sRuledLine Horizontal(int y, const CLineLook& look) const;
    sRuledLine Vertical(int x, const CLineLook& look) const;
    double ValueOrigin() const;
    double PointOrigin() const;

    const sPlacement& m_placement;
    const sPixelRect& m_plot;
    const CPaneAxes& m_axes;
    sPaneDecorations& m_out;
    const PixelColor m_quiet; // of the frame: between background and foreground
};

} // namespace zantroq
