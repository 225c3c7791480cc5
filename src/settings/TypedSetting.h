// One setting as typed by a user, checked by the rules of the settings sheet. Pure functions, any thread.
#pragma once

#include "settings/SettingsTable.h"

#include <string>
#include <string_view>

namespace zantroq {

// Sets the value from typed text. Returns an empty text, or what is wrong with the typed text; the settings
// are unchanged then.
std::string TakeTypedText(sChartSettings& settings, const sSettingPlace& place, std::string_view text);

} // namespace zantroq
