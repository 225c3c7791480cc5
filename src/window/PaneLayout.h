// The positions of panes and bars in the client area: converts the stored heights to pixels, places panes and
// bars, and sizes the scenes. Draws nothing. Chart window's thread.
//
// Pane positions are in pixels from the top of pane 0, which is TopOffset() pixels below the top of the
// client area.
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

    // Places panes and bars for the current client size and visibility of the scroll bar.
    void SizePanes();
    // Sets bottoms that a border drag has moved; valid until the panes are sized again.
    void SetBottoms(const PaneBottoms& bottoms) { m_bottoms = bottoms; }

    const sPaneStack& Stack() const { return m_stack; }
    const PaneBottoms& Bottoms() const { return m_bottoms; }
    bool IsCollapsed(int pane) const { return IsCollapsedPane(m_stack, pane); }
    sPaneRect PaneRect(int pane) const; // empty for a pane that is not displayed
    int TopOffset() const { return m_topOffset; }
    int PanesWidth() const { return m_panesWidth; }
    int Height() const { return m_height; } // height of all panes together

    // The position of an event of a pane. The event may be over another pane.
    int FromTop(int pane, int y) const { return m_bottoms.at(static_cast<std::size_t>(pane)) + y; }
    int PaneAt(int pane, int y) const; // the pane itself if there is none
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
