// Wraps every call of a host: checks the thread, and lets no exception pass to the host.
#pragma once

#include "control/module/OwnApplication.h"

#include <zantroq/module.h>

namespace zantroq {

template<class TCall> std::int32_t Guarded(TCall call) noexcept
{
    try {
        return IsApplicationThread() ? call() : ZANTROQ_WRONG_THREAD;
    } catch (...) {
        return ZANTROQ_FAILED;
    }
}

} // namespace zantroq
