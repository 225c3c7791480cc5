// The chart window without its toolkit: from a symbol to a live chart, scrolling, zoom, pane layout,
// inspection and deletion of points, bars. It owns the series, the panes, the draw manager and its
// collaborators, each of which has one job, and gives each event to the collaborator whose job it is.
//
// Everything runs on one thread, the chart window's; the series alone is shared with the feed's worker. The
// same class runs inside real widgets, off screen, and under fakes: it asks sWindowServices for everything
// that a desktop provides.
//
// Life: construct, Initialise once the services answer, then events, Destroy (the destructor does it too). The
// services must outlive the window.
#pragma once

#include "window/AllPanes.h"
#include "window/BatchCounters.h"
#include "window/ChartLifecycle.h"
#include "window/ChartsResizer.h"
#include "window/DialogCommands.h"
#include "window/DisplayRange.h"
#include "window/ManagerDrawing.h"
#include "window/MessageRecorder.h"
#include "window/PointInspection.h"
#include "window/StoredChanges.h"
#include "window/TrendDrawing.h"
#include "window/WindowBars.h"
#include "window/WindowPlacement.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace zantroq {

struct sChartDlgSetup
{
    sWindowServices Services;
    ISettingsKey& Key; // the chart's settings key
    IChartFeed& Feed;
    IStudyFactory* Studies = nullptr;    // null: no study panes
    IWindowDialogs* Dialogs = nullptr;   // null: the commands of all dialogs are disabled
    ILoginVerification* Login = nullptr; // null: accepts every user
    IWindowTrends* Trends = nullptr;     // null: the window creates its own
};

class CChartDlg : public IChartWindow, private ILifecycleEvents
{
public:
    explicit CChartDlg(const sChartDlgSetup& setup);
    ~CChartDlg() override;
    CChartDlg(const CChartDlg&) = delete;
    CChartDlg& operator=(const CChartDlg&) = delete;

    // Fills boxes, bars and panes, lays them out, and becomes idle ("Ready..."). The constructor has already
    // loaded the settings. Returns false if the login check refuses; the window then stays empty.
    bool Initialise();
    void Destroy();

    // Properties set by the host.
    void SetSymbol(const std::string& text);
    void SetResizeParentWindow(bool resize) { m_placement.SetResizeParentWindow(resize); }
    bool ResizeParentWindow() const { return m_placement.ResizeParentWindow(); }

    // Events of the face. `control` is FirstPaneControl and up, pixels are the pane's own.
    void OnTimer(int id);
    void OnCommand(int command);     // runs it, enabled or not; toggles the two check buttons
    void OnMenuCommand(int command); // a choice in the open context menu; 0: closed without a choice
    void OnHScroll(ScrollCode code, int position);
    void OnChartMouseDown(int control, int button, int shift, int x, int y);
    void OnChartMouseMove(int control, int button, int shift, int x, int y);
    void OnChartMouseUp(int control, int button, int shift, int x, int y);
    void OnKeyPress(int control, int code);
    void OnSymbolChanged();
    void OnSymbolEnter() { DrawChart(); } // Enter in the symbol box
    void OnDataTypeChanged(int forced);
    void OnIntervalChanged();
    void OnResize();  // the client size or the height of the bars has changed
    bool DrawChart(); // false: no request was made
    // Watches and requests the chart on show once more, on a new connection; the trendlines stay. False and
    // without effect if no chart was requested.
    bool AskAgain();
    // Selects the type of the charts from now on without storing it.
    void ShowDataType(int dataType);
    // Opens the context menu of a pane by keyboard, at a pixel of it.
    void OpenPaneMenu(int pane, int x, int y);

    // Makes one change as the settings sheet would on OK. Returns false, sets `error` to a sentence and
    // changes nothing for an unknown name or an invalid value.
    bool ApplySetting(const std::string& name, const std::string& value, std::string& error);
    // Applies an accepted settings sheet.
    void ApplySettings(const sSettingsEdit& edit);
    // Text of the first part of the status line; held back while a trendline mode is armed.
    void SetStatusText(const std::string& text) { m_status.Message(text); }

    // IChartWindow
    const sChartSettings& Settings() const override { return m_settings; }
    sDisplayRange& Range() override { return m_display.Range(); }
    const sDisplayRange& Range() const override { return m_display.Range(); }
    int ChartPixelWidth() const override { return m_layout.PanesWidth(); }
    CChart2D& Pane(int number) override { return m_panes.at(static_cast<std::size_t>(number)); }
    const CChart2D& Pane(int number) const { return m_panes.at(static_cast<std::size_t>(number)); }
    bool IsCollapsed(int pane) const override { return m_layout.IsCollapsed(pane); }
    int SelectedPoint() const override { return m_inspection.SelectedPoint(); }
    void SetSelectedPoint(int point) override { m_inspection.SetSelectedPoint(point); }
    bool ResetScale() const override { return m_scaleReset; }
    void ClearResetScale() override { m_scaleReset = false; }
    void BeginBatch() override { m_batch.Begin(); }
    void EndBatch() override { m_batch.End(); }
    void BeginPriceBatch() override { m_batch.BeginPrice(); }
    void EndPriceBatch() override { m_batch.EndPrice(); }
    int ScrollLimit() const override { return m_services.Scroll.Limit(); }

