#include "trends/TrendPrompts.h"

#include <algorithm>

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

} // namespace

const sTrendStateRow& TrendRow(int state)
{
    return StateTable[state >= 0 && state < TrendStates ? static_cast<std::size_t>(state) : 0];
}

const sTrendCommandRow* FindTrendCommand(int command)
{
    const auto* const row =
        std::find_if(TrendCommands.begin(), TrendCommands.end(),
                     [command](const sTrendCommandRow& candidate) { return candidate.Command == command; });
    return row != TrendCommands.end() ? row : nullptr;
}

} // namespace zantroq
