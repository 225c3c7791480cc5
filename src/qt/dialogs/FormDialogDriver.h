// Operates the widgets of an open dialog for scripts, as a person would. Chart window's thread.
#pragma once

#include "platform/DialogDriver.h"
#include "qt/dialogs/FormDialog.h"

namespace zantroq {

class CFormDialogDriver : public IDialogDriver
{
public:
    explicit CFormDialogDriver(CFormDialog& dialog) : m_dialog(dialog) {} // must outlive the driver

    sDialogState Describe() const override;
    std::string TurnToPage(const std::string& title) override;
    std::string Set(int id, const std::string& value) override;
    std::string Press(int id) override;
    std::string DoubleClick(int id, int row) override;
    std::string Ok() override;
    std::string Cancel() override;
    SearchProgress Search() const override { return m_dialog.Search(); }

private:
    // The control; null and the reason in `why` if a person could not use it.
    const sControl* Usable(int id, std::string& why);

    CFormDialog& m_dialog;
};

} // namespace zantroq
