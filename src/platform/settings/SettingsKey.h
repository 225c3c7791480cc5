// One key of the per-user settings: named values of three types. All other code reads and writes settings
// only through this interface, so that tests can use a map in memory.
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
    Missing,    // the store has no such value
    Unreadable, // the store could not be read, so the value may exist
};

// The result of reading one value. After either failure the caller may use a default, but may store that
// default only if the value is Missing.
class CSettingRead
{
public:
    CSettingRead(SettingValue value) : m_result(ReadResult::Found), m_value(std::move(value)) {}
    static CSettingRead Missing() { return CSettingRead(ReadResult::Missing); }
    static CSettingRead Unreadable() { return CSettingRead(ReadResult::Unreadable); }

    ReadResult Result() const { return m_result; }
    explicit operator bool() const { return m_result == ReadResult::Found; }
    const SettingValue& operator*() const { return m_value; } // only if a value was found
    // The value if one of this type was found, else null.
    template<class Type> const Type* As() const { return *this ? std::get_if<Type>(&m_value) : nullptr; }

    bool operator==(const CSettingRead&) const = default;

private:
    explicit CSettingRead(ReadResult failure) : m_result(failure) {}

    ReadResult m_result;
    SettingValue m_value; // the empty text if no value was found
};

// Names are exact: trailing blanks, slashes, '%' and the empty name are valid. Errors are not reported: a
// write that fails returns false. Any thread; calls are independent of one another.
class ISettingsKey
{
public:
    virtual ~ISettingsKey() = default;
    virtual CSettingRead Read(std::string_view name) = 0;
    virtual bool Write(std::string_view name, const SettingValue& value) = 0;
    virtual bool Delete(std::string_view name) = 0; // true if the value existed and is deleted
    // Sorted by name; empty if the store could not be read.
    virtual std::vector<std::pair<std::string, SettingValue>> List() = 0;
    // Whether later calls may wait for other processes, which is so at first. Callers that will retry set it
    // to false.
    virtual void SetWaiting(bool) {}
};

inline constexpr const char* ChartSettingsKey = "Software\\Zantro\\Zantroq\\Applications\\Chart";
inline constexpr const char* FeedSettingsKey = "Software\\Zantro\\Quovex\\Startup";

// Opens a key of the user's settings file ($ZANTROQ_SETTINGS, else $XDG_CONFIG_HOME/zantroq/settings.db, else
// ~/.config/zantroq/settings.db).
//
// Nothing is created before the first write. In a missing file all values are Missing. In a locked or damaged
// file, or one without permission to read, all are Unreadable. A read-only file is read, and writes to it
// fail. If another process holds the file locked, a call waits at most three seconds, and calls in the next
// ten seconds do not wait. The same holds for writes while another process is writing; reads succeed then.
std::unique_ptr<ISettingsKey> OpenSettingsKey(std::string keyPath);

// The same for a given file.
std::unique_ptr<ISettingsKey> OpenSettingsKey(std::string filePath, std::string keyPath);

// A key in memory, which nothing outlives. For tests and for hosts that want no stored settings.
std::unique_ptr<ISettingsKey> MakeMemorySettingsKey();

} // namespace zantroq
