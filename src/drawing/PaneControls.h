// The numbers by which events name the panes and the mouse buttons.
#pragma once

#include "settings/ChartSettings.h"

namespace zantroq {

inline constexpr int FirstPaneControl = 341; // the price pane; 342 to 351 the studies in display order
inline constexpr int PaneControls = MaxPanes;

enum MouseButton : int
{
    MouseNone = 0,
    MouseLeft = 1,
    MouseRight = 2
};

} // namespace zantroq
