// The conveniences of one chart: looks at the chart and its feed four times a second while the chart is on
// show, tells the user in a strip over the panes what is wrong, and connects and asks again. What to say and
// do is decided in src/conveniences. It writes neither into the chart's state nor into the settings.
//
// Chart window's thread. The widget, the window and the feed must outlive it.
#pragma once

#include "conveniences/DataProbe.h"
#include "conveniences/FeedWatch.h"
#include "qt/conveniences/NoticeStrip.h"

#include <QTimer>

#include <functional>

namespace zantroq {

class CChartDlg;
class CChartView;

class CChartConveniences
{
public:
    CChartConveniences(CChartView& view, CChartDlg& window, IChartFeed& feed);

    void SetOn(bool on);
    // After the loss of the feed: after 1, 2 and 5 seconds, then every 10. Off at the start.
    void SetReconnectByItself(bool on) { m_watch.ReconnectByItself = on; }
    // Starts a feed of the host's own and connects this process to it; the button is offered where no feed was
    // ever reached.
    void OfferRecordedMarket(std::function<void()> start);

    // Called once for each chart of a symbol whose trades the feed announces as simulated. A host that sets it
    // tells the user; otherwise the strip does.
    std::function<void(const QString& symbol)> OnSimulated;
    // The notice for pictures and pages of a simulated market; empty for any other.
    QString SimulatedNotice() const;

    // Seconds of a clock that never goes back; tests replace it.
    std::function<double()> Clock;

    void Look(); // what each tick of the timer does; nothing while they are off
    CNoticeStrip& Strip() { return m_strip; }

private:
    sFeedObservation Observe();
    void Show(const sFeedView& view);
    void ShowLastTrade();
    void PressButton();
    void Place();

    CChartView& m_view;
    CChartDlg& m_window;
    CFeedWatch m_watch;
    CDataProbe m_probe;
    CNoticeStrip& m_strip; // the view's child
    QTimer m_timer;
    sStrip m_shown;
    std::string m_toldSimulated; // the symbol that OnSimulated was called for last
    std::function<void()> m_startRecordedMarket;
};

} // namespace zantroq
