#include "platform/SyncToDisk.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zantroq {
namespace {

bool SyncOpened(int descriptor, mode_t type)
{
    if (descriptor < 0)
        return false;
    struct stat about
    {
    };
    int error = 0;
    if (::fstat(descriptor, &about) != 0)
        error = errno;
    else if ((about.st_mode & S_IFMT) != type)
        error = EINVAL;
    else if (::fsync(descriptor) != 0)
        error = errno;
    ::close(descriptor);
    errno = error;
    return error == 0;
}

} // namespace

bool SyncFile(const std::string& path)
{
    return SyncOpened(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC), S_IFREG);
}

bool SyncFolder(const std::string& path)
{
    return SyncOpened(::open(path.empty() ? "." : path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), S_IFDIR);
}

} // namespace zantroq
