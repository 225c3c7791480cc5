// The kinds of trendlines as a table: what a snapshot calls a kind, how many series it takes and how a line
// of it is made. Its command and menu text are a row of TrendCommands, its mouse states rows of the state
// table in TrendPrompts.cpp.
#pragma once

#include "trends/BaseTrend.h"

#include <memory>
#include <span>

namespace zantroq {

struct sTrendKindRow
{
    TrendKind Kind;
    const char* Name; // in snapshots
    int SeriesCount;  // series of group 2 of the price pane that one line takes
    int LabelCount;   // labels of the price pane that one line takes
    // `series` holds SeriesCount numbers in the order in which they were allocated.
    std::unique_ptr<CBaseTrend> (*Make)(std::span<const int> series, int startIndex, double value,
                                        const sTrendStyle& style);
};

const sTrendKindRow& TrendKindRow(TrendKind kind);

} // namespace zantroq
