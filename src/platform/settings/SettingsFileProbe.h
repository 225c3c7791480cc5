// Classifies a settings file before SQLite opens it as a database. Opening may write: SQLite plays back a
// rollback journal, and closing moves a log into the file. A file of another program must therefore be
// detected first.
//
// These functions change no file and keep the process's locks: they read through SQLite, because closing
// another descriptor of the file would release every lock that the process holds on it. Any thread.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace zantroq {

inline constexpr std::uint32_t SettingsApplicationId = 0x5A545251; // "ZTRQ" in the header of the file

enum class SettingsProbe
{
    Usable,  // may be opened; its contents are not checked yet
    Noise,   // not a database
    CutOff,  // empty, but its log or journal has contents
    Foreign, // a database of another program
};

// Resolves symbolic links, because the logs are beside the target. Returns `path` if that fails.
std::string FollowedPath(const std::string& path);

// The SQLite URI that opens the file alone, read-only, without locks and logs.
std::string ImmutableUri(const std::string& path);

// Whether the file has a write-ahead log that is not empty.
bool HasPendingLog(const std::string& followedPath);

// Returns Usable for a file that cannot be read: opening it then reports the cause.
SettingsProbe ProbeSettings(const std::string& followedPath);

// A copy of a file and its write-ahead log in a folder that only this user can read; the destructor deletes
// it. SQLite cannot read a log in a folder that it cannot write to, but can read the copy.
class CSettingsCopy
{
public:
    explicit CSettingsCopy(const std::string& followedPath);
    ~CSettingsCopy();
    CSettingsCopy(const CSettingsCopy&) = delete;
    CSettingsCopy& operator=(const CSettingsCopy&) = delete;

    const std::string& Path() const { return m_path; } // empty if the copy failed

private:
    std::string m_folder, m_path;
};

} // namespace zantroq
