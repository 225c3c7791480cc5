// The dialogs of a chart window, of which at most one is open. Chart window's thread.
#pragma once

#include "qt/dialogs/FormDialogDriver.h"
#include "window/WindowDialogs.h"

#include <QPointer>

#include <functional>
#include <memory>

namespace zantroq {

class CWindowDialogs : public IWindowDialogs
{
public:
    // `over` is a widget inside the chart's window, `feedKey` has the feed's ports, `box` is the chart's
    // message box.
    CWindowDialogs(QWidget& over, std::shared_ptr<ISettingsKey> feedKey, IMessageBox& box)
        : m_over(over), m_feedKey(std::move(feedKey)), m_box(box)
    {
    }
    ~CWindowDialogs() override { Drop(); }

    // For the dialogs that are opened from now on.
    void SetFeedKey(std::shared_ptr<ISettingsKey> feedKey) { m_feedKey = std::move(feedKey); }

    // Closes an open dialog without any effect.
    void Drop();

    bool HasSymbolSearch() const override { return true; }
    void OpenSymbolSearch(SymbolChosen done) override;
    bool HasSettingsSheet() const override { return true; }
    void OpenSettingsSheet(const sSheetSubject& subject, SettingsAccepted done) override;
    bool HasPrint() const override { return true; }
    void RunPrint() override { Print(); }
    IDialogDriver* OpenDialog() override;

    std::function<void()> Print = [] {};

private:
    void Open(CFormDialog& dialog);

    QWidget& m_over;
    std::shared_ptr<ISettingsKey> m_feedKey;
    IMessageBox& m_box;
    QPointer<CFormDialog> m_dialog;
    std::unique_ptr<CFormDialogDriver> m_driver; // driver of m_dialog while it is open
};

} // namespace zantroq
