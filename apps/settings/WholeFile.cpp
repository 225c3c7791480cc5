#include "WholeFile.h"

#include "platform/SyncToDisk.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace zantroq {
namespace {

constexpr std::size_t MostBytes = 64u << 20;

std::string Reason()
{
    return std::strerror(errno);
}

class CDescriptor
{
public:
    explicit CDescriptor(int number) : m_number(number) {}
    ~CDescriptor()
    {
        if (m_number > STDIN_FILENO)
            ::close(m_number);
    }
    CDescriptor(const CDescriptor&) = delete;
    CDescriptor& operator=(const CDescriptor&) = delete;
    int Number() const { return m_number; }

private:
    const int m_number;
};

bool WriteBytes(int descriptor, const std::string& text)
{
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t count = ::write(descriptor, text.data() + done, text.size() - done);
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            done += static_cast<std::size_t>(count);
    }
    return true;
}

std::string WriteInPlace(const std::string& path, const std::string& text)
{
    const CDescriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    return file.Number() >= 0 && WriteBytes(file.Number(), text) ? "" : Reason();
}

// The mode of a new file.
mode_t NewFileMode()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

} // namespace

std::string ReadWholeFile(const std::string& path, std::string& text)
{
    const CDescriptor file(path == "-" ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.Number() < 0)
        return Reason();
    char buffer[65536];
    for (;;) {
        const ssize_t count = ::read(file.Number(), buffer, sizeof buffer);
        if (count == 0)
            return "";
        if (count < 0 && errno != EINTR)
            return Reason();
        if (count > 0)
            text.append(buffer, static_cast<std::size_t>(count));
        if (text.size() > MostBytes)
            return "more than 64 MB";
    }
}

std::string WriteWholeFile(const std::string& path, const std::string& text)
{
    std::error_code error;
    const bool isLink = std::filesystem::is_symlink(path, error);
    const std::string target = isLink ? std::filesystem::weakly_canonical(path, error).string() : path;
    struct stat about
    {
    };
    const bool exists = ::stat(target.c_str(), &about) == 0;
    if (exists && S_ISDIR(about.st_mode))
        return std::strerror(EISDIR);
    if (exists && !S_ISREG(about.st_mode))
        return WriteInPlace(target, text);
    if (exists && ::access(target.c_str(), W_OK) != 0)
        return Reason();

    std::string beside = target + ".XXXXXX";
    std::string wrong;
    {
        const CDescriptor file(::mkstemp(beside.data()));
        if (file.Number() < 0)
            return Reason();
        if (::fchmod(file.Number(), exists ? about.st_mode & 07777 : NewFileMode()) != 0 ||
            !WriteBytes(file.Number(), text) || ::fsync(file.Number()) != 0)
            wrong = Reason();
    }
    if (wrong.empty() && ::rename(beside.c_str(), target.c_str()) != 0)
        wrong = Reason();
    if (!wrong.empty())
        ::unlink(beside.c_str());
    else
        SyncFolder(std::filesystem::path(target).parent_path().string());
    return wrong;
}

} // namespace zantroq
