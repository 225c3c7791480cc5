#include "window/DialogCommands.h"

#include "settings/pages/SheetChanges.h"
#include "window/WindowCommands.h"

#include <utility>

namespace zantroq {

CDialogCommands::CDialogCommands(IWindowDialogs* dialogs, const sWindowServices& services,
                                 CStatusText& status, CRetryingKey& key, sChartSettings& settings,
                                 IWindowDialogs::SettingsAccepted accepted)
    : m_dialogs(dialogs),
      m_services(services),
      m_status(status),
      m_key(key),
      m_settings(settings),
      m_accepted(std::move(accepted))
{
}

IDialogDriver* CDialogCommands::OpenDialog() const
{
    return m_dialogs != nullptr ? m_dialogs->OpenDialog() : nullptr;
}

void CDialogCommands::Unavailable(const char* feature)
{
    m_status.Message(std::string(feature) + " is not available.");
}

void CDialogCommands::RunSearch()
{
    if (m_dialogs == nullptr || !m_dialogs->HasSymbolSearch()) {
        Unavailable("Symbol Search");
        return;
    }
    if (OpenDialog() != nullptr)
        return;
    m_dialogs->OpenSymbolSearch([this](const std::string& symbol) { TakeFoundSymbol(symbol); });
}

void CDialogCommands::TakeFoundSymbol(const std::string& symbol)
{
    if (symbol.empty() || symbol == m_services.Symbol.Text())
        return;
    m_services.Symbol.Select(-1);
    m_services.Symbol.SetText(symbol);
    m_services.Commands.Enable(CommandDrawChart, true);
}

void CDialogCommands::RunSettings()
{
    if (m_dialogs == nullptr || !m_dialogs->HasSettingsSheet()) {
        Unavailable("Settings");
        return;
    }
    if (OpenDialog() != nullptr)
        return;
    LoadSheetSettings(m_key, m_settings);
    m_dialogs->OpenSettingsSheet({m_settings, m_key, m_services.Box}, m_accepted);
}

void CDialogCommands::RunPrint()
{
    if (m_dialogs == nullptr || !m_dialogs->HasPrint()) {
        Unavailable("Print");
        return;
    }
    m_dialogs->RunPrint();
}

} // namespace zantroq
