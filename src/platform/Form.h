// The controls of one dialog, or of one page of a sheet, as the rules of that dialog see them: by control
// number, without a toolkit. The face binds it to widgets (qt/dialogs/QtForm.h), tests to plain values
// (tests/support/FakeForm.h).
//
// Rules read and write controls through IForm and hear of what the user did through IFormEvents. What rules
// set themselves is not reported back to them. Every number must be that of a control of the form; another
// one throws std::invalid_argument. Chart window's thread.
#pragma once

#include "platform/Color.h"

#include <string>
#include <vector>

namespace zantroq {

struct sFormColumn
{
    std::string Title; // empty in all columns: the list has no header
    int Width = 0;     // pixels; 0: the column holds data that nobody sees
};

using FormRow = std::vector<std::string>; // one text a column

class IForm
{
public:
    virtual ~IForm() = default;

    // The text of an edit, spin, static, group box or button, or the chosen entry of a combo. A date reads
    // and takes YYYY-MM-DD, a time HH:MM:SS; a text that is neither leaves the control as it was.
    virtual std::string Text(int id) const = 0;
    virtual void SetText(int id, const std::string& text) = 0;

    // Combos. The index is that of the chosen entry, -1 for none, which is also what SetItems leaves.
    virtual void SetItems(int id, const std::vector<std::string>& items) = 0;
    virtual int Index(int id) const = 0;
    virtual void SetIndex(int id, int index) = 0;

    // Checks and radio buttons. Checking a radio button unchecks the others of its group.
    virtual bool Checked(int id) const = 0;
    virtual void SetChecked(int id, bool checked) = 0;

    // Color buttons, red in the low byte.
    virtual ColorValue Color(int id) const = 0;
    virtual void SetColor(int id, ColorValue color) = 0;

    // Lists. Rows count from 0. Setting all rows costs about as much as copying them, however many there are;
    // inserting moves those behind. A row may be shorter than the list has columns.
    virtual void SetColumns(int id, const std::vector<sFormColumn>& columns) = 0;
    virtual void SetRows(int id, std::vector<FormRow> rows) = 0; // nothing is selected afterwards
    virtual void InsertRow(int id, int before, FormRow row) = 0; // the selection moves along with its rows
    virtual int RowCount(int id) const = 0;
    virtual const FormRow& Row(int id, int row) const = 0;
    virtual std::vector<int> SelectedRows(int id) const = 0; // ascending
    virtual void SelectRows(int id, const std::vector<int>& rows) = 0;

    virtual bool Enabled(int id) const = 0;
    virtual void SetEnabled(int id, bool enabled) = 0;
    virtual bool Visible(int id) const = 0;
    virtual void SetVisible(int id, bool visible) = 0;

    virtual void SetRange(int id, int low, int high) = 0; // of a spin, both ends included
    // A sample of a line: its color, and its width in pixels.
    virtual void SetLineSample(int id, ColorValue color, int width) = 0;
    virtual void Focus(int id) = 0; // with the text of an edit selected

    // Of the dialog that the controls stand in. Sizes are pixels of its client area.
    virtual void SetTitle(const std::string& title) = 0;
    virtual void SetSize(int width, int height) = 0;
    virtual void SetWaiting(bool waiting) = 0; // the hourglass over the dialog, else the arrow
};

// What the user does to the controls, by number.
class IFormEvents
{
public:
    virtual ~IFormEvents() = default;
    // A new text, choice, check, color, date or time. A radio button reports each press, also while checked.
    virtual void OnChanged(int) {}
    virtual void OnPressed(int) {} // a button
    virtual void OnDoubleClicked(int /*id*/, int /*row*/) {}
    virtual void OnSelectionChanged(int) {} // of a list; also a press on a row that was selected already
    // A row was dragged from one list of the form to a place before row `to` of a list, or behind its last
    // row.
    virtual void OnDropped(int /*from*/, int /*row*/, int /*list*/, int /*to*/) {}
};

enum class DialogEnd
{
    Ok,
    Cancel
};

// The dialog around a form, for rules that close it.
class IDialogFrame
{
public:
    virtual ~IDialogFrame() = default;
    virtual void End(DialogEnd end) = 0;
};

} // namespace zantroq
