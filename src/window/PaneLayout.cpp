#include "window/PaneLayout.h"

#include <algorithm>
#include <cstdlib>

namespace zantroq {

namespace {

constexpr int StatusBarHeight = 20;
constexpr int ScrollBarFromBottom =
    35; // top of the bar above the bottom of the client area; the bar is 15 pixels high
constexpr int BarsBelow = 37, StatusBelow = 20;
constexpr int ToolBarGap = 2;

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace

CPaneLayout::CPaneLayout(const sPaneStack& stack, std::span<CChart2D> panes, IPaneHost& host,
                         const IScrollBar& bar)
    : m_stack(stack), m_panes(panes), m_host(host), m_bar(bar)
{
}

void CPaneLayout::SizePanes()
{
    const int clientHeight = m_host.ClientHeight();
    m_panesWidth = m_host.ClientWidth();
    m_topOffset = m_host.ToolBarHeight() + ToolBarGap;
    m_height = std::max(0, clientHeight - m_topOffset - (m_bar.Visible() ? BarsBelow : StatusBelow));
    m_bottoms = LayOutPanes(m_stack, m_height);
    m_host.PlaceBars(clientHeight - ScrollBarFromBottom, clientHeight - StatusBarHeight);
    for (int pane = 0; pane < static_cast<int>(m_panes.size()); ++pane) {
        if (pane >= PaneCount(m_stack)) {
            m_host.PlacePane(pane, false, 0, 0, 0, 0);
            continue;
        }
        const sPaneRect rect = PaneRect(pane);
        m_host.PlacePane(pane, true, rect.Left, rect.Top, rect.Width, rect.Height);
        CAreaBox& box = m_panes[At(pane)].PaneArea().AreaBox();
        box.Width().SetValue(rect.Width);
        box.Height().SetValue(rect.Height);
    }
}

sPaneRect CPaneLayout::PaneRect(int pane) const
{
    if (pane < 0 || pane >= PaneCount(m_stack))
        return {};
    const int top = m_bottoms[At(pane)];
    return {0, m_topOffset + top, m_panesWidth, m_bottoms[At(pane + 1)] - top};
}

int CPaneLayout::BorderAt(int fromTop) const
{
    for (int border = 1; border < PaneCount(m_stack); ++border)
        if (std::abs(fromTop - m_bottoms[At(border)]) <= GrabMargin)
            return border;
    return 0;
}

int CPaneLayout::PaneAt(int pane, int y) const
{
    y = FromTop(pane, y);
    for (int other = 0; other < PaneCount(m_stack); ++other)
        if (y >= m_bottoms[At(other)] && y < m_bottoms[At(other + 1)])
            return other;
    return pane;
}

} // namespace zantroq
