// The settings file: an SQLite database of keys, each with named values of three types. For programs that
// report errors; the chart uses ISettingsKey, which reports none.
//
// The file is in write-ahead mode. Every write is one short transaction, so several processes may use the
// file at once and a crash at any moment leaves every finished write readable. Nothing is created before the
// first write. A damaged file and a database of another program are never written to.
//
// One thread at a time. The connection stays open between calls; the next call detects that the file was
// replaced or removed.
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
    NoPlace,     // no path for the file is known
    Unreadable,  // no permission to read, or not a plain file
    Unwritable,  // no permission to write, disk full, folder cannot be made
    Locked,      // another process held the lock longer than the patience
    Damaged,     // not a database, or one with broken pages
    NotSettings, // an intact database of another program or of a later format
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

enum class Durability
{
    LossOfPower, // a write has reached the disk when its call returns
    Crash        // a write survives the end of the process; the caller has the log synced (CSettingsLogSync)
};

class CSettingsFile
{
public:
    explicit CSettingsFile(std::string path, std::chrono::milliseconds patience = std::chrono::seconds(5),
                           Durability durability = Durability::LossOfPower);
    ~CSettingsFile();
    CSettingsFile(const CSettingsFile&) = delete;
    CSettingsFile& operator=(const CSettingsFile&) = delete;

    const std::string& Path() const { return m_path; }
    // False when there is no file yet. Reads of a missing file find nothing and report no error.
    bool Exists() const;
    // Sets how long a call waits for the locks of other processes.
    void SetPatience(std::chrono::milliseconds patience);

    // All of these throw CSettingsFileError.
    std::optional<SettingValue> Read(std::string_view key, std::string_view name);
    void Write(std::string_view key, std::string_view name, const SettingValue& value);
    bool Delete(std::string_view key, std::string_view name); // whether the value existed
    std::size_t DeleteAll(std::string_view key);              // number of deleted values
    SettingValues List(std::string_view key);
    SettingsTree ReadAll();                  // all keys in one consistent snapshot
    void WriteAll(const SettingsTree& tree); // in one transaction; other values stay

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

    // False when there is nothing to read; never false for Access::Write.
    bool Open(Access access);
    bool FindPlainFile(Access access) const; // false: no file. Throws for anything but a plain file.
    void MakeFolder() const;
    void FindTable(Access access); // sets m_hasTable; creates the table for Access::Write
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
    bool IsDiskFull() const; // the cause of the last failure
    [[noreturn]] void FailFull();
    [[noreturn]] void FailForeign();
    [[noreturn]] void Fail(int code, Access access);

    const std::string m_path;
    std::chrono::milliseconds m_patience;
    const Durability m_durability;
    sqlite3* m_db = nullptr;
    // Prepared statements by their text, kept while the connection is open.
    std::map<std::string, sqlite3_stmt*, std::less<>> m_statements;
    bool m_hasTable = false;
    bool m_reopen = false;                   // a call failed: the next call reopens the file
    bool m_readOnly = false;                 // opened Immutable or as a copy, because it cannot be written
    std::uint64_t m_device = 0, m_inode = 0; // identify the open file
};

} // namespace zantroq
