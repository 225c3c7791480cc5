// Storing changed settings: one value at a time, whatever differs between two records, or one value as a
// person types it. A write that fails is up to the key. Lives on the chart window's thread.
#pragma once

#include "settings/RetryingKey.h"
#include "settings/SettingsTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// Writes the member of the row with this string number as it stands in the record. number is that of an
// indexed row, such as 2 for "Top of chart 2". An unknown id, or a row without a member, writes nothing.
void StoreSetting(ISettingsKey& key, const sChartSettings& settings, int id, int number = 0);

// Writes the whole stack: count, types, borders, maximised index and minimised flags of the panes in use.
void StorePaneStack(ISettingsKey& key, const sPaneStack& panes);

// Writes all request settings, and removes them all from the key.
void StoreRequestSettings(ISettingsKey& key, const sChartSettings& settings);
void ClearRequestSettings(ISettingsKey& key);

// Which stored values differ, field by field in table order. Entries of a list count as one value; of the
// panes only those in use in either record are compared.
std::vector<sSettingPlace> ChangedSettings(const sChartSettings& before, const sChartSettings& after);

// Writes one value that differs; of a list only the entries that do.
void StoreChange(CRetryingKey& key, const sSettingPlace& place, const sChartSettings& before,
                 const sChartSettings& after);

// Writes what differs and nothing else; the entries of a list that do not differ stay as they are stored. The
// answer is the effects of all changes together.
unsigned StoreChanges(CRetryingKey& key, const sChartSettings& before, const sChartSettings& after);

struct sSettingChange
{
    std::string Error;    // empty, or one clause that says what is wrong; then nothing was changed or written
    bool Changed = false; // false also when the value was what it already is; then nothing was written
    unsigned Effects = EffectNone; // of SettingEffect
};

// One change as if the settings sheet had been closed with OK on it: checked by the sheet's rules, taken into
// the record, written at once. The name is a stored name ("PTS INDEX", "Study Data Color 4",
// "RequestDatapoints"), or "#32791" and "#32792" for the two without one; the empty name is the scroll amount
// of the scrolling mode that is on. A list may have fewer entries than the value: the others stay. A change
// of "Number of displayed study charts" or of a type writes the count and the types of all panes in use; the
// borders are the layout's.
sSettingChange SetByName(sChartSettings& settings, CRetryingKey& key, std::string_view name,
                         std::string_view text);

// Whether SetByName could take this at all, looked at without a chart: an unknown name, or a text that no
// record would allow. Empty when it is fine.
std::string CheckSetting(std::string_view name, std::string_view text);

} // namespace zantroq
