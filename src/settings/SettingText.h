// Converts a setting to its stored text and back. Does not access the store. Pure functions, any thread.
#pragma once

#include "settings/SettingsTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// The texts between the commas. An empty text gives none.
std::vector<std::string_view> SplitList(std::string_view text);

// The stored form of a setting: a number, "0" or "1", or a list of them. The row must have a member.
std::string SettingText(const sChartSettings& settings, const sSettingPlace& place);

// Take a value that was read from the store for a single, unnamed or indexed row, limited to the row's range.
void TakeStoredInt(sChartSettings& settings, const sSettingPlace& place, std::int32_t value);
void TakeStoredDouble(sChartSettings& settings, const sSettingPlace& place, double value);

// Takes a stored list. Extra entries are ignored. Missing and empty entries leave their values unchanged, and
// so do dates that are not 8 digits, times that are not 6 digits, and request kinds that do not belong to
// their data type.
void TakeStoredList(sChartSettings& settings, const sSettingPlace& place, std::string_view text);

// True if the text is exactly `length` decimal digits.
bool AllDigits(std::string_view text, std::size_t length);

// True if a data type (0 to 4) can be requested with this request kind.
bool RequestKindFits(int dataType, std::int32_t kind);

} // namespace zantroq
