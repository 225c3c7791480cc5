#include "qt/conveniences/ChartConveniences.h"

#include "drawing/SeriesReader.h"
#include "market/ManagerThreadHolder.h"
#include "qt/widgets/ChartView.h"
#include "window/ChartDlg.h"

#include <QTime>

#include <chrono>
#include <utility>

namespace zantroq {
namespace {

constexpr int LookPeriod = 250; // milliseconds
constexpr int StripGap = 6;

double SteadySeconds()
{
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

CChartConveniences::CChartConveniences(CChartView& view, CChartDlg& window, IChartFeed& feed)
    : Clock(SteadySeconds),
      m_view(view),
      m_window(window),
      m_probe(feed,
              [](const CChartHistRequest& request) {
                  return ManagerThreadHolder().Refusal(request).has_value();
              }),
      m_strip(*new CNoticeStrip(&view))
{
    m_strip.OnPressed = [this] { PressButton(); };
    m_timer.setInterval(LookPeriod);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Look(); });
    m_timer.start();
}

void CChartConveniences::SetOn(bool on)
{
    if (on == m_timer.isActive())
        return;
    if (on) {
        m_timer.start();
        return;
    }
    m_timer.stop();
    m_probe.Forget();
    m_view.Status().SetLastTrade({});
    Show({});
}

void CChartConveniences::OfferRecordedMarket(std::function<void()> start)
{
    m_startRecordedMarket = std::move(start);
    m_watch.CanUseRecordings = static_cast<bool>(m_startRecordedMarket);
}

sFeedObservation CChartConveniences::Observe()
{
    const CManagerThreadHolder& holder = ManagerThreadHolder();
    sFeedObservation seen;
    seen.Feed = holder.FeedStatus();
    seen.Now = Clock();
    seen.TimeOfDay = QTime::currentTime().toString("HH:mm:ss").toStdString();
    seen.SettingsWaiting = m_window.HasUnstoredChanges();
    const CChartHistRequest* const series = m_window.Series();
    if (series == nullptr)
        return seen;
    seen.Symbol = series->GetSymbol();
    const bool simulated = !seen.Symbol.empty() && holder.IsSimulated(seen.Symbol);
    seen.Simulated = simulated && !OnSimulated;
    if (simulated && OnSimulated && std::exchange(m_toldSimulated, seen.Symbol) != seen.Symbol)
        OnSimulated(QString::fromStdString(seen.Symbol));
    seen.DataType = m_window.Settings().Request.DataType;
    seen.Loading = m_window.Loading() != 0;
    seen.Points = series->GetCount(FieldTime);
    const bool cameEmpty =
        m_window.CompleteAndDrawn() && seen.Points == 0 && !m_window.DrawManager().seriesEdited;
    seen.Refused = !seen.Symbol.empty() && (cameEmpty || (seen.Loading && holder.Refusal(*series)));
    seen.Probe = m_probe.State();
    seen.ProbeType = m_probe.FoundType();
    return seen;
}

QString CChartConveniences::SimulatedNotice() const
{
    const CChartHistRequest* const series = m_window.Series();
    if (!m_timer.isActive() || series == nullptr || !ManagerThreadHolder().IsSimulated(series->GetSymbol()))
        return {};
    return QString::fromStdString(SimulatedStrip(series->GetSymbol()).Sentence);
}

void CChartConveniences::Look()
{
    if (!m_timer.isActive())
        return;
    if (!m_view.isVisible()) {
        m_strip.hide();
        return;
    }
    const sFeedObservation seen = Observe();
    const sFeedView view = m_watch.Observe(seen);
    if (view.Probe)
        m_probe.Ask(seen.Symbol, seen.DataType);
    else
        m_probe.Forget();
    Show(view);
    ShowLastTrade();
    if (view.AskAgain)
        m_window.AskAgain();
    if (view.Connect)
        ManagerThreadHolder().Reconnect();
}

void CChartConveniences::Show(const sFeedView& view)
{
    m_view.Status().SetStale(view.PricesStale);
    if (view.Strip != m_shown) {
        m_shown = view.Strip;
        m_strip.Tell(QString::fromStdString(m_shown.Sentence), QString::fromStdString(m_shown.Button));
    }
    Place();
}

// A bar's close and volume, which the chart window writes there, are no trade.
void CChartConveniences::ShowLastTrade()
{
    const CChartHistRequest* const series = m_window.Series();
    if (series == nullptr || IsTickKind(series->GetRequestKind()) || series->GetCount(FieldTime) == 0) {
        m_view.Status().SetLastTrade({});
        return;
    }
    const auto trade = ManagerThreadHolder().LastTrade(series->GetSymbol());
    if (!trade && m_view.Status().Stale())
        return; // an attempt to connect in vain must not take the last trade away
    const double price = trade ? trade->Price : series->GetCloseAt(series->GetCount(FieldTime) - 1);
    const sPriceWords words = m_window.Prices().PriceWords();
    std::string text = words.Formatter.Format(price, words.Code);
    if (trade)
        text += " x " + std::to_string(trade->Size);
    m_view.Status().SetLastTrade(QString::fromStdString(text));
}

void CChartConveniences::Place()
{
    const CPaneWidget* const pane = m_view.Pane(0);
    if (m_shown.Sentence.empty() || pane == nullptr)
        return;
    const int header = m_window.Pane(0).PaneArea().PlotFrame().TopMargin().Value();
    m_strip.PlaceIn(pane->geometry().adjusted(StripGap, header + StripGap, -StripGap, 0));
    m_strip.show();
}

void CChartConveniences::PressButton()
{
    switch (m_shown.Action) {
    case StripAction::Connect:
        ManagerThreadHolder().Reconnect();
        break;
    case StripAction::UseRecordedMarket: {
        const std::function<void()> start = m_startRecordedMarket; // which may withdraw the offer
        start();
        break;
    }
    case StripAction::ShowDataType:
        m_window.Services().Type.Select(m_shown.DataType);
        m_window.OnDataTypeChanged(0);
        break;
    case StripAction::None:
        break;
    }
    Look();
}

} // namespace zantroq
