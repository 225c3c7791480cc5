// The bars around the panes: symbol box with its history, type and interval boxes, check buttons, and the
// second and third part of the status bar. Chart window's thread.
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

    void SetUp(const IWindowDialogs* dialogs); // boxes, checks, enabling, symbol history
    void ShowSettings();                       // boxes and checks after a change of settings
    void RememberSymbol(const std::string& symbol);
    // True when the key starts a symbol: the box then holds that character alone and has the keyboard.
    bool OnKeyPress(int code);
    // The check buttons flip, are stored, and answer their new state.
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
