// Stores changed settings: one value, all differences between two records, or one value typed by a user.
// Errors of writing are left to the key. Window's thread.
#pragma once

#include "settings/RetryingKey.h"
#include "settings/SettingsTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// Stores the value of the row with this string number. `number` selects a value of an indexed row, such as 2
// for "Top of chart 2". An unknown id or a row without a member writes nothing.
void StoreSetting(ISettingsKey& key, const sChartSettings& settings, int id, int number = 0);

// Stores the whole stack: count, types, borders, maximized index, and minimized flags of the panes in use.
void StorePaneStack(ISettingsKey& key, const sPaneStack& panes);

// Store all request settings, or delete them from the key.
void StoreRequestSettings(ISettingsKey& key, const sChartSettings& settings);
void ClearRequestSettings(ISettingsKey& key);

// The stored values that differ, in table order. A list counts as one value; only panes in use in one of the
// records are compared.
std::vector<sSettingPlace> ChangedSettings(const sChartSettings& before, const sChartSettings& after);

// Stores one changed value; of a list only the changed entries.
void StoreChange(CRetryingKey& key, const sSettingPlace& place, const sChartSettings& before,
                 const sChartSettings& after);

// Stores the differences and nothing else; unchanged entries of a list stay as stored. Returns the combined
// effects of all changes.
unsigned StoreChanges(CRetryingKey& key, const sChartSettings& before, const sChartSettings& after);

struct sSettingChange
{
    std::string Error;    // empty, or a clause that says what is wrong; nothing is changed or written then
    bool Changed = false; // false if the value is the current one; nothing is written then
    unsigned Effects = EffectNone; // combination of SettingEffect
};

// Makes one change as the settings sheet would on OK: checks it by the sheet's rules, changes the record and
// stores it at once. `name` is a stored name ("PTS INDEX", "Study Data Color 4", "RequestDatapoints"), or
// "#32791" or "#32792" for the two without a name; the empty name means the scroll amount of the current
// scrolling mode. A list may have fewer entries than the setting: the others are unchanged. A change of
// "Number of displayed study charts" or of a study type stores the count and the types of all panes in use;
// the layout stores the borders.
sSettingChange SetByName(sChartSettings& settings, CRetryingKey& key, std::string_view name,
                         std::string_view text);

// Checks, without a chart, whether SetByName could accept this. Returns an empty text, or what is wrong: an
// unknown name, or a text that is invalid whatever the other settings are.
std::string CheckSetting(std::string_view name, std::string_view text);

} // namespace zantroq
