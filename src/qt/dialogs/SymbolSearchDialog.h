// The window of the symbol search: a form with the rules of search/SymbolSearch.h. Chart window's thread.
#pragma once

#include "platform/settings/SettingsKey.h"
#include "qt/dialogs/FormDialog.h"
#include "qt/dialogs/WindowThread.h"
#include "search/FindLookup.h"
#include "search/SymbolSearch.h"

#include <memory>

namespace zantroq {

class CSymbolSearchDialog : public CFormDialog
{
public:
    // `feedKey` has the feed's ports. The constructor fetches the markets, which waits for the feed.
    CSymbolSearchDialog(QWidget& over, const std::shared_ptr<ISettingsKey>& feedKey, IMessageBox& box);
    ~CSymbolSearchDialog() override;

    const std::string& Result() const { return m_rules->Result(); } // after OK
    SearchProgress Search() const override { return m_rules->Progress(); }
    CQtForm& FormOnShow() override { return *m_form; }

private:
    CWindowThread m_thread;
    CFindLookupMaker m_lookup;
    std::unique_ptr<CQtForm> m_form;
    std::unique_ptr<CSymbolSearch> m_rules; // destroyed first
};

} // namespace zantroq
