#include "qt/dialogs/SymbolSearchDialog.h"

#include "ui_SymbolSearchDialog.h"

namespace zantroq {

CSymbolSearchDialog::CSymbolSearchDialog(QWidget& over, const std::shared_ptr<ISettingsKey>& feedKey,
                                         IMessageBox& box)
    : CFormDialog(over), m_lookup(feedKey, m_thread)
{
    Ui::SymbolSearchDialog().setupUi(this);
    m_form = std::make_unique<CQtForm>(*this);
    m_rules = std::make_unique<CSymbolSearch>(
        *m_form, *this,
        sSymbolSearchSetup{{feedKey, nullptr, &box}, {feedKey, nullptr, &box}, m_lookup, m_thread});
    m_form->Bind(*m_rules);
    m_rules->OnInitDialog();
}

CSymbolSearchDialog::~CSymbolSearchDialog() = default;

} // namespace zantroq
