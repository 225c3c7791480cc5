// An open dialog for scripts and snapshots: what stands in it, and the same actions that a person has, done
// to the same widgets. Chart window's thread.
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
    ControlKind Kind = ControlKind::Static;
    std::string Label; // without the mark of its mnemonic; empty where it has none
    // The text of a combo, edit, spin, static, date or time; whether a check or radio button is on; "#rrggbb"
    // of a color; nothing of a button; of a list the selected rows.
    std::variant<std::monostate, std::string, bool, std::vector<int>> Value;
    std::vector<std::string> Items;             // of a combo
    std::vector<std::vector<std::string>> Rows; // of a list, the columns that nobody sees included
    bool Enabled = true, Visible = true;
};

struct sDialogState
{
    std::string Title;
    std::optional<std::string> Page; // the page on show and all pages, of a sheet only
    std::vector<std::string> Pages;
    int Width = 0, Height = 0;             // pixels of the client area
    std::map<int, sControlState> Controls; // those of the page on show, by number
};

// How far the newest search of a dialog has come.
enum class SearchProgress
{
    NotStarted, // none, or one without a text; also of a dialog that searches nothing
    Waiting,
    Ended,   // its results, or its error row, are in the list
    NoAnswer // the feed closed the connection or fell silent
};

// Each action answers with an empty text, or with one clause that says why nothing was done.
class IDialogDriver
{
public:
    virtual ~IDialogDriver() = default;
    virtual sDialogState Describe() const = 0;
    virtual std::string TurnToPage(const std::string& title) = 0;
    // Values are texts: "on" and "off" of a check, "on" of a radio button, "#rrggbb" of a color, YYYY-MM-DD,
    // HH:MM:SS, the rows of a list to select ("0,2" or "none"), the entry of a combo, else what is typed.
    virtual std::string Set(int id, const std::string& value) = 0;
    virtual std::string Press(int id) = 0;
    virtual std::string DoubleClick(int id, int row) = 0;
    // The dialog's own buttons. A dialog that refuses to close has done something, too.
    virtual std::string Ok() = 0;
    virtual std::string Cancel() = 0;
    virtual SearchProgress Search() const { return SearchProgress::NotStarted; }
};

} // namespace zantroq
