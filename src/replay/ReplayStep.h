// A step of a replay script: its function and its words. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "replay/ReplayMessageBox.h"
#include "window/WindowCommands.h"

#include <string>

namespace zantroq {

class CChartDlg;

// The services that a script needs besides the window: time, size and files.
class IReplayHost
{
public:
    virtual ~IReplayHost() = default;
    virtual void Wait(int milliseconds) = 0;
    virtual void Resize(int width, int height) = 0;
    // Waits until the reply is complete and drawn. This and the next three functions return an empty text, or
    // a sentence that says what is wrong.
    virtual std::string WaitComplete(int milliseconds) = 0;
    // Waits until the search of the open dialog has ended.
    virtual std::string WaitSearch(int milliseconds) = 0;
    virtual std::string Print(const std::string& file) = 0;
    virtual std::string Snapshot(const std::string& file) = 0;
    // Reports a step that did nothing; the script continues.
    virtual void Warn(const std::string& sentence) = 0;
    // True if the program must end before the script does. Waits then return at once.
    virtual bool IsEnding() const { return false; }
};

struct sReplayResult
{
    // 0; 2 for what the window does not accept; 3 for a reply that is late or incomplete; 4 for a file that
    // cannot be written.
    int ExitCode = 0;
    std::string Message; // a sentence that names the line
};

// The objects that a running script uses.
struct sReplayStage
{
    CChartDlg& Window;
    CReplayMessageBox& Boxes;
    IReplayHost& Host;
};

struct sReplayStep
{
    // Runs the step. The reader of the step sets the function and the members that it uses.
    sReplayResult (*Run)(const sReplayStep& step, const sReplayStage& stage) = nullptr;
    int Line = 0; // in the script, from 1
    std::string Text, Name;
    int Number = 0, Control = 0, Button = 0, X = 0, Y = 0, Milliseconds = 0;
    ScrollCode Code = ScrollCode::EndScroll;
    BoxAnswer BoxReply = BoxAnswer::Ok;
};

} // namespace zantroq
