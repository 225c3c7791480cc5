#include "window/ChartDlg.h"

#include "settings/SettingsLoader.h"
#include "settings/SettingsWriter.h"
#include "settings/pages/SheetChanges.h"
#include "window/ChartParts.h"
#include "window/WindowTexts.h"

namespace zantroq {

CChartDlg::CChartDlg(const sChartDlgSetup& setup)
    : m_parts(std::make_unique<sChartParts>(*this, m_panes, setup))
{
}

CChartDlg::~CChartDlg()
{
    Destroy();
}

bool CChartDlg::Initialise()
{
    return m_parts->Initialise();
}

void CChartDlg::Destroy()
{
    m_parts->Destroy();
}

void CChartDlg::SetSymbol(const std::string& text)
{
    m_parts->SetSymbol(text);
}

void CChartDlg::SetResizeParentWindow(bool resize)
{
    m_parts->Placement.SetResizeParentWindow(resize);
}

bool CChartDlg::ResizeParentWindow() const
{
    return m_parts->Placement.ResizeParentWindow();
}

void CChartDlg::OnTimer(int id)
{
    if (!m_parts->Ready)
        return;
    if (id == ProgressTimer) {
        m_parts->Lifecycle.OnTimer();
        m_parts->RetryChanges();
    } else if (id == FlashTimer)
        m_parts->Trends.OnTimer();
}

void CChartDlg::OnCommand(int command)
{
    if (m_parts->Ready)
        m_parts->OnCommand(command);
}

void CChartDlg::OnMenuCommand(int command)
{
    if (!m_parts->OpenMenu)
        return;
    const sContextMenu menu = *m_parts->OpenMenu;
    m_parts->OpenMenu.reset();
    const sMenuItem* const item = FindMenuItem(menu.Items, command);
    if (item != nullptr && item->Enabled)
        OnCommand(command);
}

void CChartDlg::OnHScroll(ScrollCode code, int position)
{
    if (m_parts->Ready)
        m_parts->Display.OnHScroll(code, position);
}

void CChartDlg::OnChartMouseDown(int control, int button, int /*shift*/, int x, int y)
{
    if (m_parts->Ready)
        m_parts->OnMouseDown(control, button, x, y);
}

void CChartDlg::OnChartMouseMove(int control, int /*button*/, int /*shift*/, int x, int y)
{
    if (m_parts->Ready)
        m_parts->OnMouseMove(control, x, y);
}

void CChartDlg::OnChartMouseUp(int control, int /*button*/, int /*shift*/, int /*x*/, int y)
{
    const int pane = control - FirstPaneControl;
    if (m_parts->Ready && pane >= 0 && pane < PaneControls)
        m_parts->Resizer.OnButtonUp(pane, y);
}

void CChartDlg::OnKeyPress(int /*control*/, int code)
{
    if (m_parts->Ready && m_parts->Bars.OnKeyPress(code))
        OnSymbolChanged();
}

void CChartDlg::OnSymbolChanged()
{
    if (m_parts->Ready)
        m_parts->Lifecycle.OnSymbolChanged();
}

void CChartDlg::OnSymbolEnter()
{
    DrawChart();
}

void CChartDlg::OnDataTypeChanged(int forced)
{
    if (m_parts->Ready)
        m_parts->Lifecycle.OnDataTypeChanged(forced);
}

void CChartDlg::OnIntervalChanged()
{
    if (m_parts->Ready)
        m_parts->Lifecycle.OnIntervalChanged();
}

void CChartDlg::OnResize()
{
    const IPaneHost& host = m_parts->Services.Host;
    if (m_parts->Ready && host.ClientWidth() > 0 && host.ClientHeight() > 0)
        m_parts->Resizer.Layout();
}

bool CChartDlg::DrawChart()
{
    return m_parts->Ready && m_parts->Lifecycle.DrawChart();
}

void CChartDlg::OpenPaneMenu(int pane, int x, int y)
{
    if (m_parts->Ready)
        m_parts->ShowMenu(pane, x, y);
}

bool CChartDlg::ApplySetting(const std::string& name, const std::string& value, std::string& error)
{
    sChartSettings wanted = m_parts->Settings;
    const sSettingChange change = SetByName(wanted, m_parts->Key, name, value);
    error = change.Error;
    if (!change.Error.empty())
        return false;
    m_parts->Apply(wanted, change.Effects, false);
    return true;
}

void CChartDlg::ApplySettings(const sSettingsEdit& edit)
{
    const unsigned effects =
        StoreSheetChanges(m_parts->Key, m_parts->Settings, edit.Settings,
                          edit.SaveRequestSettings ? RequestKeeping::AsDefault : RequestKeeping::ThisChart);
    m_parts->Apply(edit.Settings, effects, edit.ResetScaleNow);
    m_parts->SayWhetherKept();
}

const sChartSettings& CChartDlg::Settings() const
{
    return m_parts->Settings;
}

sChartSettings& CChartDlg::MutableSettings()
{
    return m_parts->Settings;
}

sDisplayRange& CChartDlg::Range()
{
    return m_parts->Display.Range();
}

const sDisplayRange& CChartDlg::Range() const
{
    return m_parts->Display.Range();
}

int CChartDlg::ChartPixelWidth() const
{
    return m_parts->Resizer.PanesWidth();
}

CChart2D& CChartDlg::Pane(int number)
{
    return m_panes.at(static_cast<std::size_t>(number));
}

const CChart2D& CChartDlg::Pane(int number) const
{
    return m_panes.at(static_cast<std::size_t>(number));
}

bool CChartDlg::IsCollapsed(int pane) const
{
    return m_parts->Resizer.IsCollapsed(pane);
}

int CChartDlg::SelectedPoint() const
{
    return m_parts->Inspection.SelectedPoint();
}

void CChartDlg::SetSelectedPoint(int point)
{
    m_parts->Inspection.SetSelectedPoint(point);
}

bool CChartDlg::ResetScale() const
{
    return m_parts->ScaleReset;
}

void CChartDlg::ClearResetScale()
{
    m_parts->ScaleReset = false;
}

void CChartDlg::BeginBatch()
{
    m_parts->Batch.Begin();
}

void CChartDlg::EndBatch()
{
    m_parts->Batch.End();
}

void CChartDlg::BeginPriceBatch()
{
    m_parts->Batch.BeginPrice();
}

void CChartDlg::EndPriceBatch()
{
    m_parts->Batch.EndPrice();
}

int CChartDlg::ScrollLimit() const
{
    return m_parts->Services.Scroll.Limit();
}

bool CChartDlg::ScrollBarVisible() const
{
    return m_parts->Services.Scroll.Visible();
}

void CChartDlg::SetScrollBarVisible(bool visible)
{
    m_parts->Services.Scroll.SetVisible(visible);
    m_parts->Resizer.SizePanes();
}

void CChartDlg::UpdateZoomButtons()
{
    m_parts->Display.UpdateZoomButtons();
}

void CChartDlg::SetStatusText(const std::string& text)
{
    m_parts->Status.Message(text);
}

void CChartDlg::SetPrompt(const std::string& text)
{
    m_parts->Status.SetPart(0, text);
}

CChartHistRequest* CChartDlg::Series() const
{
    return m_parts->Lifecycle.Series();
}

CHistChartDrawManager& CChartDlg::DrawManager()
{
    return m_parts->Manager;
}

const CHistChartDrawManager& CChartDlg::DrawManager() const
{
    return m_parts->Manager;
}

const CChartsResizer& CChartDlg::Resizer() const
{
    return m_parts->Resizer;
}

IWindowTrends& CChartDlg::Trends() const
{
    return m_parts->Trends;
}

const sWindowServices& CChartDlg::Services() const
{
    return m_parts->Services;
}

const std::string& CChartDlg::CurrentSymbol() const
{
    return m_parts->Lifecycle.CurrentSymbol();
}

int CChartDlg::Loading() const
{
    return m_parts->Lifecycle.Loading() ? 1 : 0;
}

bool CChartDlg::CompleteAndDrawn() const
{
    const CChartHistRequest* const series = m_parts->Lifecycle.Series();
    return series != nullptr && series->IsComplete() && !m_parts->Display.FirstFill();
}

int CChartDlg::ShownPanes() const
{
    return PaneCount(m_parts->Settings.Panes);
}

int CChartDlg::ClickedPane() const
{
    return m_parts->ClickedPane;
}

const std::string& CChartDlg::StatusPart(int part) const
{
    return m_parts->Status.Part(part);
}

const std::optional<sContextMenu>& CChartDlg::OpenMenu() const
{
    return m_parts->OpenMenu;
}

sContextMenu CChartDlg::MenuOf(int pane) const
{
    return m_parts->MenuOf(pane);
}

const std::vector<sAskedBox>& CChartDlg::AskedBoxes() const
{
    return m_parts->Recorder.Boxes();
}

IDialogDriver* CChartDlg::OpenDialog() const
{
    return m_parts->Dialogs != nullptr ? m_parts->Dialogs->OpenDialog() : nullptr;
}

} // namespace zantroq
