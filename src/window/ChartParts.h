// The collaborators of one chart window and the wires between them. Only the window itself includes this.
// Chart window's thread.
#pragma once

#include "window/BatchCounters.h"
#include "window/ChartDlg.h"
#include "window/ChartLifecycle.h"
#include "window/ChartsResizer.h"
#include "window/ContextMenus.h"
#include "window/DisplayRange.h"
#include "window/ManagerDrawing.h"
#include "window/PointInspection.h"
#include "window/SettingsApplier.h"
#include "window/StatusText.h"
#include "window/TrendDrawing.h"
#include "window/WindowBars.h"
#include "window/WindowPlacement.h"

#include <span>

namespace zantroq {

struct sChartParts : ILifecycleEvents, ISettingsTarget
{
    sChartParts(CChartDlg& window, std::span<CChart2D> panes, const sChartDlgSetup& setup);

    bool Initialise();
    void Destroy();
    void SetSymbol(const std::string& text);
    void OnCommand(int command);
    void OnMouseDown(int control, int button, int x, int y);
    void OnMouseMove(int control, int x, int y);
    void ShowMenu(int pane, int x, int y);
    sContextMenu MenuOf(int pane) const;
    void Apply(const sChartSettings& wanted, unsigned effects, bool resetScaleNow);

    // ILifecycleEvents
    void SavePosition() override { Placement.SaveIfAsked(); }
    void RememberSymbol(const std::string& symbol) override { Bars.RememberSymbol(symbol); }
    void RequestScaleReset() override { ScaleReset = true; }
    void ChartDropped() override { Bars.ShowLastTrade(""); } // it stands for nothing any more
    void ChartRequested() override;
    void SeriesPolled() override;

    // ISettingsTarget
    void SetResetScale(bool reset) override { ScaleReset = reset; }
    void RebuildGrid() override;
    void PointsChanged() override;
    void ScrollStepChanged() override { Display.RecomputeScrollStep(); }
    void AxisSideChanged() override;
    void StudyListChanged(const sPaneStack& wanted) override;
    void PaneLayoutChanged() override { Resizer.Layout(); }
    void TrendStylesChanged() override { Trends.ApplyStyles(); }
    void BarsChanged() override;
    std::string TakeSymbol() override;
    bool DrawChart() override { return Lifecycle.DrawChart(); }
    void RedrawWithoutRequest() override;

    CChartDlg& Window;
    CMessageRecorder Recorder;
    sWindowServices Services;  // with the recorder as its message box
    CRetryingKey Key;          // takes the user's changes; what is loaded goes past it
    IWindowDialogs* Dialogs;   // may be null
    ILoginVerification* Login; // may be null
    sChartSettings Settings;
    CSettingsStore Store;
    std::span<CChart2D> Panes;
    CBatchCounters Batch;
    CStatusText Status;
    CHistChartDrawManager Manager;
    CTrendDrawing OwnTrends;
    IWindowTrends& Trends;
    CManagerDrawing Drawing;
    CDisplayRange Display;
    CChartsResizer Resizer;
    CPointInspection Inspection;
    CWindowPlacement Placement;
    CWindowBars Bars;
    CChartLifecycle Lifecycle;
    std::optional<sContextMenu> OpenMenu;
    int ClickedPane = 0;
    bool ScaleReset = false;
    bool Initialising = true; // a symbol set meanwhile is kept and starts no chart
    bool Ready = false;       // events are taken

    // Every tick of the progress timer; tries again what could not be stored.
    void RetryChanges();
    // After an OK on the settings sheet: the chart takes what the store refuses, and the status bar says so.
    void SayWhetherKept();

private:
    void Unavailable(const char* feature);
    void RunSearch();
    void TakeFoundSymbol(const std::string& symbol);
    void RunSettings();
    void RunPrint();
    void FlipGrid();
    void FlipPriceBar();
    void ShowMarkers();
    void ShowEmptyPanes();
    void RestorePoints(int command);

    int m_ticksToRetry = 0;
};

} // namespace zantroq
