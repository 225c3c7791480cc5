// The chart as a widget for hosts: give it a symbol and it asks the feed for its history, draws it and
// follows it. It holds one chart window for its whole life; all controls of a process share one feed worker,
// which lives from the first control to the last.
//
// Belongs to the thread of the application's widgets. Nothing fails: without a feed the chart stays in its
// loading text.
#pragma once

#include "platform/WindowServices.h"
#include "platform/settings/SettingsKey.h"

#include <QImage>
#include <QWidget>

#include <memory>

namespace zantroq {

class CChartDlg;
class CChartView;

// What a host can replace. An empty member means the usual one.
struct sChartCtrlSetup
{
    std::shared_ptr<ISettingsKey> ChartKey; // where the chart's settings are kept
    std::shared_ptr<ISettingsKey> FeedKey;  // the feed's ports; see MakePortKey
    IMessageBox* Box = nullptr;             // answers the window's questions; not owned
    bool Popups = true; // false: context menus exist as data only, and the print dialog counts as cancelled
};

class CChartCtrl : public QWidget
{
    Q_OBJECT
    // The symbol to draw. Each new one draws a new chart; the empty text changes nothing on show.
    Q_PROPERTY(QString StockSymbol READ StockSymbol WRITE SetStockSymbol NOTIFY StockSymbolChanged)
    // Whether the control brings its top-level window back to where a chart of the same title last stood, and
    // keeps that place.
    Q_PROPERTY(bool ResizeParentWindow READ ResizeParentWindow WRITE SetResizeParentWindow)
    // Wheel, arrow keys, Ctrl with +, - and P, F10 and the menu key, and the items for pictures and printing
    // in the context menu.
    Q_PROPERTY(bool Conveniences READ Conveniences WRITE SetConveniences)

public:
    explicit CChartCtrl(QWidget* parent = nullptr, const sChartCtrlSetup& setup = {});
    ~CChartCtrl() override;

    QString StockSymbol() const { return m_symbol; }
    void SetStockSymbol(const QString& symbol);
    bool ResizeParentWindow() const;
    void SetResizeParentWindow(bool resize);
    bool Conveniences() const;
    void SetConveniences(bool on);

    CChartDlg& Window() { return *m_window; }
    const CChartDlg& Window() const { return *m_window; }
    CChartView& View() { return *m_view; }

    // The size of the chart window, also while the control is not on show.
    void SetClientSize(const QSize& size);
    // A text that pictures of the chart carry, such as that the market is simulated.
    void SetNotice(const QString& notice) { m_notice = notice; }
    // By the ending of the path: .png, .svg, .pdf, .json for the state of the window, or .csv for the values
    // on show (window/ShownTable.h). Empty, or one sentence that says what is wrong and what to do.
    QString SavePicture(const QString& path) const;
    QImage Picture() const;
    // The print command onto a PDF file, without a dialog. Empty, or one sentence that says what is wrong.
    QString PrintToFile(const QString& path);

signals:
    void StockSymbolChanged(const QString& symbol);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void CopyPicture();
    void AskForPicture();
    void Tell(const std::string& caption, const QString& sentence);

    CChartView* m_view;
    std::shared_ptr<ISettingsKey> m_chartKey;
    struct sServices;
    std::unique_ptr<sServices> m_services;
    std::unique_ptr<CChartDlg> m_window;
    QString m_symbol, m_notice;
    QString m_pictureFolder; // of the picture saved last
};

} // namespace zantroq
