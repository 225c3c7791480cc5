#include "scene/PaneLabels.h"

#include <stdexcept>

namespace zantroq {

void CPaneLabel::SetRepaintSuspended(bool suspended)
{
    m_suspended = suspended;
    if (!suspended && m_waiting) {
        m_waiting = false;
        Touch();
    }
}

void CPaneLabel::TouchOwn()
{
    if (m_suspended)
        m_waiting = true;
    else
        Touch();
}

CPaneLabel& CPaneLabels::Item(int number)
{
    if (number < 1 || number > Count())
        throw std::invalid_argument("label " + std::to_string(number));
    return *m_labels[static_cast<std::size_t>(number - 1)];
}

const CPaneLabel& CPaneLabels::Item(int number) const
{
    return const_cast<CPaneLabels*>(this)->Item(number);
}

CPaneLabel& CPaneLabels::Add()
{
    m_labels.push_back(std::make_unique<CPaneLabel>(m_chart));
    Touch();
    return *m_labels.back();
}

void CPaneLabels::Remove(int number)
{
    Item(number);
    m_labels.erase(m_labels.begin() + (number - 1));
    Touch();
}

void CPaneLabels::RemoveAll()
{
    if (m_labels.empty())
        return;
    m_labels.clear();
    Touch();
}

} // namespace zantroq
