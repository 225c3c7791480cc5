// The drawing and deleting of trendlines by mouse, as the chart window sees it. Chart window's thread.
#pragma once

#include "drawing/ChartWindow.h"
#include "trends/TrendRecord.h"

#include <vector>

namespace zantroq {

class IWindowTrends
{
public:
    virtual ~IWindowTrends() = default;
    virtual int State() const = 0;           // 0: no mode armed
    virtual void ResetState() = 0;           // state 0, without a prompt
    virtual void RemoveAll() = 0;            // all lines and the one being drawn
    virtual int Count() const = 0;           // lines in all lists
    virtual void OnCommand(int command) = 0; // a row of TrendCommands
    // A press or move while a mode is armed (State() not 0); x and y in the control's pixels, button 1 left,
    // 2 right.
    virtual void OnMouseDown(int control, int button, int x, int y) = 0;
    virtual void OnMouseMove(int control, int x, int y) = 0;
    virtual void OnTimer() = 0; // timer 108, which flashes a line
    virtual ITrendLayer* Layer() = 0;
    virtual std::vector<sTrendRecord> Records() const = 0; // list by list
    // Takes the colors, widths and flags of the settings over to the lines that stand.
    virtual void ApplyStyles() = 0;
};

} // namespace zantroq
