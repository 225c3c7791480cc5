// A dialog of the chart window: one form, or a sheet of them. It is on the screen where the chart's window
// is, and modal to the person, but Open returns at once. Escape and the window's close button cancel. Chart
// window's thread.
#pragma once

#include "platform/DialogDriver.h"
#include "platform/Form.h"
#include "qt/dialogs/QtForm.h"

#include <QDialog>

#include <functional>

class QAbstractButton;

namespace zantroq {

class CFormDialog : public QDialog, public IDialogFrame
{
public:
    // The dialog opens over the window that `over` stands in, and goes with it.
    explicit CFormDialog(QWidget& over);

    // When the dialog closes, OnClosed runs, and the dialog deletes itself later.
    void Open();
    bool IsOpen() const { return m_open; }
    std::function<void(DialogEnd end)> OnClosed = [](DialogEnd) {};

    // IDialogFrame
    void End(DialogEnd end) override;

    virtual CQtForm& FormOnShow() = 0;
    // Of a sheet: the titles of its pages, and the number of the one on show.
    virtual QStringList PageTitles() const { return {}; }
    virtual int PageOnShow() const { return -1; }
    virtual void TurnTo(int /*page*/) {}
    // Of a dialog that searches.
    virtual SearchProgress Search() const { return SearchProgress::NotStarted; }
    // The buttons that close the dialog: controls 1 and 2 of its form, unless it says otherwise.
    virtual QAbstractButton* OkButton();
    virtual QAbstractButton* CancelButton();

private:
    QAbstractButton* Button(int id);

    bool m_open = false;
};

} // namespace zantroq
