// The displayed values as a table for other programs: the values in the panes at each displayed point, with
// the time of the point. Chart window's thread.
#pragma once

#include <string>

namespace zantroq {

class CChartDlg;

// CSV with a header line and a line for each displayed point, oldest first. The columns are:
// - date,time: 2024-03-01 and 14:05:09; the time has ".mmm" if the feed sent milliseconds, and is empty for
//   daily, weekly and monthly bars
// - price,volume for ticks, or open,high,low,close,volume for bars
// - sma_5 or ema_5: a column for each displayed average; or bb_lower,bb_upper,bb_middle for the bands
// - rsi,macd,macd_signal,...: the curves of the displayed studies in the order of their panes, without levels
//   and without volumes, which have a column already
// A missing value is an empty field; not-a-number and infinities are "nan", "inf" and "-inf"; every other
// number reads back exactly. Only the header line if nothing is displayed.
std::string ShownValuesCsv(const CChartDlg& window);

} // namespace zantroq
