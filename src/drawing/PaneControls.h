// The numbers of panes and mouse buttons in events. Constants.
#pragma once

#include "settings/ChartSettings.h"

namespace zantroq {

inline constexpr int FirstPaneControl = 341; // price pane; 342 to 351 are the studies in display order
inline constexpr int PaneControls = MaxPanes;

enum MouseButton : int
{
    MouseNone = 0,
    MouseLeft = 1,
    MouseRight = 2
};

} // namespace zantroq
