// The state machine of trendlines with a small chart window, its status bar, message box and timer.
#pragma once

#include "TrendWindow.h"

#include "platform/WindowServices.h"
#include "trends/TrendInteraction.h"
#include "trends/TrendLists.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace zantroq::test {

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
    bool Hole(int series, int position) const { return Y(series, position) == HoleValue; }
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
