// The controls of a dialog, or of one page of a sheet, by control number and without a toolkit. The rules of
// a dialog use it; the Widgets layer implements it (qt/dialogs/QtForm.h), and so do tests
// (tests/support/FakeForm.h).
//
// Rules read and write controls through IForm and receive the user's actions through IFormEvents. Changes
// that the rules make themselves are not reported back. A number that no control of the form has throws
// std::invalid_argument. Chart window's thread.
// one throws std::invalid_argument. Chart window's thread.
#pragma once

#include "platform/Color.h"

#include <string>
#include <vector>

namespace zantroq {

struct sFormColumn
{
    std::string Title; // if all titles are empty, the list has no header
    int Width = 0;     // pixels; 0: a hidden column
};

using FormRow = std::vector<std::string>; // one text per column

class IForm
{
public:
    virtual ~IForm() = default;

    // The text of an edit, spin, static, group box or button, or the selected entry of a combo. A date is
    // YYYY-MM-DD, a time HH:MM:SS; any other text leaves a date or time control unchanged.
    virtual std::string Text(int id) const = 0;
    virtual void SetText(int id, const std::string& text) = 0;

    // Combos. The index of the selected entry, -1 for none. SetItems leaves no entry selected.
    virtual void SetItems(int id, const std::vector<std::string>& items) = 0;
    virtual int Index(int id) const = 0;
    virtual void SetIndex(int id, int index) = 0;

    // Checks and radio buttons. Checking a radio button unchecks the others of its group.
    virtual bool Checked(int id) const = 0;
    virtual void SetChecked(int id, bool checked) = 0;

    // Color buttons; red in the low byte.
    virtual ColorValue Color(int id) const = 0;
    virtual void SetColor(int id, ColorValue color) = 0;

    // Lists. Rows count from 0. SetRows costs about as much as copying the rows; InsertRow moves the rows
    // after the new one. A row may have fewer texts than the list has columns.
    virtual void SetColumns(int id, const std::vector<sFormColumn>& columns) = 0;
    virtual void SetRows(int id, std::vector<FormRow> rows) = 0; // clears the selection
    virtual void InsertRow(int id, int before, FormRow row) = 0; // selected rows stay selected
    virtual int RowCount(int id) const = 0;
    virtual const FormRow& Row(int id, int row) const = 0;
    virtual std::vector<int> SelectedRows(int id) const = 0; // ascending
    virtual void SelectRows(int id, const std::vector<int>& rows) = 0;

    virtual bool Enabled(int id) const = 0;
    virtual void SetEnabled(int id, bool enabled) = 0;
    virtual bool Visible(int id) const = 0;
    virtual void SetVisible(int id, bool visible) = 0;

    virtual void SetRange(int id, int low, int high) = 0; // of a spin, inclusive
    // Shows a sample line of this color and width in pixels.
    virtual void SetLineSample(int id, ColorValue color, int width) = 0;
    virtual void Focus(int id) = 0; // also selects the text of an edit

    // The dialog that contains the controls. Sizes are in pixels of its client area.
    virtual void SetTitle(const std::string& title) = 0;
    virtual void SetSize(int width, int height) = 0;
    virtual void SetWaiting(bool waiting) = 0; // hourglass or arrow as the pointer
};

// The user's actions, by control number.
class IFormEvents
{
public:
    virtual ~IFormEvents() = default;
    // A changed text, selection, check, color, date or time. A radio button reports every press, even while
    // it is checked.
    virtual void OnChanged(int) {}
    virtual void OnPressed(int) {} // a button
    virtual void OnDoubleClicked(int /*id*/, int /*row*/) {}
    virtual void OnSelectionChanged(int) {} // of a list; also when a selected row is pressed again
    // The user dragged row `row` of list `from` to the place before row `to` of list `list`; the row count as
    // `to` means the end of the list.
    virtual void OnDropped(int /*from*/, int /*row*/, int /*list*/, int /*to*/) {}
};

enum class DialogEnd
{
    Ok,
    Cancel
};

// The dialog around a form, through which rules close it.
class IDialogFrame
{
public:
    virtual ~IDialogFrame() = default;
    virtual void End(DialogEnd end) = 0;
};

} // namespace zantroq
