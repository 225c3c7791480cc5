// The names of the studies in lists and combos, in study order. Constant data, any thread.
#pragma once

#include "settings/ChartSettings.h"

#include <string>
#include <vector>

namespace zantroq {

const char* StudyName(int study); // 0 to 9
std::vector<std::string> StudyNameTexts();

} // namespace zantroq
