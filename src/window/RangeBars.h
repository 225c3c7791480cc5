// Sets the scroll bar's visibility and the zoom buttons from the result of a draw. Chart window's thread.
#pragma once

#include "drawing/DrawnExtent.h"
#include "platform/WindowServices.h"
#include "window/PaneLayout.h"

namespace zantroq {

// Enables the zoom buttons for an index in DisplayMaxPoints and a series of `count` points.
void EnableZoomButtons(ICommandBar& commands, int ptsIndex, int count);

class CRangeBars
{
public:
    // Nothing is owned; all must outlive this.
    CRangeBars(IScrollBar& bar, ICommandBar& commands, CPaneLayout& layout)
        : m_bar(bar), m_commands(commands), m_layout(layout)
    {
    }

    // Shows the scroll bar for a series that fills the window and hides it for a shorter one; resizes the
    // panes without drawing.
    void Follow(const sDrawnExtent& drawn, int ptsIndex);

private:
    IScrollBar& m_bar;
    ICommandBar& m_commands;
    CPaneLayout& m_layout;
};

} // namespace zantroq
