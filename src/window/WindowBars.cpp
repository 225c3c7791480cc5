#include "window/WindowBars.h"

#include "settings/SettingIds.h"
#include "settings/SettingsTable.h"
#include "window/WindowCommands.h"
#include "window/WindowDialogs.h"
#include "window/WindowTexts.h"

namespace zantroq {

CWindowBars::CWindowBars(sChartSettings& settings, CRetryingKey& key, const sWindowServices& services,
                         CStatusText& status)
    : m_settings(settings), m_store(key), m_services(services), m_status(status), m_history(key)
{
}

void CWindowBars::SetUp(const IWindowDialogs* dialogs)
{
    ICommandBar& commands = m_services.Commands;
    for (const int command : AllCommands)
        commands.Enable(command, true);
    commands.Enable(CommandSymbolSearch, dialogs != nullptr && dialogs->HasSymbolSearch());
    commands.Enable(CommandSettings, dialogs != nullptr && dialogs->HasSettingsSheet());
    commands.Enable(CommandPrint, dialogs != nullptr && dialogs->HasPrint());
    commands.Enable(CommandZoomIn, false);
    commands.Enable(CommandZoomOut, false);
    m_history.LoadSymbolHistory();
    m_services.Symbol.SetItems(m_history.Items());
    ShowSettings();
}

void CWindowBars::ShowSettings()
{
    m_services.Commands.Check(CommandGrid, m_settings.Grid != 0);
    m_services.Commands.Check(CommandPriceBar, m_settings.ShowPriceBar != 0);
    m_services.Type.Select(m_settings.Request.DataType);
    m_services.Interval.Select(m_settings.Request.IntervalIndex);
    m_services.Interval.SetEnabled(m_settings.Request.DataType == MinuteData);
}

void CWindowBars::RememberSymbol(const std::string& symbol)
{
    m_history.AddSymbol(symbol);
    m_services.Symbol.SetItems(m_history.Items());
    m_services.Symbol.Select(m_history.Items().empty() ? -1 : 0);
    m_services.Symbol.SetText(symbol);
}

bool CWindowBars::OnKeyPress(int code)
{
    const std::string text = SymbolFromKey(code);
    if (text.empty())
        return false;
    m_services.Symbol.Select(-1);
    m_services.Symbol.SetText(text);
    m_services.Symbol.FocusAtEnd();
    return true;
}

bool CWindowBars::FlipGrid()
{
    m_settings.Grid = m_services.Commands.IsChecked(CommandGrid) ? 0 : 1;
    m_services.Commands.Check(CommandGrid, m_settings.Grid != 0);
    m_store.WriteInt(SettingName(GridId), m_settings.Grid);
    return m_settings.Grid != 0;
}

bool CWindowBars::FlipPriceBar()
{
    m_settings.ShowPriceBar = m_services.Commands.IsChecked(CommandPriceBar) ? 0 : 1;
    m_services.Commands.Check(CommandPriceBar, m_settings.ShowPriceBar != 0);
    m_store.WriteInt(SettingName(ShowPriceBarId), m_settings.ShowPriceBar);
    return m_settings.ShowPriceBar != 0;
}

void CWindowBars::ShowTitleLine(const std::string& symbol)
{
    m_status.SetPart(1, TitleLine(m_settings.Request, symbol));
}

void CWindowBars::ShowLastTrade(const std::string& text)
{
    const std::string shown = m_settings.ShowLevel1 == 1 ? text : std::string();
    if (m_status.Part(2) != shown)
        m_status.SetPart(2, shown);
}

} // namespace zantroq
