#include "window/ChartsResizer.h"

#include "settings/SettingIds.h"
#include "settings/SettingsTable.h"
#include "settings/SettingsWriter.h"
#include "window/BatchCounters.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace zantroq {

namespace {

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace

CChartsResizer::CChartsResizer(sPaneStack& stack, CSettingsStore& store, CPaneLayout& layout,
                               IPointerFeedback& pointer, const IScrollBar& bar, IPaneDrawing& drawing,
                               CBatchCounters& batch)
    : m_stack(stack),
      m_store(store),
      m_layout(layout),
      m_pointer(pointer),
      m_bar(bar),
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

void CChartsResizer::Layout()
{
    m_batch.Begin();
    m_layout.SizePanes();
    if (m_drawing.Count() > 0) {
        m_drawing.Draw(m_bar.Position());
        m_drawing.RefreshTitles();
        m_drawing.AdjustStudyBars();
    }
    m_batch.End();
}

int CChartsResizer::LowestBorder() const
{
    return m_layout.Bottoms()[At(m_dragBorder - 1)] + MinPaneHeight;
}

int CChartsResizer::HighestBorder() const
{
    return m_layout.Bottoms()[At(m_dragBorder + 1)] - MinPaneHeight;
}

void CChartsResizer::OnMouseMove(int pane, int y)
{
    y = m_layout.FromTop(pane, y);
    const int border = m_layout.BorderAt(y);
    m_nearBorder = border != 0;
    if (m_nearBorder && !m_dragging)
        m_dragBorder = border;
    m_pointer.SetCursor(m_nearBorder || m_dragging ? CursorShape::Split : CursorShape::Arrow);
    if (!m_dragging)
        return;
    if (y >= LowestBorder() && y <= HighestBorder()) {
        m_dragY = y;
        m_pointer.ShowDragLine(y);
    }
}

bool CChartsResizer::OnButtonDown(int pane, int y)
{
    y = m_layout.FromTop(pane, y);
    // A press without a preceding move (script, touch) counts at its own position.
    m_dragBorder = m_layout.BorderAt(y);
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
    // The layout may have changed during a drag, so its border may be gone.
    if (m_dragBorder >= PaneCount(m_stack))
        return;
    const int lowest = LowestBorder(), highest = HighestBorder();
    if (lowest > highest) // no room for two panes: the border does not move
        return;
    const sPaneStack before = m_stack;
    PaneBottoms bottoms = m_layout.Bottoms();
    MovePaneBorder(m_stack, bottoms, m_dragBorder, std::clamp(m_layout.FromTop(pane, y), lowest, highest));
    m_layout.SetBottoms(bottoms);
    if (m_stack.Bounds[At(m_dragBorder)] != before.Bounds[At(m_dragBorder)])
        m_store.WriteDouble(SettingName(TopOfPaneId, m_dragBorder), m_stack.Bounds[At(m_dragBorder)]);
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
    // A value that did not change may never have been read, so its stored value is kept.
    const auto store = [&](const std::string& name, int value, int old) {
        if (value != old)
            m_store.WriteInt(name, value);
        else
            m_store.FillIn(name, value);
    };
    store(std::string(SettingName(MaximizedId)), m_stack.MaximizedIndex, before.MaximizedIndex);
    for (int pane = 0; pane < PaneCount(m_stack); ++pane)
        store(SettingName(MinimizedId, pane), m_stack.Minimized[At(pane)], before.Minimized[At(pane)]);
}

void CChartsResizer::Changed(const sPaneStack& before)
{
    StoreStates(before);
    Layout();
}

} // namespace zantroq
