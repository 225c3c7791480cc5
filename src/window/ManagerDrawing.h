// The draw manager as the window's collaborators see it. Chart window's thread.
#pragma once

#include "drawing/HistChartDrawManager.h"
#include "window/PaneDrawing.h"

namespace zantroq {

class CManagerDrawing : public IPaneDrawing
{
public:
    explicit CManagerDrawing(CHistChartDrawManager& manager) : m_manager(manager) {}

    int Count() const override;
    int ChartNumber() const override { return m_chartNumber; }
    void SetSource(CChartHistRequest* request, int dataType) override;
    void ClearPanes() override;
    void FullRedraw() override { m_manager.FullRedraw(); }
    void Draw(int position) override { m_manager.Draw(position); }
    void Update(int newPoints) override { m_manager.Update(newPoints); }
    void RefreshTitles() override { m_manager.RefreshTitles(); }
    void AdjustStudyBars() override;
    void RebuildStudies() override { m_manager.CreateStudies(); }
    void DeletePoint(int index) override { m_manager.DeletePoint(index); }
    bool SeriesEdited() const override { return m_manager.seriesEdited; }
    std::string MakeInfoText(int point) const override { return m_manager.MakeInfoText(point); }
    void GetPoint(int index, sHIST_DATA& point) const override { m_manager.GetPoint(index, point); }
    std::string Date(int index) const override { return m_manager.GetDate(index); }
    std::string Time(int index) const override { return m_manager.GetTime(index, false); }
    std::string MinuteTime(int index) const override { return m_manager.GetMinuteTime(index); }
    std::string PriceText(double price) const override;

private:
    CHistChartDrawManager& m_manager;
    int m_chartNumber = 0;
};

} // namespace zantroq
