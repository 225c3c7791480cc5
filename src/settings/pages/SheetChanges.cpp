#include "settings/pages/SheetChanges.h"

#include "settings/SettingText.h"
#include "settings/SettingsStore.h"
#include "settings/SettingsWriter.h"
#include "settings/pages/PageSettings.h"

#include <algorithm>

namespace zantroq {
namespace {

constexpr int DataTypeId = 32904, IntervalId = 32908;

bool IsRequest(const sSettingPlace& place)
{
    return (place.Row->Effects & EffectRequest) != 0;
}

// Stores as the type box and the interval box of the window do: a new interval stores the type too.
void StoreBoxes(CRetryingKey& key, const sChartSettings& before, const sChartSettings& after)
{
    const bool interval = before.Request.IntervalIndex != after.Request.IntervalIndex;
    if (interval)
        StoreSetting(key, after, IntervalId);
    if (interval || before.Request.DataType != after.Request.DataType)
        StoreSetting(key, after, DataTypeId);
}

} // namespace

unsigned StoreSheetChanges(CRetryingKey& key, const sChartSettings& before, const sChartSettings& after,
                           RequestKeeping keeping)
{
    std::vector<sSettingPlace> changed = ChangedSettings(before, after);
    std::ranges::stable_sort(changed, {},
                             [](const sSettingPlace& place) { return SheetOrder(place.Row->Id); });
    unsigned effects = EffectNone;
    bool requestStored = false;
    const auto storeRequest = [&] {
        if (!requestStored && keeping == RequestKeeping::AsDefault)
            StoreRequestSettings(key, after);
        else if (!requestStored)
            StoreBoxes(key, before, after);
        requestStored = true;
    };
    for (const sSettingPlace& place : changed) {
        effects |= place.Row->Effects;
        if (SheetOrder(place.Row->Id) >= SheetOrder(DataTypeId))
            storeRequest();
        if (!IsRequest(place))
            StoreChange(key, place, before, after);
    }
    storeRequest();
    return effects;
}

void LoadSheetSettings(ISettingsKey& key, sChartSettings& settings)
{
    CSettingsStore store(key);
    for (const sSettingRow& row : SettingsTable())
        if (row.Form == SettingForm::SheetOnly)
            if (const std::int32_t value = store.ReadInt(row.Name); value != MissingInt)
                TakeStoredInt(settings, {&row}, value);
}

} // namespace zantroq
