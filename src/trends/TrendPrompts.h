// The commands, states and prompts of drawing trendlines with the mouse, as tables. Constant data, any
// thread.
#pragma once

#include "settings/ChartSettings.h"

#include <array>

namespace zantroq {

enum TrendState : int
{
    TrendIdle = 0,
    HorizontalStart = 1,
    HorizontalEnd = 2,
    SlopingStart = 3,
    SlopingEnd = 4,
    ParallelStart = 5,
    ParallelEnd = 6,
    ParallelSecondLine = 7,
    PitchforkFirst = 8,
    PitchforkSecond = 9,
    PitchforkThird = 10,
    FanStart = 11,
    FanEnd = 12,
    RetracementsStart = 13,
    RetracementsEnd = 14,
    SpeedStart = 15,
    SpeedEnd = 16,
    DeleteTrend = 17,
    TrendStates = 18
};

enum TrendCommand : int
{
    DrawHorizontal = 32779,
    AskDeleteTrend = 32782,
    AskDeleteAllTrends = 32783,
    DrawSloping = 32784,
    DrawParallel = 32785,
    DrawPitchfork = 32786,
    DrawSpeedResistance = 32788,
    DrawFan = 32789,
    DrawRetracements = 32790
};

// The input that a state waits for.
enum class TrendStep
{
    None,
    FirstPoint,
    EndPoint,
    FinalPoint,
    Delete
};

// One row per state: the effect of a left click, the next state and the prompt.
struct sTrendStateRow
{
    TrendStep Step;
    TrendKind Kind;     // the kind being drawn
    TrendState Next;    // state after an accepted left click
    const char* Prompt; // shown after that click
};

// The row of a state, 0 to 17.
const sTrendStateRow& TrendRow(int state);

inline constexpr const char* PromptDelete = "Click on a trendline to delete (Right click to cancel)";

struct sTrendCommandRow
{
    int Command;
    const char* MenuText;
    TrendState State; // mode that the command starts; TrendIdle: none
    const char* Prompt;
};

// All trendline commands: drawing commands in the order of their menu, then deleting commands.
inline constexpr std::array<sTrendCommandRow, 9> TrendCommands{{
    {DrawHorizontal, "Horizontal", HorizontalStart,
     "Click on the beginning point of the new horizontal trendline (Right click to cancel)"},
    {DrawSloping, "Sloping", SlopingStart,
     "Click on the beginning point of the new sloping trendline (Right click to cancel)"},
    {DrawParallel, "Parallel", ParallelStart,
     "Click on the beginning point of the new parallel trendline (Right click to cancel)"},
    {DrawPitchfork, "Andrew's Pitchfork", PitchforkFirst,
     "Click on the 1st point of the new Andrew's pitchfork trendline (Right click to cancel)"},
    {DrawSpeedResistance, "Speed Resistance", SpeedStart,
     "Click on the 1st point of the new speed resistance trendline (Right click to cancel)"},
    {DrawFan, "Fibonacci Fan", FanStart,
     "Click on the 1st point of the new Fibonacci Fan trendline (Right click to cancel)"},
    {DrawRetracements, "Fibonacci Retracements", RetracementsStart,
     "Click on the beginning point of the new Fibonacci Retracements trendline (Right click to cancel)"},
    {AskDeleteTrend, "Delete Trendline..", DeleteTrend, PromptDelete},
    {AskDeleteAllTrends, "Delete All Trendlines", TrendIdle, ""},
}};

inline constexpr int FlashTimer = 108; // flashes the trendline that a box asks about

// The row of a trendline command; null for other commands.
const sTrendCommandRow* FindTrendCommand(int command);

} // namespace zantroq
