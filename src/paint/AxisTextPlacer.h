// Places the texts of the axes, so that no two of one axis overlap.
#pragma once

#include "paint/Placement.h"

namespace zantroq {

class CAxisTextPlacer
{
public:
    // Neither is owned. Texts and the grounds below them are added to `out`, whose backgrounds must be set.
    // Value texts stay below `titleBottom` as far as the plot's height allows.
    CAxisTextPlacer(const sPlacement& placement, int titleBottom, sPaneDecorations& out)
        : m_placement(placement), m_plot(placement.Map.Plot), m_titleBottom(titleBottom), m_out(out)
    {
    }

    // REQUIRES: the plot is not empty.
    void Place();

private:
    struct sExtent // pixel columns of a text, Right exclusive
    {
        int Left, Right;
    };

    void PlaceValueTexts(const CPaneAxis& axis, PlotSide side);
    int ValueTop(int y) const;
    void AddValueText(const std::string& text, int top, PlotSide side);
    void AddGround(const sPixelRect& box);
    void PlacePointTexts(const CPaneAxis& axis);
    std::vector<const sTickLabel*> PointLabelsInPlot(const CPaneAxis& axis) const;
    sExtent PointTextExtent(const sTickLabel& label) const;

    const sPlacement& m_placement;
    const sPixelRect& m_plot;
    const int m_titleBottom;
    sPaneDecorations& m_out;
};

} // namespace zantroq
