// Runs a checked replay script on a chart window, step by step, and cancels a dialog that is open at the end.
// Chart window's thread.
#pragma once

#include "replay/ReplayScript.h"

namespace zantroq {

sReplayResult RunReplay(const sReplayScript& script, CChartDlg& window, CReplayMessageBox& boxes,
                        IReplayHost& host);

} // namespace zantroq
