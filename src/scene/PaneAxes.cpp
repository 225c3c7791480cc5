#include "scene/PaneAxes.h"

#include <stdexcept>

namespace zantroq {

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

} // namespace zantroq
