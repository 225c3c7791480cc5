// What an accepted settings sheet writes. Lives on the chart window's thread.
#pragma once

#include "settings/RetryingKey.h"
#include "settings/SettingsTable.h"

namespace zantroq {

// "Save settings as default" on the data page.
enum class RequestKeeping
{
    ThisChart, // the chart takes them; only data type and interval are stored, as their boxes store them
    AsDefault, // those of all five data types are stored, also what did not change
};

// Writes what differs, in the order of the pages, and nothing else. The answer is the effects of all changes
// together (SettingEffect), those that are not stored included.
unsigned StoreSheetChanges(CRetryingKey& key, const sChartSettings& before, const sChartSettings& after,
                           RequestKeeping keeping);

// Reads what the sheet alone reads. A missing value leaves the record as it was.
void LoadSheetSettings(ISettingsKey& key, sChartSettings& settings);

} // namespace zantroq
