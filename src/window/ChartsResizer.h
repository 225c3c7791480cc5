// Lets the user drag the borders between the panes, and minimises, maximises and restores panes. Every change
// is stored at once and laid out. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "settings/SettingsStore.h"
#include "window/PaneDrawing.h"
#include "window/PaneLayout.h"

#include <span>

namespace zantroq {

class CBatchCounters;

class CChartsResizer
{
public:
    // Nothing is owned. `layout` places the panes of `stack`.
    CChartsResizer(sPaneStack& stack, CSettingsStore& store, CPaneLayout& layout, IPointerFeedback& pointer,
                   const IScrollBar& bar, IPaneDrawing& drawing, CBatchCounters& batch);

    void SetUp();  // takes the loaded stack; a maximised pane that is not displayed is none
    void Layout(); // sizes the panes, and draws at the scroll bar's position if there is a point

    // Events of a pane; y in its own pixels. The pointer near a border takes the split shape.
    void OnMouseMove(int pane, int y);
    bool OnButtonDown(int pane, int y); // true when a drag began
    void OnButtonUp(int pane, int y);
    bool Dragging() const { return m_dragging; }

    void Maximize(int pane);
    void Minimize(int pane);
    void Restore(int pane);
    void SetStudies(std::span<const int> studies); // a new list of displayed studies

private:
    int LowestBorder() const; // where the dragged border may stand
    int HighestBorder() const;
    void StoreStates(const sPaneStack& before); // flags and the maximised pane
    void Changed(const sPaneStack& before);     // after a command or a drag

    sPaneStack& m_stack;
    CSettingsStore& m_store;
    CPaneLayout& m_layout;
    IPointerFeedback& m_pointer;
    const IScrollBar& m_bar;
    IPaneDrawing& m_drawing;
    CBatchCounters& m_batch;
    int m_dragBorder = 0, m_dragY = 0;
    bool m_nearBorder = false, m_dragging = false;
};

} // namespace zantroq
