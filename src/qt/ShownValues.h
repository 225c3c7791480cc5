// The points on show as a table for other programs. Chart window's thread.
#pragma once

#include <QString>

#include <string>

namespace zantroq {

class CChartDlg;

// A header line, then a line a shown point: time,open,high,low,close,volume. Prices read back exactly; days
// have no time of day. Empty but for the header when nothing is on show.
std::string ShownValuesText(const CChartDlg& window);

// Empty, or one sentence that says what is wrong.
QString SaveShownValues(const CChartDlg& window, const QString& path);

} // namespace zantroq
