// One key of the per-user settings: named values of three types. The only door to where settings are kept, so
// that the rest of the system can be tested with a map in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace zantroq {

// REG_SZ, REG_DWORD, REG_BINARY.
using SettingValue = std::variant<std::string, std::uint32_t, std::vector<std::uint8_t>>;

// Names are exact: trailing blanks, slashes, '%' and the empty name are all legal. A key that cannot be
// opened reads as all values missing, and a write that cannot be done is skipped in silence and answers
// false. Any thread; each call stands alone.
class ISettingsKey
{
public:
    virtual ~ISettingsKey() = default;
    virtual std::optional<SettingValue> Read(std::string_view name) = 0;
    virtual bool Write(std::string_view name, const SettingValue& value) = 0;
    virtual bool Delete(std::string_view name) = 0; // whether a value was there and is gone now
    virtual std::vector<std::pair<std::string, SettingValue>> List() = 0; // in name order
};

inline constexpr const char* ChartSettingsKey = "Software\\Zantro\\Zantroq\\Applications\\Chart";
inline constexpr const char* FeedSettingsKey = "Software\\Zantro\\Quovex\\Startup";

// The key in the user's settings file ($ZANTROQ_SETTINGS, else $XDG_CONFIG_HOME/zantroq/settings.db, else
// ~/.config/zantroq/settings.db).
//
// Nothing is created before the first write. A missing, unreadable, locked or damaged file reads as all
// values missing; a read-only one is read, and what cannot be written is skipped. While another process holds
// the file locked, a call waits three seconds at most, and the calls of the ten seconds after it do not wait.
// In the ten seconds after a read that failed nothing is written or deleted through this key, so that no
// default takes the place of a value that could only not be read.
std::unique_ptr<ISettingsKey> OpenSettingsKey(std::string keyPath);

// The same in a file of the caller's choice.
std::unique_ptr<ISettingsKey> OpenSettingsKey(std::string filePath, std::string keyPath);

// A key in memory: nothing is kept. For tests and for hosts that want no stored settings.
std::unique_ptr<ISettingsKey> MakeMemorySettingsKey();

} // namespace zantroq
