#include "trends/TrendPrompts.h"

#include <array>

namespace zantroq {

namespace {

constexpr std::array<sTrendStateRow, TrendStates> StateTable{{
    {TrendStep::None, TrendHorizontal, TrendIdle, ""},
    {TrendStep::FirstPoint, TrendHorizontal, HorizontalEnd,
     "Click on the end point of the new horizontal trendline (Right click to cancel)"},
    {TrendStep::FinalPoint, TrendHorizontal, HorizontalStart,
     "Click on the beginning point of the new horizontal trendline (Right click to cancel)"},
    {TrendStep::FirstPoint, TrendSloping, SlopingEnd,
     "Click on the end point of the new sloping trendline (Right click to cancel)"},
    {TrendStep::FinalPoint, TrendSloping, SlopingStart,
     "Click on the beginning point of the new sloping trendline (Right click to cancel)"},
    {TrendStep::FirstPoint, TrendParallel, ParallelEnd,
     "Click on the end point of the new parallel trendline (Right click to cancel)"},
    {TrendStep::EndPoint, TrendParallel, ParallelSecondLine,
     "Click to set a second line of the new parallel trendline (Right click to cancel)"},
    {TrendStep::FinalPoint, TrendParallel, ParallelStart,
     "Click on the beginning point of the new parallel trendline (Right click to cancel)"},
    {TrendStep::FirstPoint, TrendPitchfork, PitchforkSecond,
     "Click on the 2nd point of the new pitchfork trendline (Right click to cancel)"},
    {TrendStep::EndPoint, TrendPitchfork, PitchforkThird,
     "Move the mouse to the left and click on the 3rd point of the new pitchfork trendline (Right click to "
     "cancel)"},
    {TrendStep::FinalPoint, TrendPitchfork, PitchforkFirst,
     "Click on the beginning point of the new Andrew's pitchfork trendline (Right click to cancel)"},
    {TrendStep::FirstPoint, TrendFibonacciFan, FanEnd,
     "Click on the end point of the new Fibonacci Fan trendline (Right click to cancel)"},
    {TrendStep::FinalPoint, TrendFibonacciFan, FanStart,
     "Click on the beginning point of the new Fibonacci Fan trendline (Right click to cancel)"},
    {TrendStep::FirstPoint, TrendFibonacciRetracements, RetracementsEnd,
     "Click on the end point of the new Fibonacci Retracements trendline (Right click to cancel)"},
    {TrendStep::FinalPoint, TrendFibonacciRetracements, RetracementsStart,
     "Click on the beginning point of the new Fibonacci Retracements trendline (Right click to cancel)"},
    {TrendStep::FirstPoint, TrendSpeedResistance, SpeedEnd,
     "Click on the end point of the new trendline (Right click to cancel)"},
    {TrendStep::FinalPoint, TrendSpeedResistance, SpeedStart,
     "Click on the beginning point of the new speed resistance trendline (Right click to cancel)"},
    {TrendStep::Delete, TrendHorizontal, DeleteTrend, PromptDelete},
}};

constexpr std::array<sTrendCommandRow, 8> CommandTable{{
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
}};

} // namespace

const sTrendStateRow& TrendRow(int state)
{
    return StateTable[state >= 0 && state < TrendStates ? static_cast<std::size_t>(state) : 0];
}

const sTrendCommandRow* FindTrendCommand(int command)
{
    for (const sTrendCommandRow& row : CommandTable) {
        if (row.Command == command)
            return &row;
    }
    return nullptr;
}

} // namespace zantroq
