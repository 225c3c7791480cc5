#include "window/ChartsResizer.h"

#include "settings/SettingsWriter.h"
#include "window/BatchCounters.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace zantroq {

namespace {

constexpr int StatusBarHeight = 20;
constexpr int ScrollBarFromBottom = 35; // its top above the client area's bottom; it is 15 pixels high
constexpr int BarsBelow = 37, StatusBelow = 20;
constexpr int ToolBarGap = 2;
constexpr int GrabMargin = 3;

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace

CChartsResizer::CChartsResizer(sPaneStack& stack, CSettingsStore& store, std::span<CChart2D> panes,
                               IPaneHost& host, IScrollBar& bar, IPointerFeedback& pointer,
                               IPaneDrawing& drawing, CBatchCounters& batch)
    : m_stack(stack),
      m_store(store),
      m_panes(panes),
      m_host(host),
      m_bar(bar),
      m_pointer(pointer),
      m_drawing(drawing),
      m_batch(batch)
{
}

void CChartsResizer::SetUp()
{
    m_stack.StudyCount = PaneCount(m_stack) - 1;
    if (m_stack.MaximizedIndex < 0 || m_stack.MaximizedIndex >= PaneCount(m_stack))
        m_stack.MaximizedIndex = NoMaximizedPane;
}

void CChartsResizer::SizePanes()
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

void CChartsResizer::Layout()
{
    m_batch.Begin();
    SizePanes();
    if (m_drawing.Count() > 0) {
        m_drawing.Draw(m_bar.Position());
        m_drawing.RefreshTitles();
        m_drawing.AdjustStudyBars();
    }
    m_batch.End();
}

sPaneRect CChartsResizer::PaneRect(int pane) const
{
    if (pane < 0 || pane >= PaneCount(m_stack))
        return {};
    const int top = m_bottoms[At(pane)];
    return {0, m_topOffset + top, m_panesWidth, m_bottoms[At(pane + 1)] - top};
}

int CChartsResizer::BorderAt(int y) const
{
    for (int border = 1; border < PaneCount(m_stack); ++border)
        if (std::abs(y - m_bottoms[At(border)]) <= GrabMargin)
            return border;
    return 0;
}

void CChartsResizer::OnMouseMove(int pane, int y)
{
    y = FromTop(pane, y);
    const int border = BorderAt(y);
    m_nearBorder = border != 0;
    if (m_nearBorder && !m_dragging)
        m_dragBorder = border;
    m_pointer.SetCursor(m_nearBorder || m_dragging ? CursorShape::Split : CursorShape::Arrow);
    if (!m_dragging)
        return;
    if (y >= m_bottoms[At(m_dragBorder - 1)] + MinPaneHeight &&
        y <= m_bottoms[At(m_dragBorder + 1)] - MinPaneHeight) {
        m_dragY = y;
        m_pointer.ShowDragLine(y);
    }
}

bool CChartsResizer::OnButtonDown(int pane, int y)
{
    y = FromTop(pane, y);
    // A press without a move to it (a script, a touch) counts where it is.
    m_dragBorder = BorderAt(y);
    m_nearBorder = m_dragBorder != 0;
    if (!m_nearBorder)
        return false;
    m_dragging = true;
    m_dragY = y;
    m_pointer.ShowDragLine(y);
    return true;
}

void CChartsResizer::OnButtonUp(int pane, int y)
{
    if (!m_dragging)
        return;
    m_dragging = false;
    m_pointer.HideDragLine();
    // The layout may have changed under a drag, so that its border is gone.
    if (m_dragBorder >= PaneCount(m_stack))
        return;
    const int lowest = m_bottoms[At(m_dragBorder - 1)] + MinPaneHeight;
    const int highest = m_bottoms[At(m_dragBorder + 1)] - MinPaneHeight;
    if (lowest > highest) // no room for two panes: the border stays
        return;
    const sPaneStack before = m_stack;
    MovePaneBorder(m_stack, m_bottoms, m_dragBorder, std::clamp(FromTop(pane, y), lowest, highest));
    if (m_stack.Bounds[At(m_dragBorder)] != before.Bounds[At(m_dragBorder)])
        m_store.WriteDouble("Top of chart " + std::to_string(m_dragBorder), m_stack.Bounds[At(m_dragBorder)]);
    Changed(before);
}

void CChartsResizer::Maximize(int pane)
{
    if (pane < 0 || pane >= PaneCount(m_stack))
        return;
    const sPaneStack before = m_stack;
    MaximizePane(m_stack, pane);
    Changed(before);
}

void CChartsResizer::Minimize(int pane)
{
    if (pane < 0 || pane >= PaneCount(m_stack))
        return;
    const sPaneStack before = m_stack;
    MinimizePane(m_stack, pane);
    Changed(before);
}

void CChartsResizer::Restore(int pane)
{
    if (pane < 0 || pane >= PaneCount(m_stack))
        return;
    const sPaneStack before = m_stack;
    RestorePane(m_stack, pane);
    Changed(before);
}

void CChartsResizer::SetStudies(std::span<const int> studies)
{
    ReplaceStudies(m_stack, studies);
    StorePaneStack(m_store.Key(), m_stack);
    m_drawing.RebuildStudies();
    Layout();
}

void CChartsResizer::StoreStates(const sPaneStack& before)
{
    // What did not change may never have been read, so what is stored of it stays.
    const auto store = [&](const std::string& name, int value, int old) {
        if (value != old)
            m_store.WriteInt(name, value);
        else
            m_store.FillIn(name, value);
    };
    store("Maximized Chart Index", m_stack.MaximizedIndex, before.MaximizedIndex);
    for (int pane = 0; pane < PaneCount(m_stack); ++pane)
        store("Chart " + std::to_string(pane) + " Minimized", m_stack.Minimized[At(pane)],
              before.Minimized[At(pane)]);
}

void CChartsResizer::Changed(const sPaneStack& before)
{
    StoreStates(before);
    Layout();
}

int CChartsResizer::PaneAt(int pane, int y) const
{
    y = FromTop(pane, y);
    for (int other = 0; other < PaneCount(m_stack); ++other)
        if (y >= m_bottoms[At(other)] && y < m_bottoms[At(other + 1)])
            return other;
    return pane;
}

} // namespace zantroq
