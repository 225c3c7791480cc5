#include "window/ContextMenus.h"

#include "window/PaneStack.h"
#include "window/WindowCommands.h"

namespace zantroq {

namespace {

sMenuItem Item(int command, const char* text, bool enabled = true)
{
    sMenuItem item;
    item.Command = command;
    item.Text = text;
    item.Enabled = enabled;
    return item;
}

sMenuItem Separator()
{
    sMenuItem item;
    item.Separator = true;
    return item;
}

sMenuItem TrendlinesSubmenu()
{
    sMenuItem menu = Item(0, "Draw Trendlines");
    menu.Items = {Item(CommandHorizontalTrend, "Horizontal"),
                  Item(CommandSlopingTrend, "Sloping"),
                  Item(CommandParallelTrend, "Parallel"),
                  Item(CommandPitchfork, "Andrew's Pitchfork"),
                  Item(CommandSpeedResistance, "Speed Resistance"),
                  Item(CommandFibonacciFan, "Fibonacci Fan"),
                  Item(CommandFibonacciRetracements, "Fibonacci Retracements")};
    return menu;
}

void AddPaneItems(sContextMenu& menu, const sPaneStack& stack)
{
    const sPaneCommands offered = OfferedCommands(stack, menu.Pane);
    menu.Items.push_back(Item(CommandMaximizePane, "Maximize", offered.Maximize));
    menu.Items.push_back(Item(CommandMinimizePane, "Minimize", offered.Minimize));
    menu.Items.push_back(Item(CommandRestorePane, "Restore", offered.Restore));
}

} // namespace

sContextMenu BuildPriceMenu(const sPaneStack& stack, const sMenuState& state)
{
    sContextMenu menu;
    menu.Number = 129;
    menu.Items = {TrendlinesSubmenu(),
                  Item(CommandDeleteTrend, "Delete Trendline..", state.TrendCount != 0),
                  Item(CommandDeleteAllTrends, "Delete All Trendlines", state.TrendCount != 0),
                  Separator(),
                  Item(CommandRestoreTicks, "Restore Ticks", state.SeriesEdited && state.TickData),
                  Item(CommandRestoreBars, "Restore Bars", state.SeriesEdited && !state.TickData),
                  Separator()};
    AddPaneItems(menu, stack);
    return menu;
}

sContextMenu BuildStudyMenu(const sPaneStack& stack, int pane)
{
    sContextMenu menu;
    menu.Number = 212;
    menu.Pane = pane;
    AddPaneItems(menu, stack);
    return menu;
}

const sMenuItem* FindMenuItem(const std::vector<sMenuItem>& items, int command)
{
    for (const sMenuItem& item : items) {
        if (!item.Separator && item.Items.empty() && item.Command == command)
            return &item;
        if (const sMenuItem* inner = FindMenuItem(item.Items, command))
            return inner;
    }
    return nullptr;
}

} // namespace zantroq
