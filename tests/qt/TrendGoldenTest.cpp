// A picture of each kind of trendline over candles, while it is drawn and when it is finished. There is no
// text except the labels of retracements, so hardly a pixel may differ: a line is a fraction of a percent of
// its picture.
#include "qt/GoldenPicture.h"
#include "qt/paint/PanePainter.h"
#include "support/PaneScenes.h"
#include "trends/TrendInteraction.h"
#include "trends/TrendWindow.h"

#include <gtest/gtest.h>

namespace zantroq {
namespace {

constexpr int Width = 360, Height = 240, Points = 60;

struct sNoStatus : IStatusBar
{
    void SetPart(int, const std::string&) override {}
};
struct sNoBox : IMessageBox
{
    BoxAnswer Ask(const std::string&, const std::string&, BoxButtons, BoxIcon) override
    {
        return BoxAnswer::No;
    }
};
struct sNoTimer : IWindowTimer
{
    void Start(int, int) override {}
    void Stop(int) override {}
};

struct sTool
{
    const char* Name;
    int Command;
    struct
    {
        double X, Y;
    } Points[3]; // the third only where X is not 0
};

constexpr sTool Tools[]{
    {"horizontal", DrawHorizontal, {{8, 104}, {30, 104}, {}}},
    {"sloping", DrawSloping, {{8, 96}, {40, 103}, {}}},
    {"parallel", DrawParallel, {{8, 96}, {40, 100}, {25, 102}}},
    {"pitchfork", DrawPitchfork, {{20, 96.5}, {28, 102.5}, {6, 98}}},
    {"fibonacci-fan", DrawFan, {{5, 95}, {35, 105}, {}}},
    {"fibonacci-retracements", DrawRetracements, {{12, 98}, {24, 104}, {}}},
    {"speed-resistance", DrawSpeedResistance, {{5, 104}, {35, 96}, {}}},
};

struct sTrendScene
{
    sTrendScene()
    {
        window.Show(100, Points, 90, 106);
        window.pane.PaneArea().AreaBox().Width().SetValue(Width);
        window.pane.PaneArea().AreaBox().Height().SetValue(Height);
        const test::sBars bars = test::WanderingBars(Points);
        CPaneGroup& candles = window.pane.PaneGroups(1);
        candles.SetChartType(ChartCandles);
        test::LoadGroup(candles, {bars.High, bars.Low, bars.Open, bars.Close});
        window.pane.PaneArea().CandleLook().SetFilled(true);
        candles.SeriesStyles(2).FillLook().SetColor(0x3c8c1e);
        candles.SeriesStyles(3).FillLook().SetColor(0x2828d2);
        candles.SeriesStyles(2).LineLook().SetWidth(3);
        candles.SeriesStyles(3).LineLook().SetWidth(3);
    }
    void Move(double x, double y)
    {
        int px = 0, py = 0;
        window.pane.PaneGroups(1).DataToPixel(x, y, px, py);
        machine.OnMouseMove(px, py);
    }
    void Click(double x, double y)
    {
        int px = 0, py = 0;
        window.pane.PaneGroups(1).DataToPixel(x, y, px, py);
        machine.OnMouseDown(341, 1, px, py);
    }
    // Draws up to the last click but one; then the pointer is at the last position.
    void Begin(const sTool& tool)
    {
        machine.OnCommand(tool.Command);
        Click(tool.Points[0].X, tool.Points[0].Y);
        Move(tool.Points[1].X, tool.Points[1].Y);
        if (tool.Points[2].X == 0)
            return;
        Click(tool.Points[1].X, tool.Points[1].Y);
        Move(tool.Points[2].X, tool.Points[2].Y);
    }
    void Compare(const std::string& name, int scale)
    {
        QImage painted = PanePicture(window.pane, scale, "DejaVu Sans");
        painted.setDevicePixelRatio(1);
        const bool text = name.find("retracements") != std::string::npos;
        test::CompareWithGolden(painted,
                                QString::fromStdString("trend-" + name) + (scale == 1 ? ".png" : "@2x.png"),
                                text ? 0.002 : 0.0002);
    }

    test::CTrendWindow window;
    test::CVectorPrices prices;
    sNoStatus status;
    sNoBox box;
    sNoTimer timer;
    CTrendLists lists{window};
    CTrendInteraction machine{window, prices, lists, status, box, timer};
};

TEST(TrendGolden, EachKindLooksAsKept)
{
    for (const sTool& tool : Tools) {
        sTrendScene scene;
        scene.Begin(tool);
        scene.Compare(std::string(tool.Name) + "-drawing", 1);
        scene.Click(tool.Points[1].X, tool.Points[1].Y);
        scene.Compare(tool.Name, 1);
        scene.Compare(tool.Name, 2);
    }
}

} // namespace
} // namespace zantroq
