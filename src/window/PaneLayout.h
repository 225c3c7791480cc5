// Where the panes and bars stand in the client area: turns the stored heights into pixels, places panes and
// bars, and sizes the scenes. Draws nothing. Chart window's thread.
//
// Pane positions are pixels below the top of pane 0; pane 0 begins TopOffset() pixels below the client area's
// top.
#pragma once

#include "platform/WindowServices.h"
#include "scene/Chart2D.h"
#include "window/PaneStack.h"

#include <span>

namespace zantroq {

struct sPaneRect // in the client area
{
    int Left = 0, Top = 0, Width = 0, Height = 0;
};

class CPaneLayout
{
public:
    // Nothing is owned; all must outlive the layout.
    CPaneLayout(const sPaneStack& stack, std::span<CChart2D> panes, IPaneHost& host, const IScrollBar& bar);

    // Places panes and bars for the client size and the scroll bar's visibility of this moment.
    void SizePanes();
    // Takes bottoms that a border drag moved, until panes are sized again.
    void SetBottoms(const PaneBottoms& bottoms) { m_bottoms = bottoms; }

    const sPaneStack& Stack() const { return m_stack; }
    const PaneBottoms& Bottoms() const { return m_bottoms; }
    bool IsCollapsed(int pane) const { return IsCollapsedPane(m_stack, pane); }
    sPaneRect PaneRect(int pane) const; // empty for a pane that is not displayed
    int TopOffset() const { return m_topOffset; }
    int PanesWidth() const { return m_panesWidth; }
    int Height() const { return m_height; } // of all panes together

    // A position of an event of a pane; the pane under it may be another one.
    int FromTop(int pane, int y) const { return m_bottoms.at(static_cast<std::size_t>(pane)) + y; }
    int PaneAt(int pane, int y) const; // the pane itself where there is none
    int BorderAt(int fromTop) const;   // 0: none

private:
    const sPaneStack& m_stack;
    std::span<CChart2D> m_panes;
    IPaneHost& m_host;
    const IScrollBar& m_bar;
    PaneBottoms m_bottoms{};
    int m_topOffset = 0, m_panesWidth = 0, m_height = 0;
};

} // namespace zantroq
