// What can be told of a settings file before it is opened as a data base. Opening alone may write: a rollback
// journal is played back, and closing brings a log into the file. What is not ours must be known before that.
//
// Nothing here changes a file, and none of the process's locks on the file is lost: its bytes are read
// through SQLite, because closing a descriptor of one's own would give up every lock that the process has on
// it. Any thread.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace zantroq {

inline constexpr std::uint32_t SettingsApplicationId = 0x5A545251; // "ZTRQ" in the header of the file

enum class SettingsProbe
{
    Usable,  // nothing speaks against opening it; what is in it is still to be checked
    Noise,   // not a data base
    CutOff,  // empty, though a log or journal beside it tells of contents
    Foreign, // another program's data base
};

// The path of the file itself, links followed: there the logs stand.
std::string FollowedPath(const std::string& path);

// The path as an address under which SQLite reads the file alone, without locks and logs.
std::string ImmutableUri(const std::string& path);

// Whether a write-ahead log with something in it stands beside the file.
bool HasPendingLog(const std::string& followedPath);

// A file that cannot be read counts as usable: opening it says why.
SettingsProbe ProbeSettings(const std::string& followedPath);

// A copy of a file and its write-ahead log in a folder that only this user can look into, gone with the
// object. For a log in a place that cannot be written, where SQLite cannot read it.
class CSettingsCopy
{
public:
    explicit CSettingsCopy(const std::string& followedPath);
    ~CSettingsCopy();
    CSettingsCopy(const CSettingsCopy&) = delete;
    CSettingsCopy& operator=(const CSettingsCopy&) = delete;

    const std::string& Path() const { return m_path; } // empty where no copy could be made

private:
    std::string m_folder, m_path;
};

} // namespace zantroq
