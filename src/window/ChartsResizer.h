// Stacks the price pane and the study panes in the window, lets the user drag the borders between them, and
// keeps what each pane is: normal, minimised or maximised. Every change is stored at once. Chart window's
// thread.
//
// Pane positions are pixels below the top of pane 0; TopOffset() leads from there to the client area.
#pragma once

#include "platform/WindowServices.h"
#include "scene/Chart2D.h"
#include "settings/SettingsStore.h"
#include "window/PaneDrawing.h"
#include "window/PaneStack.h"

#include <array>
#include <span>

namespace zantroq {

class CBatchCounters;

struct sPaneRect // in the client area
{
    int Left = 0, Top = 0, Width = 0, Height = 0;
};

class CChartsResizer
{
public:
    CChartsResizer(sPaneStack& stack, CSettingsStore& store, std::span<CChart2D> panes, IPaneHost& host,
                   IScrollBar& bar, IPointerFeedback& pointer, IPaneDrawing& drawing, CBatchCounters& batch);

    void SetUp();     // takes the loaded stack; a maximised pane that is not displayed is none
    void SizePanes(); // places bars and panes and sizes the scenes, without drawing
    void Layout();    // the same, and draws where the scroll bar stands if there is a point

    // Events of a pane; y in its own pixels. The pointer near a border takes the split shape.
    void OnMouseMove(int pane, int y);
    bool OnButtonDown(int pane, int y); // true when a drag began
    void OnButtonUp(int pane, int y);
    bool Dragging() const { return m_dragging; }

    void Maximize(int pane);
    void Minimize(int pane);
    void Restore(int pane);
    void SetStudies(std::span<const int> studies); // a new list of displayed studies

    int PaneAt(int pane, int y) const; // the pane under an event of a pane, which may lie outside of it
    bool IsCollapsed(int pane) const { return IsCollapsedPane(m_stack, pane); }
    const sPaneStack& Stack() const { return m_stack; }
    const PaneBottoms& Bottoms() const { return m_bottoms; }
    sPaneRect PaneRect(int pane) const;
    int TopOffset() const { return m_topOffset; }
    int PanesWidth() const { return m_panesWidth; }
    int Height() const { return m_height; }

private:
    int FromTop(int pane, int y) const { return m_bottoms.at(static_cast<std::size_t>(pane)) + y; }
    int BorderAt(int y) const;                  // 0: none
    void StoreStates(const sPaneStack& before); // flags and the maximised pane
    void Changed(const sPaneStack& before);     // after a command or a drag

    sPaneStack& m_stack;
    CSettingsStore& m_store;
    std::span<CChart2D> m_panes;
    IPaneHost& m_host;
    IScrollBar& m_bar;
    IPointerFeedback& m_pointer;
    IPaneDrawing& m_drawing;
    CBatchCounters& m_batch;
    PaneBottoms m_bottoms{};
    int m_topOffset = 0, m_panesWidth = 0, m_height = 0;
    int m_dragBorder = 0, m_dragY = 0;
    bool m_nearBorder = false, m_dragging = false;
};

} // namespace zantroq
