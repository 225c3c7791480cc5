// Runs a checked replay script on a chart window, one step after the other. A dialog that is open at the end
// is cancelled. Chart window's thread.
#pragma once

#include "replay/ReplayScript.h"

namespace zantroq {

sReplayResult RunReplay(const sReplayScript& script, CChartDlg& window, CReplayMessageBox& boxes,
                        IReplayHost& host);

} // namespace zantroq
