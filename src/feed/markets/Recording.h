// Reads recordings and symbol lists: CSV files with a header line, described in docs/recordings.md. A bad row
// is skipped and reported. Pure functions, any thread.
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

// The errors of one file. Problems holds the first MaxProblems sentences, each of which names file and line;
// SkippedRows counts all bad rows. If the file cannot be used at all, Unusable is the sentence that says why.
struct sRECORDING_REPORT
{
    static constexpr std::size_t MaxProblems = 10;
    std::vector<std::string> Problems;
    std::string Unusable;
    std::size_t SkippedRows = 0;

    void Skip(const std::string& file, std::size_t line, std::string_view why);
};

// Return the rows in time order: a file in another order is sorted, and rows of the same time keep the order
// of the file. `file` names the source in the report. If the header line lacks a needed column, nothing is
// read and the report says so. A row with fewer fields than the header line is bad, and so is a line longer
// than LongestLine. Needs memory for the records, one block of the file and, if rows must be sorted, four
// bytes a row.
std::vector<sFEED_TICK> ReadTicks(ILineSource& lines, const std::string& file, sRECORDING_REPORT& report);
std::vector<sFEED_BAR> ReadBars(RecordingKind kind, ILineSource& lines, const std::string& file,
                                sRECORDING_REPORT& report);

// Reads a symbols.csv and returns its symbols in the order of the file. Commas in a description become
// blanks; an empty description becomes the symbol. If a needed column is missing, nothing is read and the
// report says so.
std::vector<sLISTED_SYMBOL> ReadSymbols(ILineSource& lines, const std::string& file,
                                        sRECORDING_REPORT& report);

} // namespace zantroq::feed
