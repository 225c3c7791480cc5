// The table of trendline kinds: the name in a snapshot, the numbers of series and labels, and the
// constructor. The command and the menu text of a kind are in TrendCommands, its mouse states in the state
// table of TrendPrompts.cpp. Constant data, any thread.
#pragma once

#include "trends/BaseTrend.h"

#include <memory>
#include <span>

namespace zantroq {

struct sTrendKindRow
{
    TrendKind Kind;
    const char* Name; // in snapshots
    int SeriesCount;  // series of group 2 of the price pane per line
    int LabelCount;   // labels of the price pane per line
    // `series` has SeriesCount numbers in the order of their allocation.
    std::unique_ptr<CBaseTrend> (*Make)(std::span<const int> series, int startIndex, double value,
                                        const sTrendStyle& style);
};

const sTrendKindRow& TrendKindRow(TrendKind kind);

} // namespace zantroq
