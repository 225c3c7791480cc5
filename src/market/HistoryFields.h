// The fields of a history line.
#pragma once

#include "market/LineFields.h"

namespace zantroq {

// No kind uses a field after the ninth.
using HistoryFields = CLineFields<9>;

} // namespace zantroq
