// Reading of recordings and symbol lists: CSV files with a header line, described in docs/recordings.md. A
// bad row costs that row alone. No thread of its own; what comes back is plain data.
#pragma once

#include "feed/markets/FeedRecords.h"
#include "feed/markets/LineSource.h"

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
// report says so. A row of fewer fields than the header line has is a bad row, and so is a line longer than
// LongestLine. Memory beyond the records themselves: a block of the file, and where rows have to be sorted
// four bytes for each.
std::vector<sFEED_TICK> ReadTicks(ILineSource& lines, const std::string& file, sRECORDING_REPORT& report);
std::vector<sFEED_BAR> ReadBars(RecordingKind kind, ILineSource& lines, const std::string& file,
                                sRECORDING_REPORT& report);

// The symbols that a symbols.csv names, in the file's order. Commas in a description become blanks, and the
// symbol stands for one that is empty. Without the needed columns nothing is read and the report says so.
std::vector<sLISTED_SYMBOL> ReadSymbols(ILineSource& lines, const std::string& file,
                                        sRECORDING_REPORT& report);

} // namespace zantroq::feed
