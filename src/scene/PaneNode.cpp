#include "scene/PaneNode.h"

#include "scene/Chart2D.h"

namespace zantroq {

void CPaneNode::Touch()
{
    m_chart->Touch();
}
void CPaneNode::TouchData()
{
    m_chart->TouchData();
}

} // namespace zantroq
