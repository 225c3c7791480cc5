// Preloaded into a program under test: no plain file can grow by a byte, as on a full disk. Descriptors of
// other kinds work.
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

bool IsFull(int descriptor)
{
    struct stat about
    {
    };
    const bool full = fstat(descriptor, &about) == 0 && S_ISREG(about.st_mode);
    errno = full ? ENOSPC : errno;
    return full;
}

} // namespace

extern "C" {

ssize_t write(int descriptor, const void* bytes, size_t count)
{
    // Messages go to standard error, which may be a file.
    return descriptor > STDERR_FILENO && IsFull(descriptor)
               ? -1
               : static_cast<ssize_t>(syscall(SYS_write, descriptor, bytes, count));
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset)
{
    return IsFull(descriptor) ? -1
                              : static_cast<ssize_t>(syscall(SYS_pwrite64, descriptor, bytes, count, offset));
}

ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset)
{
    return pwrite64(descriptor, bytes, count, offset);
}

} // extern "C"
