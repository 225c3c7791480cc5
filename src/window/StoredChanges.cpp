#include "window/StoredChanges.h"

namespace zantroq {

void CStoredChanges::OnTick()
{
    // Two seconds: shorter than the time in which a locked settings file is not waited for, so the window
    // never blocks for a change in the background.
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
