// The numbers of the window's commands, timers and scroll codes, which toolbars, menus and replay scripts
// use. Constant data, any thread.
#pragma once

#include "drawing/PaneControls.h"
#include "trends/TrendPrompts.h"

#include <algorithm>
#include <array>

namespace zantroq {

// Commands. The commands of trendlines are in TrendPrompts.h.
enum WindowCommand : int
{
    CommandSymbolSearch = 774,
    CommandSettings = 775,
    CommandPrint = 776,
    CommandZoomIn = 777,
    CommandZoomOut = 778,
    CommandGrid = 779,
    CommandRestoreTicks = 32777,
    CommandDrawChart = 32780,
    CommandRestoreBars = 32787,
    CommandRestorePane = 32791,
    CommandMinimizePane = 32792,
    CommandMaximizePane = 32793,
    CommandPriceBar = 32794
};

enum class ButtonKind
{
    Push,
    Check // stays down while its setting is on
};

enum class GapBefore
{
    No,
    Separator
};

// The buttons of the toolbar from left to right. The width of the toolbar, icons, tooltips and shortcuts come
// from these rows.
struct sToolbarCommand
{
    int Command;
    GapBefore Gap;
    ButtonKind Kind;
    const char* Name;     // accessible name and, without trailing blanks, tooltip
    const char* Icon;     // src/resources/icons/NAME.svg, listed in icons.qrc
    const char* CtrlKeys; // Ctrl with each of these keys runs the command
    const char* MenuText; // text in the panes' context menu; empty: no item
};

inline constexpr std::array<sToolbarCommand, 8> ToolbarCommands{{
    {CommandSymbolSearch, GapBefore::No, ButtonKind::Push, "Symbol Search", "symbol-search", "F", ""},
    {CommandDrawChart, GapBefore::Separator, ButtonKind::Push, "Draw Chart", "draw-chart", "", ""},
    {CommandSettings, GapBefore::No, ButtonKind::Push, "Settings", "settings", "", ""},
    {CommandPrint, GapBefore::Separator, ButtonKind::Push, "Print", "print", "P", "Print..."},
    // On many keyboards the plus key is the equals key with Shift.
    {CommandZoomIn, GapBefore::Separator, ButtonKind::Push, "Zoom In ", "zoom-in", "+=", ""},
    {CommandZoomOut, GapBefore::No, ButtonKind::Push, "Zoom Out", "zoom-out", "-", ""},
    {CommandGrid, GapBefore::No, ButtonKind::Check, "Grid Settings", "grid", "", ""},
    {CommandPriceBar, GapBefore::No, ButtonKind::Check, "Price Bar Show/Hide", "price-bar", "", ""},
}};

// The commands of the context menus, without the commands of trendlines.
inline constexpr std::array<int, 5> MenuCommands{CommandRestoreTicks, CommandRestoreBars, CommandRestorePane,
                                                 CommandMinimizePane, CommandMaximizePane};

inline constexpr std::size_t CommandCount =
    ToolbarCommands.size() + MenuCommands.size() + TrendCommands.size();

// All commands in ascending order.
inline constexpr std::array<int, CommandCount> AllCommands = [] {
    std::array<int, CommandCount> all{};
    auto next = std::copy(MenuCommands.begin(), MenuCommands.end(), all.begin());
    for (const sToolbarCommand& row : ToolbarCommands)
        *next++ = row.Command;
    for (const sTrendCommandRow& row : TrendCommands)
        *next++ = row.Command;
    std::sort(all.begin(), all.end());
    return all;
}();

inline constexpr int ProgressTimer = 1029; // polls the series
inline constexpr int ProgressPeriod = 250; // milliseconds

enum class ScrollCode
{
    LineLeft,
    LineRight,
    PageLeft,
    PageRight,
    ThumbPosition,
    ThumbTrack,
    LeftEnd,
    RightEnd,
    EndScroll
};

} // namespace zantroq
