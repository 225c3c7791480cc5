// A chart window for tests of panes, studies and trendlines: plain members behind IChartWindow, eleven panes,
// and a record of the calls.
#pragma once

#include "drawing/ChartWindow.h"

#include <array>

namespace zantroq {

class CFakeChartWindow : public IChartWindow
{
public:
    CFakeChartWindow() { SetPaneSize(900, 300); }

    void SetPaneSize(int width, int height)
    {
        pixelWidth = width;
        for (CChart2D& pane : panes) {
            pane.PaneArea().AreaBox().Width().SetValue(width);
            pane.PaneArea().AreaBox().Height().SetValue(height);
        }
    }

    const sChartSettings& Settings() const override { return settings; }
    sDisplayRange& Range() override { return range; }
    const sDisplayRange& Range() const override { return range; }
    int ChartPixelWidth() const override { return pixelWidth; }
    CChart2D& Pane(int number) override { return panes.at(static_cast<std::size_t>(number)); }
    bool IsCollapsed(int pane) const override { return collapsed.at(static_cast<std::size_t>(pane)); }
    int SelectedPoint() const override { return selectedPoint; }
    void SetSelectedPoint(int point) override { selectedPoint = point; }
    bool ResetScale() const override { return resetScale; }
    void ClearResetScale() override { resetScale = false; }
    void BeginBatch() override { ++batchDepth, ++batches; }
    void EndBatch() override { --batchDepth; }
    void BeginPriceBatch() override { ++priceBatchDepth; }
    void EndPriceBatch() override { --priceBatchDepth; }
    int ScrollLimit() const override { return scrollLimit; }

    sChartSettings settings;
    sDisplayRange range;
    std::array<CChart2D, 11> panes;
    std::array<bool, 11> collapsed{};
    int pixelWidth = 0, selectedPoint = NoPoint, scrollLimit = 0;
    int batchDepth = 0, priceBatchDepth = 0, batches = 0;
    bool resetScale = false;
};

} // namespace zantroq
