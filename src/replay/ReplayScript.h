// Replay scripts as data: one step a line, words separated by blanks, a word with blanks in double quotes,
// "#" outside of quotes begins a comment. A whole script is checked before its first step runs.
// docs/replay.md lists the steps, ReplaySteps.cpp has a row for each. Pure functions.
#pragma once

#include "replay/ReplayStep.h"

#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

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
