#include "window/ChartParts.h"

#include "drawing/PaneSetup.h"
#include "settings/SettingsLoader.h"
#include "settings/SettingsTable.h"
#include "settings/pages/SheetChanges.h"
#include "window/WindowDialogs.h"
#include "window/WindowTexts.h"

namespace zantroq {

namespace {

sWindowServices WithBox(const sWindowServices& from, IMessageBox& box)
{
    return {from.Timer, from.Status,   box,      from.Scroll, from.Commands, from.Symbol,
            from.Type,  from.Interval, from.Top, from.Host,   from.Pointer,  from.Menu};
}

} // namespace

sChartParts::sChartParts(CChartDlg& window, std::span<CChart2D> panes, const sChartDlgSetup& setup)
    : Window(window),
      Recorder(setup.Services.Box),
      Services(WithBox(setup.Services, Recorder)),
      Key(setup.Key),
      Dialogs(setup.Dialogs),
      Login(setup.Login),
      Settings(LoadChartSettings(setup.Key)),
      Store(Key),
      Panes(panes),
      Batch(Panes),
      Status(Services.Status),
      Manager(window, setup.Studies, nullptr),
      OwnTrends(window, Manager, Services.Box, Services.Timer,
                [this](const std::string& text) { Status.SetPart(0, text); }),
      Trends(setup.Trends != nullptr ? *setup.Trends : OwnTrends),
      Drawing(Manager),
      Display(Settings, Services.Scroll, Services.Commands, Status, Drawing),
      Resizer(Settings.Panes, Store, Panes, Services.Host, Services.Scroll, Services.Pointer, Drawing, Batch),
      Inspection(window, Drawing, Status, Services.Box, Services.Scroll),
      Placement(Key, Services.Top),
      Bars(Settings, Key, Services, Status),
      Lifecycle(Settings, Store, Services, setup.Feed, Status, Display, Drawing, *this)
{
    Manager.SetTrends(Trends.Layer());
    Status.SetTrends(&Trends);
    Lifecycle.SetTrends(&Trends);
}

bool sChartParts::Initialise()
{
    if (Login != nullptr && !Login->Agrees())
        return false;
    for (CChart2D& pane : Panes)
        pane.SetInteractive(false);
    Bars.SetUp(Dialogs);
    Display.SetUp();
    Resizer.SetUp();
    {
        const CBatch batch(Window);
        Resizer.SizePanes();
        Drawing.ClearPanes();
        ShowMarkers();
    }
    Lifecycle.Start();
    Initialising = false;
    Ready = true;
    return true;
}

void sChartParts::Destroy()
{
    if (!Ready)
        return;
    Ready = false;
    Placement.SaveIfAsked();
    Lifecycle.End();
}

void sChartParts::RetryChanges()
{
    // Two seconds: less than the time for which a settings file that was found locked is not waited for, so
    // that the window never stands still over a change that nobody is looking at.
    constexpr int TicksBetweenTries = 8;
    if (!Key.IsWaiting() || --m_ticksToRetry > 0)
        return;
    m_ticksToRetry = TicksBetweenTries;
    Key.Retry();
    if (!Key.IsWaiting())
        Status.SetNotice("");
}

void sChartParts::SayWhetherKept()
{
    Status.SetNotice(Key.IsWaiting() ? "Settings could not be kept: the settings file cannot be written."
                                     : "");
}

void sChartParts::SetSymbol(const std::string& text)
{
    Lifecycle.SetCurrentSymbol(text);
    if (Initialising)
        return;
    Services.Symbol.Select(-1);
    Services.Symbol.SetText(text);
    Lifecycle.OnSymbolChanged();
    Placement.LoadWindowPosition();
    Status.Message("Loading Data...");
    Lifecycle.DrawChart();
}

void sChartParts::OnCommand(int command)
{
    if (FindTrendCommand(command) != nullptr) {
        Trends.OnCommand(command);
        return;
    }
    switch (command) {
    case CommandSymbolSearch:
        RunSearch();
        break;
    case CommandSettings:
        RunSettings();
        break;
    case CommandPrint:
        RunPrint();
        break;
    case CommandZoomIn:
        Display.ZoomIn();
        break;
    case CommandZoomOut:
        Display.ZoomOut();
        break;
    case CommandGrid:
        FlipGrid();
        break;
    case CommandPriceBar:
        FlipPriceBar();
        break;
    case CommandDrawChart:
        Lifecycle.OnDrawChart();
        break;
    case CommandRestoreTicks:
    case CommandRestoreBars:
        RestorePoints(command);
        break;
    case CommandMaximizePane:
        Resizer.Maximize(ClickedPane);
        break;
    case CommandMinimizePane:
        Resizer.Minimize(ClickedPane);
        break;
    case CommandRestorePane:
        Resizer.Restore(ClickedPane);
        break;
    default:
        break;
    }
}

void sChartParts::Unavailable(const char* feature)
{
    Status.Message(std::string(feature) + " is not available.");
}

void sChartParts::RunSearch()
{
    if (Dialogs == nullptr || !Dialogs->HasSymbolSearch()) {
        Unavailable("Symbol Search");
        return;
    }
    if (Dialogs->OpenDialog() != nullptr)
        return;
    Dialogs->OpenSymbolSearch([this](const std::string& symbol) { TakeFoundSymbol(symbol); });
}

void sChartParts::TakeFoundSymbol(const std::string& symbol)
{
    if (symbol.empty() || symbol == Services.Symbol.Text())
        return;
    Services.Symbol.Select(-1);
    Services.Symbol.SetText(symbol);
    Services.Commands.Enable(CommandDrawChart, true);
}

void sChartParts::RunSettings()
{
    if (Dialogs == nullptr || !Dialogs->HasSettingsSheet()) {
        Unavailable("Settings");
        return;
    }
    if (Dialogs->OpenDialog() != nullptr)
        return;
    LoadSheetSettings(Key, Settings);
    Dialogs->OpenSettingsSheet({Settings, Key, Services.Box},
                               [this](const sSettingsEdit& edit) { Window.ApplySettings(edit); });
}

void sChartParts::RunPrint()
{
    if (Dialogs == nullptr || !Dialogs->HasPrint()) {
        Unavailable("Print");
        return;
    }
    Dialogs->RunPrint();
}

void sChartParts::FlipGrid()
{
    Bars.FlipGrid();
    RebuildGrid();
}

void sChartParts::RebuildGrid()
{
    Status.Message("Updating Grid...");
    {
        const CBatch batch(Window);
        for (CChart2D& pane : Panes)
            SetGrid(pane, Settings);
    }
    Status.Message("Ready");
}

void sChartParts::FlipPriceBar()
{
    Bars.FlipPriceBar();
    ShowMarkers();
}

void sChartParts::ShowMarkers()
{
    const CBatch batch(Window);
    for (CChart2D& pane : Panes)
        pane.PaneArea().PaneMarkers("x").SetShown(Settings.ShowPriceBar != 0);
}

void sChartParts::RestorePoints(int command)
{
    if (!Drawing.SeriesEdited())
        return;
    const bool ticks = command == CommandRestoreTicks;
    const char* const text = ticks ? "Restore deleted ticks?" : "Restore deleted intervals?";
    const char* const caption = ticks ? "Restoring ticks" : "Restoring intervals";
    const int chart = Drawing.ChartNumber();
    if (Services.Box.Ask(text, caption, BoxButtons::YesNo, BoxIcon::Question) != BoxAnswer::Yes)
        return;
    if (chart != Drawing.ChartNumber()) // a host asked for another chart meanwhile
        return;
    Lifecycle.ReloadSeries();
    Display.Redraw();
}

void sChartParts::OnMouseDown(int control, int button, int x, int y)
{
    const int pane = control - FirstPaneControl;
    if (pane < 0 || pane >= PaneCount(Settings.Panes))
        return;
    OpenMenu.reset(); // a press beside an open menu closes it
    if (Trends.State() != 0) {
        Trends.OnMouseDown(control, button, x, y);
        return;
    }
    if (button == MouseLeft) {
        Resizer.OnButtonDown(pane, y);
        if (pane == 0 && !Resizer.IsCollapsed(0))
            Inspection.ShowReadout(x, y);
    } else if (button == MouseRight && !Resizer.Dragging()) { // a menu would keep the drag's end from coming
        ClickedPane = Resizer.PaneAt(pane, y);
        // A collapsed price pane shows no point to delete.
        if (pane == 0 && !Resizer.IsCollapsed(0) && Inspection.OfferDeletion(x, y))
            return;
        ShowMenu(pane, x, y);
    }
}

void sChartParts::OnMouseMove(int control, int x, int y)
{
    const int pane = control - FirstPaneControl;
    if (pane < 0 || pane >= PaneCount(Settings.Panes))
        return;
    if (Trends.State() != 0) {
        Trends.OnMouseMove(control, x, y);
        return;
    }
    // Panes are not redrawn while a border is dragged.
    if (Settings.ShowPriceBar != 0 && !Lifecycle.Loading() && !Resizer.Dragging())
        Inspection.FollowMouse(pane, PaneCount(Settings.Panes), x, y);
    Resizer.OnMouseMove(pane, y);
}

void sChartParts::ShowMenu(int pane, int x, int y)
{
    if (pane < 0 || pane >= PaneCount(Settings.Panes))
        return;
    ClickedPane = pane;
    OpenMenu = MenuOf(pane);
    Services.Menu.Open(*OpenMenu, x, y);
}

sContextMenu sChartParts::MenuOf(int pane) const
{
    const sMenuState state{Drawing.SeriesEdited(), Settings.Request.DataType == TickData, Trends.Count()};
    return pane == 0 ? BuildPriceMenu(Settings.Panes, state) : BuildStudyMenu(Settings.Panes, pane);
}

void sChartParts::ChartRequested()
{
    Bars.ShowTitleLine(Lifecycle.CurrentSymbol());
    ChartDropped(); // points that are brought back are asked for without a drop
}

void sChartParts::SeriesPolled()
{
    const CChartHistRequest& series = *Lifecycle.Series();
    const int last = series.GetCount(FieldTime) - 1;
    if (last < 0) {
        Bars.ShowLastTrade("");
        return;
    }
    // By what the series holds: with an empty symbol box the chosen type may differ from it.
    const int kind = series.GetRequestKind();
    const double price = IsTickKind(kind) ? series.GetLastAt(last) : series.GetCloseAt(last);
    const std::int64_t size = IsDayKind(kind) ? series.GetTotalVolumeAt(last) : series.GetSizeAt(last);
    Bars.ShowLastTrade(Drawing.PriceText(price) + " x " + std::to_string(size));
}

void sChartParts::Apply(const sChartSettings& wanted, unsigned effects, bool resetScaleNow)
{
    const sPaneStack panes = Settings.Panes;
    Settings = wanted;
    // The list of studies is the resizer's to change, since shares and states follow their studies.
    if ((effects & EffectStudyList) != 0)
        Settings.Panes = panes;
    Resizer.SetUp();
    ApplyEffects(*this, effects, Settings, wanted.Panes, resetScaleNow);
    if (effects != EffectNone && Drawing.Count() == 0 && !Lifecycle.Loading())
        ShowEmptyPanes();
}

// Without a chart nothing is drawn, but the panes take their colors.
void sChartParts::ShowEmptyPanes()
{
    const CBatch batch(Window);
    Drawing.ClearPanes();
    ShowMarkers();
}

void sChartParts::PointsChanged()
{
    Display.ResetShown();
    Display.Redraw();
}

void sChartParts::AxisSideChanged()
{
    const CBatch batch(Window);
    for (CChart2D& pane : Panes)
        MoveValueAxis(pane, Settings.ValueAxisSide());
}

void sChartParts::StudyListChanged(const sPaneStack& wanted)
{
    Resizer.SetStudies(std::span(wanted.StudyTypes).first(static_cast<std::size_t>(PaneCount(wanted) - 1)));
}

void sChartParts::BarsChanged()
{
    Bars.ShowSettings();
    ShowMarkers();
}

std::string sChartParts::TakeSymbol()
{
    const std::string previous = Lifecycle.CurrentSymbol();
    Lifecycle.SetCurrentSymbol(Services.Symbol.Text());
    return previous;
}

void sChartParts::RedrawWithoutRequest()
{
    const int type = Settings.Request.DataType;
    if (type == TickData || type == MinuteData)
        Display.ReportPoints(Drawing.Count());
    if (Settings.FixedScale)
        ScaleReset = true;
    Display.Redraw();
}

} // namespace zantroq
