// From a symbol to a live chart: drops the old chart, sends the request, polls the series on a timer
// and switches the window between its idle, loading and live states. Chart window's thread; the series alone
// is shared with the worker.
#pragma once

#include "market/ChartHistRequest.h"
#include "platform/WindowServices.h"
#include "settings/SettingsStore.h"
#include "window/ChartFeed.h"
#include "window/DisplayRange.h"
#include "window/PaneDrawing.h"
#include "window/StatusText.h"

#include <memory>
#include <string>

namespace zantroq {

class IWindowTrends;

// What the lifecycle reports to its window.
class ILifecycleEvents
{
public:
    virtual ~ILifecycleEvents() = default;
    virtual void SavePosition() = 0; // if positions are stored
    virtual void RememberSymbol(const std::string& symbol) = 0;
    virtual void RequestScaleReset() = 0; // fits a fixed value axis once
    virtual void ChartDropped() = 0;      // the series is empty; the panes still show the previous chart
    virtual void ChartRequested() = 0;    // symbol, type and interval are set
    virtual void SeriesPolled() = 0;      // a timer tick while the series is complete
};

class CChartLifecycle
{
public:
    CChartLifecycle(sChartSettings& settings, CSettingsStore& store, const sWindowServices& services,
                    IChartFeed& feed, CStatusText& status, IWindowTrends& trends, CDisplayRange& range,
                    IPaneDrawing& drawing, ILifecycleEvents& events);

    void Start(); // creates the series; "Ready..."
    void End();   // gives up the series

    void OnSymbolChanged();
    void OnDrawChart();
    void OnDataTypeChanged(int forced);
    void ShowDataType(int dataType); // for the charts from now on; stores nothing
    void OnIntervalChanged();
    void OnTimer();
    bool DrawChart();    // false: no request was made
    void ReloadSeries(); // requests the same chart again, which restores deleted points
    bool AskAgain();     // the same chart on a new connection, with its trendlines; false: there is none

    CChartHistRequest* Series() const { return m_series.get(); }
    bool Loading() const { return m_loading; }
    const std::string& CurrentSymbol() const { return m_currentSymbol; }
    void SetCurrentSymbol(std::string symbol) { m_currentSymbol = std::move(symbol); }

private:
    void FitFixedScale(); // to the requested chart
    void DropChart();
    void RequestChart();
    void SendRequest();
    void EnterLoading();
    void LeaveLoading();
    void UnwatchAndClear();
    bool HasSymbolText() const { return !m_services.Symbol.Text().empty(); }

    sChartSettings& m_settings;
    CSettingsStore& m_store;
    sWindowServices m_services;
    IChartFeed& m_feed;
    CStatusText& m_status;
    IWindowTrends& m_trends;
    CDisplayRange& m_range;
    IPaneDrawing& m_drawing;
    ILifecycleEvents& m_events;
    std::unique_ptr<CChartHistRequest> m_series;
    std::string m_currentSymbol;
    bool m_loading = false;
    bool m_requested = false; // a chart has been requested
    bool m_fitScale = false;  // the first draw of the chart fits a fixed scale to all of it
};

} // namespace zantroq
