// The window's numbers: commands, controls, timers and scroll codes, as toolbars, menus and replay scripts
// use them.
#pragma once

#include <array>

namespace zantroq {

enum WindowCommand : int
{
    CommandSymbolSearch = 774,
    CommandSettings = 775,
    CommandPrint = 776,
    CommandZoomIn = 777,
    CommandZoomOut = 778,
    CommandGrid = 779,
    CommandRestoreTicks = 32777,
    CommandHorizontalTrend = 32779,
    CommandDrawChart = 32780,
    CommandDeleteTrend = 32782,
    CommandDeleteAllTrends = 32783,
    CommandSlopingTrend = 32784,
    CommandParallelTrend = 32785,
    CommandPitchfork = 32786,
    CommandRestoreBars = 32787,
    CommandSpeedResistance = 32788,
    CommandFibonacciFan = 32789,
    CommandFibonacciRetracements = 32790,
    CommandRestorePane = 32791,
    CommandMinimizePane = 32792,
    CommandMaximizePane = 32793,
    CommandPriceBar = 32794
};

constexpr bool IsTrendCommand(int command)
{
    return command == CommandHorizontalTrend ||
           (command >= CommandDeleteTrend && command <= CommandPitchfork) ||
           (command >= CommandSpeedResistance && command <= CommandFibonacciRetracements);
}

inline constexpr std::array<int, 22> AllCommands{774,   775,   776,   777,   778,   779,   32777, 32779,
                                                 32780, 32782, 32783, 32784, 32785, 32786, 32787, 32788,
                                                 32789, 32790, 32791, 32792, 32793, 32794};

inline constexpr int FirstPaneControl = 341; // the price pane; 342 to 351 the studies in display order
inline constexpr int PaneControls = 11;

inline constexpr int ProgressTimer = 1029; // polls the series
inline constexpr int ProgressPeriod = 250; // milliseconds
inline constexpr int FlashTimer = 108;     // flashes the trendline that a box asks about

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

enum MouseButton : int
{
    MouseNone = 0,
    MouseLeft = 1,
    MouseRight = 2
};

} // namespace zantroq
