// Reading and writing single values of a settings key: the raw operations by name, and the ones that look a
// value up by its string number and leave the default behind where it was missing. Nothing here fails: what
// cannot be read takes its default, which is then not stored; what cannot be written is up to the key. Lives
// on the chart window's thread.
#pragma once

#include "platform/settings/SettingsKey.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zantroq {

// Where the chart's settings stand.
std::string GetSettingsKeyPath();

// What the readers answer for a missing value. An integer setting therefore cannot hold -1.
inline constexpr std::int32_t MissingInt = -1;
inline constexpr double MissingDouble = -1.0;

inline constexpr std::size_t StoredTextLength = 256; // bytes of a text that are read

class CSettingsStore
{
public:
    explicit CSettingsStore(ISettingsKey& key) : m_key(key) {} // the key must outlive the store

    // Numbers are texts in the store. A value of another type than text is missing, and so is a number -1.
    // out is unchanged unless a value was found.
    ReadResult ReadInt(std::string_view name, std::int32_t& out);
    ReadResult ReadDouble(std::string_view name, double& out);
    ReadResult ReadString(std::string_view name, std::string& out);
    std::int32_t ReadInt(std::string_view name); // MissingInt when none was found
    double ReadDouble(std::string_view name);    // MissingDouble when none was found

    bool WriteInt(std::string_view name, std::int32_t value);
    bool WriteDouble(std::string_view name, double value); // "%f"
    bool WriteString(std::string_view name, std::string_view value);
    bool DeleteValue(std::string_view name); // whether there was one
    // Writes a number where none is stored, and only there.
    void FillIn(std::string_view name, std::int32_t value);

    // By string number. A missing value (one that reads as -1) is written with the default, which is then the
    // answer; it is the answer for one that could not be read, too, but is not written.
    std::int32_t LoadInt(int id, std::int32_t defaultValue);
    double LoadDouble(int id, double defaultValue);
    // 0 and 1 alone are booleans; for anything else the default is written and is the answer.
    bool LoadBool(int id, bool defaultValue);

    ISettingsKey& Key() { return m_key; }

private:
    ISettingsKey& m_key;
};

} // namespace zantroq
