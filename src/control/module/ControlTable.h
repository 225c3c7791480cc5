// The table of calls through which hosts reach a control. Constant; any thread may read it.
#pragma once

#include <zantroq/module.h>

namespace zantroq {

const sZantroqControlTable& ControlTable();

} // namespace zantroq
