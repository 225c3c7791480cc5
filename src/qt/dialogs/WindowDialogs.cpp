#include "qt/dialogs/WindowDialogs.h"

#include "qt/dialogs/SettingSheetDialog.h"
#include "qt/dialogs/SymbolSearchDialog.h"

namespace zantroq {

void CWindowDialogs::Open(CFormDialog& dialog)
{
    m_dialog = &dialog;
    m_driver = std::make_unique<CFormDialogDriver>(dialog);
    dialog.Open();
}

void CWindowDialogs::OpenSettingsSheet(const sSheetSubject& subject, SettingsAccepted done)
{
    auto* const sheet = new CSettingSheetDialog(m_over, subject);
    sheet->OnClosed = [sheet, done = std::move(done)](DialogEnd end) {
        if (end == DialogEnd::Ok)
            done(sheet->Edit());
    };
    Open(*sheet);
}

void CWindowDialogs::OpenSymbolSearch(SymbolChosen done)
{
    auto* const search = new CSymbolSearchDialog(m_over, m_feedKey, m_box);
    search->OnClosed = [search, done = std::move(done)](DialogEnd end) {
        if (end == DialogEnd::Ok)
            done(search->Result());
    };
    Open(*search);
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
    // A closed dialog exists until its events are processed.
    const bool open = m_dialog != nullptr && m_dialog->IsOpen();
    return open ? m_driver.get() : nullptr;
}

} // namespace zantroq
