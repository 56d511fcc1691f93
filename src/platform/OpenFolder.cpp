#include "platform/OpenFolder.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <thread>

namespace drossbin {

FileDescriptor openFolder(int parent, const char* name, LastLink link) {
    const int flags = O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC;
    const int linkFlag = link == LastLink::refused ? O_NOFOLLOW : 0;
    return FileDescriptor(::openat(parent, name, flags | linkFlag));
}

FileDescriptor openFolderPatiently(int parent, const char* name, LastLink link) {
    constexpr int attempts = 200;
    FileDescriptor folder = openFolder(parent, name, link);
    for (int attempt = 1; attempt < attempts && !folder.isOpen() && lacksDescriptors(); ++attempt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        folder = openFolder(parent, name, link);
    }
    return folder;
}

bool lacksDescriptors() {
    return errno == EMFILE || errno == ENFILE;
}

} // namespace drossbin
