#include "window/ChartDlg.h"

#include "settings/SettingsLoader.h"
#include "settings/SettingsTable.h"
#include "settings/SettingsWriter.h"
#include "settings/pages/SheetChanges.h"
#include "window/ContextMenus.h"
#include "window/WindowCommands.h"

#include <span>

namespace zantroq {

namespace {

sWindowServices WithBox(const sWindowServices& from, IMessageBox& box)
{
    return {from.Timer, from.Status,   box,      from.Scroll, from.Commands, from.Symbol,
            from.Type,  from.Interval, from.Top, from.Host,   from.Pointer,  from.Menu};
}

} // namespace

CChartDlg::CChartDlg(const sChartDlgSetup& setup)
    : m_recorder(setup.Services.Box),
      m_services(WithBox(setup.Services, m_recorder)),
      m_key(setup.Key),
      m_login(setup.Login),
      m_settings(LoadChartSettings(setup.Key)),
      m_store(m_key),
      m_batch(m_panes),
      m_ownTrends(*this, m_prices, m_services.Box, m_services.Timer,
                  [this](const std::string& text) { m_status.SetPart(0, text); }),
      m_trends(setup.Trends != nullptr ? *setup.Trends : m_ownTrends),
      m_status(m_services.Status, m_trends),
      m_manager(*this, m_prices, setup.Studies, m_trends.Layer()),
      m_layout(m_settings.Panes, m_panes, m_services.Host, m_services.Scroll),
      m_rangeBars(m_services.Scroll, m_services.Commands, m_layout),
      m_drawing(*this, m_manager, m_prices, m_rangeBars),
      m_display(m_settings, m_services.Scroll, m_status, m_drawing),
      m_resizer(m_settings.Panes, m_store, m_layout, m_services.Pointer, m_services.Scroll, m_drawing,
                m_batch),
      m_inspection(*this, m_drawing, m_status, m_services.Box, m_services.Scroll),
      m_placement(m_key, m_services.Top),
      m_bars(m_settings, m_key, m_services, m_status),
      m_allPanes(*this),
      m_storedChanges(m_key, m_status),
      m_dialogs(setup.Dialogs, m_services, m_status, m_key, m_settings,
                [this](const sSettingsEdit& edit) { ApplySettings(edit); }),
      m_lifecycle(m_settings, m_store, m_services, setup.Feed, m_status, m_trends, m_display, m_drawing,
                  *this)
{
}

CChartDlg::~CChartDlg()
{
    Destroy();
}

bool CChartDlg::Initialise()
{
    if (m_login != nullptr && !m_login->Agrees())
        return false;
    for (CChart2D& pane : m_panes)
        pane.SetInteractive(false);
    m_bars.SetUp(m_dialogs.Dialogs());
    m_display.SetUp();
    m_resizer.SetUp();
    {
        const CBatch batch(*this);
        m_layout.SizePanes();
        m_drawing.ClearPanes();
        m_allPanes.ShowMarkers();
    }
    m_lifecycle.Start();
    m_initialising = false;
    m_ready = true;
    return true;
}

void CChartDlg::Destroy()
{
    if (!m_ready)
        return;
    m_ready = false;
    m_placement.SaveIfAsked();
    m_lifecycle.End();
}

void CChartDlg::SetSymbol(const std::string& text)
{
    m_lifecycle.SetCurrentSymbol(text);
    if (m_initialising)
        return;
    m_services.Symbol.Select(-1);
    m_services.Symbol.SetText(text);
    m_lifecycle.OnSymbolChanged();
    m_placement.LoadWindowPosition();
    m_status.Message("Loading Data...");
    m_lifecycle.DrawChart();
}

void CChartDlg::OnTimer(int id)
{
    if (!m_ready)
        return;
    if (id == ProgressTimer) {
        m_lifecycle.OnTimer();
        m_storedChanges.OnTick();
    } else if (id == FlashTimer) {
        m_trends.OnTimer();
    }
}

void CChartDlg::OnCommand(int command)
{
    if (!m_ready)
        return;
    if (FindTrendCommand(command) != nullptr)
        m_trends.OnCommand(command);
    else
        RunCommand(command);
}

void CChartDlg::RunCommand(int command)
{
    switch (command) {
    case CommandSymbolSearch:
        return m_dialogs.RunSearch();
    case CommandSettings:
        return m_dialogs.RunSettings();
    case CommandPrint:
        return m_dialogs.RunPrint();
    case CommandZoomIn:
        return m_display.ZoomIn();
    case CommandZoomOut:
        return m_display.ZoomOut();
    case CommandGrid:
        m_bars.FlipGrid();
        return RebuildGrid();
    case CommandPriceBar:
        m_bars.FlipPriceBar();
        return m_allPanes.ShowMarkers();
    case CommandDrawChart:
        return m_lifecycle.OnDrawChart();
    case CommandRestoreTicks:
    case CommandRestoreBars:
        return RestorePoints(command);
    case CommandMaximizePane:
        return m_resizer.Maximize(m_clickedPane);
    case CommandMinimizePane:
        return m_resizer.Minimize(m_clickedPane);
    case CommandRestorePane:
        return m_resizer.Restore(m_clickedPane);
    default:
        return;
    }
}

void CChartDlg::RestorePoints(int command)
{
    if (!m_drawing.SeriesEdited())
        return;
    const bool ticks = command == CommandRestoreTicks;
    const char* const text = ticks ? "Restore deleted ticks?" : "Restore deleted intervals?";
    const char* const caption = ticks ? "Restoring ticks" : "Restoring intervals";
    const int chart = m_drawing.ChartNumber();
    if (m_services.Box.Ask(text, caption, BoxButtons::YesNo, BoxIcon::Question) != BoxAnswer::Yes)
        return;
    if (chart != m_drawing.ChartNumber()) // a host asked for another chart meanwhile
        return;
    m_lifecycle.ReloadSeries();
    m_display.Redraw();
}

void CChartDlg::OnMenuCommand(int command)
{
    if (!m_openMenu)
        return;
    const sContextMenu menu = *m_openMenu;
    m_openMenu.reset();
    const sMenuItem* const item = FindMenuItem(menu.Items, command);
    if (item != nullptr && item->Enabled)
        OnCommand(command);
}

void CChartDlg::OnHScroll(ScrollCode code, int position)
{
    if (m_ready)
        m_display.OnHScroll(code, position);
}

void CChartDlg::OnChartMouseDown(int control, int button, int /*shift*/, int x, int y)
{
    const int pane = control - FirstPaneControl;
    if (!m_ready || !IsShown(pane))
        return;
    m_openMenu.reset(); // a press outside an open menu closes it
    if (m_trends.State() != 0)
        m_trends.OnMouseDown(control, button, x, y);
    else if (button == MouseLeft)
        OnLeftPress(pane, x, y);
    else if (button == MouseRight)
        OnRightPress(pane, x, y);
}

void CChartDlg::OnLeftPress(int pane, int x, int y)
{
    m_resizer.OnButtonDown(pane, y);
    if (pane == 0 && !m_layout.IsCollapsed(0))
        m_inspection.ShowReadout(x, y);
}

void CChartDlg::OnRightPress(int pane, int x, int y)
{
    if (m_resizer.Dragging()) // an open menu would swallow the end of the drag
        return;
    m_clickedPane = m_layout.PaneAt(pane, y);
    // A collapsed price pane shows no point to delete.
    if (pane == 0 && !m_layout.IsCollapsed(0) && m_inspection.OfferDeletion(x, y))
        return;
    ShowMenu(pane, x, y);
}

void CChartDlg::OnChartMouseMove(int control, int /*button*/, int /*shift*/, int x, int y)
{
    const int pane = control - FirstPaneControl;
    if (!m_ready || !IsShown(pane))
        return;
    if (m_trends.State() != 0) {
        m_trends.OnMouseMove(control, x, y);
        return;
    }
    // Panes are not redrawn while a border is dragged.
    if (m_settings.ShowPriceBar != 0 && !m_lifecycle.Loading() && !m_resizer.Dragging())
        m_inspection.FollowMouse(pane, ShownPanes(), x, y);
    m_resizer.OnMouseMove(pane, y);
}

void CChartDlg::OnChartMouseUp(int control, int /*button*/, int /*shift*/, int /*x*/, int y)
{
    const int pane = control - FirstPaneControl;
    if (m_ready && pane >= 0 && pane < PaneControls)
        m_resizer.OnButtonUp(pane, y);
}

void CChartDlg::OnKeyPress(int /*control*/, int code)
{
    if (m_ready && m_bars.OnKeyPress(code))
        OnSymbolChanged();
}

void CChartDlg::OnSymbolChanged()
{
    if (m_ready)
        m_lifecycle.OnSymbolChanged();
}

void CChartDlg::OnDataTypeChanged(int forced)
{
    if (m_ready)
        m_lifecycle.OnDataTypeChanged(forced);
}

void CChartDlg::OnIntervalChanged()
{
    if (m_ready)
        m_lifecycle.OnIntervalChanged();
}

void CChartDlg::OnResize()
{
    const IPaneHost& host = m_services.Host;
    if (m_ready && host.ClientWidth() > 0 && host.ClientHeight() > 0)
        m_resizer.Layout();
}

bool CChartDlg::DrawChart()
{
    return m_ready && m_lifecycle.DrawChart();
}

bool CChartDlg::AskAgain()
{
    return m_ready && m_lifecycle.AskAgain();
}

void CChartDlg::ShowDataType(int dataType)
{
    if (m_ready)
        m_lifecycle.ShowDataType(dataType);
}

void CChartDlg::OpenPaneMenu(int pane, int x, int y)
{
    if (m_ready)
        ShowMenu(pane, x, y);
}

void CChartDlg::ShowMenu(int pane, int x, int y)
{
    if (!IsShown(pane))
        return;
    m_clickedPane = pane;
    m_openMenu = MenuOf(pane);
    m_services.Menu.Open(*m_openMenu, x, y);
}

sContextMenu CChartDlg::MenuOf(int pane) const
{
    const sMenuState state{m_drawing.SeriesEdited(), m_settings.Request.DataType == TickData,
                           m_trends.Count()};
    return pane == 0 ? BuildPriceMenu(m_settings.Panes, state) : BuildStudyMenu(m_settings.Panes, pane);
}

bool CChartDlg::CompleteAndDrawn() const
{
    const CChartHistRequest* const series = Series();
    return series != nullptr && series->IsComplete() && !m_display.FirstFill();
}

void CChartDlg::ChartRequested()
{
    m_bars.ShowTitleLine(CurrentSymbol());
    ChartDropped(); // points that are brought back are asked for without a drop
}

void CChartDlg::SeriesPolled()
{
    const CChartHistRequest& series = *Series();
    const int last = series.GetCount(FieldTime) - 1;
    if (last < 0) {
        m_bars.ShowLastTrade("");
        return;
    }
    // By what the series holds: with an empty symbol box the chosen type may differ from it.
    const int kind = series.GetRequestKind();
    const double price = IsTickKind(kind) ? series.GetLastAt(last) : series.GetCloseAt(last);
    const std::int64_t size = IsDayKind(kind) ? series.GetTotalVolumeAt(last) : series.GetSizeAt(last);
    m_bars.ShowLastTrade(m_drawing.PriceText(price) + " x " + std::to_string(size));
}

bool CChartDlg::ApplySetting(const std::string& name, const std::string& value, std::string& error)
{
    sChartSettings wanted = m_settings;
    const sSettingChange change = SetByName(wanted, m_key, name, value);
    error = change.Error;
    if (!change.Error.empty())
        return false;
    Apply(wanted, change.Effects, ScaleReset::AsChanged);
    return true;
}

void CChartDlg::ApplySettings(const sSettingsEdit& edit)
{
    const unsigned effects =
        StoreSheetChanges(m_key, m_settings, edit.Settings,
                          edit.SaveRequestSettings ? RequestKeeping::AsDefault : RequestKeeping::ThisChart);
    Apply(edit.Settings, effects, edit.ResetScaleNow ? ScaleReset::Now : ScaleReset::AsChanged);
    m_storedChanges.SayWhetherKept();
}

void CChartDlg::Apply(const sChartSettings& wanted, unsigned effects, ScaleReset scale)
{
    const sPaneStack panes = m_settings.Panes;
    m_settings = wanted;
    // The resizer changes the list of studies itself, since shares and states follow their studies.
    if ((effects & EffectStudyList) != 0)
        m_settings.Panes = panes;
    m_resizer.SetUp();
    const std::string previousSymbol = TakeSymbol();
    m_scaleReset = scale == ScaleReset::Now || ((effects & EffectFixedScale) != 0 && m_settings.FixedScale);
    ApplyEffects(effects, wanted.Panes);
    // Any OK asks the feed again, whatever was changed; without a chart there is nothing to ask for.
    if (!previousSymbol.empty() && !m_lifecycle.DrawChart())
        RedrawWithoutRequest();
    if (effects != EffectNone && m_drawing.Count() == 0 && !m_lifecycle.Loading())
        ShowEmptyPanes();
}

void CChartDlg::ApplyEffects(unsigned effects, const sPaneStack& wantedPanes)
{
    if ((effects & EffectGrid) != 0)
        RebuildGrid();
    if ((effects & EffectScrollStep) != 0)
        m_display.RecomputeScrollStep();
    if ((effects & EffectAxisSide) != 0)
        m_allPanes.MoveValueAxes();
    if ((effects & EffectStudyList) != 0)
        m_resizer.SetStudies(
            std::span(wantedPanes.StudyTypes).first(static_cast<std::size_t>(PaneCount(wantedPanes) - 1)));
    else if ((effects & EffectPaneLayout) != 0)
        m_resizer.Layout();
    if ((effects & EffectTrends) != 0)
        m_trends.ApplyStyles();
    if ((effects & (EffectPriceBar | EffectRequest | EffectGrid | EffectLevel1)) != 0) {
        m_bars.ShowSettings();
        m_allPanes.ShowMarkers();
    }
    if ((effects & EffectPoints) != 0)
        m_display.ChangePoints();
}

// Takes the symbol box's text as the current symbol; answers the one before.
std::string CChartDlg::TakeSymbol()
{
    const std::string previous = CurrentSymbol();
    m_lifecycle.SetCurrentSymbol(m_services.Symbol.Text());
    return previous;
}

void CChartDlg::RebuildGrid()
{
    m_status.Message("Updating Grid...");
    m_allPanes.SetGrids();
    m_status.Message("Ready");
}

// Without a chart nothing is drawn, but the panes take their colors.
void CChartDlg::ShowEmptyPanes()
{
    const CBatch batch(*this);
    m_drawing.ClearPanes();
    m_allPanes.ShowMarkers();
}

void CChartDlg::RedrawWithoutRequest()
{
    const int type = m_settings.Request.DataType;
    if (type == TickData || type == MinuteData)
        m_display.ReportPoints(m_drawing.Count());
    if (m_settings.FixedScale)
        m_scaleReset = true;
    m_allPanes.SetColors();
    m_display.Redraw();
}

} // namespace zantroq
