#include "settings/SettingsWriter.h"

#include "settings/SettingText.h"
#include "settings/SettingsStore.h"
#include "settings/StoredNumber.h"

#include <algorithm>

namespace zantroq {
namespace {

constexpr int CountId = 32882, TypeOfPaneId = 32883, TopOfPaneId = 32884, MaximizedId = 32895,
              MinimizedId = 32896;
constexpr int ScrollItemsId = 32791, ScrollPercentId = 32792;

bool HasMember(const sSettingRow& row)
{
    return !std::holds_alternative<std::monostate>(row.Member);
}

void StorePlace(ISettingsKey& key, const sChartSettings& settings, const sSettingPlace& place)
{
    CSettingsStore(key).WriteString(SettingName(*place.Row, place.Number), SettingText(settings, place));
}

// The numbers of an indexed row that are in use with so many studies.
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
    StoreSetting(key, settings, CountId);
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
    if (row && HasMember(*row) && number >= row->FirstNumber && number <= row->LastNumber)
        StorePlace(key, settings, {row, number});
}

void StoreInt(ISettingsKey& key, int id, std::int32_t value)
{
    if (const sSettingRow* row = FindSetting(id))
        CSettingsStore(key).WriteInt(row->Name, value);
}

void StorePaneStack(ISettingsKey& key, const sChartSettings& settings)
{
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
        if (!HasMember(row))
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

unsigned StoreChanges(ISettingsKey& key, const sChartSettings& before, const sChartSettings& after)
{
    unsigned effects = EffectNone;
    for (const sSettingPlace& place : ChangedSettings(before, after)) {
        StorePlace(key, after, place);
        effects |= place.Row->Effects;
    }
    return effects;
}

sSettingChange SetByName(sChartSettings& settings, ISettingsKey& key, std::string_view name,
                         std::string_view text)
{
    const auto place = PlaceOf(settings, name);
    if (!place)
        return {Unknown(name)};
    const std::string before = SettingText(settings, *place);
    if (auto wrong = TakeTypedText(settings, *place, text); !wrong.empty())
        return {std::move(wrong)};
    if (SettingText(settings, *place) == before)
        return {};
    if (place->Row->Effects & EffectStudyList)
        StoreStudyList(key, settings);
    // Of a pane that is not in use yet the list above did not write it.
    StorePlace(key, settings, *place);
    return {"", true, place->Row->Effects};
}

std::string CheckSetting(std::string_view name, std::string_view text)
{
    sChartSettings settings;
    const auto place = PlaceOf(settings, name);
    if (!place)
        return Unknown(name);
    // Rules that reach across fields depend on the chart at that moment; these give them the most room.
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
