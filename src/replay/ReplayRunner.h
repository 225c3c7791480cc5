// Runs a checked replay script on a chart window, one step after the other. A dialog that is open at the end
// is cancelled. Chart window's thread.
#pragma once

#include "replay/ReplayMessageBox.h"
#include "replay/ReplayScript.h"

#include <string>

namespace zantroq {

class CChartDlg;

// What a script needs beside the window: time, size and files.
class IReplayHost
{
public:
    virtual ~IReplayHost() = default;
    virtual void Wait(int milliseconds) = 0;
    virtual void Resize(int width, int height) = 0;
    // Empty, or one sentence that says what is wrong. A wait goes on until the reply is complete and drawn.
    virtual std::string WaitComplete(int milliseconds) = 0;
    virtual std::string Print(const std::string& file) = 0;
    virtual std::string Snapshot(const std::string& file) = 0;
    // A sentence about a step that did nothing; the script goes on.
    virtual void Warn(const std::string& sentence) = 0;
};

struct sReplayResult
{
    int ExitCode = 0; // 0, 2 what the window does not take, 3 no complete reply in time, 4 a file that could
                      // not be written
    std::string Message; // one sentence that names the line
};

sReplayResult RunReplay(const sReplayScript& script, CChartDlg& window, CReplayMessageBox& boxes,
                        IReplayHost& host);

} // namespace zantroq
