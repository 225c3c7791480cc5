// Reads all settings of a chart window in a fixed order and stores the defaults of missing ones. Window's
// thread.
#pragma once

#include "platform/CalendarTime.h"
#include "platform/settings/SettingsKey.h"
#include "settings/SettingsStore.h"
#include "settings/SettingsTable.h"

#include <string>

namespace zantroq {

// Never fails: a value that cannot be read gets its default, and nothing is written for it. Guaranteed,
// whatever the store contained:
// - PtsIndex is 0 to 14, GridStyle and CandleStyle 0 or 1, ScrollItems and ScrollPercent 1 to 999.
// - DataType is 0 to 4, IntervalIndex 0 to 10, and each entry of RequestKinds belongs to its data type.
// - Dates have 8 digits and times 6; they need not exist in the calendar.
// - Colors have 24 bits; widths of trendlines are 1 to 99.
// - BandDeviations is finite.
// - StudyCount is 0 to 10, StudyTypes 0 to 9, Bounds strictly ascending from 0 to at most 1 up to
//   Bounds[StudyCount + 1], MaximizedIndex 999 or 0 to StudyCount.
// All other numbers are as stored, from -99999999 to 999999999: a period may be 0 or negative, and a level
// any number. A value out of range is corrected in memory only, except that a boolean other than 0 and 1 is
// overwritten with its default.
//
// `today` (%Y%m%d) is the default date of a range that was never stored.
sChartSettings LoadChartSettings(ISettingsKey& key, const std::string& today = TodayText());

// A record with the same defaults. Reads and writes nothing.
sChartSettings DefaultChartSettings(const std::string& today = TodayText());

// Reads the list of one row (DataTypeList or PeriodList) into `settings`, which holds the defaults of missing
// entries. Returns false if the list could not be read; nothing is written then.
bool LoadList(CSettingsStore& store, sChartSettings& settings, const sSettingRow& row);

} // namespace zantroq
