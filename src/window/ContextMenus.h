// The contents of the window's two context menus: 129 over the price pane, 212 over a study pane. Pure
// functions.
#pragma once

#include "platform/WindowServices.h"
#include "settings/ChartSettings.h"

namespace zantroq {

struct sMenuState
{
    bool SeriesEdited = false; // a point was deleted since the last full load
    bool TickData = true;
    int TrendCount = 0;
};

sContextMenu BuildPriceMenu(const sPaneStack& stack, const sMenuState& state);
sContextMenu BuildStudyMenu(const sPaneStack& stack, int pane);

// The item of a command, also inside a submenu; null when the menu has none.
const sMenuItem* FindMenuItem(const std::vector<sMenuItem>& items, int command);

} // namespace zantroq
