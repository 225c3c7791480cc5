// The dialogs that the chart window opens. Each one may be missing; its command then stands disabled. A
// dialog is modal to the person, but opening it returns at once, so that a script goes on beside it; what
// follows from it is done when it closes. Chart window's thread.
#pragma once

#include "platform/DialogDriver.h"
#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"
#include "settings/ChartSettings.h"

#include <functional>
#include <string>

namespace zantroq {

// What a settings sheet closed with OK hands back.
struct sSettingsEdit
{
    sChartSettings Settings;
    bool ResetScaleNow = false;       // " Reset now" on the general page
    bool SaveRequestSettings = false; // "Save settings as default" on the data page
};

// What the settings sheet works on. All of it outlives the sheet.
struct sSheetSubject
{
    const sChartSettings& Settings; // the chart's, also while the sheet is open
    ISettingsKey& Key;              // where they are kept
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
    // Nothing is called for a dialog that was cancelled. Not to be called while a dialog is open.
    virtual void OpenSymbolSearch(SymbolChosen) {}
    virtual void OpenSettingsSheet(const sSheetSubject&, SettingsAccepted) {}
    virtual void RunPrint() {} // returns when its dialog is closed
    // The dialog that is open; null: none.
    virtual IDialogDriver* OpenDialog() { return nullptr; }
};

} // namespace zantroq
