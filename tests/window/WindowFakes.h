// The desktop of a chart window in memory: each service stores what it receives.
#pragma once

#include "market/ChartHistRequest.h"
#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"
#include "window/ChartFeed.h"
#include "window/PaneDrawing.h"
#include "window/WindowDialogs.h"
#include "window/WindowTrends.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zantroq::test {

using Log = std::vector<std::string>;

struct sFakeTimer : IWindowTimer
{
    std::map<int, int> Running;
    void Start(int id, int milliseconds) override { Running[id] = milliseconds; }
    void Stop(int id) override { Running.erase(id); }
};

struct sFakeStatus : IStatusBar
{
    std::vector<std::string> Said; // of part 0
    std::map<int, std::string> Parts;
    std::function<void(const std::string&)> OnSaid = [](const std::string&) {};
    void SetPart(int part, const std::string& text) override
    {
        Parts[part] = text;
        if (part != 0)
            return;
        Said.push_back(text);
        OnSaid(text);
    }
};

struct sFakeBox : IMessageBox
{
    std::deque<BoxAnswer> Answers;
    std::vector<std::string> Texts, Captions;
    BoxIcon Icon = BoxIcon::None;
    std::function<void()> WhileOpen = [] {}; // runs while the box is open
    BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                  BoxIcon icon) override
    {
        Texts.push_back(text);
        Captions.push_back(caption);
        Icon = icon;
        WhileOpen();
        if (Answers.empty())
            return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
        const BoxAnswer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
};

struct sFakeScroll : IScrollBar
{
    int Low = 0, High = 0, PageSize = 0, At = 0, Asked = 0;
    bool Shown = false;
    void SetRange(int minimum, int maximum) override { Low = minimum, High = maximum, Hold(); }
    void SetPage(int page) override { PageSize = page, Hold(); }
    void SetPosition(int position) override { Asked = At = position, Hold(); }
    int Position() const override { return At; }
    int Maximum() const override { return High; }
    int Page() const override { return PageSize; }
    void SetVisible(bool visible) override { Shown = visible; }
    bool Visible() const override { return Shown; }
    void Hold() { At = std::clamp(At, 0, std::max(0, Limit())); }
};

struct sFakeCommands : ICommandBar
{
    std::map<int, bool> On, Checked;
    void Enable(int command, bool enabled) override { On[command] = enabled; }
    void Check(int command, bool checked) override { Checked[command] = checked; }
    bool IsEnabled(int command) const override { return On.contains(command) && On.at(command); }
    bool IsChecked(int command) const override { return Checked.contains(command) && Checked.at(command); }
};

struct sFakeSymbolBox : ISymbolBox
{
    std::string Edit;
    std::vector<std::string> List;
    int Selected = -1, Focused = 0;
    std::string Text() const override { return Edit; }
    void SetText(const std::string& text) override { Edit = text; }
    std::vector<std::string> Items() const override { return List; }
    void SetItems(const std::vector<std::string>& items) override { List = items; }
    int Selection() const override { return Selected; }
    void Select(int item) override { Selected = item; }
    void FocusAtEnd() override { ++Focused; }
};

struct sFakeChoice : IChoiceBox
{
    int Selected = -1;
    bool On = true;
    int Selection() const override { return Selected; }
    void Select(int item) override { Selected = item; }
    void SetEnabled(bool enabled) override { On = enabled; }
    bool Enabled() const override { return On; }
};

struct sFakeTop : ITopLevelWindow
{
    std::string TitleText = "Host", CaptionText;
    sWindowRect Rect{10, 20, 610, 420}, Moved, Screen{0, 0, 1920, 1080};
    bool Max = false;
    int Moves = 0;
    std::string Title() const override { return TitleText; }
    void SetTitle(const std::string& title) override { TitleText = title; }
    sWindowRect NormalRect() const override { return Rect; }
    bool Maximized() const override { return Max; }
    void SetCaption(const std::string& caption) override { CaptionText = caption; }
    std::string Caption() const override { return CaptionText; }
    void MoveTo(const sWindowRect& rect) override { Moved = rect, ++Moves; }
    void Maximize() override { Max = true; }
    sWindowRect VirtualScreen() const override { return Screen; }
};

struct sFakeHost : IPaneHost
{
    int Width = 620, Height = 460, ToolBar = 28;
    bool ControlsOn = true;
    std::map<int, bool> Visible;
    std::map<int, sWindowRect> Rects;
    int ScrollTop = 0, StatusTop = 0;
    int ClientWidth() const override { return Width; }
    int ClientHeight() const override { return Height; }
    int ToolBarHeight() const override { return ToolBar; }
    void PlacePane(int pane, bool visible, int left, int top, int width, int height) override
    {
        Visible[pane] = visible;
        Rects[pane] = {left, top, left + width, top + height};
    }
    void PlaceBars(int scrollTop, int statusTop) override { ScrollTop = scrollTop, StatusTop = statusTop; }
    void SetControlsEnabled(bool enabled) override { ControlsOn = enabled; }
};

