// The fields of a history line.
#pragma once

#include "market/LineFields.h"

namespace zantroq {

// No kind reads a field past the ninth.
using HistoryFields = CLineFields<9>;

} // namespace zantroq
