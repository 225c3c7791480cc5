#include "settings/SettingsStore.h"

#include "settings/SettingsTable.h"
#include "settings/StoredNumber.h"

namespace zantroq {

std::string GetSettingsKeyPath()
{
    return ChartSettingsKey;
}

std::int32_t CSettingsStore::ReadInt(std::string_view name)
{
    std::string text;
    return ReadString(name, text) ? ParseStoredInt(text) : MissingInt;
}

double CSettingsStore::ReadDouble(std::string_view name)
{
    std::string text;
    return ReadString(name, text) ? ParseStoredDouble(text) : MissingDouble;
}

bool CSettingsStore::ReadString(std::string_view name, std::string& out)
{
    const auto value = m_key.Read(name);
    const auto* text = value ? std::get_if<std::string>(&*value) : nullptr;
    if (!text)
        return false;
    out.assign(*text, 0, StoredTextLength);
    return true;
}

bool CSettingsStore::WriteInt(std::string_view name, std::int32_t value)
{
    return WriteString(name, TextFromInt(value));
}

bool CSettingsStore::WriteDouble(std::string_view name, double value)
{
    return WriteString(name, TextFromDouble(value));
}

bool CSettingsStore::WriteString(std::string_view name, std::string_view value)
{
    return m_key.Write(name, std::string(value));
}

bool CSettingsStore::DeleteValue(std::string_view name)
{
    return m_key.Delete(name);
}

std::int32_t CSettingsStore::LoadInt(int id, std::int32_t defaultValue)
{
    const std::int32_t value = ReadInt(SettingName(id));
    if (value != MissingInt)
        return value;
    WriteInt(SettingName(id), defaultValue);
    return defaultValue;
}

double CSettingsStore::LoadDouble(int id, double defaultValue)
{
    const double value = ReadDouble(SettingName(id));
    if (value != MissingDouble)
        return value;
    WriteDouble(SettingName(id), defaultValue);
    return defaultValue;
}

bool CSettingsStore::LoadBool(int id, bool defaultValue)
{
    const std::int32_t value = ReadInt(SettingName(id));
    if (value == 0 || value == 1)
        return value == 1;
    WriteInt(SettingName(id), defaultValue ? 1 : 0);
    return defaultValue;
}

} // namespace zantroq
