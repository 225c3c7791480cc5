#include "scene/Chart2D.h"

#include "scene/PaneFile.h"

#include <algorithm>
#include <stdexcept>

namespace zantroq {

CChart2D::CChart2D()
    : m_interior(this), m_area(this), m_groups{CPaneGroup(this), CPaneGroup(this)}, m_labels(this)
{
}
CChart2D::~CChart2D() = default;

CPaneGroup& CChart2D::PaneGroups(int number)
{
    if (number < 1 || number > 2)
        throw std::invalid_argument("pane group " + std::to_string(number));
    return m_groups[number - 1];
}

const CPaneGroup& CChart2D::PaneGroups(int number) const
{
    return const_cast<CChart2D*>(this)->PaneGroups(number);
}

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
    ++m_revision;
    NotifyView();
}

void CChart2D::TouchData()
{
    NotifyView();
}

void CChart2D::NotifyView()
{
    if (m_batched || !m_view) {
        m_changed = true;
        return;
    }
    m_view->PaneChanged();
}

bool CChart2D::SaveToFile(const std::string& path) const
{
    return SavePaneFile(*this, path);
}

bool CChart2D::LoadFromFile(const std::string& path)
{
    return LoadPaneFile(path, *this);
}

bool CChart2D::DrawToDevice(IPrintDevice& device, int, int, int left, int top, int width, int height) const
{
    return device.PaintPane(*this, left, top, width, height);
}

sPixelRect CChart2D::PlotRect() const
{
    const auto pixel = [](int value) { return std::clamp(value, -FarPixel, FarPixel); };
    const CPlotFrame& frame = m_area.PlotFrame();
    sPixelRect plot{pixel(frame.LeftMargin().Value()), pixel(frame.TopMargin().Value()),
                    pixel(PixelWidth()) - pixel(frame.RightMargin().Value()),
                    pixel(PixelHeight()) - pixel(frame.BottomMargin().Value())};
    plot.Right = std::max(plot.Left, plot.Right);
    plot.Bottom = std::max(plot.Top, plot.Bottom);
    return plot;
}

} // namespace zantroq
