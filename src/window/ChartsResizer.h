// Lets the user drag the borders between the panes, and minimises, maximises and restores panes. Every change
// is stored and laid out at once. Chart window's thread.
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

    void SetUp();  // applies the loaded stack; ignores a maximised pane that is not displayed
    void Layout(); // sizes the panes, then draws at the scroll position if there is a point

    // Events of a pane; y is in pixels of the pane. Near a border the pointer gets the split shape.
    void OnMouseMove(int pane, int y);
    bool OnButtonDown(int pane, int y); // true if a drag has started
    void OnButtonUp(int pane, int y);
    bool Dragging() const { return m_dragging; }

    void Maximize(int pane);
    void Minimize(int pane);
    void Restore(int pane);
    void SetStudies(std::span<const int> studies); // sets a new list of displayed studies

private:
    int LowestBorder() const; // limits of the dragged border
    int HighestBorder() const;
    void StoreStates(const sPaneStack& before); // stores the flags and the maximised pane
    void Changed(const sPaneStack& before);     // call after a command or a drag

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
