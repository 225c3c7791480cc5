// The table of calls through which hosts reach a control.
#pragma once

#include <zantroq/module.h>

namespace zantroq {

const sZantroqControlTable& ControlTable();

} // namespace zantroq
