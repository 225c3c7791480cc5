#include "window/ChartLifecycle.h"

#include "settings/SettingIds.h"
#include "settings/SettingsTable.h"
#include "window/RequestBuilder.h"
#include "window/WindowCommands.h"
#include "window/WindowTexts.h"
#include "window/WindowTrends.h"

#include <utility>

namespace zantroq {

namespace {

constexpr const char* LoadingDataText = "Loading Data...";

} // namespace

CChartLifecycle::CChartLifecycle(sChartSettings& settings, CSettingsStore& store,
                                 const sWindowServices& services, IChartFeed& feed, CStatusText& status,
                                 IWindowTrends& trends, CDisplayRange& range, IPaneDrawing& drawing,
                                 ILifecycleEvents& events)
    : m_settings(settings),
      m_store(store),
      m_services(services),
      m_feed(feed),
      m_status(status),
      m_trends(trends),
      m_range(range),
      m_drawing(drawing),
      m_events(events)
{
}

void CChartLifecycle::Start()
{
    m_series = std::make_unique<CChartHistRequest>();
    m_series->SetNotifyWindow(this);
    m_drawing.SetSource(m_series.get(), m_settings.Request.DataType);
    m_status.Message("Ready...");
    OnDataTypeChanged(1);
    m_services.Commands.Enable(CommandDrawChart, false);
}

void CChartLifecycle::End()
{
    if (!m_series)
        return;
    m_services.Timer.Stop(ProgressTimer);
    if (HasSymbolText())
        m_feed.UnwatchSymbol(*m_series);
    m_drawing.SetSource(nullptr, m_settings.Request.DataType);
    m_feed.Release(std::move(m_series));
}

void CChartLifecycle::OnSymbolChanged()
{
    const int item = m_services.Symbol.Selection();
    std::string text = m_services.Symbol.Text();
    if (item >= 0) {
        const auto items = m_services.Symbol.Items();
        if (item < static_cast<int>(items.size()))
            text = items[static_cast<std::size_t>(item)];
    }
    m_services.Commands.Enable(CommandDrawChart, !text.empty());
}

void CChartLifecycle::OnDrawChart()
{
    if (!HasSymbolText()) {
        m_services.Box.Ask("Empty Symbol is not allowed", "Warning", BoxButtons::Ok, BoxIcon::Error);
        return;
    }
    FitFixedScale();
    DrawChart();
}

void CChartLifecycle::FitFixedScale()
{
    if (!m_settings.FixedScale)
        return;
    m_fitScale = true;
    m_events.RequestScaleReset();
}

bool CChartLifecycle::DrawChart()
{
    const std::string symbol = m_services.Symbol.Text();
    m_range.ExpectFirstFill();
    if (symbol.empty())
        return false;
    const std::string title = m_services.Top.Title();
    m_events.SavePosition();
    // A window shows a chart if its title names one; a host may have changed the title since.
    if (title.find(" - ") != std::string::npos || m_requested)
        DropChart();
    if (symbol.find(',') != std::string::npos) {
        m_status.Message("Symbols cannot contain any commas.");
        m_loading = false; // a dropped load never ends
        m_services.Host.SetControlsEnabled(true);
        return false;
    }
    m_services.Top.SetTitle(WindowTitle(symbol));
    EnterLoading();
    m_services.Commands.Enable(CommandDrawChart, false);
    m_status.Message(LoadingDataText);
    m_currentSymbol = symbol;
    m_events.RememberSymbol(symbol);
    RequestChart();
    return true;
}

void CChartLifecycle::DropChart()
{
    m_trends.ResetState();
    FitFixedScale();
    m_services.Timer.Stop(ProgressTimer);
    UnwatchAndClear();
    m_range.ResetShown();
    m_events.ChartDropped();
}

void CChartLifecycle::UnwatchAndClear()
{
    // Unwatch first, so that no live update arrives in between.
    m_feed.UnwatchSymbol(*m_series);
    m_series->ClearSeries();
}

void CChartLifecycle::RequestChart()
{
    m_trends.RemoveAll();
    SendRequest();
}

void CChartLifecycle::SendRequest()
{
    m_series->SetSymbol(m_currentSymbol);
    // The panes get the new type before they are cleared, because their axes and numbers of series depend on
    // it.
    m_drawing.SetSource(m_series.get(), m_settings.Request.DataType);
    m_drawing.ClearPanes();
    EnterLoading();
    m_services.Commands.Enable(CommandDrawChart, false);
    m_services.Top.SetCaption(ChartCaption(m_settings.Request));
    m_events.ChartRequested();
    FillRequest(*m_series, m_settings.Request, m_currentSymbol);
    m_requested = true;
    m_feed.WatchSymbol(*m_series);
    m_services.Timer.Start(ProgressTimer, ProgressPeriod);
    m_feed.SendHistoryRequest(*m_series);
}

void CChartLifecycle::ReloadSeries()
{
    UnwatchAndClear();
    m_range.ExpectFirstFill();
    RequestChart();
}

bool CChartLifecycle::AskAgain()
{
    if (!m_requested || !m_series || m_series->GetSymbol() != m_currentSymbol)
        return false;
    UnwatchAndClear();
    m_range.ExpectFirstFill();
    SendRequest();
    return true;
}

void CChartLifecycle::EnterLoading()
{
    m_loading = true;
    m_status.Message("Loading...");
    m_services.Host.SetControlsEnabled(false);
}

void CChartLifecycle::LeaveLoading()
{
    m_loading = false;
    m_services.Host.SetControlsEnabled(true);
    m_status.Message("Ready");
    m_services.Commands.Enable(CommandDrawChart, true);
}

void CChartLifecycle::OnDataTypeChanged(int forced)
{
    sRequestSettings& request = m_settings.Request;
    int selected = m_services.Type.Selection();
    if (selected < 0) {
        m_services.Type.Select(request.DataType);
        selected = request.DataType;
    }
    if (selected != request.DataType || forced == 1) {
        const bool isChosen = selected != request.DataType;
        request.DataType = selected;
        if (selected >= 0 && selected < static_cast<int>(request.RequestKinds.size()))
            request.RequestType = request.RequestKinds[static_cast<std::size_t>(selected)];
        if (HasSymbolText())
            UnwatchAndClear();
        // A type that the user did not choose may be the default of a value that could not be read.
        if (isChosen)
            m_store.WriteInt(SettingName(DataTypeId), request.DataType);
        else
            m_store.FillIn(SettingName(DataTypeId), request.DataType);
        if (HasSymbolText())
            DrawChart();
    }
    m_services.Interval.SetEnabled(request.DataType == MinuteData);
}

void CChartLifecycle::ShowDataType(int dataType)
{
    sRequestSettings& request = m_settings.Request;
    request.DataType = dataType;
    request.RequestType = request.RequestKinds.at(static_cast<std::size_t>(dataType));
    m_services.Type.Select(dataType);
    m_services.Interval.SetEnabled(dataType == MinuteData);
}

void CChartLifecycle::OnIntervalChanged()
{
    sRequestSettings& request = m_settings.Request;
    const int selected = m_services.Interval.Selection();
    if (selected < 0) {
        m_services.Interval.Select(request.IntervalIndex);
        return;
    }
    if (selected == request.IntervalIndex)
        return;
    request.IntervalIndex = selected;
    m_store.WriteInt(SettingName(IntervalIndexId), selected);
    m_services.Commands.Enable(CommandDrawChart, false);
    if (HasSymbolText())
        UnwatchAndClear();
    m_store.FillIn(SettingName(DataTypeId), request.DataType);
    if (HasSymbolText())
        DrawChart();
}

void CChartLifecycle::OnTimer()
{
    if (!m_series)
        return;
    // Read the flag before the count: points that arrive in between are seen at the next tick.
    const bool complete = m_series->IsComplete();
    const int count = m_series->GetCount(FieldTime);
    if (!complete) {
        m_range.NoteLoading(count);
        m_status.Message(RetrievingText(m_settings.Request.DataType, count));
        return;
    }
    if (m_range.FirstFill()) {
        // A draw while the chart was loading, for example after a resize, fitted the scale to the points of
        // that time.
        if (m_fitScale)
            FitFixedScale();
        m_fitScale = false;
        m_range.ShowFirst(count);
        LeaveLoading();
        m_range.ReportPoints(count);
    } else {
        m_range.FollowLiveEdge(count);
    }
    m_events.SeriesPolled();
}

} // namespace zantroq
