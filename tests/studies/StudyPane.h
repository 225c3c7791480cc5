// One study pane in a window that consists of settings, a display range and two scenes.
#pragma once

#include "BarSeries.h"

#include "drawing/BaseChart.h"
#include "studies/HistADXChart.h"
#include "studies/HistMACDChart.h"
#include "studies/HistRSIChart.h"
#include "studies/StudyFactory.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace zantroq {

class CPlainWindow : public IPaneWindow
{
public:
    sChartSettings AllSettings;
    sDisplayRange Shown;
    int Width = 900;
    bool Reset = false;
    CChart2D Price, Study;

    const sChartSettings& Settings() const override { return AllSettings; }
    const sDisplayRange& Range() const override { return Shown; }
    int ChartPixelWidth() const override { return Width; }
    CChart2D& Pane(int number) override { return number == 0 ? Price : Study; }
    bool ResetScale() const override { return Reset; }
    void BeginPriceBatch() override {}
    void EndPriceBatch() override {}
};

// Resets the states of the process to their initial values.
inline void ForgetRunningStates()
{
    CHistRSIChart::StudyRunningState() = {};
    CHistMACDChart::StudyRunningState() = {};
    CHistADXChart::StudyRunningState() = {};
}

class CStudyPane
{
public:
    explicit CStudyPane(int kind)
    {
        ForgetRunningStates();
        SetUpScene();
        m_study.reset(CStudyFactory().Create(kind));
        m_study->dlg = &Window;
        m_study->chart = &Window.Study;
        m_study->prices = &Series;
        m_study->pane = 1;
    }

    // Draws the range [first, first + shown), the price pane first.
    void Draw(int first, int shown)
    {
        Window.Shown.first = first;
        Window.Shown.shown = shown;
        Window.Shown.last = first + shown - 1;
        Window.Price.PaneGroups(1).PaneData().SetPointCount(1, shown);
        m_study->DrawStudy();
    }
    // Draws the newest `shown` points of the series, or all of a shorter one.
    void DrawEnd(int shown)
    {
        const int n = std::min(shown, Series.Count());
        Draw(Series.Count() - n, n);
    }
    // Updates the pane for `newPoints` ticks that are already in the series.
    void Update(int newPoints)
    {
        const int shown =
            std::min(Series.Count(), DisplayMaxPoints[static_cast<std::size_t>(Window.Shown.ptsIndex)]);
        Window.Shown.first = Series.Count() - shown;
        Window.Shown.shown = shown;
        Window.Shown.last = Series.Count() - 1;
        Window.Price.PaneGroups(1).PaneData().SetPointCount(1, shown);
        m_study->UpdateStudy(newPoints);
    }

    sStudySettings& Settings() { return Window.AllSettings.Studies; }
    void SetPeriod(int period) { Settings().Periods[static_cast<std::size_t>(m_study->kind)] = period; }
    CStudyChart& Study() { return *m_study; }
    template<class T> T& As() { return dynamic_cast<T&>(*m_study); }
    CPaneData& Data(int group = 1) { return Window.Study.PaneGroups(group).PaneData(); }
    double Y(int series, int point) { return Data().PointY(series, point); }
    double X(int point) { return Data().PointX(1, point); }
    std::vector<double> Values(int series = 1, int group = 1)
    {
        const auto y = Data(group).Y(series);
        return {y.begin(), y.end()};
    }
    CPaneAxis& YAxis() { return Window.Study.PaneArea().PaneAxes().Y(); }
    CPaneAxis& Y2Axis() { return Window.Study.PaneArea().PaneAxes().Y2(); }
    CPaneAxis& XAxis() { return Window.Study.PaneArea().PaneAxes().X(); }
    CPaneMarker& Marker() { return Window.Study.PaneArea().PaneMarkers("x"); }
    std::string Header() { return Window.Study.PaneLabels().Item(1).Text(); }
    std::vector<std::string> Labels()
    {
        std::vector<std::string> texts;
        for (const sTickLabel& label : YAxis().TickLabels().All())
            texts.push_back(label.Text);
        return texts;
    }

    CBarSeries Series;
    CPlainWindow Window;

private:
    // Sets up the pane like the draw manager at the start of a chart.
    void SetUpScene()
    {
        Window.Price.PaneGroups(1).PaneData().SetSeriesCount(1);
        for (const int group : {1, 2}) {
            Data(group).SetSeriesCount(1);
            Data(group).SetFirstShownSeries(1);
            Data(group).SetLastShownSeries(1);
            Data(group).SetPointCount(1, 0);
        }
        for (CPaneAxis* axis : {&YAxis(), &Y2Axis()}) {
            axis->ViewLow().SetValue(1);
            axis->DataLow().SetValue(1);
            axis->ViewHigh().SetValue(2);
            axis->DataHigh().SetValue(2);
        }
        XAxis().ViewLow().SetValue(0);
        Window.Study.PaneLabels().Add();
    }

    std::unique_ptr<CStudyChart> m_study;
};

} // namespace zantroq
