#include "replay/ReplayRunner.h"

#include "window/ChartDlg.h"
#include "window/ContextMenus.h"
#include "window/WindowTexts.h"

namespace zantroq {

namespace {

constexpr int NoShift = 0;

void TypeSymbol(CChartDlg& window, const std::string& text)
{
    ISymbolBox& box = window.Services().Symbol;
    box.Select(-1);
    box.SetText(SymbolBoxText(text, false));
    window.OnSymbolChanged();
}

void LetThumbGo(CChartDlg& window, int position)
{
    window.OnHScroll(ScrollCode::ThumbPosition, position);
    window.OnHScroll(ScrollCode::EndScroll, 0);
}

sReplayResult Failed(int exitCode, const sReplayStep& step, const std::string& message)
{
    return {exitCode, "line " + std::to_string(step.Line) + ": " + message};
}

sReplayResult RunFileStep(const sReplayStep& step, IReplayHost& host)
{
    const bool print = step.Action == ReplayAction::Print;
    const std::string wrong = print ? host.Print(step.Text) : host.Snapshot(step.Text);
    return wrong.empty() ? sReplayResult() : Failed(4, step, wrong);
}

// Empty, or why there is nothing to pick. A disabled item is there, but does nothing.
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

// Empty, or why nothing was done.
std::string RunDialogStep(const sReplayStep& step, CChartDlg& window)
{
    IDialogDriver* const dialog = window.OpenDialog();
    if (dialog == nullptr)
        return "dialog: no dialog is open; open one by command 774 or 775";
    const std::string id = std::to_string(step.Number);
    const auto told = [](const std::string& words, const std::string& why) {
        return why.empty() ? "" : "dialog " + words + ": " + why;
    };
    switch (step.Action) {
    case ReplayAction::DialogPage:
        return told("page \"" + step.Text + "\"", dialog->TurnToPage(step.Text));
    case ReplayAction::DialogSet:
        return told("set " + id, dialog->Set(step.Number, step.Text));
    case ReplayAction::DialogPress:
        return told("press " + id, dialog->Press(step.Number));
    case ReplayAction::DialogDouble:
        return told("double " + id, dialog->DoubleClick(step.Number, step.X));
    case ReplayAction::DialogOk:
        return told("ok", dialog->Ok());
    default:
        return told("cancel", dialog->Cancel());
    }
}

sReplayResult RunStep(const sReplayStep& step, CChartDlg& window, CReplayMessageBox& boxes, IReplayHost& host)
{
    std::string wrong;
    switch (step.Action) {
    case ReplayAction::Symbol:
        TypeSymbol(window, step.Text);
        break;
    case ReplayAction::Draw:
        window.OnCommand(CommandDrawChart);
        break;
    case ReplayAction::Command:
        window.OnCommand(step.Number);
        break;
    case ReplayAction::Type:
        window.Services().Type.Select(step.Number);
        window.OnDataTypeChanged(0);
        break;
    case ReplayAction::Interval:
        window.Services().Interval.Select(step.Number);
        window.OnIntervalChanged();
        break;
    case ReplayAction::MouseDown:
        window.OnChartMouseDown(step.Control, step.Button, NoShift, step.X, step.Y);
        break;
    case ReplayAction::MouseMove:
        window.OnChartMouseMove(step.Control, step.Button, NoShift, step.X, step.Y);
        break;
    case ReplayAction::MouseUp:
        window.OnChartMouseUp(step.Control, step.Button, NoShift, step.X, step.Y);
        break;
    case ReplayAction::Key:
        window.OnKeyPress(step.Control, step.Number);
        break;
    case ReplayAction::Scroll:
        window.OnHScroll(step.Code, 0);
        break;
    case ReplayAction::ScrollThumb:
        LetThumbGo(window, step.Number);
        break;
    case ReplayAction::ScrollTrack:
        window.OnHScroll(ScrollCode::ThumbTrack, step.Number);
        break;
    case ReplayAction::Resize:
        host.Resize(step.X, step.Y);
        break;
    case ReplayAction::Menu:
        if (wrong = PickFromMenu(window, step.Number); !wrong.empty())
            host.Warn(Failed(0, step, wrong).Message);
        break;
    case ReplayAction::Answer:
        boxes.Queue(step.BoxReply);
        break;
    case ReplayAction::WaitComplete:
        if (wrong = host.WaitComplete(step.Milliseconds); !wrong.empty())
            return Failed(3, step, "wait complete: " + wrong);
        break;
    case ReplayAction::Wait:
        host.Wait(step.Milliseconds);
        break;
    case ReplayAction::Set:
        if (!window.ApplySetting(step.Name, step.Text, wrong))
            return Failed(2, step, "set \"" + step.Name + "\": " + wrong);
        break;
    case ReplayAction::DialogPage:
    case ReplayAction::DialogSet:
    case ReplayAction::DialogPress:
    case ReplayAction::DialogDouble:
    case ReplayAction::DialogOk:
    case ReplayAction::DialogCancel:
        if (wrong = RunDialogStep(step, window); !wrong.empty())
            host.Warn(Failed(0, step, wrong).Message);
        break;
    case ReplayAction::Print:
    case ReplayAction::Snapshot:
        return RunFileStep(step, host);
    }
    return {};
}

} // namespace

sReplayResult RunReplay(const sReplayScript& script, CChartDlg& window, CReplayMessageBox& boxes,
                        IReplayHost& host)
{
    sReplayResult result;
    for (const sReplayStep& step : script.Steps) {
        result = RunStep(step, window, boxes, host);
        if (result.ExitCode != 0)
            break;
    }
    if (IDialogDriver* const dialog = window.OpenDialog())
        dialog->Cancel();
    return result;
}

} // namespace zantroq
