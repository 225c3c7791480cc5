// The dialogs that the chart window opens. Each may be missing; its command is then disabled. A dialog is
// modal for the user, but opening it returns at once, so that a script can continue; its result is processed
// when it closes. Chart window's thread.
#pragma once

#include "platform/DialogDriver.h"
#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"
#include "settings/ChartSettings.h"

#include <functional>
#include <string>

namespace zantroq {

// The result of an accepted settings sheet.
struct sSettingsEdit
{
    sChartSettings Settings;
    bool ResetScaleNow = false;       // " Reset now" on the general page
    bool SaveRequestSettings = false; // "Save settings as default" on the data page
};

// The objects that the settings sheet uses. All must outlive the sheet.
struct sSheetSubject
{
    const sChartSettings& Settings; // the current settings of the chart
    ISettingsKey& Key;              // key of the stored settings
    IMessageBox& Box;
};

class IWindowDialogs
{
public:
    using SymbolChosen = std::function<void(const std::string& symbol)>;
    using SettingsAccepted = std::function<void(const sSettingsEdit& edit)>;

    virtual ~IWindowDialogs() = default;
    virtual bool HasSymbolSearch() const { return false; }
    virtual bool HasSettingsSheet() const { return false; }
    virtual bool HasPrint() const { return false; }
    // Must not be called while a dialog is open. A cancelled dialog calls nothing.
    virtual void OpenSymbolSearch(SymbolChosen) {}
    virtual void OpenSettingsSheet(const sSheetSubject&, SettingsAccepted) {}
    virtual void RunPrint() {} // returns after its dialog is closed
    // The open dialog, or null.
    virtual IDialogDriver* OpenDialog() { return nullptr; }
};

} // namespace zantroq
