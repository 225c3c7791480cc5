#include "drawing/HistChartDrawManager.h"

#include "drawing/PaneSetup.h"

#include <algorithm>

namespace zantroq {

CHistChartDrawManager::CHistChartDrawManager(IChartWindow& window, CSeriesReader& reader,
                                             IStudyFactory* studiesFactory, ITrendLayer* trendLayer)
    : dlg(window),
      prices(reader),
      studyFactory(studiesFactory),
      priceChart(window, window.Pane(0), reader, trendLayer)
{
}

CHistChartDrawManager::~CHistChartDrawManager() = default;

int CHistChartDrawManager::DisplayedStudies() const
{
    return std::clamp(dlg.Settings().Panes.StudyCount, 0, int{StudyKinds});
}

void CHistChartDrawManager::CreateStudies()
{
    for (auto& study : studies)
        study.reset();
    if (!studyFactory)
        return;
    for (int k = 0; k < DisplayedStudies(); ++k) {
        const auto place = static_cast<std::size_t>(k);
        const int kind = dlg.Settings().Panes.StudyTypes[place];
        std::unique_ptr<CStudyChart> study(studyFactory->Create(kind));
        if (!study)
            continue;
        study->dlg = &dlg;
        study->chart = &dlg.Pane(k + 1);
        study->kind = kind;
        study->pane = k + 1;
        study->prices = &prices;
        study->collapsed = dlg.IsCollapsed(k + 1);
        studies[place] = std::move(study);
    }
}

bool CHistChartDrawManager::StudiesAsDisplayed() const
{
    for (int k = 0; k < StudyKinds; ++k) {
        const auto place = static_cast<std::size_t>(k);
        const bool displayed = studyFactory && k < DisplayedStudies();
        if (displayed != (studies[place] != nullptr) ||
            (displayed && studies[place]->kind != dlg.Settings().Panes.StudyTypes[place]))
            return false;
    }
    return true;
}

std::optional<sDrawnExtent> CHistChartDrawManager::FullRedraw()
{
    seriesEdited = false;
    const CBatch batch(dlg);
    if (!StudiesAsDisplayed())
        CreateStudies();
    priceChart.SetUp();
    for (const auto& study : studies)
        if (study)
            SetUpStudyPane(*study->chart, dlg.Settings(), study->kind);
    dlg.SetSelectedPoint(NoPoint);
    if (prices.Count() == 0)
        return std::nullopt;
    const sDrawnExtent drawn = Draw(dlg.ScrollLimit());
    RefreshTitles();
    return drawn;
}

sDrawnExtent CHistChartDrawManager::Draw(int position)
{
    const CBatch batch(dlg);
    const sDrawnExtent drawn = DrawPrices(position);
    DrawStudies();
    dlg.ClearResetScale();
    PlaceMarkers();
    RefreshMarkedTitles();
    return drawn;
}

// The volume study uses the largest volume found by the price pane.
sDrawnExtent CHistChartDrawManager::DrawPrices(int position)
{
    const sDrawnExtent drawn = priceChart.Draw(position);
    prices.SetGreatestVolume(priceChart.maxVolume);
    return drawn;
}

// The studies wrote their headers before their markers moved with the view, and the title may describe a
// point that is no longer displayed.
void CHistChartDrawManager::RefreshMarkedTitles()
{
    if (dlg.SelectedPoint() != NoPoint)
        RefreshTitles();
}

void CHistChartDrawManager::DrawStudies()
{
    for (const auto& study : studies) {
        if (!study)
            continue;
        study->collapsed = dlg.IsCollapsed(study->pane);
        study->DrawStudy();
    }
    studiesEnd = dlg.Range().last + 1;
}

// Updates the studies up to the last point of the price pane. A draw since the last live update may already
// have shown some of the new points.
void CHistChartDrawManager::UpdateStudies()
{
    const int newPoints = dlg.Range().last + 1 - studiesEnd;
    if (newPoints < 0)
        return DrawStudies();
    for (const auto& study : studies) {
        if (!study || newPoints == 0)
            continue;
        study->collapsed = dlg.IsCollapsed(study->pane);
        study->UpdateStudy(newPoints);
    }
    studiesEnd += newPoints;
}

void CHistChartDrawManager::PlaceMarkers()
{
    const int point = dlg.SelectedPoint();
    priceChart.chart->PaneArea().PaneMarkers("x").SetPoint(point);
    for (const auto& study : studies)
        if (study)
            study->chart->PaneArea().PaneMarkers("x").SetPoint(point);
}

std::optional<sDrawnExtent> CHistChartDrawManager::Update(int newPoints)
{
    const CBatch batch(dlg);
    const bool ticks = prices.GetDataType() == TickData;
    if (newPoints == 0 && !ticks)
        UpdateLastBar();
    if (newPoints == 0 || (ticks && newPoints < 0))
        return std::nullopt;
    const sDrawnExtent drawn = DrawPrices(dlg.ScrollLimit());
    if (ticks) {
        UpdateStudies();
        // Each study moves its own marker together with its points.
        priceChart.chart->PaneArea().PaneMarkers("x").SetPoint(dlg.SelectedPoint());
    } else {
        DrawStudies();
        PlaceMarkers();
    }
    RefreshMarkedTitles();
    return drawn;
}

void CHistChartDrawManager::UpdateLastBar()
{
    if (priceChart.UpdateLastPoint())
        RefreshReadout();
}

void CHistChartDrawManager::RefreshReadout()
{
    CPaneLabels& labels = priceChart.chart->PaneLabels();
    if (labels.Count() < ReadoutLabel)
        return;
    CPaneLabel& readout = labels.Item(ReadoutLabel);
    if (readout.Shown())
        readout.SetText(MakeInfoText(static_cast<int>(readout.DataX())));
}

void CHistChartDrawManager::DeletePoint(int index)
{
    seriesEdited = true;
    if (prices.Series())
        prices.Series()->RemovePoint(index);
}

void CHistChartDrawManager::RefreshTitles()
{
    priceChart.RefreshTitle();
    for (const auto& study : studies)
        if (study)
            study->RefreshStudyHeader();
}

std::string CHistChartDrawManager::MakeInfoText(int point) const
{
    CChart2D& pane = dlg.Pane(0);
    const CPaneData& bars = pane.PaneGroups(1).PaneData();
    const CPaneData& overlays = pane.PaneGroups(2).PaneData();
    if (point < 1 || point > bars.PointCount(1))
        return {};
    const int index = dlg.Range().first - 1 + static_cast<int>(bars.PointX(1, point));
    if (index < 0 || index >= prices.Count())
        return {};
    const sChartSettings& settings = dlg.Settings();
    const int dataType = prices.GetDataType();
    sHIST_DATA record;
    prices.GetPoint(index, record);
    std::string text = ReadoutPrices(prices.PriceWords(), dataType, record) + "\n";
    if (const std::string volume = ReadoutVolume(prices.Volume(index)); !volume.empty())
        text += volume + "  ";
    text += ReadoutTime(dataType, prices.GetTime(index, TimeDetail::Milliseconds));
    if (const std::string averages = ReadoutAverages(settings.Overlays, overlays, point); !averages.empty())
        text += "\n" + averages;
    if (const std::string bands = ReadoutBands(settings.Overlays, overlays, point); !bands.empty())
        text += "\n" + bands;
    for (const auto& study : studies)
        if (study)
            text += study->ReadoutText(point);
    return text;
}

} // namespace zantroq
