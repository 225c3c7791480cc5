// Changes of settings by the user that could not be stored: they are tried again while the chart runs, and
// the status bar reports them meanwhile. Chart window's thread.
#pragma once

#include "settings/RetryingKey.h"
#include "window/StatusText.h"

namespace zantroq {

class CStoredChanges
{
public:
    CStoredChanges(CRetryingKey& key, CStatusText& status) : m_key(key), m_status(status) {} // not owned

    void OnTick(); // call at every tick of the progress timer
    // Call after an OK on the settings sheet: reports whether the new values, which the chart uses in any
    // case, were stored.
    void SayWhetherKept();

private:
    CRetryingKey& m_key;
    CStatusText& m_status;
    int m_ticksToRetry = 0;
};

} // namespace zantroq
