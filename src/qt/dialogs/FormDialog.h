// A dialog of the chart window: one form, or a sheet of forms. It is visible if the chart's window is, and
// modal for the user, but Open returns at once. Escape and the close button cancel it. Chart window's thread.
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
    // The dialog opens over the window of `over` and is destroyed with it.
    explicit CFormDialog(QWidget& over);

    // Opens the dialog. When it closes, it calls OnClosed and deletes itself later.
    void Open();
    bool IsOpen() const { return m_open; }
    std::function<void(DialogEnd end)> OnClosed = [](DialogEnd) {};

    // IDialogFrame
    void End(DialogEnd end) override;

    virtual CQtForm& FormOnShow() = 0;
    // For a sheet: the titles of its pages, and the number of the visible page.
    virtual QStringList PageTitles() const { return {}; }
    virtual int PageOnShow() const { return -1; }
    virtual void TurnTo(int /*page*/) {}
    // For a dialog with a search.
    virtual SearchProgress Search() const { return SearchProgress::NotStarted; }
    // The buttons that close the dialog: controls 1 and 2 of its form by default.
    virtual QAbstractButton* OkButton();
    virtual QAbstractButton* CancelButton();

private:
    QAbstractButton* Button(int id);

    bool m_open = false;
};

} // namespace zantroq
