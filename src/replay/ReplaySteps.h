// The table of replay steps: the name, the usage text for errors, and the reader of the step's words, which
// also sets its function. Constant data, any thread.
#pragma once

#include "replay/ReplayStep.h"
#include "replay/WordReader.h"

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
