// The connection of a settings file: opens the file, checks its contents, creates it and words the errors.
#include "platform/settings/SettingsFile.h"

#include "platform/SyncToDisk.h"
#include "platform/settings/SettingsFileProbe.h"
#include "platform/settings/SettingsStatement.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace zantroq {
namespace {

constexpr int FormatVersion = 1;

constexpr const char* TableText =
    "CREATE TABLE IF NOT EXISTS setting("
    "key TEXT NOT NULL, name TEXT NOT NULL, type INTEGER NOT NULL, value NOT NULL, "
    "PRIMARY KEY(key, name)) WITHOUT ROWID";

// The name of the folder reaches the disk, too: a synced file in it would be lost without.
bool MakeFolderSynced(const std::filesystem::path& folder)
{
    if (::mkdir(folder.c_str(), 0700) != 0)
        return errno == EEXIST;
    SyncFolder(folder.parent_path().string());
    return true;
}

// Settings folders are private to their user; std::filesystem::create_directories cannot set the mode.
bool MakeFolders(const std::filesystem::path& folder)
{
    if (folder.empty() || MakeFolderSynced(folder))
        return true;
    if (errno != ENOENT || folder == folder.root_path() || !MakeFolders(folder.parent_path()))
        return false;
    return MakeFolderSynced(folder);
}

} // namespace

// Returns true if the values can be read or written now.
bool CSettingsFile::Open(Access access)
{
    if (m_path.empty())
        throw CSettingsFileError(
            SettingsProblem::NoPlace,
            "no place for the settings file: neither ZANTROQ_SETTINGS, XDG_CONFIG_HOME nor "
            "HOME is set; set one of them");
    if (m_db && (m_reopen || m_readOnly || !SameFile()))
        Close();
    if (!m_db) {
        const bool exists = FindPlainFile(access);
        if (!exists && access == Access::Read)
            return false;
        if (!exists)
            MakeFolder();
        OpenHandle(access, exists);
    }
    FindTable(access);
    // The file is now known to be a settings file, so closing may move its log into it.
    if (m_hasTable)
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    return m_hasTable;
}

bool CSettingsFile::FindPlainFile(Access access) const
{
    struct stat about
    {
    };
    const bool exists = ::stat(m_path.c_str(), &about) == 0;
    if (!exists && errno == ENOTDIR)
        throw CSettingsFileError(
            access == Access::Write ? SettingsProblem::Unwritable : SettingsProblem::Unreadable,
            m_path + ": the settings file cannot be made there, because a part of its path is no folder; "
                     "set ZANTROQ_SETTINGS to another place");
    if (!exists && errno != ENOENT)
        throw CSettingsFileError(SettingsProblem::Unreadable,
                                 m_path + ": the settings file cannot be reached (" + std::strerror(errno) +
                                     "); check its permissions");
    if (exists && !S_ISREG(about.st_mode))
        throw CSettingsFileError(SettingsProblem::Unreadable,
                                 m_path + ": not a plain file; set ZANTROQ_SETTINGS to a settings file");
    return exists;
}

void CSettingsFile::MakeFolder() const
{
    if (!MakeFolders(std::filesystem::path(m_path).parent_path()))
        throw CSettingsFileError(SettingsProblem::Unwritable,
                                 m_path + ": the folder of the settings file cannot be made (" +
                                     std::strerror(errno) +
                                     "); set ZANTROQ_SETTINGS to "
                                     "a place that can be written");
}

void CSettingsFile::FindTable(Access access)
{
    if (access == Access::Write && m_readOnly)
        Fail(SQLITE_READONLY, access);
    if (access == Access::Write && !m_hasTable)
        CreateContents();
    if (!m_hasTable) // another process may have filled an empty file since the last check
        CheckContents(access);
}

void CSettingsFile::OpenHandle(Access access, bool exists)
{
    const std::string followed = FollowedPath(m_path);
    RefuseSideFiles(followed);
    if (exists)
        RefuseByProbe(followed);
    // A file that cannot be written is read without locks and without the two side files, which SQLite could
    // not create or would leave in place. A pending log can be read in the normal mode only; if that fails,
    // a copy of both is read.
    const bool hasLog = exists && HasPendingLog(followed);
    const bool immutable = exists && !hasLog && ::access(m_path.c_str(), W_OK) != 0;
    try {
        OpenConnection(immutable ? OpenMode::Immutable : OpenMode::Normal, m_path, access);
        return;
    } catch (const CSettingsFileError& error) {
        Close();
        const bool noAccess =
            error.Problem == SettingsProblem::Unreadable || error.Problem == SettingsProblem::Unwritable;
        if (immutable || !exists || access == Access::Write || !noAccess)
            throw;
    }
    try {
        if (hasLog)
            OpenCopy(followed);
        else
            OpenConnection(OpenMode::Immutable, m_path, access);
    } catch (...) {
        Close();
        throw;
    }
}

