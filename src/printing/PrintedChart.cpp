#include "printing/PrintedChart.h"

#include "drawing/HistPriceChart.h"
#include "window/ChartDlg.h"
#include "window/PaneLayout.h"

#include <utility>

namespace zantroq {

int CPrintedChart::ShownPanes() const
{
    return m_window.ShownPanes();
}

const CChart2D& CPrintedChart::Pane(int pane) const
{
    return std::as_const(m_window).Pane(pane);
}

sPaneSize CPrintedChart::ClientSize(int pane) const
{
    const sPaneRect rect = m_window.Layout().PaneRect(pane);
    return {rect.Width, rect.Height};
}

std::string CPrintedChart::Symbol() const
{
    return m_window.CurrentSymbol();
}

const sRequestSettings& CPrintedChart::Request() const
{
    return m_window.Settings().Request;
}

void CPrintedChart::SetStatusText(const std::string& text)
{
    m_window.SetStatusText(text);
}

void CPrintedChart::EnableDrawChart(bool enabled)
{
    m_window.Services().Commands.Enable(CommandDrawChart, enabled);
}

bool CPrintedChart::NoteShown() const
{
    const CPaneLabels& labels = Pane(0).PaneLabels();
    return labels.Count() >= ReadoutLabel && labels.Item(ReadoutLabel).Shown();
}

} // namespace zantroq
