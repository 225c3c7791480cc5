// A chart window of a few lines around one price pane, for trendline tests: 600 x 400 pixels, so many points
// shown from a data index on, prices from low to high.
#pragma once

#include "drawing/ChartWindow.h"
#include "drawing/PriceSource.h"
#include "platform/WindowServices.h"
#include "trends/TrendInteraction.h"
#include "trends/TrendLists.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace zantroq::test {

class CTrendWindow : public IChartWindow
{
public:
    sChartSettings settings;
    sDisplayRange range;
    CChart2D pane;
    int priceBatches = 0;

    const sChartSettings& Settings() const override { return settings; }
    sDisplayRange& Range() override { return range; }
    const sDisplayRange& Range() const override { return range; }
    int ChartPixelWidth() const override { return 600; }
    CChart2D& Pane(int) override { return pane; }
    bool IsCollapsed(int) const override { return false; }
    int SelectedPoint() const override { return NoPoint; }
    void SetSelectedPoint(int) override {}
    bool ResetScale() const override { return false; }
    void ClearResetScale() override {}
    void BeginBatch() override {}
    void EndBatch() override {}
    void BeginPriceBatch() override { ++priceBatches; }
    void EndPriceBatch() override { --priceBatches; }
    int ScrollLimit() const override { return 0; }
    bool ScrollBarVisible() const override { return true; }
    void SetScrollBarVisible(bool) override {}
    void UpdateZoomButtons() override {}
    void SetStatusText(const std::string&) override {}

    // What the price pane's whole draw leaves behind.
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
        while (pane.PaneLabels().Count() < CTrendLists::PriceLabels)
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

class CStatusText : public IStatusBar
{
public:
    std::string text = "untouched";
    void SetPart(int part, const std::string& value) override
    {
        EXPECT_EQ(part, 0);
        text = value;
    }
};

class CQueuedBox : public IMessageBox
{
public:
    BoxAnswer answer = BoxAnswer::No;
    std::vector<std::string> texts;
    std::function<void()> whileOpen;
    BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons, BoxIcon) override
    {
        EXPECT_EQ(caption, "");
        EXPECT_EQ(buttons, BoxButtons::YesNo);
        texts.push_back(text);
        if (whileOpen)
            whileOpen();
        return answer;
    }
};

class CTimerLog : public IWindowTimer
{
public:
    std::vector<std::string> log;
    void Start(int id, int ms) override
    {
        log.push_back("start " + std::to_string(id) + " " + std::to_string(ms));
    }
    void Stop(int id) override { log.push_back("stop " + std::to_string(id)); }
};

class CTrendTest : public ::testing::Test
{
protected:
    CTrendTest() { window.Show(100, 60, 50.0, 150.0); }

    // The values of a series of group 2, by position from 1; the hole value as in the scene.
    double Y(int series, int position) const
    {
        return window.pane.PaneGroups(2).PaneData().PointY(series, position);
    }
    bool Hole(int series, int position) const { return Y(series, position) == CPaneData::HoleValue(); }
    int Shape(int series) { return window.pane.PaneGroups(2).SeriesStyles(series).SymbolLook().Shape(); }
    // Pixel of a data coordinate of the pane.
    void Pixel(double x, double y, int& px, int& py) const
    {
        window.pane.PaneGroups(1).DataToPixel(x, y, px, py);
    }

    void Down(int button, double x, double y, int control = 341)
    {
        int px = 0, py = 0;
        Pixel(x, y, px, py);
        machine.OnMouseDown(control, button, px, py);
    }
    void Move(double x, double y)
    {
        int px = 0, py = 0;
        Pixel(x, y, px, py);
        machine.OnMouseMove(px, py);
    }

    CTrendWindow window;
    CVectorPrices prices;
    CStatusText status;
    CQueuedBox box;
    CTimerLog timer;
    CTrendLists lists{window};
    CTrendInteraction machine{window, prices, lists, status, box, timer};
};

} // namespace zantroq::test
