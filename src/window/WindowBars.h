// The bars around the panes: symbol box with its history, type and interval boxes, check buttons, and parts 1
// and 2 of the status bar. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "settings/ChartSettings.h"
#include "settings/SettingsStore.h"
#include "settings/SymbolHistory.h"
#include "window/StatusText.h"

#include <string>

namespace zantroq {

class IWindowDialogs;

class CWindowBars
{
public:
    CWindowBars(sChartSettings& settings, CRetryingKey& key, const sWindowServices& services,
                CStatusText& status);

    void SetUp(const IWindowDialogs* dialogs); // boxes, check buttons, enabled states and symbol history
    void ShowSettings();                       // boxes and check buttons, after a change of settings
    void RememberSymbol(const std::string& symbol);
    // Returns true if the key starts a symbol: the box then contains only that character and has the focus.
    bool OnKeyPress(int code);
    // Toggle a check button, store its state and return it.
    bool FlipGrid();
    bool FlipPriceBar();

    void ShowTitleLine(const std::string& symbol); // part 1
    void ShowLastTrade(const std::string& text);   // part 2, while "Show Level 1" is on

private:
    sChartSettings& m_settings;
    CSettingsStore m_store;
    sWindowServices m_services;
    CStatusText& m_status;
    CSymbolHistory m_history;
};

} // namespace zantroq
