// What every call of a host passes through: the thread is checked, and no exception goes on to the host.
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
