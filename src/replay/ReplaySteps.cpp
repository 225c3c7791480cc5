#include "replay/ReplaySteps.h"

#include "replay/ReplayScript.h"
#include "settings/SettingsWriter.h"
#include "window/ChartDlg.h"
#include "window/ContextMenus.h"
#include "window/SavedFiles.h"
#include "window/WindowTexts.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zantroq {

namespace {

constexpr int LargestSide = 16384;         // in pixels, of a window
constexpr int LongestWait = 24 * 3600000;  // milliseconds
constexpr int DefaultCompleteWait = 30000; // milliseconds

using ReplayRun = sReplayResult (*)(const sReplayStep& step, const sReplayStage& stage);

sReplayResult Failed(int exitCode, const sReplayStep& step, const std::string& message)
{
    return {exitCode, "line " + std::to_string(step.Line) + ": " + message};
}

// A step that had no effect is reported, and the script continues.
sReplayResult WarnIf(const std::string& wrong, const sReplayStep& step, IReplayHost& host)
{
    if (!wrong.empty())
        host.Warn(Failed(0, step, wrong).Message);
    return {};
}

sReplayResult RunSymbol(const sReplayStep& step, const sReplayStage& stage)
{
    ISymbolBox& box = stage.Window.Services().Symbol;
    box.Select(-1);
    box.SetText(SymbolBoxText(step.Text));
    stage.Window.OnSymbolChanged();
    return {};
}

sReplayResult RunDraw(const sReplayStep&, const sReplayStage& stage)
{
    stage.Window.OnCommand(CommandDrawChart);
    return {};
}

sReplayResult RunCommand(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Window.OnCommand(step.Number);
    return {};
}

sReplayResult RunType(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Window.Services().Type.Select(step.Number);
    stage.Window.OnDataTypeChanged(0);
    return {};
}

sReplayResult RunInterval(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Window.Services().Interval.Select(step.Number);
    stage.Window.OnIntervalChanged();
    return {};
}

using MouseHandler = void (CChartDlg::*)(int control, int button, int shift, int x, int y);

template<MouseHandler Handler> sReplayResult RunMouse(const sReplayStep& step, const sReplayStage& stage)
{
    constexpr int NoShift = 0;
    (stage.Window.*Handler)(step.Control, step.Button, NoShift, step.X, step.Y);
    return {};
}

sReplayResult RunKey(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Window.OnKeyPress(step.Control, step.Number);
    return {};
}

sReplayResult RunScroll(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Window.OnHScroll(step.Code, 0);
    return {};
}

sReplayResult RunScrollThumb(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Window.OnHScroll(ScrollCode::ThumbPosition, step.Number);
    stage.Window.OnHScroll(ScrollCode::EndScroll, 0);
    return {};
}

sReplayResult RunScrollTrack(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Window.OnHScroll(ScrollCode::ThumbTrack, step.Number);
    return {};
}

sReplayResult RunResize(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Host.Resize(step.X, step.Y);
    return {};
}

// Returns an empty text, or the reason why there is nothing to pick. A disabled item exists but has no
// effect.
std::string PickFromMenu(CChartDlg& window, int command)
{
    const std::string step = command == 0 ? "menu none" : "menu " + std::to_string(command);
    if (command != 0 && !window.OpenMenu())
        return step + ": no context menu is open; open one by a right mouse down in the step before";
    if (command != 0 && FindMenuItem(window.OpenMenu()->Items, command) == nullptr)
        return step + ": the open context menu has no such item; open that of another pane, or use command " +
               std::to_string(command);
    window.OnMenuCommand(command);
    return "";
}

sReplayResult RunMenu(const sReplayStep& step, const sReplayStage& stage)
{
    return WarnIf(PickFromMenu(stage.Window, step.Number), step, stage.Host);
}

sReplayResult RunAnswer(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Boxes.Queue(step.BoxReply);
    return {};
}

sReplayResult RunWaitSearch(const sReplayStep& step, const sReplayStage& stage)
{
    const std::string wrong = stage.Host.WaitSearch(step.Milliseconds);
    return wrong.empty() ? sReplayResult() : Failed(3, step, "wait search: " + wrong);
}

sReplayResult RunWaitComplete(const sReplayStep& step, const sReplayStage& stage)
{
    const std::string wrong = stage.Host.WaitComplete(step.Milliseconds);
    return wrong.empty() ? sReplayResult() : Failed(3, step, "wait complete: " + wrong);
}

sReplayResult RunWait(const sReplayStep& step, const sReplayStage& stage)
{
    stage.Host.Wait(step.Milliseconds);
    return {};
}

sReplayResult RunSet(const sReplayStep& step, const sReplayStage& stage)
{
    std::string wrong;
    if (stage.Window.ApplySetting(step.Name, step.Text, wrong))
        return {};
    return Failed(2, step, "set \"" + step.Name + "\": " + wrong);
}

sReplayResult RunPrint(const sReplayStep& step, const sReplayStage& stage)
{
    const std::string wrong = stage.Host.Print(step.Text);
    return wrong.empty() ? sReplayResult() : Failed(4, step, wrong);
}

sReplayResult RunSnapshot(const sReplayStep& step, const sReplayStage& stage)
{
    const std::string wrong = stage.Host.Snapshot(step.Text);
    return wrong.empty() ? sReplayResult() : Failed(4, step, wrong);
}

// The result of a dialog step: its words, and the reason why it had no effect, if any.
struct sDialogOutcome
{
    std::string Words, Wrong;
};

sDialogOutcome TurnPage(const sReplayStep& step, IDialogDriver& dialog)
{
    return {"page " + Quoted(step.Text), dialog.TurnToPage(step.Text)};
}

sDialogOutcome SetControl(const sReplayStep& step, IDialogDriver& dialog)
{
    return {"set " + std::to_string(step.Number), dialog.Set(step.Number, step.Text)};
}

sDialogOutcome PressButton(const sReplayStep& step, IDialogDriver& dialog)
{
    return {"press " + std::to_string(step.Number), dialog.Press(step.Number)};
}

sDialogOutcome DoubleClick(const sReplayStep& step, IDialogDriver& dialog)
{
    return {"double " + std::to_string(step.Number), dialog.DoubleClick(step.Number, step.X)};
}

sDialogOutcome PressOk(const sReplayStep&, IDialogDriver& dialog)
{
    return {"ok", dialog.Ok()};
}

sDialogOutcome PressCancel(const sReplayStep&, IDialogDriver& dialog)
{
    return {"cancel", dialog.Cancel()};
}

template<sDialogOutcome (*Act)(const sReplayStep&, IDialogDriver&)>
sReplayResult OnDialog(const sReplayStep& step, const sReplayStage& stage)
{
    IDialogDriver* const dialog = stage.Window.OpenDialog();
    if (dialog == nullptr)
        return WarnIf("dialog: no dialog is open; open one by command 774 or 775", step, stage.Host);
    const sDialogOutcome outcome = Act(step, *dialog);
    return WarnIf(outcome.Wrong.empty() ? "" : "dialog " + outcome.Words + ": " + outcome.Wrong, step,
                  stage.Host);
}

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
    step.Run = RunSymbol;
    step.Text = words.Take("the symbol");
}

