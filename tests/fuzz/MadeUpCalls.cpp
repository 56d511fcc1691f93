#include "MadeUpDisk.h"
#include "Require.h"

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#ifndef __THROW
#define __THROW
#endif

using drossbin::fuzz::MadeUpDisk;
using drossbin::fuzz::require;

namespace {

/// As the system's calls tell of an error.
template <class Result>
Result told(Result result) {
    if (result >= 0) {
        return result;
    }
    errno = static_cast<int>(-result);
    return -1;
}

} // namespace

// In front of the system's own, which they hand on to whatever is not of a made-up disk.

// NOLINTBEGIN: the names and signatures are the system's

extern "C" {

int openat(int folder, const char* name, int flags, ...) {
    if (auto* disk = MadeUpDisk::of(folder)) {
        return told(disk->open(folder, name, flags));
    }
    if (auto* disk = MadeUpDisk::of(std::string(name))) {
        return told(disk->openItem());
    }
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(arguments, unsigned int) : 0U;
    va_end(arguments);
    return static_cast<int>(::syscall(SYS_openat, folder, name, flags, mode));
}

int close(int file) {
    auto* disk = MadeUpDisk::of(file);
    return disk != nullptr ? disk->close(file) : static_cast<int>(::syscall(SYS_close, file));
}

ssize_t getdents64(int folder, void* records, size_t size) __THROW {
    auto* disk = MadeUpDisk::of(folder);
    return disk != nullptr ? told(disk->list(folder, static_cast<std::byte*>(records), size))
                           : ::syscall(SYS_getdents64, folder, records, size);
}

off_t lseek(int file, off_t place, int whence) __THROW {
    auto* disk = MadeUpDisk::of(file);
    return disk != nullptr ? disk->seek(file, place, whence)
                           : ::syscall(SYS_lseek, file, place, whence);
}

int fstatat(int folder, const char* name, struct stat* status, int flags) __THROW {
    auto* disk = MadeUpDisk::of(folder);
    require(disk == nullptr || (flags & AT_SYMLINK_NOFOLLOW) != 0, "no link is followed");
    return disk != nullptr
               ? told(disk->status(folder, name, *status))
               : static_cast<int>(::syscall(SYS_newfstatat, folder, name, status, flags));
}

int fstat(int file, struct stat* status) __THROW {
    auto* disk = MadeUpDisk::of(file);
    return disk != nullptr ? told(disk->status(file, "", *status))
                           : static_cast<int>(::syscall(SYS_fstat, file, status));
}

int statx(int folder, const char* name, int flags, unsigned int fields,
          struct statx* extended) __THROW {
    auto* disk = MadeUpDisk::of(folder);
    if (disk == nullptr) {
        return static_cast<int>(::syscall(SYS_statx, folder, name, flags, fields, extended));
    }
    struct stat status {};
    const int result = told(disk->status(folder, name, status));
    extended->stx_dev_major = ::major(status.st_dev);
    extended->stx_dev_minor = ::minor(status.st_dev);
    extended->stx_ino = status.st_ino;
    extended->stx_mnt_id = ::minor(status.st_dev);
    return result;
}

int unlinkat(int folder, const char* name, int flags) __THROW {
    auto* disk = MadeUpDisk::of(folder);
    require(disk != nullptr, "nothing but what is made up is removed");
    return told(disk->unlink(folder, name, flags));
}
}

// NOLINTEND
