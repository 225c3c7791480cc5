#include "platform/settings/SettingsFile.h"

#include "platform/settings/SettingsStatement.h"

#include <sys/stat.h>

namespace zantroq {

CSettingsFile::CSettingsFile(std::string path, std::chrono::milliseconds patience, Durability durability)
    : m_path(std::move(path)), m_patience(patience), m_durability(durability)
{
}

CSettingsFile::~CSettingsFile()
{
    Close();
}

bool CSettingsFile::Exists() const
{
    struct stat about
    {
    };
    return !m_path.empty() && ::stat(m_path.c_str(), &about) == 0;
}

void CSettingsFile::SetPatience(std::chrono::milliseconds patience)
{
    m_patience = patience;
    if (m_db)
        sqlite3_busy_timeout(m_db, static_cast<int>(patience.count()));
}

std::optional<SettingValue> CSettingsFile::Read(std::string_view key, std::string_view name)
{
    if (!Open(Access::Read))
        return std::nullopt;
    CStatement statement(*this, Access::Read, "SELECT type, value FROM setting WHERE key = ?1 AND name = ?2");
    statement.Text(1, key).Text(2, name);
    return statement.Step() ? statement.ValueAt(0, 1) : std::nullopt;
}

void CSettingsFile::Write(std::string_view key, std::string_view name, const SettingValue& value)
{
    Open(Access::Write);
    Insert(key, name, value);
}

bool CSettingsFile::Delete(std::string_view key, std::string_view name)
{
    if (!Open(Access::Read)) // deleting never creates the file
        return false;
    Open(Access::Write);
    CStatement statement(*this, Access::Write, "DELETE FROM setting WHERE key = ?1 AND name = ?2");
    statement.Text(1, key).Text(2, name).Step();
    return sqlite3_changes(m_db) > 0;
}

std::size_t CSettingsFile::DeleteAll(std::string_view key)
{
    if (!Open(Access::Read))
        return 0;
    Open(Access::Write);
    CStatement statement(*this, Access::Write, "DELETE FROM setting WHERE key = ?1");
    statement.Text(1, key).Step();
    return static_cast<std::size_t>(sqlite3_changes(m_db));
}

SettingValues CSettingsFile::List(std::string_view key)
{
    SettingValues values;
    if (!Open(Access::Read))
        return values;
    CStatement statement(*this, Access::Read, "SELECT name, type, value FROM setting WHERE key = ?1");
    statement.Text(1, key);
    while (statement.Step())
        if (auto value = statement.ValueAt(1, 2))
            values.insert_or_assign(statement.TextAt(0), std::move(*value));
    return values;
}

SettingsTree CSettingsFile::ReadAll()
{
    SettingsTree tree;
    if (!Open(Access::Read))
        return tree;
    CStatement statement(*this, Access::Read, "SELECT key, name, type, value FROM setting");
    while (statement.Step())
        if (auto value = statement.ValueAt(2, 3))
            tree[statement.TextAt(0)].insert_or_assign(statement.TextAt(1), std::move(*value));
    return tree;
}

void CSettingsFile::WriteAll(const SettingsTree& tree)
{
    Open(Access::Write);
    CTransaction transaction(*this);
    for (const auto& [key, values] : tree)
        for (const auto& [name, value] : values)
            Insert(key, name, value);
    transaction.Commit();
}

void CSettingsFile::Insert(std::string_view key, std::string_view name, const SettingValue& value)
{
    CStatement statement(*this, Access::Write,
                         "INSERT OR REPLACE INTO setting(key, name, type, value) VALUES(?1, ?2, ?3, ?4)");
    statement.Text(1, key).Text(2, name);
    if (const auto* text = std::get_if<std::string>(&value))
        statement.Number(3, StoredText).Text(4, *text);
    else if (const auto* number = std::get_if<std::uint32_t>(&value))
        statement.Number(3, StoredNumber).Number(4, *number);
    else
        statement.Number(3, StoredBinary).Binary(4, std::get<std::vector<std::uint8_t>>(value));
    statement.Step();
}

} // namespace zantroq