void ReadDraw(CWordReader&, sReplayStep& step)
{
    step.Run = RunDraw;
}

void ReadCommand(CWordReader& words, sReplayStep& step)
{
    step.Run = RunCommand;
    step.Number = TakeCommand(words);
}

void ReadType(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 5> Names{"tick", "minute", "daily", "weekly", "monthly"};
    step.Run = RunType;
    step.Number = static_cast<int>(words.TakeChoice("the type", Names));
}

void ReadInterval(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 11> Minutes{"1",  "2",  "3",  "4",  "5",  "10",
                                                         "15", "30", "45", "60", "120"};
    step.Run = RunInterval;
    step.Number = static_cast<int>(words.TakeChoice("the interval", Minutes));
}

void ReadMouse(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 3> Kinds{"down", "move", "up"};
    static constexpr std::array<ReplayRun, 3> Actions{RunMouse<&CChartDlg::OnChartMouseDown>,
                                                      RunMouse<&CChartDlg::OnChartMouseMove>,
                                                      RunMouse<&CChartDlg::OnChartMouseUp>};
    step.Run = Actions[words.TakeChoice("the kind of event", Kinds)];
    TakePane(words, step);
    step.Button = words.TakeInt("the button", MouseNone, MouseRight);
    step.X = words.TakeInt("x", -LargestSide, LargestSide);
    step.Y = words.TakeInt("y", -LargestSide, LargestSide);
}

