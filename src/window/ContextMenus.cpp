#include "window/ContextMenus.h"

#include "window/PaneStack.h"
#include "window/WindowCommands.h"

namespace zantroq {

namespace {

enum class Offered : bool
{
    No,
    Yes
};

Offered OfferedIf(bool condition)
{
    return condition ? Offered::Yes : Offered::No;
}

sMenuItem Item(int command, const char* text, Offered offered = Offered::Yes)
{
    sMenuItem item;
    item.Command = command;
    item.Text = text;
    item.Enabled = offered == Offered::Yes;
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
    for (const sTrendCommandRow& row : TrendCommands)
        if (row.State != TrendIdle && row.State != DeleteTrend)
            menu.Items.push_back(Item(row.Command, row.MenuText));
    return menu;
}

sMenuItem TrendItem(int command, Offered offered)
{
    return Item(command, FindTrendCommand(command)->MenuText, offered);
}

void AddPaneItems(sContextMenu& menu, const sPaneStack& stack)
{
    const sPaneCommands offered = OfferedCommands(stack, menu.Pane);
    menu.Items.push_back(Item(CommandMaximizePane, "Maximize", OfferedIf(offered.Maximize)));
    menu.Items.push_back(Item(CommandMinimizePane, "Minimize", OfferedIf(offered.Minimize)));
    menu.Items.push_back(Item(CommandRestorePane, "Restore", OfferedIf(offered.Restore)));
}

} // namespace

sContextMenu BuildPriceMenu(const sPaneStack& stack, const sMenuState& state)
{
    const Offered deletable = OfferedIf(state.TrendCount != 0);
    sContextMenu menu;
    menu.Number = 129;
    menu.Items = {TrendlinesSubmenu(),
                  TrendItem(AskDeleteTrend, deletable),
                  TrendItem(AskDeleteAllTrends, deletable),
                  Separator(),
                  Item(CommandRestoreTicks, "Restore Ticks", OfferedIf(state.SeriesEdited && state.TickData)),
                  Item(CommandRestoreBars, "Restore Bars", OfferedIf(state.SeriesEdited && !state.TickData)),
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
