#include "trends/TrendInteraction.h"

#include "trends/TrendKinds.h"

#include <algorithm>
#include <vector>

namespace zantroq {

CTrendInteraction::CTrendInteraction(IPaneWindow& window, const IPriceSource& prices, CTrendLists& lists,
                                     IStatusBar& status, IMessageBox& box, IWindowTimer& timer)
    : m_window(window), m_prices(prices), m_trendLists(lists), m_status(status), m_box(box), m_timer(timer)
{
}

bool CTrendInteraction::OnCommand(int command)
{
    if (command == AskDeleteAllTrends) {
        DeleteAll();
        return true;
    }
    const sTrendCommandRow* const row = FindTrendCommand(command);
    if (row == nullptr)
        return false;
    m_trendState = row->State;
    Prompt(row->Prompt);
    return true;
}

void CTrendInteraction::DeleteAll()
{
    if (m_box.Ask("Delete all trendlines?", "", BoxButtons::YesNo, BoxIcon::Question) != BoxAnswer::Yes)
        return;
    CPriceBatch batch(m_window);
    m_trendLists.RemoveAll();
    m_currentTrend = nullptr;
}

void CTrendInteraction::OnRequest()
{
    CPriceBatch batch(m_window);
    m_trendLists.RemoveAll();
    m_currentTrend = nullptr;
}

bool CTrendInteraction::OnMouseDown(int control, int button, int x, int y)
{
    if (m_trendState == TrendIdle)
        return false;
    if (button == MouseRight) {
        OnRightClick();
        return true;
    }
    if (button != MouseLeft || control != FirstPaneControl)
        return false;
    OnLeftClick(x, y);
    return true;
}

void CTrendInteraction::OnLeftClick(int x, int y)
{
    const sTrendStateRow& row = TrendRow(m_trendState);
    switch (row.Step) {
    case TrendStep::None:
        return;
    case TrendStep::FirstPoint:
        StartLine(x, y);
        return;
    case TrendStep::FinalPoint:
        FinishLine();
        break;
    case TrendStep::EndPoint:
        break;
    case TrendStep::Delete:
        OnDeleteClick(x, y);
        return;
    }
    Prompt(row.Prompt);
    m_trendState = row.Next;
}

void CTrendInteraction::OnRightClick()
{
    const TrendStep step = TrendRow(m_trendState).Step;
    if (step == TrendStep::EndPoint || step == TrendStep::FinalPoint) {
        CPriceBatch batch(m_window);
        m_trendLists.Delete(m_currentTrend);
        m_currentTrend = nullptr;
    }
    m_trendState = TrendIdle;
    Prompt("Ready");
}

void CTrendInteraction::PointFromPixels(int x, int y, int* index, double* value) const
{
    CChart2D& pane = m_window.Pane(0);
    double dataX = 0, dataY = 0;
    *index = -1;
    if (pane.PaneGroups(1).PixelToData(x, y, dataX, dataY) != GeometryFound)
        return;
    *index = m_window.Range().first - AxisBase(m_window) + static_cast<int>(dataX + 0.5);
    *value = dataY;
}

void CTrendInteraction::StartLine(int x, int y)
{
    const sTrendStateRow& row = TrendRow(m_trendState);
    int index = -1;
    double value = 0;
    PointFromPixels(x, y, &index, &value);
    // A horizontal line cannot start at the first point; every other kind can.
    const int lowest = row.Kind == TrendHorizontal ? 1 : 0;
    if (index < lowest || index > m_prices.Count())
        return;
    {
        CPriceBatch batch(m_window);
        m_currentTrend = MakeTrend(row.Kind, index, value);
        m_currentTrend->SetMarkers(true);
        m_currentTrend->Draw();
    }
    Prompt(row.Prompt);
    m_trendState = row.Next;
}

CBaseTrend* CTrendInteraction::MakeTrend(TrendKind kind, int index, double value)
{
    const sTrendKindRow& row = TrendKindRow(kind);
    std::vector<int> series(static_cast<std::size_t>(row.SeriesCount));
    for (int& number : series)
        number = m_trendLists.AllocateSeries();
    const sTrendStyle& style = m_window.Settings().Trends[static_cast<std::size_t>(kind)];
    std::unique_ptr<CBaseTrend> trend = row.Make(series, index, value, style);
    if (row.LabelCount > 0)
        trend->SetFirstLabel(m_trendLists.AllocateLabels());
    return m_trendLists.List(kind).Add(std::move(trend));
}

void CTrendInteraction::FinishLine()
{
    if (!m_currentTrend)
        return;
    CPriceBatch batch(m_window);
    m_currentTrend->SetMarkers(false);
    m_currentTrend->m_width =
        m_window.Settings().Trends[static_cast<std::size_t>(m_currentTrend->Kind())].Width;
    m_currentTrend->Draw();
}

void CTrendInteraction::OnDeleteClick(int x, int y)
{
    int distance = -1;
    m_currentTrend = m_trendLists.FindNearest(x, y, &distance);
    if (!m_currentTrend || distance == -1 || distance >= HitLimit)
        return;
    m_timer.Start(FlashTimer, FlashMilliseconds);
    Prompt("Confirm the trendline deleting");
    const BoxAnswer answer =
        m_box.Ask("Delete flashing trendline?", "", BoxButtons::YesNo, BoxIcon::Question);
    m_timer.Stop(FlashTimer);
    if (answer == BoxAnswer::Yes) {
        CPriceBatch batch(m_window);
        m_trendLists.Delete(m_currentTrend);
        m_currentTrend = nullptr;
        if (m_trendLists.Count() == 0) {
            Prompt("Ready");
            m_trendState = TrendIdle;
            return;
        }
    } else if (m_currentTrend) { // otherwise a new chart removed it while the box was open
        CPriceBatch batch(m_window);
        m_currentTrend->SetMarkers(false);
    }
    if (m_trendState == DeleteTrend) // a new chart may have ended the mode while the box was open
        Prompt(PromptDelete);
}

void CTrendInteraction::OnFlashTimer()
{
    if (!m_currentTrend)
        return;
    CPriceBatch batch(m_window);
    m_currentTrend->ToggleMarkers();
}

bool CTrendInteraction::OnMouseMove(int pixelX, int pixelY)
{
    if (m_trendState == TrendIdle)
        return false;
    const TrendStep step = TrendRow(m_trendState).Step;
    if ((step != TrendStep::EndPoint && step != TrendStep::FinalPoint) || !m_currentTrend)
        return true;
    double x = 0, y = 0;
    if (m_window.Pane(0).PaneGroups(1).PixelToData(pixelX, pixelY, x, y) != GeometryFound)
        return true;
    const int xi = static_cast<int>(x + 0.5);
    const int index = m_window.Range().first - AxisBase(m_window) + xi;
    bool moved = false;
    if (m_trendState == ParallelSecondLine)
        moved = MoveSecondLine(x, y);
    else if (m_trendState == PitchforkThird)
        moved = MoveThirdPoint(index, xi, x, y);
    else
        moved = MoveEndPoint(index, xi, x, y);
    if (moved) {
        CPriceBatch batch(m_window);
        m_currentTrend->Draw();
    }
    return true;
}

bool CTrendInteraction::MoveEndPoint(int index, int xi, double x, double y)
{
    CBaseTrend& trend = *m_currentTrend;
    index = std::max(index, 1);
    if (index == trend.m_startIndex)
        return false;
    if (m_trendState == HorizontalEnd && index == trend.m_endIndex)
        return false;
    trend.m_endIndex = index;
    if (m_trendState != HorizontalEnd) {
        // The anchor is at a whole index, but the line must pass under the pointer.
        const int start = trend.m_startIndex;
        trend.SetEndValue(((y - trend.m_value) / ((x - xi) + index - start)) * (index - start) +
                          trend.m_value);
    }
    return true;
}

bool CTrendInteraction::MoveSecondLine(double x, double y)
{
    CBaseTrend& trend = *m_currentTrend;
    // Not checked: if both anchors have the same index, the offset is not finite and the second line is not
    // drawn.
    const double slope = (trend.GetEndValue() - trend.m_value) / (trend.m_endIndex - trend.m_startIndex);
    trend.SetOffset((y - trend.m_value) -
                    slope * (x + m_window.Range().first - AxisBase(m_window) - trend.m_startIndex));
    return true;
}

bool CTrendInteraction::MoveThirdPoint(int index, int xi, double x, double y)
{
    CBaseTrend& trend = *m_currentTrend;
    const double middle = (trend.m_startIndex + trend.m_endIndex) * 0.5;
    if (index >= middle)
        return false;
    // Half the difference of the two prices, not their mean, so the third price differs from the pointer's
    // only by the fraction of x.
    const double half = (trend.m_value - trend.GetEndValue()) * 0.5;
    trend.SetThirdPoint(index, half + ((y - half) / ((x - xi) + index - middle)) * (index - middle));
    return true;
}

} // namespace zantroq
