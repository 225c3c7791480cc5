// Stores the changes of an accepted settings sheet. Chart window's thread.
#pragma once

#include "settings/RetryingKey.h"
#include "settings/SettingsTable.h"

namespace zantroq {

// "Save settings as default" on the data page.
enum class RequestKeeping
{
    ThisChart, // the chart uses the settings; only data type and interval are stored, as the boxes of the window do
    AsDefault, // the request settings of all five data types are stored, even unchanged ones
};

// Stores the differences in the order of the pages and nothing else. Returns the combined effects
// (SettingEffect) of all changes, including those that are not stored.
unsigned StoreSheetChanges(CRetryingKey& key, const sChartSettings& before, const sChartSettings& after,
                           RequestKeeping keeping);

// Reads the settings that only the sheet uses. A missing value leaves the record unchanged.
void LoadSheetSettings(ISettingsKey& key, sChartSettings& settings);

} // namespace zantroq
