// An open dialog in the JSON state of a window, see docs/snapshot.md. Pure function, any thread.
#pragma once

#include "platform/DialogDriver.h"

#include <nlohmann/json_fwd.hpp>

namespace zantroq {

nlohmann::ordered_json DialogToJson(const sDialogState& state);

} // namespace zantroq
