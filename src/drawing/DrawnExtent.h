// The result of a whole draw. The window's scroll bar and zoom buttons depend on it, but panes do not know
// them. Plain data.
#pragma once

namespace zantroq {

struct sDrawnExtent
{
    int Count = 0;            // points of the series
    bool FillsWindow = false; // the series has at least as many points as the window is set to show
};

} // namespace zantroq