    // The state of the window, for snapshots, replay scripts and the Widgets layer.
    bool ScrollBarVisible() const { return m_services.Scroll.Visible(); }
    CChartHistRequest* Series() const
    {
        return m_lifecycle.Series();
    } // null before Initialise, after Destroy
    const CSeriesReader& Prices() const { return m_prices; }
    CHistChartDrawManager& DrawManager() { return m_manager; }
    const CPaneLayout& Layout() const { return m_layout; }
    IWindowTrends& Trends() const { return m_trends; }
    const sWindowServices& Services() const { return m_services; }
    const std::string& CurrentSymbol() const { return m_lifecycle.CurrentSymbol(); }
    int Loading() const { return m_lifecycle.Loading() ? 1 : 0; }  // 1 while a chart loads
    bool CompleteAndDrawn() const;                                 // the reply is complete and on show
    bool HasUnstoredChanges() const { return m_key.IsWaiting(); }  // of settings; they are tried again
    int ShownPanes() const { return PaneCount(m_settings.Panes); } // price pane and displayed studies
    int ClickedPane() const { return m_clickedPane; }              // pane of the last context menu
    const std::string& StatusPart(int part) const { return m_status.Part(part); } // 0 to 2
    const std::optional<sContextMenu>& OpenMenu() const { return m_openMenu; }
    sContextMenu MenuOf(int pane) const; // the context menu that a pane would open now
    const std::vector<sAskedBox>& AskedBoxes() const { return m_recorder.Boxes(); }
    IDialogDriver* OpenDialog() const { return m_dialogs.OpenDialog(); } // null if no dialog is open

private:
    // ILifecycleEvents
    void SavePosition() override { m_placement.SaveIfAsked(); }
    void RememberSymbol(const std::string& symbol) override { m_bars.RememberSymbol(symbol); }
    void RequestScaleReset() override { m_scaleReset = true; }
    void ChartDropped() override { m_bars.ShowLastTrade(""); }
    void ChartRequested() override;
    void SeriesPolled() override;

    enum class ScaleReset
    {
        AsChanged, // a fixed scale that was switched on fits itself once
        Now
    };

    void RunCommand(int command);
    void RestorePoints(int command);
    void OnLeftPress(int pane, int x, int y);
    void OnRightPress(int pane, int x, int y);
    void ShowMenu(int pane, int x, int y);
    bool IsShown(int pane) const { return pane >= 0 && pane < ShownPanes(); }

    // The effects are a combination of SettingEffect, as the settings table gives them for what differs
    // between the settings in force and those wanted, which are already stored.
    void Apply(const sChartSettings& wanted, unsigned effects, ScaleReset scale);
    void ApplyEffects(unsigned effects, const sPaneStack& wantedPanes);
    std::string TakeSymbol();
    void RebuildGrid();
    void ShowEmptyPanes();
    void RedrawWithoutRequest();

    // Collaborators get what they need at construction, so the order matters: each uses those above it. The
    // trendlines alone write into the status line, which holds messages back while they are armed.
    std::array<CChart2D, PaneControls> m_panes;
    CMessageRecorder m_recorder;
    sWindowServices m_services;  // with the recorder as its message box
    CRetryingKey m_key;          // takes the user's changes; loading reads the host's key
    ILoginVerification* m_login; // may be null
    sChartSettings m_settings;
    CSettingsStore m_store;
    CBatchCounters m_batch;
    CSeriesReader m_prices;
    CTrendDrawing m_ownTrends;
    IWindowTrends& m_trends;
    CStatusText m_status;
    CHistChartDrawManager m_manager;
    CPaneLayout m_layout;
    CRangeBars m_rangeBars;
    CManagerDrawing m_drawing;
    CDisplayRange m_display;
    CChartsResizer m_resizer;
    CPointInspection m_inspection;
    CWindowPlacement m_placement;
    CWindowBars m_bars;
    CAllPanes m_allPanes;
    CStoredChanges m_storedChanges;
    CDialogCommands m_dialogs;
    CChartLifecycle m_lifecycle;
    std::optional<sContextMenu> m_openMenu;
    int m_clickedPane = 0;
    bool m_scaleReset = false;
    bool m_initialising = true; // a symbol set meanwhile is kept and starts no chart
    bool m_ready = false;       // events are taken
};

} // namespace zantroq
