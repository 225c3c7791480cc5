#include "drawing/Chart2D.h"

#include <stdexcept>

namespace zantroq {

CChart2D::CChart2D() : m_interior(this), m_area(this), m_groups{CPaneGroup(this), CPaneGroup(this)}, m_labels(this) {}
CChart2D::~CChart2D() = default;

CPaneGroup& CChart2D::PaneGroups(int number)
{
    if (number < 1 || number > 2)
        throw std::invalid_argument("pane group " + std::to_string(number));
    return m_groups[number - 1];
}

const CPaneGroup& CChart2D::PaneGroups(int number) const { return const_cast<CChart2D*>(this)->PaneGroups(number); }

void CChart2D::SetBatched(bool batched)
{
    m_batched = batched;
    if (!batched && m_changed) {
        m_changed = false;
        if (m_view)
            m_view->PaneChanged();
    }
}

void CChart2D::Touch()
{
    if (m_batched || !m_view) {
        m_changed = true;
        return;
    }
    m_view->PaneChanged();
}

sPixelRect CChart2D::PlotRect() const
{
    const CPlotFrame& frame = m_area.PlotFrame();
    return {frame.LeftMargin().Value(), frame.TopMargin().Value(), PixelWidth() - frame.RightMargin().Value(),
            PixelHeight() - frame.BottomMargin().Value()};
}

} // namespace zantroq
