// The fields of a history line, as views into the line. Plain data.
#pragma once

#include "market/LineFields.h"

namespace zantroq {

// No kind uses a field after the ninth.
using HistoryFields = CLineFields<9>;

} // namespace zantroq
