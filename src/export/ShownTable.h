// The values on show as a table for other programs: what the panes hold at each displayed point, with the
// moment it belongs to. Chart window's thread.
#pragma once

#include <string>

namespace zantroq {

class CChartDlg;

// CSV with a header line and a line for each displayed point, oldest first. The columns are:
//   date,time                    2024-03-01 and 14:05:09; the time has ".mmm" where the feed gave
//   milliseconds, and
//                                is empty for daily, weekly and monthly bars
//   price,volume                 for ticks, or
//   open,high,low,close,volume   for bars
//   sma_5 or ema_5               a column for each average on show, or
//   bb_lower,bb_upper,bb_middle  for the bands
//   rsi,macd,macd_signal,...     the curves of the displayed studies in the order of their panes; levels are
//   no
//                                curves, and the volumes are a column already
// A missing value leaves its field empty; "nan", "inf" and "-inf" stand for what they are; every other number
// reads back exactly. The header alone while nothing is on show.
std::string ShownValuesCsv(const CChartDlg& window);

} // namespace zantroq
