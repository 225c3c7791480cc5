#include "window/StoredChanges.h"

namespace zantroq {

void CStoredChanges::OnTick()
{
    // Two seconds: less than the time for which a settings file that was found locked is not waited for, so
    // that the window never stands still over a change that nobody is looking at.
    constexpr int TicksBetweenTries = 8;
    if (!m_key.IsWaiting() || --m_ticksToRetry > 0)
        return;
    m_ticksToRetry = TicksBetweenTries;
    m_key.Retry();
    if (!m_key.IsWaiting())
        m_status.SetNotice("");
}

void CStoredChanges::SayWhetherKept()
{
    m_status.SetNotice(m_key.IsWaiting() ? "Settings could not be kept: the settings file cannot be written."
                                         : "");
}

} // namespace zantroq
