#include "support/PipesAndDevices.h"

#include "platform/folders/FileDescriptor.h"

#include <cerrno>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <system_error>
#ifdef __linux__
#include <sys/sysmacros.h>
#endif

namespace drossbin::test {

namespace {

void check(bool holds, const std::string& path) {
    if (!holds) {
        throw std::system_error(errno, std::generic_category(), path);
    }
}

} // namespace

void makePipe(const std::string& path) {
    check(::mkfifo(path.c_str(), 0644) == 0, path);
}

void makeSocket(const std::string& path) {
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof(address.sun_path) - 1);
    check(::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0,
          path);
}

bool makeDevice(const std::string& path) {
#ifdef __linux__
    return ::mknod(path.c_str(), S_IFCHR | 0600, ::makedev(1, 3)) == 0; // as /dev/null
#else
    return path.empty();
#endif
}

} // namespace drossbin::test
