#include "settings/SettingsWriter.h"

#include "settings/SettingIds.h"
#include "settings/SettingText.h"
#include "settings/SettingsLoader.h"
#include "settings/SettingsStore.h"
#include "settings/StoredNumber.h"
#include "settings/TypedSetting.h"

#include <algorithm>

namespace zantroq {
namespace {

void StorePlace(ISettingsKey& key, const sChartSettings& settings, const sSettingPlace& place)
{
    CSettingsStore(key).WriteString(SettingName(*place.Row, place.Number), SettingText(settings, place));
}

// Only the changed entries of a list are known to be the user's. The other entries come from the store, and
// may never have been read.
void StoreChangedEntries(CRetryingKey& key, const sSettingRow& row, const sChartSettings& before,
                         const sChartSettings& after)
{
    const std::string text = SettingText(after, {&row}), old = SettingText(before, {&row});
    const auto entries = SplitList(text), oldEntries = SplitList(old);
    std::vector<bool> isChanged;
    std::string subject(row.Name);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        isChanged.push_back(entries[i] != oldEntries[i]);
        if (isChanged.back())
            subject += "," + std::to_string(i);
    }
    key.Make(subject, [&row, after, isChanged](ISettingsKey& below) {
        CSettingsStore store(below);
        sChartSettings stored = after;
        if (!LoadList(store, stored, row))
            return false;
        const std::string wantedText = SettingText(after, {&row}), storedText = SettingText(stored, {&row});
        const auto wantedEntries = SplitList(wantedText), storedEntries = SplitList(storedText);
        std::string list;
        for (std::size_t i = 0; i < wantedEntries.size(); ++i)
            list.append(i ? "," : "").append(isChanged[i] ? wantedEntries[i] : storedEntries[i]);
        return store.WriteString(row.Name, list);
    });
}

// The last number of an indexed row that is in use with so many studies.
int LastInUse(const sSettingRow& row, int studyCount)
{
    switch (row.Id) {
    case TypeOfPaneId:
        return studyCount - 1;
    case TopOfPaneId:
        return studyCount + 1;
    case MinimizedId:
        return studyCount;
    default:
        return row.LastNumber;
    }
}

void StoreIndexed(ISettingsKey& key, const sChartSettings& settings, int id)
{
    const sSettingRow& row = *FindSetting(id);
    for (int number = row.FirstNumber; number <= LastInUse(row, settings.Panes.StudyCount); ++number)
        StorePlace(key, settings, {&row, number});
}

void StoreStudyList(ISettingsKey& key, const sChartSettings& settings)
{
    StoreSetting(key, settings, PaneCountId);
    StoreIndexed(key, settings, TypeOfPaneId);
}

std::optional<sSettingPlace> PlaceOf(const sChartSettings& settings, std::string_view name)
{
    if (name.empty())
        return sSettingPlace{FindSetting(settings.ScrollByItems ? ScrollItemsId : ScrollPercentId)};
    return FindSetting(name);
}

std::string Unknown(std::string_view name)
{
    return "there is no setting \"" + std::string(name) +
           "\"; zantroq-settings list shows those that are stored";
}

} // namespace

void StoreSetting(ISettingsKey& key, const sChartSettings& settings, int id, int number)
{
    const sSettingRow* row = FindSetting(id);
    if (row && row->HasMember() && number >= row->FirstNumber && number <= row->LastNumber)
        StorePlace(key, settings, {row, number});
}

void StorePaneStack(ISettingsKey& key, const sPaneStack& panes)
{
    sChartSettings settings;
    settings.Panes = panes;
    StoreStudyList(key, settings);
    StoreIndexed(key, settings, TopOfPaneId);
    StoreSetting(key, settings, MaximizedId);
    StoreIndexed(key, settings, MinimizedId);
}

void StoreRequestSettings(ISettingsKey& key, const sChartSettings& settings)
{
    for (const sSettingRow& row : SettingsTable())
        if (row.Effects & EffectRequest)
            StorePlace(key, settings, {&row});
}

void ClearRequestSettings(ISettingsKey& key)
{
    for (const sSettingRow& row : SettingsTable())
        if (row.Effects & EffectRequest)
            CSettingsStore(key).DeleteValue(row.Name);
}

std::vector<sSettingPlace> ChangedSettings(const sChartSettings& before, const sChartSettings& after)
{
    std::vector<sSettingPlace> changed;
    const int studyCount = std::max(before.Panes.StudyCount, after.Panes.StudyCount);
    for (const sSettingRow& row : SettingsTable()) {
        if (!row.HasMember())
            continue;
        const int last = row.Form == SettingForm::Indexed ? LastInUse(row, studyCount) : row.FirstNumber;
        for (int number = row.FirstNumber; number <= last; ++number) {
            const sSettingPlace place{&row, number};
            if (SettingText(before, place) != SettingText(after, place))
                changed.push_back(place);
        }
    }
    return changed;
}

void StoreChange(CRetryingKey& key, const sSettingPlace& place, const sChartSettings& before,
                 const sChartSettings& after)
{
    if (place.Row->IsList())
        StoreChangedEntries(key, *place.Row, before, after);
    else
        StorePlace(key, after, place);
}

unsigned StoreChanges(CRetryingKey& key, const sChartSettings& before, const sChartSettings& after)
{
    unsigned effects = EffectNone;
    for (const sSettingPlace& place : ChangedSettings(before, after)) {
        StoreChange(key, place, before, after);
        effects |= place.Row->Effects;
    }
    return effects;
}

sSettingChange SetByName(sChartSettings& settings, CRetryingKey& key, std::string_view name,
                         std::string_view text)
{
    const auto place = PlaceOf(settings, name);
    if (!place)
        return {Unknown(name)};
    const sChartSettings before = settings;
    if (auto wrong = TakeTypedText(settings, *place, text); !wrong.empty())
        return {std::move(wrong)};
    if (SettingText(settings, *place) == SettingText(before, *place))
        return {};
    if (place->Row->Effects & EffectStudyList)
        StoreStudyList(key, settings);
    // The list of changes does not include a pane that is not in use yet.
    StoreChange(key, *place, before, settings);
    return {"", true, place->Row->Effects};
}

std::string CheckSetting(std::string_view name, std::string_view text)
{
    sChartSettings settings;
    const auto place = PlaceOf(settings, name);
    if (!place)
        return Unknown(name);
    // Rules that involve several fields depend on the chart's current settings; these values satisfy them as
    // far as possible.
    settings.Studies.MacdShort = LeastStoredInt;
    settings.Studies.MacdLong = GreatestStoredInt;
    settings.Panes.StudyCount = 10;
    if (place->Row->Id == TopOfPaneId) {
        settings.Panes.StudyCount = 0;
        settings.Panes.Bounds.fill(0);
        settings.Panes.Bounds[static_cast<std::size_t>(place->Number)] = 1;
    }
    return TakeTypedText(settings, *place, text);
}

} // namespace zantroq
