// Replay scripts as data: one step per line, words separated by blanks, words with blanks in double quotes;
// "#" outside quotes begins a comment. A whole script is checked before its first step runs. docs/replay.md
// describes the steps; ReplaySteps.cpp has a row for each. Pure functions, any thread.
#pragma once

#include "replay/ReplayStep.h"

#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

struct sReplayScript
{
    std::vector<sReplayStep> Steps;
    std::string Error; // empty, or a sentence that names the first wrong line; there are no steps then
};

sReplayScript ParseReplayScript(std::string_view text);

// True if a snapshot can be written to this file: a name with the ending .png, .svg, .pdf or .json.
bool IsSnapshotFile(std::string_view file);
// True if the text is one of these endings instead of a file name.
bool IsSnapshotEnding(std::string_view file);

} // namespace zantroq
