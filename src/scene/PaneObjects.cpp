#include "scene/PaneObjects.h"

#include "scene/Chart2D.h"

#include <algorithm>
#include <stdexcept>

namespace zantroq {

void CPaneNode::Touch()
{
    m_chart->Touch();
}
void CPaneNode::TouchData()
{
    m_chart->TouchData();
}

const sTickLabel& CTickLabels::Item(int number) const
{
    if (number < 1 || number > Count())
        throw std::invalid_argument("tick label " + std::to_string(number));
    return m_labels[static_cast<std::size_t>(number - 1)];
}

CPaneAxis::CPaneAxis(CChart2D* chart)
    : CPaneNode(chart),
      m_origin(chart, 0),
      m_dataLow(chart, 1),
      m_dataHigh(chart, 2),
      m_viewLow(chart, 1),
      m_viewHigh(chart, 2),
      m_tickSpacing(chart, 1),
      m_tickMarkSpacing(chart, 1),
      m_tickLabels(chart),
      m_grid(chart)
{
}

CPaneAxis& CPaneAxes::Item(const std::string& name)
{
    if (name == "x")
        return m_x;
    if (name == "y")
        return m_y;
    if (name == "y2")
        return m_y2;
    throw std::invalid_argument("axis " + name);
}

CPaneMarker& CPaneArea::PaneMarkers(const std::string& name)
{
    if (name != "x")
        throw std::invalid_argument("marker " + name);
    return m_marker;
}

CSeriesStyle& CPaneGroup::SeriesStyles(int series)
{
    if (series < 1)
        throw std::invalid_argument("series style " + std::to_string(series));
    if (series > MaxSeries)
        throw std::invalid_argument("series style " + std::to_string(series));
    while (StyleCount() < series)
        m_styles.push_back(std::make_unique<CSeriesStyle>(m_chart));
    return *m_styles[static_cast<std::size_t>(series - 1)];
}

void CPaneGroup::RemoveStyles()
{
    if (m_styles.empty())
        return;
    m_styles.clear();
    Touch();
}

const CSeriesStyle* CPaneGroup::FindStyle(int series) const
{
    return series >= 1 && series <= StyleCount() ? m_styles[static_cast<std::size_t>(series - 1)].get()
                                                 : nullptr;
}

void CPaneLabel::SetRepaintSuspended(bool suspended)
{
    m_suspended = suspended;
    if (!suspended && m_waiting) {
        m_waiting = false;
        Touch();
    }
}

void CPaneLabel::TouchOwn()
{
    if (m_suspended)
        m_waiting = true;
    else
        Touch();
}

CPaneLabel& CPaneLabels::Item(int number)
{
    if (number < 1 || number > Count())
        throw std::invalid_argument("label " + std::to_string(number));
    return *m_labels[static_cast<std::size_t>(number - 1)];
}

const CPaneLabel& CPaneLabels::Item(int number) const
{
    return const_cast<CPaneLabels*>(this)->Item(number);
}

CPaneLabel& CPaneLabels::Add()
{
    m_labels.push_back(std::make_unique<CPaneLabel>(m_chart));
    Touch();
    return *m_labels.back();
}

void CPaneLabels::Remove(int number)
{
    Item(number);
    m_labels.erase(m_labels.begin() + (number - 1));
    Touch();
}

void CPaneLabels::RemoveAll()
{
    if (m_labels.empty())
        return;
    m_labels.clear();
    Touch();
}

} // namespace zantroq
