// Reads and writes single values of a settings key: operations by name, and Load operations by string number
// that store the default of a missing value. Nothing fails: a value that cannot be read gets its default,
// which is not stored; errors of writing are left to the key. Window's thread.
#pragma once

#include "platform/settings/SettingsKey.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zantroq {

// Path of the key with the chart's settings.
std::string GetSettingsKeyPath();

// The readers return these for a missing value. An integer setting therefore cannot hold -1.
inline constexpr std::int32_t MissingInt = -1;
inline constexpr double MissingDouble = -1.0;

inline constexpr std::size_t StoredTextLength = 256; // longest text that is read, in bytes

class CSettingsStore
{
public:
    explicit CSettingsStore(ISettingsKey& key) : m_key(key) {} // the key must outlive the store

    // Numbers are stored as texts. A value of another type counts as missing, and so does the number -1.
    // `out` is unchanged unless a value was found.
    ReadResult ReadInt(std::string_view name, std::int32_t& out);
    ReadResult ReadDouble(std::string_view name, double& out);
    ReadResult ReadString(std::string_view name, std::string& out);
    std::int32_t ReadInt(std::string_view name); // MissingInt if no value was found
    double ReadDouble(std::string_view name);    // MissingDouble if no value was found

    bool WriteInt(std::string_view name, std::int32_t value);
    bool WriteDouble(std::string_view name, double value); // "%f"
    bool WriteString(std::string_view name, std::string_view value);
    bool DeleteValue(std::string_view name); // true if the value existed
    // Writes the number if none is stored.
    void FillIn(std::string_view name, std::int32_t value);

    // By string number. A missing value (or the value -1) is stored as the default, which is
    // returned. If the value could not be read, the default is returned but not stored.
    std::int32_t LoadInt(int id, std::int32_t defaultValue);
    double LoadDouble(int id, double defaultValue);
    // Only 0 and 1 are valid; for anything else the default is stored and returned.
    bool LoadBool(int id, bool defaultValue);

    ISettingsKey& Key() { return m_key; }

private:
    ISettingsKey& m_key;
};

} // namespace zantroq
