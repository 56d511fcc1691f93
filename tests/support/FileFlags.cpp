#include "support/FileFlags.h"

#include "platform/folders/FileDescriptor.h"

#include <fcntl.h>
#ifdef __linux__
#include <linux/fs.h>
#include <sys/ioctl.h>
#endif

namespace drossbin::test {

#ifdef __linux__

namespace {

bool changeFlags(const std::string& path, int cleared, int set) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    int flags = 0;
    if (!file.isOpen() || ::ioctl(file.get(), FS_IOC_GETFLAGS, &flags) != 0) {
        return false;
    }
    flags = (flags & ~cleared) | set;
    return ::ioctl(file.get(), FS_IOC_SETFLAGS, &flags) == 0;
}

} // namespace

bool setFlag(const std::string& path, FileFlag flag) {
    return changeFlags(path, 0, flag == FileFlag::immutable ? FS_IMMUTABLE_FL : FS_APPEND_FL);
}

void clearFlags(const std::string& path) {
    changeFlags(path, FS_IMMUTABLE_FL | FS_APPEND_FL, 0);
}

#else

bool setFlag(const std::string& /*path*/, FileFlag /*flag*/) {
    return false;
}

void clearFlags(const std::string& /*path*/) {}

#endif

} // namespace drossbin::test