void ReadKey(CWordReader& words, sReplayStep& step)
{
    step.Run = RunKey;
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
    const auto choice = words.TakeChoice("the action", Names);
    if (choice < Codes.size()) {
        step.Run = RunScroll;
        step.Code = Codes[choice];
        return;
    }
    step.Run = choice == Codes.size() ? RunScrollThumb : RunScrollTrack;
    step.Number = words.TakeInt("the position", -2000000000, 2000000000);
}

void ReadResize(CWordReader& words, sReplayStep& step)
{
    step.Run = RunResize;
    step.X = words.TakeInt("the width", 1, LargestSide);
    step.Y = words.TakeInt("the height", 1, LargestSide);
}

void ReadMenu(CWordReader& words, sReplayStep& step)
{
    step.Run = RunMenu;
    if (!words.TakeIf("none"))
        step.Number = TakeCommand(words);
}

void ReadAnswer(CWordReader& words, sReplayStep& step)
{
    static constexpr std::array<const char*, 4> Names{"yes", "no", "ok", "cancel"};
    static constexpr std::array<BoxAnswer, 4> Answers{BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Ok,
                                                      BoxAnswer::Cancel};
    step.Run = RunAnswer;
    step.BoxReply = Answers[words.TakeChoice("the answer", Names)];
}

// Reads seconds, with or without decimals, as milliseconds.
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
    const bool complete = words.TakeIf("complete");
    if (complete || words.TakeIf("search")) {
        step.Run = complete ? RunWaitComplete : RunWaitSearch;
        step.Milliseconds = words.More() ? TakeSeconds(words) : DefaultCompleteWait;
        return;
    }
    step.Run = RunWait;
    step.Milliseconds = words.TakeInt("the number of milliseconds", 0, LongestWait);
}

void ReadSet(CWordReader& words, sReplayStep& step)
{
    step.Run = RunSet;
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
    static constexpr std::array<ReplayRun, 6> Actions{OnDialog<TurnPage>,    OnDialog<SetControl>,
                                                      OnDialog<PressButton>, OnDialog<DoubleClick>,
                                                      OnDialog<PressOk>,     OnDialog<PressCancel>};
    step.Run = Actions[words.TakeChoice("the action", Names)];
    if (step.Run == OnDialog<TurnPage>) {
        step.Text = words.Take("the title of the page");
        return;
    }
    if (step.Run == OnDialog<PressOk> || step.Run == OnDialog<PressCancel>)
        return;
    step.Number = TakeControl(words);
    if (step.Run == OnDialog<SetControl>)
        step.Text = words.Take("the value");
    else if (step.Run == OnDialog<DoubleClick>)
        step.X = words.TakeInt("the row", 0, 2000000000);
}

void ReadPrint(CWordReader& words, sReplayStep& step)
{
    step.Run = RunPrint;
    step.Text = words.Take("the file");
    if (step.Text.empty())
        throw sScriptError{"print: the name of the file is empty; name the file that the page goes to"};
}

void ReadSnapshot(CWordReader& words, sReplayStep& step)
{
    step.Run = RunSnapshot;
    step.Text = words.Take("the file");
    if (IsSnapshotEnding(step.Text))
        throw sScriptError{"snapshot: the file " + Quoted(step.Text) +
                           " has no name before its ending; name it such as chart.png"};
    if (!IsSnapshotFile(step.Text))
        throw sScriptError{"snapshot: the file " + Quoted(step.Text) + " does not end in " +
                           EndingList(SnapshotFiles)};
}

constexpr std::array<sReplayStepRow, 16> Rows{
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
     {"wait", "wait MS, wait complete [S] or wait search [S]", ReadWait},
     {"set", "set NAME VALUE, a word with blanks in double quotes", ReadSet},
     {"dialog",
      "dialog page TITLE, dialog set ID VALUE, dialog press ID, dialog double ID ROW, dialog ok or dialog "
      "cancel",
      ReadDialog},
     {"print", "print FILE", ReadPrint},
     {"snapshot", "snapshot FILE", ReadSnapshot}}};

} // namespace

std::span<const sReplayStepRow> ReplayStepRows()
{
    return Rows;
}

} // namespace zantroq
