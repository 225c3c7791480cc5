// The interface for drawing and deleting trendlines with the mouse. Chart window's thread.
#pragma once

#include "drawing/ChartWindow.h"
#include "trends/TrendRecord.h"

#include <vector>

namespace zantroq {

class IWindowTrends
{
public:
    virtual ~IWindowTrends() = default;
    virtual int State() const = 0;           // 0: no mode is active
    virtual void ResetState() = 0;           // to state 0, without a prompt
    virtual void RemoveAll() = 0;            // all lines, including the one being drawn
    virtual int Count() const = 0;           // number of lines in all lists
    virtual void OnCommand(int command) = 0; // a row of TrendCommands
    // A press or a move while a mode is active (State() is not 0); x and y in pixels of the control, button 1
    // left, 2 right.
    virtual void OnMouseDown(int control, int button, int x, int y) = 0;
    virtual void OnMouseMove(int control, int x, int y) = 0;
    virtual void OnTimer() = 0; // timer 108, which flashes a line
    virtual ITrendLayer* Layer() = 0;
    virtual std::vector<sTrendRecord> Records() const = 0; // list by list
    // Applies the colors, widths and flags of the settings to existing lines.
    virtual void ApplyStyles() = 0;
};

} // namespace zantroq
