// One setting as its stored text, and the other way. Walks the table's members; the store itself is not
// touched. Pure functions, any thread.
#pragma once

#include "settings/SettingsTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// The pieces between the commas. An empty text has none.
std::vector<std::string_view> SplitList(std::string_view text);

// What stands in the store for this member: a number, "0" or "1", or a list of them. The row must have a
// member.
std::string SettingText(const sChartSettings& settings, const sSettingPlace& place);

// Takes over what a single, unnamed or indexed row read from the store, held to what the row allows.
void TakeStoredInt(sChartSettings& settings, const sSettingPlace& place, std::int32_t value);
void TakeStoredDouble(sChartSettings& settings, const sSettingPlace& place, double value);

// Takes over a stored list. Entries past the last are ignored; missing and empty ones leave the member as it
// was, and so do dates and times that are not 8 or 6 digits, and request kinds that do not belong to their
// data type.
void TakeStoredList(sChartSettings& settings, const sSettingPlace& place, std::string_view text);

// Whether the text is that many decimal digits and nothing else.
bool AllDigits(std::string_view text, std::size_t length);

// Whether a request kind can be asked for with a data type (0 to 4).
bool RequestKindFits(int dataType, std::int32_t kind);

} // namespace zantroq
