// The settings file: an SQLite data base of keys, each with named values of three types. This is the door for
// programs that want to know what went wrong; the chart uses ISettingsKey, which is silent.
//
// The file is in write-ahead mode. Every write is one short transaction, so several processes may use the
// file at once and a crash at any moment leaves every finished write readable. Nothing is created before the
// first write. A file that is damaged, or that is some other program's data base, is never written to.
//
// One thread at a time. The connection stays open between calls; a file that was replaced or removed
// meanwhile is noticed at the next call.
#pragma once

#include "platform/settings/SettingsKey.h"

#include <chrono>
#include <cstddef>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace zantroq {

enum class SettingsProblem
{
    NoPlace,     // no path to put the file at
    Unreadable,  // no permission to read, or not a plain file
    Unwritable,  // no permission to write, disk full, folder cannot be made
    Locked,      // another process held it longer than the patience allows
    Damaged,     // not a data base, or one with broken pages
    NotSettings, // a sound data base, but not one of ours or of a later format
};

// One sentence that names the file and what is wrong with it.
class CSettingsFileError : public std::runtime_error
{
public:
    CSettingsFileError(SettingsProblem problem, const std::string& text)
        : std::runtime_error(text), Problem(problem)
    {
    }
    const SettingsProblem Problem;
};

using SettingValues = std::map<std::string, SettingValue>; // by name, in byte order
using SettingsTree = std::map<std::string, SettingValues>; // by key path

class CSettingsFile
{
public:
    explicit CSettingsFile(std::string path, std::chrono::milliseconds patience = std::chrono::seconds(5));
    ~CSettingsFile();
    CSettingsFile(const CSettingsFile&) = delete;
    CSettingsFile& operator=(const CSettingsFile&) = delete;

    const std::string& Path() const { return m_path; }
    // False when there is no file yet; every read then finds nothing, which is no error.
    bool Exists() const;
    // How long a call waits for other processes.
    void SetPatience(std::chrono::milliseconds patience);

    // All of these throw CSettingsFileError.
    std::optional<SettingValue> Read(std::string_view key, std::string_view name);
    void Write(std::string_view key, std::string_view name, const SettingValue& value);
    bool Delete(std::string_view key, std::string_view name); // whether there was such a value
    std::size_t DeleteAll(std::string_view key);              // how many there were
    SettingValues List(std::string_view key);
    SettingsTree ReadAll();                  // all keys as they were at one moment
    void WriteAll(const SettingsTree& tree); // one transaction: all of it or nothing; other values stay

private:
    enum class Access
    {
        Read,
        Write
    };
    class CStatement;
    class CTransaction;

    enum class OpenMode
    {
        Normal,
        Immutable // without locks and logs
    };

    bool Open(Access access); // false: no file, and only reading was asked for
    void OpenHandle(Access access, bool exists);
    void OpenConnection(OpenMode mode, const std::string& path, Access access);
    void OpenCopy(const std::string& followed);
    void RefuseSideFiles(const std::string& followed);
    void RefuseByProbe(const std::string& followed);
    void CheckContents(Access access);
    void CreateContents();
    void Close();
    bool SameFile() const;
    void Execute(const char* sql, Access access);
    sqlite3_stmt* Prepared(const char* sql, Access access);
    void Insert(std::string_view key, std::string_view name, const SettingValue& value);
    [[noreturn]] void FailForeign();
    [[noreturn]] void Fail(int code, Access access);

    const std::string m_path;
    std::chrono::milliseconds m_patience;
    sqlite3* m_db = nullptr;
    std::map<std::string, sqlite3_stmt*, std::less<>>
        m_statements; // by their text, for the life of the connection
    bool m_hasTable = false;
    bool m_reopen = false;   // something failed: look at the file afresh
    bool m_readOnly = false; // opened without locks or as a copy, because it cannot be written where it is
    std::uint64_t m_device = 0, m_inode = 0; // which file the connection is on
};

} // namespace zantroq
