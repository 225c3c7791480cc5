#include "replay/ReplayScript.h"

#include "settings/ChartSettings.h"
#include "settings/SettingsWriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace zantroq {

namespace {

constexpr int LargestSide = 16384;         // pixels of a window
constexpr int LongestWait = 24 * 3600000;  // milliseconds
constexpr int DefaultCompleteWait = 30000; // milliseconds

constexpr std::array<std::string_view, 4> SnapshotEndings{".png", ".svg", ".pdf", ".json"};

// What is wrong with a line; the line's number is added where it is caught.
struct sScriptError
{
    std::string Sentence;
};

using Words = std::vector<std::string>;

// Where a color is due (dialog set ID), its mark is no comment: there would be no value otherwise.
bool IsColorHere(const Words& words, std::string_view rest)
{
    constexpr std::size_t Length = 7;
    return words.size() == 3 && words[0] == "dialog" && words[1] == "set" && rest.size() >= Length &&
           rest.substr(1, Length - 1).find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos &&
           (rest.size() == Length || rest[Length] == ' ' || rest[Length] == '\t');
}

Words SplitWords(std::string_view line)
{
    Words words;
    std::string word;
    bool inWord = false, quoted = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        if (c == '\0')
            throw sScriptError{"a NUL byte stands in it; a script is plain text, take the byte out"};
        if (quoted) {
            if (c == '"')
                quoted = false;
            else
                word += c;
        } else if (c == '"') {
            quoted = inWord = true;
        } else if (c == '#' && (inWord || !IsColorHere(words, line.substr(at)))) {
            break;
        } else if (c == ' ' || c == '\t') {
            if (inWord)
                words.push_back(std::move(word));
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (quoted)
        throw sScriptError{"a double quote is not closed; add the closing quote"};
    if (inWord)
        words.push_back(std::move(word));
    return words;
}

std::string Quoted(const std::string& word)
{
    return "\"" + word + "\"";
}

// Takes the words of one line one after the other.
class CWordReader
{
public:
    CWordReader(const Words& words, const char* usage) : m_words(words), m_usage(usage) {}
    const std::string& Step() const { return m_words.front(); }
    bool More() const { return m_next < m_words.size(); }

    bool TakeIf(const char* word)
    {
        const bool taken = More() && m_words[m_next] == word;
        m_next += taken ? 1 : 0;
        return taken;
    }

    const std::string& Take(const char* what)
    {
        if (!More())
            throw sScriptError{Step() + ": " + what + " is missing; write " + m_usage};
        return m_words[m_next++];
    }

    int TakeInt(const char* what, int low, int high)
    {
        const std::string& word = Take(what);
        const bool hex = word.starts_with("0x") || word.starts_with("0X");
        const char* const begin = word.data() + (hex ? 2 : 0);
        const char* const end = word.data() + word.size();
        int value = 0;
        const auto [stop, error] = std::from_chars(begin, end, value, hex ? 16 : 10);
        const bool tooLarge = error == std::errc::result_out_of_range;
        if ((error != std::errc() && !tooLarge) || stop != end)
            throw sScriptError{Step() + ": " + what + " " + Quoted(word) +
                               " is not a whole number; use one within " + std::to_string(low) + " and " +
                               std::to_string(high)};
        if (tooLarge || value < low || value > high)
            throw sScriptError{Step() + ": " + what + " " + word + " is not within " + std::to_string(low) +
                               " and " + std::to_string(high)};
        return value;
    }

    // The place of the next word in a list of choices.
    template<std::size_t Count>
    int TakeChoice(const char* what, const std::array<const char*, Count>& choices)
    {
        const std::string& word = Take(what);
        for (std::size_t k = 0; k < Count; ++k)
            if (word == choices[k])
                return static_cast<int>(k);
        std::string offered;
        for (const char* choice : choices)
            offered += (offered.empty() ? "" : ", ") + std::string(choice);
        throw sScriptError{Step() + ": " + what + " " + Quoted(word) + " is not offered; use one of " +
                           offered};
    }

    void End() const
    {
        if (More())
            throw sScriptError{Step() + ": " + Quoted(m_words[m_next]) + " is one word too many; write " +
                               m_usage};
    }

private:
    const Words& m_words;
    const char* m_usage;
    std::size_t m_next = 1;
};

int TakeCommand(CWordReader& words)
{
    const int command = words.TakeInt("the command", 0, 65535);
    if (std::find(AllCommands.begin(), AllCommands.end(), command) != AllCommands.end())
        return command;
    std::string offered;
    for (const int known : AllCommands)
        offered += (offered.empty() ? "" : ", ") + std::to_string(known);
    throw sScriptError{words.Step() + ": there is no command " + std::to_string(command) + "; use one of " +
                       offered};
}

void TakePane(CWordReader& words, sReplayStep& step)
{
    step.Control = words.TakeInt("the control", FirstPaneControl, FirstPaneControl + PaneControls - 1);
}

void ReadSymbol(CWordReader& words, sReplayStep& step)
{
    step.Action = ReplayAction::Symbol;
    step.Text = words.Take("the symbol");
}

void ReadDraw(CWordReader&, sReplayStep& step)
{
    step.Action = ReplayAction::Draw;
}

void ReadCommand(CWordReader& words, sReplayStep& step)
{
    step.Action = ReplayAction::Command;
    step.Number = TakeCommand(words);
}

void ReadType(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 5> Names{"tick", "minute", "daily", "weekly", "monthly"};
    step.Action = ReplayAction::Type;
    step.Number = words.TakeChoice("the type", Names);
}

void ReadInterval(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 11> Minutes{"1",  "2",  "3",  "4",  "5",  "10",
                                                         "15", "30", "45", "60", "120"};
    step.Action = ReplayAction::Interval;
    step.Number = words.TakeChoice("the interval", Minutes);
}

void ReadMouse(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 3> Kinds{"down", "move", "up"};
    static constexpr std::array<ReplayAction, 3> Actions{ReplayAction::MouseDown, ReplayAction::MouseMove,
                                                         ReplayAction::MouseUp};
    step.Action = Actions[static_cast<std::size_t>(words.TakeChoice("the kind of event", Kinds))];
    TakePane(words, step);
    step.Button = words.TakeInt("the button", MouseNone, MouseRight);
    step.X = words.TakeInt("x", -LargestSide, LargestSide);
    step.Y = words.TakeInt("y", -LargestSide, LargestSide);
}

void ReadKey(CWordReader& words, sReplayStep& step)
{
    step.Action = ReplayAction::Key;
    TakePane(words, step);
    step.Number = words.TakeInt("the key code", -1, 65535);
}

void ReadScroll(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 9> Names{"line-left",  "line-right", "page-left",
                                                      "page-right", "left-end",   "right-end",
                                                      "end",        "thumb",      "track"};
    static constexpr std::array<ScrollCode, 7> Codes{
        ScrollCode::LineLeft, ScrollCode::LineRight, ScrollCode::PageLeft, ScrollCode::PageRight,
        ScrollCode::LeftEnd,  ScrollCode::RightEnd,  ScrollCode::EndScroll};
    const auto choice = static_cast<std::size_t>(words.TakeChoice("the action", Names));
    if (choice < Codes.size()) {
        step.Action = ReplayAction::Scroll;
        step.Code = Codes[choice];
        return;
    }
    step.Action = choice == Codes.size() ? ReplayAction::ScrollThumb : ReplayAction::ScrollTrack;
    step.Number = words.TakeInt("the position", -2000000000, 2000000000);
}

void ReadResize(CWordReader& words, sReplayStep& step)
{
    step.Action = ReplayAction::Resize;
    step.X = words.TakeInt("the width", 1, LargestSide);
    step.Y = words.TakeInt("the height", 1, LargestSide);
}

void ReadMenu(CWordReader& words, sReplayStep& step)
{
    step.Action = ReplayAction::Menu;
    if (!words.TakeIf("none"))
        step.Number = TakeCommand(words);
}

void ReadAnswer(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 4> Names{"yes", "no", "ok", "cancel"};
    static constexpr std::array<BoxAnswer, 4> Answers{BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Ok,
                                                      BoxAnswer::Cancel};
    step.Action = ReplayAction::Answer;
    step.BoxReply = Answers[static_cast<std::size_t>(words.TakeChoice("the answer", Names))];
}

// Seconds, with or without decimals, as milliseconds.
int TakeSeconds(CWordReader& words)
{
    const std::string& word = words.Take("the time");
    double seconds = 0;
    const auto [stop, error] = std::from_chars(word.data(), word.data() + word.size(), seconds);
    if (error != std::errc() || stop != word.data() + word.size() ||
        !(seconds >= 0 && seconds * 1000 <= LongestWait))
        throw sScriptError{"wait: the time " + Quoted(word) + " is not a number of seconds from 0 to 86400"};
    return static_cast<int>(seconds * 1000);
}

void ReadWait(CWordReader& words, sReplayStep& step)
{
    if (words.TakeIf("complete")) {
        step.Action = ReplayAction::WaitComplete;
        step.Milliseconds = words.More() ? TakeSeconds(words) : DefaultCompleteWait;
        return;
    }
    step.Action = ReplayAction::Wait;
    step.Milliseconds = words.TakeInt("the number of milliseconds", 0, LongestWait);
}

void ReadSet(CWordReader& words, sReplayStep& step)
{
    step.Action = ReplayAction::Set;
    step.Name = words.Take("the name");
    step.Text = words.Take("the value");
    if (const std::string wrong = CheckSetting(step.Name, step.Text); !wrong.empty())
        throw sScriptError{"set: " + Quoted(step.Name) + ": " + wrong};
}

int TakeControl(CWordReader& words)
{
    return words.TakeInt("the control", 1, 65535);
}

void ReadDialog(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 6> Names{"page", "set", "press", "double", "ok", "cancel"};
    static constexpr std::array<ReplayAction, 6> Actions{
        ReplayAction::DialogPage,   ReplayAction::DialogSet, ReplayAction::DialogPress,
        ReplayAction::DialogDouble, ReplayAction::DialogOk,  ReplayAction::DialogCancel};
    step.Action = Actions[static_cast<std::size_t>(words.TakeChoice("the action", Names))];
    if (step.Action == ReplayAction::DialogPage) {
        step.Text = words.Take("the title of the page");
        return;
    }
    if (step.Action == ReplayAction::DialogOk || step.Action == ReplayAction::DialogCancel)
        return;
    step.Number = TakeControl(words);
    if (step.Action == ReplayAction::DialogSet)
        step.Text = words.Take("the value");
    else if (step.Action == ReplayAction::DialogDouble)
        step.X = words.TakeInt("the row", 0, 2000000000);
}

void ReadPrint(CWordReader& words, sReplayStep& step)
{
    step.Action = ReplayAction::Print;
    step.Text = words.Take("the file");
    if (step.Text.empty())
        throw sScriptError{"print: the name of the file is empty; name the file that the page goes to"};
}

void ReadSnapshot(CWordReader& words, sReplayStep& step)
{
    step.Action = ReplayAction::Snapshot;
    step.Text = words.Take("the file");
    if (IsSnapshotEnding(step.Text))
        throw sScriptError{"snapshot: the file " + Quoted(step.Text) +
                           " has no name before its ending; name it such as chart.png"};
    if (!IsSnapshotFile(step.Text))
        throw sScriptError{"snapshot: the file " + Quoted(step.Text) +
                           " does not end in .png, .svg, .pdf or .json"};
}

struct sStepReader
{
    const char* Name;
    const char* Usage;
    void (*Read)(CWordReader& words, sReplayStep& step);
};

constexpr std::array<sStepReader, 16> Readers{
    {{"symbol", "symbol TEXT", ReadSymbol},
     {"draw", "draw alone", ReadDraw},
     {"command", "command ID", ReadCommand},
     {"type", "type NAME", ReadType},
     {"interval", "interval MINUTES", ReadInterval},
     {"mouse", "mouse down|move|up CONTROL BUTTON X Y", ReadMouse},
     {"key", "key CONTROL CODE", ReadKey},
     {"scroll", "scroll ACTION, scroll thumb N or scroll track N", ReadScroll},
     {"resize", "resize W H", ReadResize},
     {"menu", "menu ID or menu none", ReadMenu},
     {"answer", "answer yes|no|ok|cancel", ReadAnswer},
     {"wait", "wait MS or wait complete [S]", ReadWait},
     {"set", "set NAME VALUE, a word with blanks in double quotes", ReadSet},
     {"dialog",
      "dialog page TITLE, dialog set ID VALUE, dialog press ID, dialog double ID ROW, dialog ok or dialog "
      "cancel",
      ReadDialog},
     {"print", "print FILE", ReadPrint},
     {"snapshot", "snapshot FILE", ReadSnapshot}}};

sReplayStep ReadStep(const Words& words)
{
    for (const sStepReader& reader : Readers) {
        if (words.front() != reader.Name)
            continue;
        CWordReader line(words, reader.Usage);
        sReplayStep step;
        reader.Read(line, step);
        line.End();
        return step;
    }
    std::string offered;
    for (const sStepReader& reader : Readers)
        offered += (offered.empty() ? "" : ", ") + std::string(reader.Name);
    throw sScriptError{Quoted(words.front()) + " is not a step; use one of " + offered};
}

} // namespace

bool IsSnapshotFile(std::string_view file)
{
    return std::any_of(SnapshotEndings.begin(), SnapshotEndings.end(),
                       [file](std::string_view ending) { return file.ends_with(ending); }) &&
           !IsSnapshotEnding(file);
}

bool IsSnapshotEnding(std::string_view file)
{
    const std::string_view name = file.substr(file.rfind('/') + 1);
    return std::find(SnapshotEndings.begin(), SnapshotEndings.end(), name) != SnapshotEndings.end();
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
