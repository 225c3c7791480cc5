#include "CommandLine.h"

#include "platform/EscapeControls.h"
#include "replay/ReplayScript.h"
#include "settings/ChartSettings.h"

#include <CLI/CLI.hpp>

#include <array>
#include <charconv>
#include <filesystem>
#include <iostream>

namespace zantroq {
namespace {

constexpr QSize WindowSize(900, 700), PictureSize(620, 460);
constexpr int LeastSide = 1, GreatestSide = 16'384;

constexpr std::array SingleOptions{"--data",    "--interval", "--size", "--feed",        "--settle",
                                   "--timeout", "--replay",   "--into", "--conveniences"};

struct sWrongUsage
{
    std::string Sentence;
};

struct sTexts
{
    std::string Data, Interval, Size, Feed, Settle, Timeout, Into, Conveniences;
};

template<class TNumber> bool ReadWhole(const std::string& text, TNumber& number)
{
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return !text.empty() && read.ec == std::errc() && read.ptr == text.data() + text.size();
}

std::string Shown(const std::string& value)
{
    return value.empty() ? "\"\"" : value;
}

[[noreturn]] void Refuse(const std::string& option, const std::string& value, const std::string& advice)
{
    throw sWrongUsage{option + " " + Shown(value) + ": " + advice};
}

int ReadDataType(const std::string& name)
{
    constexpr std::array names{"tick", "minute", "daily", "weekly", "monthly"};
    for (std::size_t type = 0; type < names.size(); ++type)
        if (name == names[type])
            return static_cast<int>(type);
    Refuse("--data", name, "not a data type; use tick, minute, daily, weekly or monthly");
}

int ReadInterval(const std::string& text)
{
    int minutes = 0;
    if (ReadWhole(text, minutes))
        for (std::size_t place = 0; place < IntervalMinutes.size(); ++place)
            if (IntervalMinutes[place] == minutes)
                return static_cast<int>(place);
    Refuse("--interval", text, "not offered; use 1, 2, 3, 4, 5, 10, 15, 30, 45, 60 or 120");
}

QSize ReadSize(const std::string& text)
{
    const auto cross = text.find('x');
    int width = 0, height = 0;
    if (cross == std::string::npos || !ReadWhole(text.substr(0, cross), width) ||
        !ReadWhole(text.substr(cross + 1), height) || width < LeastSide || height < LeastSide ||
        width > GreatestSide || height > GreatestSide)
        Refuse("--size", text, "not a size; use WIDTHxHEIGHT in pixels, such as 900x700, at most 16384 each");
    return {width, height};
}

void ReadFeed(const std::string& text, sCommandLine& line)
{
    constexpr std::string_view embedded = "embedded";
    if (text == "system")
        return;
    if (text != embedded && text.rfind("embedded:", 0) != 0)
        Refuse("--feed", text, "not a feed; use system, embedded or embedded:FOLDER");
    line.EmbeddedFeed = true;
    if (text == embedded)
        return;
    line.FeedFolder = text.substr(embedded.size() + 1);
    std::error_code error;
    if (!std::filesystem::is_directory(line.FeedFolder, error))
        Refuse("--feed", text, "the part behind the colon is not a folder; name one with recordings");
}

bool ReadConveniences(const std::string& text)
{
    if (text != "on" && text != "off")
        Refuse("--conveniences", text, "neither on nor off; use one of them");
    return text == "on";
}

int ReadMilliseconds(const std::string& option, const std::string& text, double unit)
{
    double number = 0;
    if (!ReadWhole(text, number) || !(number >= 0) || number * unit > 86'400'000)
        Refuse(option, text,
               std::string("not a time; use a number of ") + (unit == 1 ? "milliseconds" : "seconds") +
                   " from 0 on, at most a day");
    return static_cast<int>(number * unit);
}

// Decimal, or hexadecimal after 0x, like the tools of X11.
std::uint32_t ReadWindowId(const std::string& text)
{
    const bool hex = text.starts_with("0x") || text.starts_with("0X");
    const char* const begin = text.data() + (hex ? 2 : 0);
    const char* const end = text.data() + text.size();
    std::uint32_t id = 0;
    const auto read = std::from_chars(begin, end, id, hex ? 16 : 10);
    if (begin == end || read.ec != std::errc() || read.ptr != end || id == 0)
        Refuse("--into", text,
               "not the number of a window; use decimal digits, or hexadecimal ones behind 0x, as xwininfo "
               "writes them");
    return id;
}

// If an option has two values, the program cannot know which one was meant.
void CheckGivenOnce(const CLI::App& app)
{
    for (const char* name : SingleOptions) {
        const std::vector<std::string>& values = app.get_option(name)->results();
        if (values.size() > 1)
            throw sWrongUsage{std::string(name) + " " + Shown(values[0]) + ", " + name + " " +
                              Shown(values[1]) + ": given more than once; leave one"};
    }
}

void CheckSnapshots(const CLI::App& app, const sCommandLine& line)
{
    // An empty name must not be treated as a missing option.
    if (app.count("--snapshot") > line.Snapshots.size())
        Refuse("--snapshot", "", "no file is named; name one that ends in .png, .svg, .pdf or .json");
    for (const std::string& file : line.Snapshots) {
        if (file.empty())
            Refuse("--snapshot", file, "no file is named; name one that ends in .png, .svg, .pdf or .json");
        if (IsSnapshotEnding(file))
            Refuse("--snapshot", file, "no name stands before the ending; name it such as chart.png");
        if (!IsSnapshotFile(file))
            Refuse("--snapshot", file, "the ending is not known; use .png, .svg, .pdf or .json");
    }
    if (!line.Snapshots.empty() && line.Symbol.empty() && line.Replay.empty())
        throw sWrongUsage{"--snapshot " + line.Snapshots.front() +
                          ": no symbol was given; name one behind the options"};
    if (!line.Snapshots.empty() && line.Symbol.find(',') != std::string::npos)
        throw sWrongUsage{line.Symbol + ": symbols cannot contain any commas; name one symbol"};
}

void CheckTogether(const CLI::App& app, const sCommandLine& line)
{
    if (app.count("--replay") > 0 && line.Replay.empty())
        Refuse("--replay", "", "no file is named; name one with a step a line");
    if (line.Snapshots.empty() && app.count("--settle") > 0)
        throw sWrongUsage{"--settle: goes with --snapshot FILE alone; leave it out or add that"};
    if (line.Snapshots.empty() && app.count("--timeout") > 0)
        throw sWrongUsage{"--timeout: goes with --snapshot FILE alone; leave it out or add that"};
    if (!line.Snapshots.empty() && !line.Replay.empty())
        throw sWrongUsage{
            "--snapshot and --replay: cannot be given together; put snapshot steps into the script"};
    if (line.Into && (!line.Snapshots.empty() || !line.Replay.empty()))
        throw sWrongUsage{"--into: shows a chart to a person; leave --snapshot and --replay out"};
    if (line.Into && line.Size)
        throw sWrongUsage{"--into and --size: the other program's window gives the size; leave --size out"};
    if (line.Show && line.Replay.empty())
        throw sWrongUsage{"--show: goes with --replay FILE alone; without --snapshot a window opens anyway"};
}

} // namespace

QSize sCommandLine::ClientSize() const
{
    return Size.value_or(NeedsDisplay() ? WindowSize : PictureSize);
}

void Complain(const std::string& sentence)
{
    std::cerr << "zantroq-chart: " << EscapeControls(sentence) << std::endl;
}

std::optional<sCommandLine> ReadCommandLine(int argc, char** argv, int& exitCode)
{
    CLI::App app("Shows one symbol's price history with studies and live trades, or draws it into a file.",
                 "zantroq-chart");
    sCommandLine line;
    sTexts texts;
    app.add_option("SYMBOL", line.Symbol, "The symbol to draw")->type_name("");
    app.add_option("--data", texts.Data, "tick, minute, daily, weekly or monthly; else what was used last")
        ->type_name("TYPE");
    app.add_option("--interval", texts.Interval, "Minutes a bar: 1, 2, 3, 4, 5, 10, 15, 30, 45, 60 or 120")
        ->type_name("MINUTES");
    app.add_option("--size", texts.Size,
                   "Client size of the chart window in pixels (900x700, without a window 620x460)")
        ->type_name("WxH");
    app.add_option("--feed", texts.Feed,
                   "system: the two ports of the settings (default); embedded[:DIR]: a feed inside this "
                   "process with the shipped recordings and those of DIR")
        ->type_name("FEED");
    app.add_option(
           "--snapshot", line.Snapshots,
           "Draw without a window into FILE, by its ending .png, .svg, .pdf or .json; may be repeated")
        ->type_name("FILE")
        ->allow_extra_args(false);
    app.add_option("--settle", texts.Settle,
                   "With --snapshot: take live updates for so long after the first draw (default 0)")
        ->type_name("MS");
    app.add_option("--timeout", texts.Timeout,
                   "With --snapshot: give up after so long without a complete reply (default 30)")
        ->type_name("S");
    app.add_option("--replay", line.Replay, "Run a script of steps instead of a person")->type_name("FILE");
    app.add_option("--into", texts.Into,
                   "Show the chart in this window of another program (X11), and end with that window")
        ->type_name("WINDOW-ID");
    app.add_option("--conveniences", texts.Conveniences,
                   "on (default) or off: notices about the feed and the other additions to the plain chart")
        ->type_name("ON|OFF");
    app.add_flag("--show", line.Show, "With --replay: in a window");
    app.set_version_flag("--version", "zantroq-chart " ZANTROQ_VERSION);
    app.footer("Exit codes: 0 done, 2 wrong usage, 3 the feed gave no answer in time or a signal "
               "ended --snapshot, 4 an output could not "
               "be written.\n--snapshot and --replay need no display.\n"
               "ZANTROQ_LOOK=light, dark or system (default) chooses the look of a window.");
    try {
        // Accepts repeated options here, so that this program's own message rejects them.
        for (const char* name : SingleOptions)
            app.get_option(name)->take_last();
        app.parse(argc, argv);
        CheckGivenOnce(app);
        if (app.count("--data") > 0)
            line.DataType = ReadDataType(texts.Data);
        if (app.count("--interval") > 0)
            line.IntervalIndex = ReadInterval(texts.Interval);
        if (app.count("--size") > 0)
            line.Size = ReadSize(texts.Size);
        if (app.count("--feed") > 0)
            ReadFeed(texts.Feed, line);
        if (app.count("--settle") > 0)
            line.SettleMs = ReadMilliseconds("--settle", texts.Settle, 1);
        if (app.count("--timeout") > 0)
            line.TimeoutMs = ReadMilliseconds("--timeout", texts.Timeout, 1000);
        if (app.count("--into") > 0)
            line.Into = ReadWindowId(texts.Into);
        if (app.count("--conveniences") > 0)
            line.Conveniences = ReadConveniences(texts.Conveniences);
        CheckTogether(app, line);
        CheckSnapshots(app, line);
    } catch (const CLI::Success& asked) { // --help and --version
        app.exit(asked);
        exitCode = std::cout.flush() ? ExitDone : ExitNotWritten;
        if (exitCode != ExitDone)
            Complain("standard output: cannot be written; send it to a terminal or to a file with room");
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        Complain(std::string(error.what()) + "; see zantroq-chart --help");
        exitCode = ExitUsage;
        return std::nullopt;
    } catch (const sWrongUsage& wrong) {
        Complain(wrong.Sentence);
        exitCode = ExitUsage;
        return std::nullopt;
    }
    return line;
}

} // namespace zantroq
