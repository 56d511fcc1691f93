#include "support/HostileTrees.h"

#include "platform/folders/FileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>

namespace drossbin::test {

namespace {

int check(int result, const std::string& what) {
    if (result < 0) {
        throw std::system_error(errno, std::generic_category(), what);
    }
    return result;
}

FileDescriptor openFolder(int parent, const std::string& name) {
    return FileDescriptor(
        check(::openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), name));
}

FileDescriptor makeFolder(int parent, const std::string& name) {
    check(::mkdirat(parent, name.c_str(), 0755), name);
    return openFolder(parent, name);
}

std::int64_t makeFile(int folder, std::int64_t size) {
    const FileDescriptor file(
        check(::openat(folder, "file", O_CREAT | O_WRONLY | O_CLOEXEC, 0644), "file"));
    check(::ftruncate(file.get(), size), "file");
    return size;
}

/// Asked when the folder is complete: it grows with its entries on some file systems.
std::int64_t sizeOf(const FileDescriptor& folder) {
    struct stat status {};
    check(::fstat(folder.get(), &status), "fstat");
    return status.st_size;
}

std::int64_t makeSibling(const FileDescriptor& folder, const std::string& name) {
    const FileDescriptor sibling = makeFolder(folder.get(), name);
    const std::int64_t files = makeFile(folder.get(), 3) + makeFile(sibling.get(), 5);
    return files + sizeOf(sibling);
}

} // namespace

std::int64_t makeChain(const std::string& root, int depth, const std::string& name) {
    return makeComb(root, depth, name, "");
}

std::int64_t makeComb(const std::string& root, int depth, const std::string& name,
                      const std::string& sibling) {
    FileDescriptor folder = openFolder(AT_FDCWD, root);
    std::int64_t total = 0;
    for (int level = 0; level < depth; ++level) {
        FileDescriptor below = makeFolder(folder.get(), name);
        if (!sibling.empty()) {
            total += makeSibling(folder, sibling);
        }
        total += level > 0 ? sizeOf(folder) : 0;
        folder = std::move(below);
    }
    total += makeFile(folder.get(), 7);
    return total + sizeOf(folder);
}

} // namespace drossbin::test
