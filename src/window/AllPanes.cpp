#include "window/AllPanes.h"

#include "drawing/PaneControls.h"
#include "drawing/PaneSetup.h"
#include "drawing/PricePaneNumbers.h"

namespace zantroq {

void CAllPanes::ShowMarkers()
{
    const CBatch batch(m_window);
    for (int pane = 0; pane < PaneControls; ++pane)
        m_window.Pane(pane).PaneArea().PaneMarkers("x").SetShown(m_window.Settings().ShowPriceBar != 0);
}

void CAllPanes::SetGrids()
{
    const CBatch batch(m_window);
    for (int pane = 0; pane < PaneControls; ++pane)
        SetGrid(m_window.Pane(pane), m_window.Settings());
}

void CAllPanes::MoveValueAxes()
{
    const CBatch batch(m_window);
    for (int pane = 0; pane < PaneControls; ++pane)
        MoveValueAxis(m_window.Pane(pane), m_window.Settings().ValueAxisSide());
}

void CAllPanes::SetColors()
{
    const CBatch batch(m_window);
    const sChartSettings& settings = m_window.Settings();
    SetPaneColors(m_window.Pane(0), settings, settings.PriceLabelColor);
    CPaneLabels& labels = m_window.Pane(0).PaneLabels();
    for (int number = 1; number <= labels.Count(); ++number)
        if (number != PriceTitleLabel)
            labels.Item(number).Interior().SetBackground(settings.BackgroundColor);
    for (int pane = 1; pane < PaneControls; ++pane) {
        const int kind = settings.Panes.StudyTypes[static_cast<std::size_t>(pane - 1)];
        SetPaneColors(m_window.Pane(pane), settings, StudyLabelColor(settings, kind));
    }
}

} // namespace zantroq
