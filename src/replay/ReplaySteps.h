// The steps of replay scripts as a table: the name, the usage that an error quotes, and the reader of its
// words, which also chooses what the step does.
#pragma once

#include "replay/ReplayStep.h"
#include "replay/ReplayWords.h"

#include <span>

namespace zantroq {

struct sReplayStepRow
{
    const char* Name;
    const char* Usage;
    void (*Read)(CWordReader& words, sReplayStep& step); // throws sScriptError
};

std::span<const sReplayStepRow> ReplayStepRows();

} // namespace zantroq
