// One key of the per-user settings: named values of three types. The only door to where settings are kept, so
// that the rest of the system can be tested with a map in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace zantroq {

// REG_SZ, REG_DWORD, REG_BINARY.
using SettingValue = std::variant<std::string, std::uint32_t, std::vector<std::uint8_t>>;

enum class ReadResult
{
    Found,
    Missing,    // surely not there
    Unreadable, // the store could not be read: the value may be there all the same
};

// What came of reading one value. Whoever does without one may run on a default after either kind of failure,
// but may store that default only where the value is missing.
class CSettingRead
{
public:
    CSettingRead(SettingValue value) : m_result(ReadResult::Found), m_value(std::move(value)) {}
    static CSettingRead Missing() { return CSettingRead(ReadResult::Missing); }
    static CSettingRead Unreadable() { return CSettingRead(ReadResult::Unreadable); }

    ReadResult Result() const { return m_result; }
    explicit operator bool() const { return m_result == ReadResult::Found; }
    const SettingValue& operator*() const { return m_value; } // of one that was found
    // The value where one of this type was found, else null.
    template<class Type> const Type* As() const { return *this ? std::get_if<Type>(&m_value) : nullptr; }

    bool operator==(const CSettingRead&) const = default;

private:
    explicit CSettingRead(ReadResult failure) : m_result(failure) {}

    ReadResult m_result;
    SettingValue m_value; // the empty text where none was found
};

// Names are exact: trailing blanks, slashes, '%' and the empty name are all legal. Nothing is reported: a
// write that cannot be done is skipped in silence and answers false. Any thread; each call stands alone.
class ISettingsKey
{
public:
    virtual ~ISettingsKey() = default;
    virtual CSettingRead Read(std::string_view name) = 0;
    virtual bool Write(std::string_view name, const SettingValue& value) = 0;
    virtual bool Delete(std::string_view name) = 0; // whether a value was there and is gone now
    // In name order; empty where the store could not be read.
    virtual std::vector<std::pair<std::string, SettingValue>> List() = 0;
    // Whether the calls from now on may wait for other processes; at first they may. For who will try again.
    virtual void SetWaiting(bool) {}
};

inline constexpr const char* ChartSettingsKey = "Software\\Zantro\\Zantroq\\Applications\\Chart";
inline constexpr const char* FeedSettingsKey = "Software\\Zantro\\Quovex\\Startup";

// The key in the user's settings file ($ZANTROQ_SETTINGS, else $XDG_CONFIG_HOME/zantroq/settings.db, else
// ~/.config/zantroq/settings.db).
//
// Nothing is created before the first write. In a missing file all values are missing; in a locked or damaged
// one, or one that may not be read, all are unreadable; a read-only one is read, and what cannot be written
// is skipped. While another process holds the file locked, a call waits three seconds at most, and the calls
// of the ten seconds after it do not wait. That holds for writes while another process is writing, too,
// though reads go on then.
std::unique_ptr<ISettingsKey> OpenSettingsKey(std::string keyPath);

// The same in a file of the caller's choice.
std::unique_ptr<ISettingsKey> OpenSettingsKey(std::string filePath, std::string keyPath);

// A key in memory: nothing is kept. For tests and for hosts that want no stored settings.
std::unique_ptr<ISettingsKey> MakeMemorySettingsKey();

} // namespace zantroq
