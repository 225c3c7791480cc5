#include "paint/PaneDecorations.h"

#include "paint/AxisTextPlacer.h"
#include "paint/LabelPlacer.h"
#include "paint/RulePlacer.h"

namespace zantroq {

sPaneDecorations PlaceDecorations(const CChart2D& chart, const sPlotMap& map, double scale, int width,
                                  int height, ITextMeasure& text, PaneManner manner)
{
    const sPlacement placement{chart, map, scale, width, height, text, manner};
    const CPaneArea& area = chart.PaneArea();
    sPaneDecorations placed;
    placed.Background = PixelOf(area.Background(chart.PaneInterior()));
    placed.PlotBackground = PixelOf(area.PlotBackground(chart.PaneInterior()));
    CLabelPlacer labels(placement, placed);
    labels.Place();
    if (map.Empty())
        return placed;
    CRulePlacer(placement, placed).Place();
    CAxisTextPlacer(placement, labels.TitleBottom(), placed).Place();
    return placed;
}

} // namespace zantroq
