// The command line of zantroq-chart.
#pragma once

#include <QSize>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zantroq {

enum ExitCode : int
{
    ExitDone = 0,
    ExitUsage = 2,
    ExitNoAnswer = 3,
    ExitNotWritten = 4
};

struct sCommandLine
{
    std::string Symbol;
    std::optional<int> DataType;      // 0 to 4
    std::optional<int> IntervalIndex; // index in the interval box
    bool Conveniences = true;
    std::optional<QSize> Size; // client size of the chart window
    bool EmbeddedFeed = false;
    std::string FeedFolder;             // folder of further recordings; may be empty
    std::vector<std::string> Snapshots; // their endings are checked
    int SettleMs = 0;
    int TimeoutMs = 30'000;
    std::string Replay; // file of a script; may be empty
    bool Show = false;
    std::optional<std::uint32_t> Into; // a window of another program

    // True if a window must be visible to a person.
    bool NeedsDisplay() const { return (Snapshots.empty() && Replay.empty()) || Show; }
    QSize ClientSize() const;
};

// Reads the arguments. Returns nothing if the program has printed what was requested or what is wrong, and
// must exit with `exitCode`.
std::optional<sCommandLine> ReadCommandLine(int argc, char** argv, int& exitCode);

// Prints the program's name and a sentence on standard error.
void Complain(const std::string& sentence);

} // namespace zantroq
