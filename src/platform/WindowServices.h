// The services of the desktop that the chart window uses, one small interface for each. The Widgets layer
// implements them with widgets, tests with a few lines. All are called on the chart window's thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zantroq {

// Periodic timers by number. Each tick calls the window's OnTimer(id).
class IWindowTimer
{
public:
    virtual ~IWindowTimer() = default;
    virtual void Start(int id, int milliseconds) = 0; // restarts the timer if it is running
    virtual void Stop(int id) = 0;
};

// The status bar's three parts, numbered from 0.
class IStatusBar
{
public:
    virtual ~IStatusBar() = default;
    virtual void SetPart(int part, const std::string& text) = 0;
};

enum class BoxButtons
{
    Ok,
    YesNo
};
enum class BoxIcon
{
    None,
    Error,
    Question
};
enum class BoxAnswer
{
    Ok,
    Cancel,
    Yes,
    No
};

class IMessageBox
{
public:
    virtual ~IMessageBox() = default;
    // Modal: returns with the user's answer. Timers continue meanwhile.
    virtual BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                          BoxIcon icon) = 0;
};

// The horizontal scroll bar. A position is clamped to 0 up to the larger of 0 and Limit().
class IScrollBar
{
public:
    virtual ~IScrollBar() = default;
    virtual void SetRange(int minimum, int maximum) = 0;
    virtual void SetPage(int page) = 0;
    virtual void SetPosition(int position) = 0;
    virtual int Position() const = 0;
    virtual int Maximum() const = 0;
    virtual int Page() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual bool Visible() const = 0;
    int Limit() const { return Maximum() - Page() + 1; }
};

// Toolbar buttons and menu items by command number.
class ICommandBar
{
public:
    virtual ~ICommandBar() = default;
    virtual void Enable(int command, bool enabled) = 0;
    virtual void Check(int command, bool checked) = 0;
    virtual bool IsEnabled(int command) const = 0;
    virtual bool IsChecked(int command) const = 0;
};

// The symbol box: an edit field with a list of recent symbols. Changes that the window makes itself are not
// reported back.
class ISymbolBox
{
public:
    virtual ~ISymbolBox() = default;
    virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0;
    virtual std::vector<std::string> Items() const = 0;
    virtual void SetItems(const std::vector<std::string>& items) = 0;
    virtual int Selection() const = 0; // -1: none
    virtual void Select(int item) = 0;
    virtual void FocusAtEnd() = 0; // takes the keyboard focus, with the caret after the text
};

// The type box or the interval box.
class IChoiceBox
{
public:
    virtual ~IChoiceBox() = default;
    virtual int Selection() const = 0; // -1: none
    virtual void Select(int item) = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Enabled() const = 0;
};

struct sWindowRect
{
    std::int32_t Left = 0, Top = 0, Right = 0, Bottom = 0;
    bool operator==(const sWindowRect&) const = default;
};

// The host's top-level window.
class ITopLevelWindow
{
public:
    virtual ~ITopLevelWindow() = default;
    virtual std::string Title() const = 0;
    virtual void SetTitle(const std::string& title) = 0;
    virtual sWindowRect NormalRect() const = 0; // the restored rectangle, also while the window is maximized
    virtual bool Maximized() const = 0;
    virtual void SetCaption(const std::string& caption) = 0; // the chart's own caption
    virtual std::string Caption() const = 0;
    virtual void MoveTo(const sWindowRect& rect) = 0;
    virtual void Maximize() = 0;
    virtual sWindowRect VirtualScreen() const = 0; // the bounding rectangle of all screens
};

enum class CursorShape
{
    Arrow,
    Split
};

// Feedback while a pane border is dragged: the pointer's shape and a line at the new position.
class IPointerFeedback
{
public:
    virtual ~IPointerFeedback() = default;
    virtual void SetCursor(CursorShape shape) = 0;
    // Shows the line across the panes, 5 pixels high and centred `y` pixels below the top of the first pane;
    // moves the line if it is already shown.
    virtual void ShowDragLine(int y) = 0;
    virtual void HideDragLine() = 0;
};

// An item of a context menu, as data. A separator has no command; an item that has items is a submenu.
struct sMenuItem
{
    int Command = 0;
    std::string Text;
    bool Enabled = true;
    bool Separator = false;
    std::vector<sMenuItem> Items;
};

struct sContextMenu
{
    int Number = 0; // 129: menu of the price pane; 212: menu of a study pane
    int Pane = 0;   // 0: price pane; k: study k
    std::vector<sMenuItem> Items;
};

class IContextMenu
{
public:
    virtual ~IContextMenu() = default;
    // Opens the menu at pixel (x, y) of its pane. The chosen command arrives at the window's OnMenuCommand.
    virtual void Open(const sContextMenu& menu, int x, int y) = 0;
};

// The sizes of the window and the placement of its parts, in pixels. Widgets move when a Place function is
// called.
class IPaneHost
{
public:
    virtual ~IPaneHost() = default;
    virtual int ClientWidth() const = 0;
    virtual int ClientHeight() const = 0;
    virtual int ToolBarHeight() const = 0;
    virtual void PlacePane(int pane, bool visible, int left, int top, int width, int height) = 0;
    virtual void PlaceBars(int scrollTop, int statusTop) = 0;
    // False while a chart loads: disables the scroll bar and the toolbar. The symbol, type and interval boxes
    // stay enabled.
    virtual void SetControlsEnabled(bool enabled) = 0;
};

struct sWindowServices
{
    IWindowTimer& Timer;
    IStatusBar& Status;
    IMessageBox& Box;
    IScrollBar& Scroll;
    ICommandBar& Commands;
    ISymbolBox& Symbol;
    IChoiceBox& Type;
    IChoiceBox& Interval;
    ITopLevelWindow& Top;
    IPaneHost& Host;
    IPointerFeedback& Pointer;
    IContextMenu& Menu;
};

} // namespace zantroq
