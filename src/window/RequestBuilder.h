// Fills a history request from the settings of its window. Chart window's thread, while the request is not
// loading.
#pragma once

#include "settings/ChartSettings.h"

#include <string>

namespace zantroq {

class CChartHistRequest;

void FillRequest(CChartHistRequest& request, const sRequestSettings& settings, const std::string& symbol);

} // namespace zantroq
