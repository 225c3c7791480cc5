// What stands inside a chart control: the chart window with its widgets and services. Beside it, what the
// project's own programs need of a control beyond the five properties; hosts never see this header.
//
// Belongs to the thread of the application's widgets. Nothing fails: without a feed the chart stays in its
// loading text.
#pragma once

#include "control/ControlFrame.h"
#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"

#include <zantroq/ChartCtrl.h>

#include <QImage>

#include <memory>

namespace zantroq {

class CChartDlg;
class CChartView;

// What a program of the project can replace. An empty member means the usual one.
struct sChartCtrlSetup
{
    std::shared_ptr<ISettingsKey> ChartKey; // where the chart's settings are kept
    std::shared_ptr<ISettingsKey> FeedKey;  // the feed's ports; see MakePortKey
    IMessageBox* Box = nullptr;             // answers the window's questions; not owned
    bool Popups = true; // false: context menus exist as data only, and the print dialog counts as cancelled
};

class CChartBody
{
public:
    explicit CChartBody(const sChartCtrlSetup& setup);
    ~CChartBody(); // the window's destruction
    CChartBody(const CChartBody&) = delete;
    CChartBody& operator=(const CChartBody&) = delete;

    static std::unique_ptr<CChartCtrl> MakeControl(QWidget* parent, const sChartCtrlSetup& setup);
    static CChartBody& Of(CChartCtrl& control) { return *control.m_body; }

    // The window's creation; once, by the control.
    void Create(CChartCtrl& control);

    // The properties' storage. Each setter answers whether the value has changed.
    const QString& StockSymbol() const { return m_symbol; }
    bool SetStockSymbol(const QString& symbol);
    bool ResizeParentWindow() const;
    bool SetResizeParentWindow(bool resize);
    const sControlFrame& Frame() const { return m_frame; }
    bool SetAppearance(int appearance);
    bool SetBorderStyle(int borderStyle);
    bool NoteEnabled(bool enabled);

    // Gives the chart window what the control's size leaves inside its frame.
    void LayOut();

    CChartDlg& Window() { return *m_window; }
    const CChartDlg& Window() const { return *m_window; }
    CChartView& View() { return *m_view; }

    // Wheel, arrow keys, Ctrl with +, - and P, F10 and the menu key, and the items for pictures and
    // printing in the context menu. On at the start.
    bool Conveniences() const;
    void SetConveniences(bool on);

    // The size of the chart window, also while the control is not on show.
    void SetClientSize(const QSize& size);
    // A text that pictures of the chart carry, such as that the market is simulated.
    void SetNotice(const QString& notice) { m_notice = notice; }
    // By the ending of the path: .png, .svg, .pdf, .json for the state of the window, or .csv for the
    // values on show (window/ShownTable.h). Empty, or one sentence that says what is wrong and what to
    // do.
    QString SavePicture(const QString& path) const;
    QImage Picture() const;
    // The print command onto a PDF file, without a dialog. Empty, or one sentence that says what is
    // wrong.
    QString PrintToFile(const QString& path);

private:
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
    sControlFrame m_frame;
    QString m_symbol, m_notice;
    QString m_pictureFolder; // of the picture saved last
    bool m_enabled = true;   // as reported last
};

} // namespace zantroq
