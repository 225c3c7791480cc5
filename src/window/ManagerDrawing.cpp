#include "window/ManagerDrawing.h"

#include "drawing/PriceFormatter.h"

namespace zantroq {

int CManagerDrawing::Count() const
{
    return m_manager.Series() != nullptr ? m_manager.Count() : 0;
}

void CManagerDrawing::SetSource(CChartHistRequest* request, int dataType)
{
    m_manager.SetDataType(dataType);
    m_manager.SetSeries(request);
}

void CManagerDrawing::ClearPanes()
{
    ++m_chartNumber;
    // Without a series the whole redraw sets the panes up and draws nothing. What an older reply may still
    // append meanwhile is not shown, and the mark of an edited series stays until the new one has arrived.
    CChartHistRequest* const series = m_manager.Series();
    const bool edited = m_manager.seriesEdited;
    m_manager.SetSeries(nullptr);
    m_manager.CreateStudies();
    m_manager.FullRedraw();
    m_manager.SetSeries(series);
    m_manager.seriesEdited = edited;
}

void CManagerDrawing::AdjustStudyBars()
{
    for (const auto& study : m_manager.Studies())
        if (study)
            study->AdjustStudyBars();
}

std::string CManagerDrawing::PriceText(double price) const
{
    const CChartHistRequest* const series = m_manager.Series();
    return ShippedPriceFormatter().Format(price, series != nullptr ? series->GetPriceFormat() : 0);
}

} // namespace zantroq
