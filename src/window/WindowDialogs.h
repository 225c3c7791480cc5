// The dialogs that the chart window opens. Each one may be missing; its command then stands disabled. Chart
// window's thread.
#pragma once

#include "settings/ChartSettings.h"

#include <optional>
#include <string>

namespace zantroq {

// What a settings sheet closed with OK hands back.
struct sSettingsEdit
{
    sChartSettings Settings;
    bool ResetScaleNow = false; // " Reset now" on the general page
};

class IWindowDialogs
{
public:
    virtual ~IWindowDialogs() = default;
    virtual bool HasSymbolSearch() const { return false; }
    virtual bool HasSettingsSheet() const { return false; }
    virtual bool HasPrint() const { return false; }
    // Modal. Nothing when the dialog was left without a symbol, or the sheet without OK.
    virtual std::optional<std::string> RunSymbolSearch() { return std::nullopt; }
    virtual std::optional<sSettingsEdit> RunSettingsSheet(const sChartSettings&) { return std::nullopt; }
    virtual void RunPrint() {}
};

} // namespace zantroq