struct sFakePointer : IPointerFeedback
{
    CursorShape Shape = CursorShape::Arrow;
    int Line = -1; // -1: none shown
    void SetCursor(CursorShape shape) override { Shape = shape; }
    void ShowDragLine(int y) override { Line = y; }
    void HideDragLine() override { Line = -1; }
};

struct sFakeMenu : IContextMenu
{
    int Opened = 0;
    sContextMenu Last;
    void Open(const sContextMenu& menu, int, int) override { Last = menu, ++Opened; }
};

struct sFakeDesktop
{
    sFakeTimer Timer;
    sFakeStatus Status;
    sFakeBox Box;
    sFakeScroll Scroll;
    sFakeCommands Commands;
    sFakeSymbolBox Symbol;
    sFakeChoice Type, Interval;
    sFakeTop Top;
    sFakeHost Host;
    sFakePointer Pointer;
    sFakeMenu Menu;
    sWindowServices Services()
    {
        return {Timer, Status, Box, Scroll, Commands, Symbol, Type, Interval, Top, Host, Pointer, Menu};
    }
};

// A feed that answers when the test says so.
struct sFakeFeed : IChartFeed
{
    Log Calls;
    CChartHistRequest* Sent = nullptr;
    bool Released = false, DeadAtRelease = false;
    void WatchSymbol(CChartHistRequest& request) override { Calls.push_back("watch " + request.GetSymbol()); }
    void UnwatchSymbol(CChartHistRequest& request) override
    {
        Calls.push_back("unwatch " + request.GetSymbol());
    }
    void SendHistoryRequest(CChartHistRequest& request) override
    {
        Calls.push_back("send " + request.GetSymbol());
        request.SetComplete(false);
        Sent = &request;
    }
    void Release(std::unique_ptr<CChartHistRequest> request) override
    {
        Released = true;
        request->MarkDead();
        DeadAtRelease = !request->IsAlive();
        Sent = nullptr;
    }
};

// The drawing side as a counter of calls.
struct sFakeDrawing : IPaneDrawing
{
    Log Calls;
    int Points = 0;
    bool Edited = false;
    int Count() const override { return Points; }
    int ChartNumber() const override { return 0; }
    void SetSource(CChartHistRequest*, int dataType) override
    {
        Calls.push_back("source " + std::to_string(dataType));
    }
    void ClearPanes() override { Calls.push_back("clear"); }
    void FullRedraw() override { Calls.push_back("full"); }
    void Draw(int position) override { Calls.push_back("draw " + std::to_string(position)); }
    void Update(int newPoints) override { Calls.push_back("update " + std::to_string(newPoints)); }
    void RefreshTitles() override { Calls.push_back("titles"); }
    void AdjustStudyBars() override {}
    void RebuildStudies() override { Calls.push_back("studies"); }
    void DeletePoint(int index) override
    {
        Calls.push_back("delete " + std::to_string(index)), Edited = true;
    }
    bool SeriesEdited() const override { return Edited; }
    std::string MakeInfoText(int) const override { return "info"; }
    void GetPoint(int, sHIST_DATA&) const override {}
    std::string Date(int) const override { return "2014/01/02"; }
    std::string Time(int) const override { return "09:31:00"; }
    std::string MinuteTime(int) const override { return "09:31:00min"; }
    std::string PriceText(double) const override { return "1"; }
};

struct sFakeTrends : IWindowTrends
{
    int Mode = 0, Lines = 0, Removed = 0, Resets = 0, Downs = 0, Moves = 0, Ticks = 0;
    std::vector<int> Commands;
    int State() const override { return Mode; }
    void ResetState() override { Mode = 0, ++Resets; }
    void RemoveAll() override { Lines = 0, ++Removed; }
    int Count() const override { return Lines; }
    void OnCommand(int command) override { Commands.push_back(command); }
    void OnMouseDown(int, int, int, int) override { ++Downs; }
    void OnMouseMove(int, int, int) override { ++Moves; }
    void OnTimer() override { ++Ticks; }
    ITrendLayer* Layer() override { return nullptr; }
    std::vector<sTrendRecord> Records() const override { return {}; }
    void ApplyStyles() override {}
};

inline std::string Text(ISettingsKey& key, const std::string& name)
{
    const CSettingRead value = key.Read(name);
    const auto* text = value.As<std::string>();
    return text != nullptr ? *text : "(missing)";
}

} // namespace zantroq::test
