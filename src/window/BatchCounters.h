// Nested suspension of repainting. The outer counter counts suspensions of all panes; the inner one also
// counts suspensions of the price pane alone. Chart window's thread.
#pragma once

#include "scene/Chart2D.h"

#include <span>

namespace zantroq {

class CBatchCounters
{
public:
    explicit CBatchCounters(std::span<CChart2D> panes) : m_panes(panes) {}

    void Begin(); // raises both counters
    void End();
    void BeginPrice(); // raises the inner counter
    void EndPrice();

    int Outer() const { return m_outer; }
    int Inner() const { return m_inner; }

private:
    void SetAll(bool batched);

    std::span<CChart2D> m_panes; // the price pane first
    int m_outer = 0, m_inner = 0;
};

} // namespace zantroq
