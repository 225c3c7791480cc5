#include "qt/widgets/WindowTimer.h"

#include <QTimerEvent>

namespace zantroq {

void CWindowTimer::Start(int id, int milliseconds)
{
    Stop(id);
    m_running[id] = startTimer(milliseconds);
}

void CWindowTimer::Stop(int id)
{
    const auto found = m_running.find(id);
    if (found == m_running.end())
        return;
    killTimer(found->second);
    m_running.erase(found);
}

void CWindowTimer::timerEvent(QTimerEvent* event)
{
    for (const auto& [id, number] : m_running) {
        if (number == event->timerId()) {
            OnTick(id); // may start and stop timers, so the loop must end here
            return;
        }
    }
}

} // namespace zantroq
