/// @file
/// The chart as a Qt widget. A host sets a symbol; the control requests the price history from the market-data
/// feed on this machine, draws it with the studies that the user chose, and follows live trades.
#pragma once

#include <zantroq/Export.h>

#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

namespace zantroq {

class CChartBody;

/// An embeddable price chart with five properties. It has no methods beyond their accessors, and no signals
/// beyond their change notifications.
///
/// **Life.** Creating the control creates the chart window inside it and, for the first control of the
/// process, the one worker thread that holds both connections to the feed. The constructor waits for these
/// connections at most a second. All controls of a process share the worker; the destruction of the last
/// control ends it, and a later control starts a new one. A lost connection is restored only when the user
/// presses the button in the strip over the panes.
///
/// **Conveniences.** The strip and other additions to the plain chart; docs/conveniences.md lists them. They are
/// on unless the host sets the dynamic property "Conveniences" to false.
///
/// **Threads.** Create, use and destroy controls on the thread of the QApplication. Any number may exist at
/// once.
///
/// **Errors.** No function throws or fails: without a feed a chart stays in its loading state, and a property
/// value outside its range is ignored.
///
/// **Settings.** Colors, studies and requests are settings of the user. They are stored in one file for all
/// controls of the user; hosts have no access to them.
class ZANTROQ_CHART_EXPORT CChartCtrl : public QWidget
{
    Q_OBJECT

    /// The symbol to draw, initially empty. Setting it draws a new chart, even if it is the same symbol. An
    /// empty text keeps the displayed chart. The user may draw another symbol in the control's own symbol
    /// box, which does not change this property. Not stored in forms: a host sets it every time.
    Q_PROPERTY(
        QString StockSymbol READ StockSymbol WRITE SetStockSymbol NOTIFY StockSymbolChanged STORED false)

    /// Whether the control places its top-level window, initially false. Setting it to true moves and sizes
    /// the window to the stored position of a chart with the same title, fitted to the screens. While it is
    /// true, each new chart and the end of the control store the window's position. While it is false, the
    /// control never moves its host. On Wayland a window keeps its position; only its size and its maximized
    /// state are restored. Not stored in forms.
    Q_PROPERTY(bool ResizeParentWindow READ ResizeParentWindow WRITE SetResizeParentWindow NOTIFY
                   ResizeParentWindowChanged STORED false)

    /// 0: flat, the initial value. 1: sunken, with an edge of two pixels. Other values are ignored.
    Q_PROPERTY(int Appearance READ Appearance WRITE SetAppearance NOTIFY AppearanceChanged)

    /// 0: no border, the initial value. 1: a single line of one pixel, inside the edge if the control is
    /// sunken. Other values are ignored.
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE SetBorderStyle NOTIFY BorderStyleChanged)

    /// Whether the control accepts mouse and keyboard, initially true. A disabled control continues to follow
    /// its symbol. Same as QWidget's `enabled`, so a disabled parent disables the control too.
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled NOTIFY EnabledChanged)

public:
    /// Creates the control and its chart window, which is idle until a symbol is set.
    /// @param parent the owner of the control, or null
    explicit CChartCtrl(QWidget* parent = nullptr);

    /// Ends the chart, even while it is loading. If this is the process's last control, stops the worker and
    /// waits for its end.
    ~CChartCtrl() override;

    /// @return the text that the host set last
    QString StockSymbol() const;
    /// Draws a new chart of a symbol.
    /// @param symbol as the feed names it
    void SetStockSymbol(const QString& symbol);

    /// @return whether the control places its top-level window
    bool ResizeParentWindow() const;
    /// Places the top-level window and stores its position from then on.
    /// @param resize false: the control does not move the window
    void SetResizeParentWindow(bool resize);

    /// @return 0 flat, 1 sunken
    int Appearance() const;
    /// Draws or removes the edge.
    /// @param appearance 0 or 1; other values are ignored
    void SetAppearance(int appearance);

    /// @return 0 none, 1 single line
    int BorderStyle() const;
    /// Draws or removes the border.
    /// @param borderStyle 0 or 1; other values are ignored
    void SetBorderStyle(int borderStyle);

    /// @return the preferred size in pixels
    QSize sizeHint() const override;

signals:
    /// The value of StockSymbol has changed. @param symbol the new value
    void StockSymbolChanged(const QString& symbol);
    /// The value of ResizeParentWindow has changed. @param resize the new value
    void ResizeParentWindowChanged(bool resize);
    /// The value of Appearance has changed. @param appearance the new value
    void AppearanceChanged(int appearance);
    /// The value of BorderStyle has changed. @param borderStyle the new value
    void BorderStyleChanged(int borderStyle);
    /// The value of Enabled has changed. @param enabled the new value
    void EnabledChanged(bool enabled);

protected:
    /// Resizes the chart window. @param event from Qt
    void resizeEvent(QResizeEvent* event) override;
    /// Draws edge and border. @param event from Qt
    void paintEvent(QPaintEvent* event) override;
    /// Reports a change of Enabled. @param event from Qt
    void changeEvent(QEvent* event) override;

private:
    friend class CChartBody;
    CChartCtrl(QWidget* parent, std::unique_ptr<CChartBody> body);

    std::unique_ptr<CChartBody> m_body;
};

} // namespace zantroq
