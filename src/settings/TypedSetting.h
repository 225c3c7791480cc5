// One setting as a person types it, checked by the rules of the settings sheet. Pure functions, any thread.
#pragma once

#include "settings/SettingsTable.h"

#include <string>
#include <string_view>

namespace zantroq {

// Takes over what a person typed, by the rules of the settings sheet. The answer is empty, or says what is
// wrong with the text; then nothing was changed.
std::string TakeTypedText(sChartSettings& settings, const sSettingPlace& place, std::string_view text);

} // namespace zantroq
