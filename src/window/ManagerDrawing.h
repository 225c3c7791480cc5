// Implements the drawing interface of the window's collaborators with the draw manager. After a draw it
// updates the scroll bar and the zoom buttons in the same batch. Chart window's thread.
#pragma once

#include "drawing/HistChartDrawManager.h"
#include "window/PaneDrawing.h"
#include "window/RangeBars.h"

namespace zantroq {

class CManagerDrawing : public IPaneDrawing
{
public:
    // Nothing is owned; all must outlive this.
    CManagerDrawing(IChartWindow& window, CHistChartDrawManager& manager, CSeriesReader& prices,
                    CRangeBars& bars)
        : m_window(window), m_manager(manager), m_prices(prices), m_bars(bars)
    {
    }

    int Count() const override { return m_prices.Count(); }
    int ChartNumber() const override { return m_chartNumber; }
    void SetSource(CChartHistRequest* request, int dataType) override;
    void ClearPanes() override;
    void FullRedraw() override;
    void Draw(int position) override;
    void Update(int newPoints) override;
    void RefreshTitles() override { m_manager.RefreshTitles(); }
    void AdjustStudyBars() override;
    void RebuildStudies() override { m_manager.CreateStudies(); }
    void DeletePoint(int index) override { m_manager.DeletePoint(index); }
    bool SeriesEdited() const override { return m_manager.seriesEdited; }
    std::string MakeInfoText(int point) const override { return m_manager.MakeInfoText(point); }
    void GetPoint(int index, sHIST_DATA& point) const override { m_prices.GetPoint(index, point); }
    std::string Date(int index) const override { return m_prices.GetDate(index); }
    std::string Time(int index) const override { return m_prices.GetTime(index, TimeDetail::Seconds); }
    std::string MinuteTime(int index) const override { return m_prices.GetMinuteTime(index); }
    std::string PriceText(double price) const override;

private:
    void Follow(const std::optional<sDrawnExtent>& drawn);

    IChartWindow& m_window;
    CHistChartDrawManager& m_manager;
    CSeriesReader& m_prices;
    CRangeBars& m_bars;
    int m_chartNumber = 0;
};

} // namespace zantroq
