// Replay scripts as data: one step a line, words separated by blanks, a word with blanks in double quotes,
// "#" outside of quotes begins a comment. A whole script is checked before its first step runs.
// docs/replay.md lists the steps. Pure functions.
#pragma once

#include "platform/WindowServices.h"
#include "window/WindowCommands.h"

#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

enum class ReplayAction
{
    Symbol, // Text
    Draw,
    Command,   // Number
    Type,      // Number: 0 to 4
    Interval,  // Number: place in IntervalMinutes
    MouseDown, // Control, Button, X, Y
    MouseMove,
    MouseUp,
    Key,          // Control, Number
    Scroll,       // Code
    ScrollThumb,  // Number: thumb let go there
    ScrollTrack,  // Number: thumb dragged there
    Resize,       // X, Y: width and height
    Menu,         // Number: a command, 0 to close
    Answer,       // BoxReply
    WaitComplete, // Milliseconds at most
    Wait,         // Milliseconds
    Set,          // Name, Text
    Print,        // Text: a file
    DialogPage,   // Text: the title of a page
    DialogSet,    // Number: a control, Text: its value
    DialogPress,  // Number: a button
    DialogDouble, // Number: a list, X: its row
    DialogOk,
    DialogCancel,
    Snapshot // Text: a file
};

struct sReplayStep
{
    int Line = 0; // in the script, from 1
    ReplayAction Action = ReplayAction::Draw;
    std::string Text, Name;
    int Number = 0, Control = 0, Button = 0, X = 0, Y = 0, Milliseconds = 0;
    ScrollCode Code = ScrollCode::EndScroll;
    BoxAnswer BoxReply = BoxAnswer::Ok;
};

struct sReplayScript
{
    std::vector<sReplayStep> Steps;
    std::string Error; // empty, or one sentence that names the first wrong line; there are no steps then
};

sReplayScript ParseReplayScript(std::string_view text);

// The files that a snapshot can be written to: a name and one of the endings .png, .svg, .pdf and .json.
bool IsSnapshotFile(std::string_view file);
// One of those endings where the name should be.
bool IsSnapshotEnding(std::string_view file);

} // namespace zantroq
