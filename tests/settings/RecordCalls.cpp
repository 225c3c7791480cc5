// Preloaded into a program under test: records every system call that changes files or syncs them to the disk,
// in order, in the file that RECORD_CALLS names; CRecordedDisk plays the record back. Its own code calls the kernel
// directly, so that nothing is recorded twice.
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

// One record: kind, descriptor, offset, length of the text, text. The text is a path or the written bytes.
void Record(char kind, std::int64_t descriptor, std::int64_t offset, const void* text, std::size_t length)
{
    const int error = errno;
    if (const char* const file = std::getenv("RECORD_CALLS")) {
        const auto log = syscall(SYS_openat, AT_FDCWD, file, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
        const std::int64_t numbers[3] = {descriptor, offset, static_cast<std::int64_t>(length)};
        syscall(SYS_write, log, &kind, 1);
        syscall(SYS_write, log, numbers, sizeof numbers);
        syscall(SYS_write, log, text, length);
        syscall(SYS_close, log);
    }
    errno = error;
}

void RecordPath(char kind, std::int64_t descriptor, const char* path)
{
    Record(kind, descriptor, 0, path, std::strlen(path));
}

// The descriptor's position; -1 for a pipe.
std::int64_t Position(int descriptor)
{
    return syscall(SYS_lseek, descriptor, 0, SEEK_CUR);
}

int Open(const char* path, int flags, mode_t mode)
{
    const bool existed = syscall(SYS_faccessat, AT_FDCWD, path, F_OK) == 0;
    const int file = static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
    struct stat about
    {
    };
    if (file >= 0)
        RecordPath(fstat(file, &about) == 0 && S_ISDIR(about.st_mode) ? 'd'
                   : existed                                          ? 'o'
                                                                      : 'c',
                   file, path);
    if (file >= 0 && (flags & O_TRUNC))
        Record('t', file, 0, "", 0);
    return file;
}

template<class Result> Result Checked(Result result, char kind, int descriptor)
{
    if (result == 0)
        Record(kind, descriptor, 0, "", 0);
    return result;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = static_cast<mode_t>(va_arg(rest, unsigned));
    va_end(rest);
    return Open(path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = static_cast<mode_t>(va_arg(rest, unsigned));
    va_end(rest);
    return Open(path, flags, mode);
}

ssize_t write(int descriptor, const void* bytes, size_t count)
{
    const std::int64_t offset = Position(descriptor);
    const auto written = static_cast<ssize_t>(syscall(SYS_write, descriptor, bytes, count));
    if (written > 0 && offset >= 0)
        Record('w', descriptor, offset, bytes, static_cast<std::size_t>(written));
    return written;
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset)
{
    const auto written = static_cast<ssize_t>(syscall(SYS_pwrite64, descriptor, bytes, count, offset));
    if (written > 0)
        Record('w', descriptor, offset, bytes, static_cast<std::size_t>(written));
    return written;
}

ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset)
{
    return pwrite64(descriptor, bytes, count, offset);
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    const int result = static_cast<int>(syscall(SYS_ftruncate, descriptor, size));
    if (result == 0)
        Record('t', descriptor, size, "", 0);
    return result;
}

int ftruncate(int descriptor, off_t size) noexcept
{
    return ftruncate64(descriptor, size);
}

int fsync(int descriptor)
{
    return Checked(static_cast<int>(syscall(SYS_fsync, descriptor)), 's', descriptor);
}

int fdatasync(int descriptor)
{
    return Checked(static_cast<int>(syscall(SYS_fdatasync, descriptor)), 's', descriptor);
}

int unlink(const char* path) noexcept
{
    const int result = static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
    if (result == 0)
        RecordPath('u', -1, path);
    return result;
}

int mkdir(const char* path, mode_t mode) noexcept
{
    const int result = static_cast<int>(syscall(SYS_mkdirat, AT_FDCWD, path, mode));
    if (result == 0)
        RecordPath('m', -1, path);
    return result;
}

} // extern "C"
