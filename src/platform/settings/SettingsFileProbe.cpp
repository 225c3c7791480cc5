#include "platform/settings/SettingsFileProbe.h"

#include "platform/TemporaryFile.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sqlite3.h>
#include <string_view>
#include <sys/stat.h>
#include <system_error>

namespace zantroq {
namespace {

// Byte offsets in the headers of a database and of a rollback journal.
constexpr std::string_view Magic("SQLite format 3\0", 16);
constexpr std::size_t HeaderSize = 100, PageSizeAt = 16, ApplicationIdAt = 68;
constexpr std::size_t FirstCellCountAt = HeaderSize + 3; // of the table of tables, on the first page
constexpr std::size_t JournalHeaderSize = 28, JournalPagesAt = 16;

std::uint32_t NumberAt(std::string_view bytes, std::size_t place, std::size_t count)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < count; ++i)
        number = number << 8 | static_cast<unsigned char>(bytes[place + i]);
    return number;
}

// Reads the raw bytes of a database file through SQLite.
class CRawFile
{
public:
    explicit CRawFile(const std::string& path)
    {
        if (sqlite3_open_v2(ImmutableUri(path).c_str(), &m_db,
                            SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX,
                            nullptr) == SQLITE_OK)
            sqlite3_file_control(m_db, "main", SQLITE_FCNTL_FILE_POINTER, &m_file);
        if (m_file && m_file->pMethods && m_file->pMethods->xFileSize(m_file, &m_size) != SQLITE_OK)
            m_file = nullptr;
    }
    ~CRawFile() { sqlite3_close(m_db); }
    CRawFile(const CRawFile&) = delete;
    CRawFile& operator=(const CRawFile&) = delete;

    bool IsOpen() const { return m_file && m_file->pMethods; }
    std::int64_t Size() const { return m_size; }
    // The first `most` bytes, or all if there are fewer. Empty optional on a read error.
    std::optional<std::string> Bytes(std::int64_t most) const
    {
        std::string bytes(static_cast<std::size_t>(std::min(most, Size())), '\0');
        if (bytes.empty() ||
            m_file->pMethods->xRead(m_file, bytes.data(), static_cast<int>(bytes.size()), 0) == SQLITE_OK)
            return bytes;
        return std::nullopt;
    }

private:
    sqlite3* m_db = nullptr;
    sqlite3_file* m_file = nullptr;
    sqlite3_int64 m_size = 0;
};

struct sJournal
{
    bool IsHot = false;         // SQLite would play it back
    bool IsOfEmptyFile = false; // playing it back makes the file empty
};

sJournal JournalOf(const std::string& path)
{
    std::ifstream file(path + "-journal", std::ios::binary);
    std::string header(JournalHeaderSize, '\0');
    file.read(header.data(), static_cast<std::streamsize>(header.size()));
    // SQLite overwrites the header of a finished journal with zeroes.
    if (file.gcount() == 0 || header[0] == '\0')
        return {};
    return {true, static_cast<std::size_t>(file.gcount()) == header.size() &&
                      NumberAt(header, JournalPagesAt, 4) == 0};
}

// True for a file whose creation is in progress or was interrupted: one page without a table.
bool HasNoTables(const CRawFile& file)
{
    const auto start = file.Bytes(FirstCellCountAt + 2);
    return start && start->size() == FirstCellCountAt + 2 && NumberAt(*start, FirstCellCountAt, 2) == 0 &&
           file.Size() == NumberAt(*start, PageSizeAt, 2);
}

bool CopyLog(const std::string& from, const std::string& to)
{
    std::ifstream source(from, std::ios::binary);
    std::ofstream target(to, std::ios::binary);
    target << source.rdbuf() << std::flush;
    return source && target;
}

} // namespace

std::string FollowedPath(const std::string& path)
{
    std::error_code error;
    const auto followed = std::filesystem::canonical(path, error);
    return error ? path : followed.string();
}

std::string ImmutableUri(const std::string& path)
{
    static constexpr char Digits[] = "0123456789abcdef";
    std::string address = "file:";
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '/')
            address += c;
        else
            address += {'%', Digits[byte >> 4], Digits[byte & 15]};
    }
    return address + "?immutable=1&mode=ro";
}

bool HasPendingLog(const std::string& followedPath)
{
    struct stat about
    {
    };
    return ::stat((followedPath + "-wal").c_str(), &about) == 0 && about.st_size > 0;
}

SettingsProbe ProbeSettings(const std::string& followedPath)
{
    // Logs before the file: if another process is creating the file, it has grown before its log exists.
    const bool hasLog = HasPendingLog(followedPath);
    const sJournal journal = JournalOf(followedPath);
    const CRawFile file(followedPath);
    if (!file.IsOpen())
        return SettingsProbe::Usable;
    if (file.Size() == 0)
        return hasLog || (journal.IsHot && !journal.IsOfEmptyFile) ? SettingsProbe::CutOff
                                                                   : SettingsProbe::Usable;
    const auto header = file.Bytes(HeaderSize);
    if (!header)
        return SettingsProbe::Usable;
    if (header->size() < HeaderSize || !header->starts_with(Magic))
        return SettingsProbe::Noise;
    const std::uint32_t application = NumberAt(*header, ApplicationIdAt, 4);
    if (application == SettingsApplicationId)
        return SettingsProbe::Usable;
    if (application != 0)
        return SettingsProbe::Foreign;
    // The header names no application. The header of a settings file whose creation is still in its log
    // looks the same. A hot journal would be played back before its contents could be checked.
    return !journal.IsHot || (journal.IsOfEmptyFile && HasNoTables(file)) ? SettingsProbe::Usable
                                                                          : SettingsProbe::Foreign;
}

CSettingsCopy::CSettingsCopy(const std::string& followedPath)
{
    std::string pattern = (std::filesystem::path(TemporaryFolder()) / "zantroq-settings-XXXXXX").string();
    if (!::mkdtemp(pattern.data()))
        return;
    m_folder = pattern;
    const std::string target = m_folder + "/settings.db";
    const CRawFile file(followedPath);
    const auto bytes = file.IsOpen() ? file.Bytes(file.Size()) : std::nullopt;
    if (!bytes || !CopyLog(followedPath + "-wal", target + "-wal"))
        return;
    if (std::ofstream copy(target, std::ios::binary); copy << *bytes << std::flush)
        m_path = target;
}

CSettingsCopy::~CSettingsCopy()
{
    std::error_code error;
    if (!m_folder.empty())
        std::filesystem::remove_all(m_folder, error);
}

} // namespace zantroq
