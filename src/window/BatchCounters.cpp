#include "window/BatchCounters.h"

namespace zantroq {

void CBatchCounters::SetAll(bool batched)
{
    for (CChart2D& pane : m_panes)
        pane.SetBatched(batched);
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
    if (--m_outer != 0)
        return;
    SetAll(false);
    // A suspension of the price pane alone that is still open goes on.
    if (m_inner > 0)
        m_panes.front().SetBatched(true);
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
