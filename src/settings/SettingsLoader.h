// Reads all settings of a chart window, in a fixed order, and leaves the defaults of missing ones behind as
// it goes. Lives on the chart window's thread.
#pragma once

#include "platform/CalendarTime.h"
#include "platform/settings/SettingsKey.h"
#include "settings/SettingsStore.h"
#include "settings/SettingsTable.h"

#include <string>

namespace zantroq {

// Never fails: what cannot be read takes its default, and of that nothing is written. What may be relied on
// whatever the store held:
// - PtsIndex 0 to 14, GridStyle and CandleStyle 0 or 1, ScrollItems and ScrollPercent 1 to 999
// - DataType 0 to 4, IntervalIndex 0 to 10, each entry of RequestKinds one that belongs to its data type
// - dates are 8 digits, times 6; no claim that they exist in the calendar
// - colors have 24 bits; widths of trendlines are 1 to 99
// - BandDeviations is finite
// - StudyCount 0 to 10, StudyTypes 0 to 9, Bounds strictly ascending from 0 to at most 1 up to
// Bounds[StudyCount + 1],
//   MaximizedIndex 999 or 0 to StudyCount
// All other numbers are as stored, from -99999999 to 999999999: a period may be 0 or negative, a level
// anything. What was out of its range is mended in memory only, except that a boolean other than 0 and 1 is
// written anew, as a missing one is.
//
// today is the date (%Y%m%d) of a range that was never stored.
sChartSettings LoadChartSettings(ISettingsKey& key, const std::string& today = TodayText());

// A record with the same defaults that reads and writes nothing.
sChartSettings DefaultChartSettings(const std::string& today = TodayText());

// Reads the list of one row (DataTypeList or PeriodList) into a record that holds what missing entries are to
// be. False when it could not be read; then nothing was written.
bool LoadList(CSettingsStore& store, sChartSettings& settings, const sSettingRow& row);

} // namespace zantroq
