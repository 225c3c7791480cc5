// A small chart window around one price pane, for tests of trendlines: 600 x 400 pixels, a given number of
// points from a data index on, and a price range.
#pragma once

#include "drawing/ChartWindow.h"
#include "drawing/PriceSource.h"
#include "trends/TrendLists.h"

namespace zantroq::test {

class CTrendWindow : public IPaneWindow
{
public:
    sChartSettings settings;
    sDisplayRange range;
    CChart2D pane;
    int priceBatches = 0;

    const sChartSettings& Settings() const override { return settings; }
    const sDisplayRange& Range() const override { return range; }
    int ChartPixelWidth() const override { return 600; }
    CChart2D& Pane(int) override { return pane; }
    bool ResetScale() const override { return false; }
    void BeginPriceBatch() override { ++priceBatches; }
    void EndPriceBatch() override { --priceBatches; }

    // Sets up the state after a whole draw of the price pane.
    void Show(int first, int shown, double low, double high)
    {
        range.first = first;
        range.shown = shown;
        range.last = first + shown - 1;
        CPaneArea& area = pane.PaneArea();
        area.AreaBox().Width().SetValue(600);
        area.AreaBox().Height().SetValue(400);
        area.PlotFrame().TopMargin().SetValue(17);
        area.PlotFrame().BottomMargin().SetValue(31);
        CPaneAxes& axes = area.PaneAxes();
        axes.X().ViewLow().SetValue(1);
        axes.X().ViewHigh().SetValue(shown + 0.5);
        for (CPaneAxis* axis : {&axes.Y(), &axes.Y2()}) {
            axis->ViewLow().SetValue(low);
            axis->ViewHigh().SetValue(high);
        }
        for (int group : {1, 2}) {
            CPaneData& data = pane.PaneGroups(group).PaneData();
            data.SetSeriesCount(std::max(data.SeriesCount(), group == 1 ? 4 : 3));
            data.SetPointCount(1, shown);
        }
        while (pane.PaneLabels().Count() < PriceLabels)
            pane.PaneLabels().Add();
    }
};

class CVectorPrices : public IPriceSource
{
public:
    int count = 1000;
    double High(int) const override { return 0; }
    double Low(int) const override { return 0; }
    double Open(int) const override { return 0; }
    double Close(int) const override { return 0; }
    std::int64_t Volume(int) const override { return 0; }
    int Count() const override { return count; }
    void ReadHigh(int, int, double*) const override {}
    void ReadLow(int, int, double*) const override {}
    void ReadOpen(int, int, double*) const override {}
    void ReadClose(int, int, double*) const override {}
    void ReadVolume(int, int, std::int64_t*) const override {}
};

} // namespace zantroq::test
