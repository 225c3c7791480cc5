// The contents of the window's two context menus: 129 of the price pane, 212 of a study pane. Pure functions,
// any thread.
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

// The item of a command, also in submenus; null if the menu does not have it.
const sMenuItem* FindMenuItem(const std::vector<sMenuItem>& items, int command);

} // namespace zantroq
