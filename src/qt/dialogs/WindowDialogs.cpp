#include "qt/dialogs/WindowDialogs.h"

namespace zantroq {

void CWindowDialogs::Open(CFormDialog& dialog)
{
    m_dialog = &dialog;
    m_driver = std::make_unique<CFormDialogDriver>(dialog);
    dialog.Open();
}

void CWindowDialogs::Drop()
{
    m_driver.reset();
    if (m_dialog == nullptr)
        return;
    m_dialog->OnClosed = [](DialogEnd) {};
    delete m_dialog;
}

IDialogDriver* CWindowDialogs::OpenDialog()
{
    // A closed dialog lives on until its events have run out.
    const bool open = m_dialog != nullptr && m_dialog->IsOpen();
    return open ? m_driver.get() : nullptr;
}

} // namespace zantroq
