// What a whole draw reports to its caller. The window's scroll bar and zoom buttons depend on it, and the
// panes below the window know neither.
#pragma once

namespace zantroq {

struct sDrawnExtent
{
    int Count = 0;            // points of the series
    bool FillsWindow = false; // the series has at least the points that the window is set to show
};

} // namespace zantroq
