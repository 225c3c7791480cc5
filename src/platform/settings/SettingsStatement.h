// Statements and transactions on the settings file's connection. Only for CSettingsFile; one thread at a
// time.
#pragma once

#include "platform/settings/SettingsFile.h"

#include <limits>
#include <sqlite3.h>

namespace zantroq {

// Numbers of the value types in the file.
enum StoredType : int
{
    StoredText = 1,
    StoredBinary = 3,
    StoredNumber = 4
};

// A prepared statement in use; the destructor resets it for its next use.
class CSettingsFile::CStatement
{
public:
    CStatement(CSettingsFile& file, Access access, const char* sql)
        : m_file(file), m_access(access), m_handle(file.Prepared(sql, access))
    {
    }
    ~CStatement()
    {
        sqlite3_reset(m_handle);
        sqlite3_clear_bindings(m_handle);
    }
    CStatement(const CStatement&) = delete;
    CStatement& operator=(const CStatement&) = delete;

    CStatement& Text(int place, std::string_view text)
    {
        // A null pointer would bind NULL, which is not the empty text.
        Check(sqlite3_bind_text64(m_handle, place, text.data() ? text.data() : "", text.size(),
                                  SQLITE_TRANSIENT, SQLITE_UTF8));
        return *this;
    }
    CStatement& Number(int place, std::int64_t number)
    {
        Check(sqlite3_bind_int64(m_handle, place, number));
        return *this;
    }
    CStatement& Binary(int place, const std::vector<std::uint8_t>& bytes)
    {
        Check(bytes.empty()
                  ? sqlite3_bind_zeroblob(m_handle, place, 0)
                  : sqlite3_bind_blob64(m_handle, place, bytes.data(), bytes.size(), SQLITE_TRANSIENT));
        return *this;
    }

    bool Step()
    {
        const int code = sqlite3_step(m_handle);
        if (code == SQLITE_ROW)
            return true;
        if (code != SQLITE_DONE)
            m_file.Fail(code, m_access);
        return false;
    }

    std::int64_t NumberAt(int column) { return sqlite3_column_int64(m_handle, column); }
    std::string TextAt(int column)
    {
        const void* bytes = sqlite3_column_blob(m_handle, column);
        return bytes ? std::string(static_cast<const char*>(bytes), Size(column)) : std::string();
    }
    // Returns nothing for a type that this version does not know, and for a number that is not an integer or
    // exceeds 32 bits.
    std::optional<SettingValue> ValueAt(int typeColumn, int valueColumn)
    {
        switch (NumberAt(typeColumn)) {
        case StoredText:
            return TextAt(valueColumn);
        case StoredNumber: {
            const std::int64_t number = NumberAt(valueColumn);
            if (sqlite3_column_type(m_handle, valueColumn) != SQLITE_INTEGER || number < 0 ||
                number > std::numeric_limits<std::uint32_t>::max())
                return std::nullopt;
            return static_cast<std::uint32_t>(number);
        }
        case StoredBinary: {
            const auto* bytes = static_cast<const std::uint8_t*>(sqlite3_column_blob(m_handle, valueColumn));
            return bytes ? std::vector<std::uint8_t>(bytes, bytes + Size(valueColumn))
                         : std::vector<std::uint8_t>();
        }
        default:
            return std::nullopt;
        }
    }

private:
    void Check(int code)
    {
        if (code != SQLITE_OK)
            m_file.Fail(code, m_access);
    }
    std::size_t Size(int column) { return static_cast<std::size_t>(sqlite3_column_bytes(m_handle, column)); }

    CSettingsFile& m_file;
    const Access m_access;
    sqlite3_stmt* const m_handle;
};

// A transaction: either all writes before Commit take effect or, without Commit, none.
class CSettingsFile::CTransaction
{
public:
    explicit CTransaction(CSettingsFile& file) : m_file(file)
    {
        CStatement(file, Access::Write, "BEGIN IMMEDIATE").Step();
    }
    ~CTransaction()
    {
        if (!m_done)
            sqlite3_exec(m_file.m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    }
    CTransaction(const CTransaction&) = delete;
    CTransaction& operator=(const CTransaction&) = delete;
    void Commit()
    {
        CStatement(m_file, Access::Write, "COMMIT").Step();
        m_done = true;
    }

private:
    CSettingsFile& m_file;
    bool m_done = false;
};

} // namespace zantroq
