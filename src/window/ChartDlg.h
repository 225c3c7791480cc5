// The chart window without its toolkit: from a symbol to a live chart, scrolling, zoom, pane layout,
// inspection and deletion of points, bars. It owns the series, the panes and the draw manager and forwards
// each event to the collaborator whose job it is.
//
// Everything runs on one thread, the chart window's; the series alone is shared with the feed's worker. The
// same core runs inside real widgets, off screen, and under fakes: what it needs of a desktop it asks of
// sWindowServices.
//
// Life: construct, AttachTrends if there are trendlines, Initialise once the services answer, then events,
// Destroy (the destructor does it too). The services must outlive the window.
#pragma once

#include "drawing/ChartWindow.h"
#include "drawing/HistChartDrawManager.h"
#include "market/ChartHistRequest.h"
#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"
#include "window/ChartFeed.h"
#include "window/MessageRecorder.h"
#include "window/WindowCommands.h"
#include "window/WindowDialogs.h"
#include "window/WindowTrends.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zantroq {

class CChartsResizer;
struct sChartParts;

struct sChartDlgSetup
{
    sWindowServices Services;
    ISettingsKey& Key; // the chart's settings key
    IChartFeed& Feed;
    IStudyFactory* Studies = nullptr;    // null: no study panes are made
    IWindowDialogs* Dialogs = nullptr;   // null: the commands of all dialogs stand disabled
    ILoginVerification* Login = nullptr; // null: agrees
    IWindowTrends* Trends = nullptr;     // null: the window's own
};

class CChartDlg : public IChartWindow
{
public:
    explicit CChartDlg(const sChartDlgSetup& setup);
    ~CChartDlg() override;
    CChartDlg(const CChartDlg&) = delete;
    CChartDlg& operator=(const CChartDlg&) = delete;

    // Fills boxes, bars and panes, lays out, and stands idle ("Ready..."). The settings were loaded by the
    // constructor. False when the login check refuses; the window then stays empty.
    bool Initialise();
    void Destroy();

    // What the host sets.
    void SetSymbol(const std::string& text);
    void SetResizeParentWindow(bool resize);
    bool ResizeParentWindow() const;

    // Events of the face. Control numbers are 341 to 351, pixels are the pane's own.
    void OnTimer(int id);
    void OnCommand(int command);     // runs it, enabled or not; the two check buttons flip here
    void OnMenuCommand(int command); // a pick of the open context menu; 0 closes it
    void OnHScroll(ScrollCode code, int position);
    void OnChartMouseDown(int control, int button, int shift, int x, int y);
    void OnChartMouseMove(int control, int button, int shift, int x, int y);
    void OnChartMouseUp(int control, int button, int shift, int x, int y);
    void OnKeyPress(int control, int code);
    void OnSymbolChanged();
    void OnSymbolEnter(); // Enter in the symbol box
    void OnDataTypeChanged(int forced);
    void OnIntervalChanged();
    void OnResize();  // the client size changed, or the bars' height
    bool DrawChart(); // false: no request was made
    // Opens the context menu of a pane by keyboard, at a pixel of it.
    void OpenPaneMenu(int pane, int x, int y);

    // One change as if the settings sheet had been closed with OK on it. False, with `error` a sentence, for
    // an unknown name or a value that its type does not take; nothing is changed then.
    bool ApplySetting(const std::string& name, const std::string& value, std::string& error);
    // A settings sheet closed with OK.
    void ApplySettings(const sSettingsEdit& edit);

    // IChartWindow
    const sChartSettings& Settings() const override;
    sDisplayRange& Range() override;
    const sDisplayRange& Range() const override;
    int ChartPixelWidth() const override;
    CChart2D& Pane(int number) override;
    const CChart2D& Pane(int number) const;
    bool IsCollapsed(int pane) const override;
    int SelectedPoint() const override;
    void SetSelectedPoint(int point) override;
    bool ResetScale() const override;
    void ClearResetScale() override;
    void BeginBatch() override;
    void EndBatch() override;
    void BeginPriceBatch() override;
    void EndPriceBatch() override;
    int ScrollLimit() const override;
    bool ScrollBarVisible() const override;
    void SetScrollBarVisible(bool visible) override;
    void UpdateZoomButtons() override;
    // Text of the first part; held back while a trendline mode is armed.
    void SetStatusText(const std::string& text);
    // Text of the first part whatever is armed: the prompts of the trendline modes.
    void SetPrompt(const std::string& text);

    // What the window knows, for the snapshot, replay scripts and the face.
    sChartSettings& MutableSettings(); // for trendline styles and tests; writes nothing
    CChartHistRequest* Series() const; // null before Initialise and after Destroy
    CHistChartDrawManager& DrawManager();
    const CHistChartDrawManager& DrawManager() const;
    const CChartsResizer& Resizer() const;
    IWindowTrends& Trends() const;
    const sWindowServices& Services() const;
    const std::string& CurrentSymbol() const;
    int Loading() const;                           // 1 while a chart loads
    bool CompleteAndDrawn() const;                 // the reply is complete and on show
    int ShownPanes() const;                        // price pane and displayed studies
    int ClickedPane() const;                       // the pane of the last context menu
    const std::string& StatusPart(int part) const; // 0 to 2
    const std::optional<sContextMenu>& OpenMenu() const;
    sContextMenu MenuOf(int pane) const; // what a pane's context menu would hold now
    const std::vector<sAskedBox>& AskedBoxes() const;
    IDialogDriver* OpenDialog() const; // null: no dialog is open

private:
    std::array<CChart2D, PaneControls> m_panes; // there before the parts, which take them by number
    std::unique_ptr<sChartParts> m_parts;
};

} // namespace zantroq
