// One step of a replay script: what it does and the words that it was written with. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "replay/ReplayMessageBox.h"
#include "window/WindowCommands.h"

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
    // The same until the search of the open dialog has ended.
    virtual std::string WaitSearch(int milliseconds) = 0;
    virtual std::string Print(const std::string& file) = 0;
    virtual std::string Snapshot(const std::string& file) = 0;
    // A sentence about a step that did nothing; the script goes on.
    virtual void Warn(const std::string& sentence) = 0;
    // Whether the program is to end before the script does. Waits then return at once.
    virtual bool IsEnding() const { return false; }
};

struct sReplayResult
{
    int ExitCode = 0; // 0, 2 what the window does not take, 3 no complete reply in time, 4 a file that could
                      // not be written
    std::string Message; // one sentence that names the line
};

// What a running script acts on.
struct sReplayStage
{
    CChartDlg& Window;
    CReplayMessageBox& Boxes;
    IReplayHost& Host;
};

struct sReplayStep
{
    // Does the step. The reader of the step chooses the function and fills the members that it uses.
    sReplayResult (*Run)(const sReplayStep& step, const sReplayStage& stage) = nullptr;
    int Line = 0; // in the script, from 1
    std::string Text, Name;
    int Number = 0, Control = 0, Button = 0, X = 0, Y = 0, Milliseconds = 0;
    ScrollCode Code = ScrollCode::EndScroll;
    BoxAnswer BoxReply = BoxAnswer::Ok;
};

} // namespace zantroq
