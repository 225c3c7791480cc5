#include "replay/ReplayScript.h"

#include "replay/ReplaySteps.h"
#include "window/SavedFiles.h"

#include <algorithm>
#include <string>

namespace zantroq {

namespace {

sReplayStep ReadStep(const Words& words)
{
    std::string offered;
    for (const sReplayStepRow& row : ReplayStepRows()) {
        if (words.front() == row.Name) {
            CWordReader line(words, row.Usage);
            sReplayStep step;
            row.Read(line, step);
            line.End();
            return step;
        }
        offered += (offered.empty() ? "" : ", ") + std::string(row.Name);
    }
    throw sScriptError{Quoted(words.front()) + " is not a step; use one of " + offered};
}

} // namespace

bool IsSnapshotFile(std::string_view file)
{
    return std::any_of(
               SnapshotFiles.begin(), SnapshotFiles.end(),
               [file](const sSavedFileRow& row) { return file.ends_with("." + std::string(row.Ending)); }) &&
           !IsSnapshotEnding(file);
}

bool IsSnapshotEnding(std::string_view file)
{
    const std::string_view name = file.substr(file.rfind('/') + 1);
    return std::any_of(SnapshotFiles.begin(), SnapshotFiles.end(),
                       [name](const sSavedFileRow& row) { return name == "." + std::string(row.Ending); });
}

sReplayScript ParseReplayScript(std::string_view text)
{
    sReplayScript script;
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    int number = 0;
    while (!text.empty()) {
        ++number;
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        try {
            const Words words = SplitWords(line);
            if (words.empty())
                continue;
            sReplayStep step = ReadStep(words);
            step.Line = number;
            script.Steps.push_back(std::move(step));
        } catch (const sScriptError& wrong) {
            script.Steps.clear();
            script.Error = "line " + std::to_string(number) + ": " + wrong.Sentence;
            break;
        }
    }
    return script;
}

} // namespace zantroq
