#include "drawing/HistChartDrawManager.h"

#include "drawing/PaneSetup.h"

#include <algorithm>

namespace zantroq {

CHistChartDrawManager::CHistChartDrawManager(IChartWindow& window, IStudyFactory* studiesFactory,
                                             ITrendLayer* trendLayer)
    : dlg(window), studyFactory(studiesFactory), trends(trendLayer)
{
    priceChart.dlg = &window;
    priceChart.chart = &window.Pane(0);
    priceChart.manager = this;
}

CHistChartDrawManager::~CHistChartDrawManager() = default;

void CHistChartDrawManager::SetSeries(CChartHistRequest* request)
{
    series = request;
}

void CHistChartDrawManager::SetDataType(int type)
{
    dataType = type;
}

void CHistChartDrawManager::SetTrends(ITrendLayer* layer)
{
    trends = layer;
}

sPriceWords CHistChartDrawManager::PriceWords() const
{
    return {*priceFormatter, series ? series->GetPriceFormat() : 0};
}

int CHistChartDrawManager::DisplayedStudies() const
{
    return std::clamp(dlg.Settings().Panes.StudyCount, 0, 10);
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
        study->prices = this;
        study->collapsed = dlg.IsCollapsed(k + 1);
        studies[place] = std::move(study);
    }
}

bool CHistChartDrawManager::StudiesAsDisplayed() const
{
    for (int k = 0; k < 10; ++k) {
        const auto place = static_cast<std::size_t>(k);
        const bool displayed = studyFactory && k < DisplayedStudies();
        if (displayed != (studies[place] != nullptr) ||
            (displayed && studies[place]->kind != dlg.Settings().Panes.StudyTypes[place]))
            return false;
    }
    return true;
}

void CHistChartDrawManager::FullRedraw()
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
    if (Count() == 0)
        return;
    Draw(dlg.ScrollLimit());
    RefreshTitles();
}

void CHistChartDrawManager::Draw(int position)
{
    const CBatch batch(dlg);
    priceChart.Draw(position);
    DrawStudies();
    dlg.ClearResetScale();
    PlaceMarkers();
    RefreshMarkedTitles();
}

// The studies wrote their headers before their markers moved along with the view, and the title does not know
// yet whether its point is still on show.
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

// Brings the studies to the end of the stretch that the price pane shows. A draw since the last live update
// may have shown them some of the new points already.
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

void CHistChartDrawManager::Update(int newPoints)
{
    const CBatch batch(dlg);
    if (dataType == TickData) {
        if (newPoints <= 0)
            return;
        priceChart.Draw(dlg.ScrollLimit());
        UpdateStudies();
        // The studies move their own markers along with their points.
        priceChart.chart->PaneArea().PaneMarkers("x").SetPoint(dlg.SelectedPoint());
        RefreshMarkedTitles();
    } else if (newPoints == 0) {
        priceChart.UpdateLastPoint();
    } else {
        priceChart.Draw(dlg.ScrollLimit());
        DrawStudies();
        PlaceMarkers();
        RefreshMarkedTitles();
    }
}

void CHistChartDrawManager::DeletePoint(int index)
{
    seriesEdited = true;
    if (series)
        series->RemovePoint(index);
}

void CHistChartDrawManager::RedrawTrends()
{
    if (!trends)
        return;
    const CPriceBatch batch(dlg);
    trends->DrawAll();
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
    if (index < 0 || index >= Count())
        return {};
    const sChartSettings& settings = dlg.Settings();
    sHIST_DATA record;
    GetPoint(index, record);
    std::string text = ReadoutPrices(PriceWords(), dataType, record) + "\n";
    if (const std::string volume = ReadoutVolume(Volume(index)); !volume.empty())
        text += volume + "  ";
    text += ReadoutTime(dataType, GetTime(index, true));
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
