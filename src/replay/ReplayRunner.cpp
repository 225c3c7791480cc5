#include "replay/ReplayRunner.h"

#include "window/ChartDlg.h"

namespace zantroq {

sReplayResult RunReplay(const sReplayScript& script, CChartDlg& window, CReplayMessageBox& boxes,
                        IReplayHost& host)
{
    const sReplayStage stage{window, boxes, host};
    sReplayResult result;
    for (const sReplayStep& step : script.Steps) {
        if (host.IsEnding())
            break;
        result = step.Run(step, stage);
        if (result.ExitCode != 0)
            break;
    }
    // An interrupted wait says nothing about the feed.
    constexpr int NoAnswer = 3;
    if (host.IsEnding() && result.ExitCode == NoAnswer)
        result = {};
    if (IDialogDriver* const dialog = window.OpenDialog())
        dialog->Cancel();
    return result;
}

} // namespace zantroq
