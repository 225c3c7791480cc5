// The state of a chart window and its panes as a JSON document; docs/snapshot.md describes the fields. The
// same state gives the same bytes. Chart window's thread.
#pragma once

#include <string>

namespace zantroq {

class CChartDlg;

std::string ChartSnapshotText(const CChartDlg& window); // indented, ends in a newline

} // namespace zantroq
