// The commands that open a dialog: symbol search, settings and print. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "settings/RetryingKey.h"
#include "window/StatusText.h"
#include "window/WindowDialogs.h"

#include <string>

namespace zantroq {

class CDialogCommands
{
public:
    // `accepted` is called for each accepted settings sheet. Nothing is owned. `dialogs` may be null; then
    // every command reports that its feature is not available.
    CDialogCommands(IWindowDialogs* dialogs, const sWindowServices& services, CStatusText& status,
                    CRetryingKey& key, sChartSettings& settings, IWindowDialogs::SettingsAccepted accepted);

    void RunSearch(); // puts the found symbol into the symbol box
    void RunSettings();
    void RunPrint();
    const IWindowDialogs* Dialogs() const { return m_dialogs; }
    IDialogDriver* OpenDialog() const; // null if none is open

private:
    void Unavailable(const char* feature);
    void TakeFoundSymbol(const std::string& symbol);

    IWindowDialogs* m_dialogs;
    sWindowServices m_services;
    CStatusText& m_status;
    CRetryingKey& m_key;
    sChartSettings& m_settings;
    IWindowDialogs::SettingsAccepted m_accepted;
};

} // namespace zantroq
