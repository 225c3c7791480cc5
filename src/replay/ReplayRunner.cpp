#include "replay/ReplayRunner.h"

#include "window/ChartDlg.h"

namespace zantroq {

sReplayResult RunReplay(const sReplayScript& script, CChartDlg& window, CReplayMessageBox& boxes,
                        IReplayHost& host)
{
    const sReplayStage stage{window, boxes, host};
    sReplayResult result;
    for (const sReplayStep& step : script.Steps) {
        result = step.Run(step, stage);
        if (result.ExitCode != 0)
            break;
    }
    if (IDialogDriver* const dialog = window.OpenDialog())
        dialog->Cancel();
    return result;
}

} // namespace zantroq
