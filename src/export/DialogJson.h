// An open dialog as the state file of a window shows it: docs/snapshot.md. Pure function.
#pragma once

#include "platform/DialogDriver.h"

#include <nlohmann/json_fwd.hpp>

namespace zantroq {

nlohmann::ordered_json DialogToJson(const sDialogState& state);

} // namespace zantroq
