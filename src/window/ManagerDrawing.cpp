#include "window/ManagerDrawing.h"

namespace zantroq {

void CManagerDrawing::SetSource(CChartHistRequest* request, int dataType)
{
    m_prices.SetDataType(dataType);
    m_prices.SetSeries(request);
}

void CManagerDrawing::ClearPanes()
{
    ++m_chartNumber;
    // Without a series the full redraw sets up the panes and draws nothing. Points that an older reply still
    // appends are not shown, and the flag of an edited series is kept until the new series has arrived.
    CChartHistRequest* const series = m_prices.Series();
    const bool edited = m_manager.seriesEdited;
    m_prices.SetSeries(nullptr);
    m_manager.CreateStudies();
    m_manager.FullRedraw();
    m_prices.SetSeries(series);
    m_manager.seriesEdited = edited;
}

void CManagerDrawing::FullRedraw()
{
    const CBatch batch(m_window);
    Follow(m_manager.FullRedraw());
}

void CManagerDrawing::Draw(int position)
{
    const CBatch batch(m_window);
    Follow(m_manager.Draw(position));
}

void CManagerDrawing::Update(int newPoints)
{
    const CBatch batch(m_window);
    Follow(m_manager.Update(newPoints));
}

void CManagerDrawing::Follow(const std::optional<sDrawnExtent>& drawn)
{
    if (drawn)
        m_bars.Follow(*drawn, m_window.Range().ptsIndex);
}

void CManagerDrawing::AdjustStudyBars()
{
    for (const auto& study : m_manager.Studies())
        if (study)
            study->AdjustStudyBars();
}

// Uses the series' format code, also where the readout would use the plain format.
std::string CManagerDrawing::PriceText(double price) const
{
    const sPriceWords words = m_prices.PriceWords();
    return words.Formatter.Format(price, words.Code);
}

} // namespace zantroq
