#include "support/MountNamespace.h"

#include "support/ChildProcess.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif

namespace drossbin::test {

namespace {

constexpr int unavailable = 99;

#ifdef __linux__

// An ordinary user may mount where it is root of a user namespace of its own.
bool becomeRootOfOwnNamespace() {
    const std::string user = "0 " + std::to_string(::getuid()) + " 1";
    const std::string group = "0 " + std::to_string(::getgid()) + " 1";
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        return false;
    }
    std::ofstream("/proc/self/setgroups") << "deny"; // asked for before groups may be mapped
    std::ofstream("/proc/self/gid_map") << group;
    std::ofstream("/proc/self/uid_map") << user;
    return ::getuid() == 0 && ::getgid() == 0;
}

/// Whether who is root here is that for all, not in a namespace of an ordinary user's.
bool isRootOfAll() {
    std::ifstream map("/proc/self/uid_map");
    unsigned long inside = 0;
    unsigned long outside = 0;
    unsigned long count = 0;
    map >> inside >> outside >> count;
    return count == std::numeric_limits<std::uint32_t>::max();
}

bool makeMountsPrivate() {
    return (::unshare(CLONE_NEWNS) == 0 || becomeRootOfOwnNamespace()) &&
           ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

#else

bool makeMountsPrivate() {
    return false;
}

#endif

} // namespace

std::optional<bool> holdsInMountNamespace(const std::function<bool()>& job) {
    const int status = endOfChild([&] {
        return !makeMountsPrivate() ? unavailable : job() ? 0 : 1;
    });
    if (WIFEXITED(status) && WEXITSTATUS(status) == unavailable) {
        return std::nullopt;
    }
    return status == 0;
}

#ifdef __linux__

bool mountMemory(const std::string& path, const std::string& size) {
    return ::mount("tmpfs", path.c_str(), "tmpfs", 0, ("size=" + size).c_str()) == 0;
}

bool mountBtrfs(const std::string& path) {
    const std::string image = path + ".image";
    const std::string commands = "exec >/dev/null 2>&1; truncate -s 128M " + image +
                                 " && mkfs.btrfs -f " + image + " && mount -o loop " + image + " " +
                                 path;
    return std::system(commands.c_str()) == 0;
}

bool mountAgain(const std::string& source, const std::string& path) {
    return ::mount(source.c_str(), path.c_str(), nullptr, MS_BIND, nullptr) == 0;
}

bool makeReadOnly(const std::string& path) {
    const unsigned long flags = MS_REMOUNT | MS_BIND | MS_RDONLY;
    return ::mount("none", path.c_str(), nullptr, flags, nullptr) == 0;
}

bool mountOverlay(const std::string& folder) {
    const std::string layers = "lowerdir=" + folder + "/lower,upperdir=" + folder +
                               "/changed,workdir=" + folder + "/work" +
                               (isRootOfAll() ? "" : ",userxattr");
    // The overlay leaves a folder that is closed to all, which only root could clear away.
    return ::mount("overlay", (folder + "/shown").c_str(), "overlay", 0, layers.c_str()) == 0 &&
           ::chmod((folder + "/work/work").c_str(), S_IRWXU) == 0;
}

#else

bool mountMemory(const std::string& /*path*/, const std::string& /*size*/) {
    return false;
}

bool mountBtrfs(const std::string& /*path*/) {
    return false;
}

bool mountAgain(const std::string& /*source*/, const std::string& /*path*/) {
    return false;
}

bool makeReadOnly(const std::string& /*path*/) {
    return false;
}

bool mountOverlay(const std::string& /*folder*/) {
    return false;
}

#endif

} // namespace drossbin::test
