#include "window/BatchCounters.h"

namespace zantroq {

void CBatchCounters::SetAll(bool batched)
{
    // A suspension of the price pane alone continues.
    for (CChart2D& pane : m_panes)
        pane.SetBatched(batched || (m_inner > 0 && &pane == &m_panes.front()));
}

void CBatchCounters::Begin()
{
    ++m_inner;
    if (++m_outer == 1)
        SetAll(true);
}

void CBatchCounters::End()
{
    --m_inner;
    if (--m_outer == 0)
        SetAll(false);
}

void CBatchCounters::BeginPrice()
{
    if (++m_inner == 1)
        m_panes.front().SetBatched(true);
}

void CBatchCounters::EndPrice()
{
    if (--m_inner == 0)
        m_panes.front().SetBatched(false);
}

} // namespace zantroq
