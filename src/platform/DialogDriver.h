// An open dialog as scripts and snapshots see it: the state of its controls, and the actions of a user,
// performed on the same widgets. Chart window's thread.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace zantroq {

enum class ControlKind
{
    Combo,
    Check,
    Radio,
    Edit,
    Spin,
    Button,
    Color,
    List,
    Date,
    Time,
    Static
};

struct sControlState
{
    ControlKind Kind = ControlKind::Static; // without the mnemonic's mark; empty if the control has none
    std::string Label;                      // without the mark of its mnemonic; empty where it has none
    // The text of a combo, edit, spin, static, date or time; the state of a check or radio button; the
    // "#rrggbb" of a color; the selected rows of a list; empty for a button.
    std::variant<std::monostate, std::string, bool, std::vector<int>> Value;
    std::vector<std::string> Items;             // of a combo
    std::vector<std::vector<std::string>> Rows; // of a list, hidden columns included
    bool Enabled = true, Visible = true;
};

struct sDialogState
{
    std::string Title;
    std::optional<std::string> Page; // the visible page and all pages; sheets only
    std::vector<std::string> Pages;
    int Width = 0, Height = 0;             // pixels of the client area
    std::map<int, sControlState> Controls; // controls of the visible page, by control number
};

// The progress of a dialog's newest search.
enum class SearchProgress
{
    NotStarted, // no search was started, or one without a text; also for dialogs without a search
    Waiting,
    Ended,   // the results, or the error row, are in the list
    NoAnswer // the feed closed the connection or sent nothing
};

// Each action returns an empty text on success, otherwise a clause that says why nothing was done.
class IDialogDriver
{
public:
    virtual ~IDialogDriver() = default;
    virtual sDialogState Describe() const = 0;
    virtual std::string TurnToPage(const std::string& title) = 0;
    // Values are texts: "on" or "off" for a check, "on" for a radio button, "#rrggbb" for a color, YYYY-MM-DD
    // for a date, HH:MM:SS for a time, row numbers for a list ("0,2" or "none"), the entry of a combo,
    // otherwise the text to type.
    virtual std::string Set(int id, const std::string& value) = 0;
    virtual std::string Press(int id) = 0;
    virtual std::string DoubleClick(int id, int row) = 0;
    // Press the dialog's own buttons. An Ok that the dialog refuses with a message also counts as done.
    virtual std::string Ok() = 0;
    virtual std::string Cancel() = 0;
    virtual SearchProgress Search() const { return SearchProgress::NotStarted; }
};

} // namespace zantroq
