// What the user asked of zantroq-chart.
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
    std::optional<int> IntervalIndex; // place in the interval box
    std::optional<QSize> Size;        // client size of the chart window
    bool EmbeddedFeed = false;
    std::string FeedFolder;             // recordings beside the shipped ones; may be empty
    std::vector<std::string> Snapshots; // checked endings
    int SettleMs = 0;
    int TimeoutMs = 30'000;
    std::string Replay; // a script's file; may be empty
    bool Show = false;
    std::optional<std::uint32_t> Into; // a window of another program

    // Whether a person is to see a window.
    bool NeedsDisplay() const { return (Snapshots.empty() && Replay.empty()) || Show; }
    QSize ClientSize() const;
};

// Reads the arguments. Nothing when the program has said what was wanted of it, or what was wrong, and is to
// end with the exit code.
std::optional<sCommandLine> ReadCommandLine(int argc, char** argv, int& exitCode);

// One sentence behind the program's name.
void Complain(const std::string& sentence);

} // namespace zantroq
