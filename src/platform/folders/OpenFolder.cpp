#include "platform/folders/OpenFolder.h"

#include <fcntl.h>

namespace drossbin {

FileDescriptor openFolder(int parent, const char* name, LastLink link) {
    const int flags = O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC;
    const int linkFlag = link == LastLink::refused ? O_NOFOLLOW : 0;
    return FileDescriptor(::openat(parent, name, flags | linkFlag));
}

bool lacksDescriptors(const std::error_code& error) {
    return error == std::errc::too_many_files_open ||
           error == std::errc::too_many_files_open_in_system;
}

} // namespace drossbin
