// The inside of a chart control: the chart window with its widgets and services, and the functions that the
// project's own programs need besides the five properties. Hosts never see this header.
//
// Thread of the application's widgets. Nothing fails: without a feed the chart stays in its loading state.
#pragma once

#include "control/ControlFrame.h"
#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"

#include <zantroq/ChartCtrl.h>

#include <QImage>

#include <memory>

namespace zantroq {

class CChartDlg;
class CChartConveniences;
class CChartView;

// The services that a program of this project can replace. Empty members have defaults.
struct sChartCtrlSetup
{
    std::shared_ptr<ISettingsKey> ChartKey; // key of the chart's settings
    std::shared_ptr<ISettingsKey> FeedKey;  // ports of the feed; see MakePortKey
    IMessageBox* Box = nullptr;             // answers the window's message boxes; not owned
    bool Popups = true; // false: context menus exist only as data, and the print dialog counts as cancelled
};

class CChartBody
{
public:
    explicit CChartBody(const sChartCtrlSetup& setup);
    ~CChartBody(); // destroys the chart window
    CChartBody(const CChartBody&) = delete;
    CChartBody& operator=(const CChartBody&) = delete;

    static std::unique_ptr<CChartCtrl> MakeControl(QWidget* parent, const sChartCtrlSetup& setup);
    static CChartBody& Of(CChartCtrl& control) { return *control.m_body; }

    // Creates the chart window. Called once, by the control.
    void Create(CChartCtrl& control);

    // The values of the properties. Each setter returns true if the value has changed.
    const QString& StockSymbol() const { return m_symbol; }
    bool SetStockSymbol(const QString& symbol);
    bool ResizeParentWindow() const;
    bool SetResizeParentWindow(bool resize);
    const sControlFrame& Frame() const { return m_frame; }
    bool SetAppearance(int appearance);
    bool SetBorderStyle(int borderStyle);
    bool NoteEnabled(bool enabled);

    // Sizes the chart window to the inside of the control's frame.
    void LayOut();

    CChartDlg& Window() { return *m_window; }
    const CChartDlg& Window() const { return *m_window; }
    CChartView& View() { return *m_view; }

    // What docs/conveniences.md lists. On at the start; hosts switch it with the dynamic property
    // "Conveniences" of the control.
    bool Conveniences() const;
    void SetConveniences(bool on);
    CChartConveniences& Layer() { return *m_layer; }
    // Where the data comes from, from now on: connects anew. Empty: nothing changes.
    void UseFeed(std::shared_ptr<ISettingsKey> feedKey);

    // The size of the chart window, also while the control is hidden.
    void SetClientSize(const QSize& size);
    // A text shown in pictures of the chart, for example that the market is simulated.
    void SetNotice(const QString& notice) { m_notice = notice; }
    // Writes a file of the kind given by its ending: .png, .svg, .pdf, .json for the state of the window, or
    // .csv for the displayed values (export/ShownTable.h). Returns an empty text, or a sentence that says
    // what is wrong and what to do.
    QString SavePicture(const QString& path) const;
    QImage Picture() const;
    // Prints to a PDF file without a dialog. Returns an empty text, or a sentence that says what is wrong.
    QString PrintToFile(const QString& path);

private:
    QString Notice() const;
    void CreateWindow();
    void CopyPicture();
    void AskForPicture();
    void Tell(const std::string& caption, const QString& sentence);

    sChartCtrlSetup m_setup;
    CChartCtrl* m_control = nullptr; // not owned
    CChartView* m_view = nullptr;    // the control's child
    struct sServices;
    std::unique_ptr<sServices> m_services;
    std::unique_ptr<CChartDlg> m_window;
    std::unique_ptr<CChartConveniences> m_layer;
    sControlFrame m_frame;
    QString m_symbol, m_notice;
    QString m_pictureFolder; // folder of the last saved picture
    bool m_enabled = true;   // last reported value
};

} // namespace zantroq
