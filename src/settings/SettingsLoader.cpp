#include "settings/SettingsLoader.h"

#include "settings/SettingIds.h"
#include "settings/SettingText.h"
#include "settings/StoredNumber.h"

#include <algorithm>

namespace zantroq {
namespace {

constexpr int MostStudies = 10;

const sSettingRow& RowOf(int id)
{
    return *FindSetting(id);
}

// The record holds the defaults, so the text of its current value is the default of a missing one.
void LoadSingle(CSettingsStore& store, sChartSettings& settings, const sSettingRow& row)
{
    const sSettingPlace place{&row};
    const std::string current = SettingText(settings, place);
    if (row.Type == SettingType::Bool)
        TakeStoredInt(settings, place, store.LoadBool(row.Id, current == "1") ? 1 : 0);
    else if (row.Type == SettingType::Double)
        TakeStoredDouble(settings, place, store.LoadDouble(row.Id, ParseStoredDouble(current)));
    else
        TakeStoredInt(settings, place, store.LoadInt(row.Id, ParseStoredInt(current)));
}

bool LoadDataTypeList(CSettingsStore& store, sChartSettings& settings, const sSettingRow& row)
{
    std::string text;
    const ReadResult result = store.ReadString(row.Name, text);
    if (result == ReadResult::Found)
        TakeStoredList(settings, {&row}, text);
    return result != ReadResult::Unreadable;
}

// If the list is missing, it takes over the ten single values that it replaces.
bool LoadPeriodList(CSettingsStore& store, sChartSettings& settings, const sSettingRow& row)
{
    std::string text;
    const ReadResult result = store.ReadString(row.Name, text);
    if (result == ReadResult::Unreadable)
        return false;
    if (!text.empty()) {
        TakeStoredList(settings, {&row}, text);
        return true;
    }
    const sSettingRow& old = RowOf(row.Id == PeriodId ? OldPeriodId : OldCustomPeriodId);
    auto& periods = row.Id == PeriodId ? settings.Studies.Periods : settings.Studies.CustomPeriods;
    for (int study = old.FirstNumber; study <= old.LastNumber; ++study)
        if (store.ReadInt(SettingName(old, study), periods[static_cast<std::size_t>(study)]) ==
            ReadResult::Unreadable)
            return false;
    // The list is written before the single values are deleted, so an interruption loses no period.
    if (!store.WriteString(row.Name, SettingText(settings, {&row})))
        return true;
    for (int study = old.FirstNumber; study <= old.LastNumber; ++study)
        store.DeleteValue(SettingName(old, study));
    return true;
}

bool AscendsToOne(const sPaneStack& panes)
{
    const auto last = static_cast<std::size_t>(panes.StudyCount) + 1;
    for (std::size_t i = 1; i <= last; ++i)
        if (!(panes.Bounds[i] > panes.Bounds[i - 1]))
            return false;
    return panes.Bounds[last] <= 1.0;
}

void SpreadEvenly(sPaneStack& panes)
{
    const auto last = static_cast<std::size_t>(panes.StudyCount) + 1;
    for (std::size_t i = 1; i <= last; ++i)
        panes.Bounds[i] = static_cast<double>(i) / static_cast<double>(last);
}

void LoadPaneStack(CSettingsStore& store, sPaneStack& panes, const sSettingRow& row)
{
    std::int32_t stored = MissingInt;
    const ReadResult result = store.ReadInt(row.Name, stored);
    if (result == ReadResult::Unreadable)
        return;
    if (result == ReadResult::Missing) {
        store.WriteInt(row.Name, panes.StudyCount);
        store.WriteInt(SettingName(RowOf(TypeOfPaneId), 0), panes.StudyTypes[0]);
        for (const int number : {1, 2})
            store.WriteDouble(SettingName(RowOf(TopOfPaneId), number),
                              panes.Bounds[static_cast<std::size_t>(number)]);
        return;
    }
    panes.StudyCount = 0;
    panes.Bounds[1] = store.ReadDouble(SettingName(RowOf(TopOfPaneId), 1));
    while (panes.StudyCount < std::min(stored, MostStudies)) {
        const std::int32_t type = store.ReadInt(SettingName(RowOf(TypeOfPaneId), panes.StudyCount));
        if (type < 0 || type >= StudyKinds)
            break;
        panes.StudyTypes[static_cast<std::size_t>(panes.StudyCount)] = type;
        ++panes.StudyCount;
        const int border = panes.StudyCount + 1;
        panes.Bounds[static_cast<std::size_t>(border)] =
            store.ReadDouble(SettingName(RowOf(TopOfPaneId), border));
    }
    if (!AscendsToOne(panes))
        SpreadEvenly(panes);
}

void LoadIndexed(CSettingsStore& store, sChartSettings& settings, const sSettingRow& row)
{
    // Types and borders were loaded together with the count.
    if (row.Id == TypeOfPaneId || row.Id == TopOfPaneId)
        return;
    const int last = row.Id == MinimizedId ? settings.Panes.StudyCount : row.LastNumber;
    for (int number = row.FirstNumber; number <= last; ++number)
        if (const std::int32_t value = store.ReadInt(SettingName(row, number)); value != MissingInt)
            TakeStoredInt(settings, {&row, number}, value);
}

void LoadRow(CSettingsStore& store, sChartSettings& settings, const sSettingRow& row)
{
    switch (row.Form) {
    case SettingForm::Single:
    case SettingForm::Unnamed:
        LoadSingle(store, settings, row);
        break;
    case SettingForm::DataTypeList:
    case SettingForm::PeriodList:
        LoadList(store, settings, row);
        break;
    case SettingForm::PaneCount:
        LoadPaneStack(store, settings.Panes, row);
        break;
    case SettingForm::Indexed:
        LoadIndexed(store, settings, row);
        break;
    case SettingForm::OldIndexed:
    case SettingForm::SheetOnly:
    case SettingForm::Unused:
        break;
    }
    auto& panes = settings.Panes;
    if (row.Id == MaximizedId && (panes.MaximizedIndex < 0 || panes.MaximizedIndex > panes.StudyCount))
        panes.MaximizedIndex = NoMaximizedPane;
}

} // namespace

sChartSettings DefaultChartSettings(const std::string& today)
{
    sChartSettings settings;
    settings.Request.BeginDates.fill(today);
    settings.Request.EndDates.fill(today);
    return settings;
}

bool LoadList(CSettingsStore& store, sChartSettings& settings, const sSettingRow& row)
{
    return row.Form == SettingForm::PeriodList ? LoadPeriodList(store, settings, row)
                                               : LoadDataTypeList(store, settings, row);
}

sChartSettings LoadChartSettings(ISettingsKey& key, const std::string& today)
{
    CSettingsStore store(key);
    sChartSettings settings = DefaultChartSettings(today);
    for (const sSettingRow& row : SettingsTable())
        LoadRow(store, settings, row);
    return settings;
}

} // namespace zantroq