void CSettingsFile::OpenConnection(OpenMode mode, const std::string& path, Access access)
{
    m_readOnly = mode == OpenMode::Immutable;
    const int flags = m_readOnly ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI
                                 : SQLITE_OPEN_READWRITE | (access == Access::Write ? SQLITE_OPEN_CREATE : 0);
    const int code = sqlite3_open_v2((m_readOnly ? ImmutableUri(path) : path).c_str(), &m_db,
                                     flags | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code != SQLITE_OK) {
        Fail(m_db ? sqlite3_extended_errcode(m_db) : code, access);
    }
    sqlite3_extended_result_codes(m_db, 1);
    sqlite3_busy_timeout(m_db, static_cast<int>(m_patience.count()));
    // The file may come from an untrusted source: disable everything in it that could run.
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(m_db, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    // Closing must not move the log into the file before the file is known to be a settings file.
    if (HasPendingLog(FollowedPath(path)))
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    struct stat about
    {
    };
    if (::stat(m_path.c_str(), &about) == 0) {
        m_device = about.st_dev;
        m_inode = about.st_ino;
    }
    Execute(m_durability == Durability::LossOfPower ? "PRAGMA synchronous=FULL" : "PRAGMA synchronous=NORMAL",
            access);
    CheckContents(access);
}

// The copy is deleted from its folder before this call returns; the open connection can still read it.
void CSettingsFile::OpenCopy(const std::string& followed)
{
    const CSettingsCopy copy(followed);
    if (copy.Path().empty())
        throw CSettingsFileError(SettingsProblem::Unreadable,
                                 m_path + ": the settings file cannot be read together with the log beside "
                                          "it; allow reading both, and writing to their folder");
    OpenConnection(OpenMode::Normal, copy.Path(), Access::Read);
    m_readOnly = true;
}

// Opening a pipe or a device that has the name of a log or journal would block.
void CSettingsFile::RefuseSideFiles(const std::string& followed)
{
    for (const char* const ending : {"-journal", "-wal", "-shm"}) {
        struct stat about
        {
        };
        if (::stat((followed + ending).c_str(), &about) == 0 && !S_ISREG(about.st_mode))
            throw CSettingsFileError(SettingsProblem::Unreadable,
                                     followed + ending +
                                         ": not a plain file, so the settings file beside it is not opened; "
                                         "move it away");
    }
}

// Throws for a file that must not be opened, judged by its first bytes.
void CSettingsFile::RefuseByProbe(const std::string& followed)
{
    switch (ProbeSettings(followed)) {
    case SettingsProbe::Usable:
        return;
    case SettingsProbe::Noise:
        Fail(SQLITE_NOTADB, Access::Read);
    case SettingsProbe::CutOff:
        throw CSettingsFileError(SettingsProblem::Damaged,
                                 m_path +
                                     ": the settings file is damaged (it is empty, but a log beside it is "
                                     "not); both were left as they are, move them away or restore a copy");
    case SettingsProbe::Foreign:
        FailForeign();
    }
}

// Throws for a file that must not be written to, before the first write.
void CSettingsFile::CheckContents(Access access)
{
    if (CStatement check(*this, access, "PRAGMA quick_check(1)"); check.Step() && check.TextAt(0) != "ok")
        Fail(SQLITE_CORRUPT, access);
    const auto number = [&](const char* sql) {
        CStatement statement(*this, access, sql);
        return statement.Step() ? statement.NumberAt(0) : 0;
    };
    const auto objects = number("SELECT count(*) FROM sqlite_master");
    const auto application = number("PRAGMA application_id");
    m_hasTable = false;
    if (objects == 0 && (application == 0 || application == SettingsApplicationId))
        return;
    if (application != SettingsApplicationId ||
        number("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = 'setting'") != 1)
        FailForeign();
    if (const auto version = number("PRAGMA user_version"); version != FormatVersion)
        throw CSettingsFileError(SettingsProblem::NotSettings,
                                 m_path + ": the settings file has format " + std::to_string(version) +
                                     ", and this program knows format " + std::to_string(FormatVersion) +
                                     "; use a newer program");
    m_hasTable = true;
}

void CSettingsFile::CreateContents()
{
    // The change to write-ahead mode ignores the busy timeout, and two processes may create the file at once.
    const auto deadline = std::chrono::steady_clock::now() + m_patience;
    for (;;) {
        const int code = sqlite3_exec(m_db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
        if (code == SQLITE_OK)
            break;
        if ((code & 0xFF) != SQLITE_BUSY || std::chrono::steady_clock::now() >= deadline)
            Fail(sqlite3_extended_errcode(m_db), Access::Write);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    CTransaction transaction(*this);
    CheckContents(Access::Write);
    if (!m_hasTable) {
        Execute(TableText, Access::Write);
        Execute(("PRAGMA application_id=" + std::to_string(SettingsApplicationId)).c_str(), Access::Write);
        Execute(("PRAGMA user_version=" + std::to_string(FormatVersion)).c_str(), Access::Write);
    }
    transaction.Commit();
    m_hasTable = true;
}

void CSettingsFile::Close()
{
    for (const auto& [sql, statement] : m_statements)
        sqlite3_finalize(statement);
    m_statements.clear();
    sqlite3_close(m_db);
    m_db = nullptr;
    m_hasTable = false;
    m_reopen = false;
}

bool CSettingsFile::SameFile() const
{
    struct stat about
    {
    };
    return ::stat(m_path.c_str(), &about) == 0 && about.st_dev == m_device && about.st_ino == m_inode;
}

void CSettingsFile::Execute(const char* sql, Access access)
{
    if (sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        Fail(sqlite3_extended_errcode(m_db), access);
}

sqlite3_stmt* CSettingsFile::Prepared(const char* sql, Access access)
{
    if (const auto found = m_statements.find(sql); found != m_statements.end())
        return found->second;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(m_db, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        Fail(sqlite3_extended_errcode(m_db), access);
    m_statements.emplace(sql, statement);
    return statement;
}

void CSettingsFile::FailForeign()
{
    throw CSettingsFileError(
        SettingsProblem::NotSettings,
        m_path + ": this database is not a settings file; set ZANTROQ_SETTINGS to another file");
}

void CSettingsFile::FailFull()
{
    throw CSettingsFileError(SettingsProblem::Unwritable,
                             m_path + ": the disk of the settings file is full; make room on it");
}

// Reading needs room, too: for the index beside the file.
bool CSettingsFile::IsDiskFull() const
{
    const int cause = m_db ? sqlite3_system_errno(m_db) : 0;
    return cause == ENOSPC || cause == EDQUOT;
}

void CSettingsFile::Fail(int code, Access access)
{
    // The next call reopens the file. Closing it here would finalize statements that are in use.
    m_reopen = true;
    const std::string reason = std::string(" (") + sqlite3_errstr(code) + ")";
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw CSettingsFileError(
            SettingsProblem::Locked,
            m_path + ": the settings file is locked by another process; try again when that is done");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        throw CSettingsFileError(SettingsProblem::Damaged,
                                 m_path + ": the settings file is damaged" + reason +
                                     "; it was left as it is, move it away or restore a copy");
    case SQLITE_READONLY:
        if (access == Access::Read)
            throw CSettingsFileError(SettingsProblem::Unreadable,
                                     m_path + ": the settings file cannot be read" + reason +
                                         "; allow writing to it and to its folder");
        throw CSettingsFileError(
            SettingsProblem::Unwritable,
            m_path + ": the settings file is read-only; allow writing to it and to its folder");
    case SQLITE_FULL:
        FailFull();
    default:
        if (IsDiskFull())
            FailFull();
        if (access == Access::Write)
            throw CSettingsFileError(SettingsProblem::Unwritable,
                                     m_path + ": the settings file cannot be written" + reason +
                                         "; check the permissions of it and its folder");
        throw CSettingsFileError(SettingsProblem::Unreadable, m_path + ": the settings file cannot be read" +
                                                                  reason + "; check its permissions");
    }
}

} // namespace zantroq
