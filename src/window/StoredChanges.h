// Settings that the user changed and that the settings file would not take: they are tried again while the
// chart runs, and the status bar says so meanwhile. Chart window's thread.
#pragma once

#include "settings/RetryingKey.h"
#include "window/StatusText.h"

namespace zantroq {

class CStoredChanges
{
public:
    CStoredChanges(CRetryingKey& key, CStatusText& status) : m_key(key), m_status(status) {} // not owned

    void OnTick(); // every tick of the progress timer
    // After an OK on the settings sheet: the chart uses the new values even where the store refuses them.
    void SayWhetherKept();

private:
    CRetryingKey& m_key;
    CStatusText& m_status;
    int m_ticksToRetry = 0;
};

} // namespace zantroq
