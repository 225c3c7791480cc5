/// @file
/// The chart as a widget. A host sets a symbol; the control asks the market-data feed on this machine for its
/// price history, draws it with the studies that the user chose, and follows it.
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
/// connections, a second at most. All controls of a process share the worker; the last control's destruction
/// ends it, and a later control starts it afresh. There is no reconnection in between.
///
/// **Threads.** Create, use and destroy controls on the thread of the QApplication. Any number may exist at
/// once.
///
/// **Errors.** Nothing throws and nothing fails: without a feed a chart stays in its loading text, and a
/// property value outside of its range changes nothing.
///
/// **Settings.** Colors, studies and requests are the user's. They are kept in one file for all controls of
/// the user, and no host sees them.
class ZANTROQ_CHART_EXPORT CChartCtrl : public QWidget
{
    Q_OBJECT

    /// The symbol to draw, empty at the start. Setting it draws a new chart, also when the text is the same
    /// as before. An empty text leaves the chart on show as it is. The user may draw another symbol in the
    /// control's own symbol box, which does not change this property. Not stored in forms: a host sets it
    /// every time.
    Q_PROPERTY(
        QString StockSymbol READ StockSymbol WRITE SetStockSymbol NOTIFY StockSymbolChanged STORED false)

    /// Whether the control places its top-level window, initially false. Setting it to true moves and sizes
    /// the window to where a chart of the same title last stood, fitted to the screens; while it is true,
    /// each new chart and the end of the control save the window's place. While it is false the control never
    /// moves its host. On Wayland a window keeps its position, and only its size and maximized state are
    /// restored. Not stored in forms.
    Q_PROPERTY(bool ResizeParentWindow READ ResizeParentWindow WRITE SetResizeParentWindow NOTIFY
                   ResizeParentWindowChanged STORED false)

    /// 0: flat, the initial value. 1: sunken, with an edge of two pixels. Other values are ignored.
    Q_PROPERTY(int Appearance READ Appearance WRITE SetAppearance NOTIFY AppearanceChanged)

    /// 0: no border, the initial value. 1: a single line of one pixel, inside the sunken edge if there is
    /// one. Other values are ignored.
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE SetBorderStyle NOTIFY BorderStyleChanged)

    /// Whether the control takes mouse and keyboard, initially true. A disabled control goes on following its
    /// symbol. It is the same as QWidget's `enabled`, so that a disabled parent disables the control as well.
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled NOTIFY EnabledChanged)

public:
    /// Creates the control and its chart window, which stands idle until a symbol is set.
    /// @param parent the widget that will own the control, or null
    explicit CChartCtrl(QWidget* parent = nullptr);

    /// Ends the chart, also in the middle of a load, and stops the worker if this was the process's last
    /// control. Waits for the worker's end.
    ~CChartCtrl() override;

    /// @return the text that the host set last
    QString StockSymbol() const;
    /// Draws a new chart of a symbol.
    /// @param symbol as the feed names it
    void SetStockSymbol(const QString& symbol);

    /// @return whether the control places its top-level window
    bool ResizeParentWindow() const;
    /// Places the top-level window, and from then on saves its place.
    /// @param resize false: the control never moves it
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

    /// @return the size that a layout gives the control where nothing asks for another, in pixels
    QSize sizeHint() const override;

signals:
    /// StockSymbol has another value than before. @param symbol the new value
    void StockSymbolChanged(const QString& symbol);
    /// ResizeParentWindow has another value than before. @param resize the new value
    void ResizeParentWindowChanged(bool resize);
    /// Appearance has another value than before. @param appearance the new value
    void AppearanceChanged(int appearance);
    /// BorderStyle has another value than before. @param borderStyle the new value
    void BorderStyleChanged(int borderStyle);
    /// Enabled has another value than before. @param enabled the new value
    void EnabledChanged(bool enabled);

protected:
    /// Fits the chart window to the new size. @param event Qt's
    void resizeEvent(QResizeEvent* event) override;
    /// Draws edge and border. @param event Qt's
    void paintEvent(QPaintEvent* event) override;
    /// Reports a change of Enabled. @param event Qt's
    void changeEvent(QEvent* event) override;

private:
    friend class CChartBody;
    CChartCtrl(QWidget* parent, std::unique_ptr<CChartBody> body);

    std::unique_ptr<CChartBody> m_body;
};

} // namespace zantroq
