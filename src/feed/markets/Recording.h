// Reading of recordings and symbol lists: CSV files with a header line, described in docs/recordings.md. A
// bad row costs that row alone. No thread of its own; what comes back is plain data.
#pragma once

#include "feed/markets/FeedRecords.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq::feed {

enum class RecordingKind
{
    Ticks,
    Minutes,
    Daily
};

// What was wrong in a file. Problems holds at most MaxProblems sentences, each naming file and line;
// SkippedRows counts all. Unusable is the sentence for a file that has nothing to read rows by.
struct sRECORDING_REPORT
{
    static constexpr std::size_t MaxProblems = 10;
    std::vector<std::string> Problems;
    std::string Unusable;
    std::size_t SkippedRows = 0;

    void Skip(const std::string& file, std::size_t line, std::string_view why);
};

// Rows in time order (a file in another order is sorted; rows of one time keep the file's order). `file`
// names the text in problems. Without a header line that holds the needed columns nothing is read and the
// report says so.
std::vector<sFEED_TICK> ReadTicks(std::string_view text, const std::string& file, sRECORDING_REPORT& report);
std::vector<sFEED_BAR> ReadBars(RecordingKind kind, std::string_view text, const std::string& file,
                                sRECORDING_REPORT& report);

// The symbols that a symbols.csv names, in the file's order. Commas in a description become blanks, and the
// symbol stands for one that is empty. Without the needed columns nothing is read and the report says so.
std::vector<sLISTED_SYMBOL> ReadSymbols(std::string_view text, const std::string& file,
                                        sRECORDING_REPORT& report);

// The whole file; false when it cannot be read or is no plain file.
bool ReadWholeFile(const std::filesystem::path& path, std::string& text);

} // namespace zantroq::feed
