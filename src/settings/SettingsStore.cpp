#include "settings/SettingsStore.h"

#include "settings/SettingsTable.h"
#include "settings/StoredNumber.h"

namespace zantroq {
namespace {

template<class Number>
ReadResult ReadNumber(CSettingsStore& store, std::string_view name, Number& out,
                      Number (*parse)(std::string_view), Number missing)
{
    std::string text;
    if (const ReadResult result = store.ReadString(name, text); result != ReadResult::Found)
        return result;
    const Number value = parse(text);
    if (value == missing)
        return ReadResult::Missing;
    out = value;
    return ReadResult::Found;
}

} // namespace

std::string GetSettingsKeyPath()
{
    return ChartSettingsKey;
}

ReadResult CSettingsStore::ReadString(std::string_view name, std::string& out)
{
    const CSettingRead read = m_key.Read(name);
    const auto* text = read.As<std::string>();
    if (!text)
        return read.Result() == ReadResult::Unreadable ? ReadResult::Unreadable : ReadResult::Missing;
    out.assign(*text, 0, StoredTextLength);
    return ReadResult::Found;
}

ReadResult CSettingsStore::ReadInt(std::string_view name, std::int32_t& out)
{
    return ReadNumber(*this, name, out, ParseStoredInt, MissingInt);
}

ReadResult CSettingsStore::ReadDouble(std::string_view name, double& out)
{
    return ReadNumber(*this, name, out, ParseStoredDouble, MissingDouble);
}

std::int32_t CSettingsStore::ReadInt(std::string_view name)
{
    std::int32_t value = MissingInt;
    ReadInt(name, value);
    return value;
}

double CSettingsStore::ReadDouble(std::string_view name)
{
    double value = MissingDouble;
    ReadDouble(name, value);
    return value;
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

void CSettingsStore::FillIn(std::string_view name, std::int32_t value)
{
    if (std::int32_t stored = 0; ReadInt(name, stored) == ReadResult::Missing)
        WriteInt(name, value);
}

std::int32_t CSettingsStore::LoadInt(int id, std::int32_t defaultValue)
{
    std::int32_t value = defaultValue;
    if (ReadInt(SettingName(id), value) == ReadResult::Missing)
        WriteInt(SettingName(id), defaultValue);
    return value;
}

double CSettingsStore::LoadDouble(int id, double defaultValue)
{
    double value = defaultValue;
    if (ReadDouble(SettingName(id), value) == ReadResult::Missing)
        WriteDouble(SettingName(id), defaultValue);
    return value;
}

bool CSettingsStore::LoadBool(int id, bool defaultValue)
{
    std::int32_t value = 0;
    const ReadResult result = ReadInt(SettingName(id), value);
    if (result == ReadResult::Found && (value == 0 || value == 1))
        return value == 1;
    if (result != ReadResult::Unreadable)
        WriteInt(SettingName(id), defaultValue ? 1 : 0);
    return defaultValue;
}

} // namespace zantroq
