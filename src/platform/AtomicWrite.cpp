#include "platform/AtomicWrite.h"

#include "platform/folders/DirectoryReader.h"
#include "platform/folders/FileDescriptor.h"
#include "platform/folders/OpenFolder.h"
#include "platform/folders/PathParts.h"
#include "platform/folders/SystemError.h"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <random>
#include <string_view>
#include <sys/file.h>
#include <unistd.h>

namespace drossbin {

namespace {

constexpr std::string_view temporaryPrefix = ".drossbin-";

/// With the number of the process, so that others can tell when nobody writes it any more.
std::string temporaryName() {
    std::random_device random;
    return std::string(temporaryPrefix) + std::to_string(::getpid()) + "-" +
           std::to_string(random());
}

bool isTemporaryOfAnEndedProcess(std::string_view name) {
    if (!name.starts_with(temporaryPrefix)) {
        return false;
    }
    name.remove_prefix(temporaryPrefix.size());
    pid_t writer = 0;
    const auto [rest, error] = std::from_chars(name.data(), name.data() + name.size(), writer);
    const std::string_view suffix(rest, static_cast<std::size_t>(name.data() + name.size() - rest));
    const bool isOurs = error == std::errc() && writer > 0 && suffix.size() > 1 &&
                        suffix.front() == '-' &&
                        suffix.find_first_not_of("0123456789", 1) == std::string_view::npos;
    return isOurs && ::kill(writer, 0) != 0 && errno == ESRCH;
}

/// What `call` returns, made again as long as a signal interrupts it.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

std::error_code writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written =
            uninterrupted([&] { return ::write(file, text.data(), text.size()); });
        if (written < 0) {
            return lastSystemError();
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

std::error_code flush(int descriptor) {
#ifdef F_FULLFSYNC
    // There fsync leaves the data in the drive's own memory.
    if (uninterrupted([&] { return ::fcntl(descriptor, F_FULLFSYNC); }) == 0) {
        return {};
    }
#endif
    const bool isFlushed = uninterrupted([&] { return ::fsync(descriptor); }) == 0;
    return isFlushed ? std::error_code() : lastSystemError();
}

/// Locked as long as it is open, so that others can tell that somebody writes it who have no number
/// for that process, as in another container with the same home folder.
FileDescriptor newLockedFile(int folder, const std::string& name) {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    FileDescriptor file(uninterrupted([&] { return ::openat(folder, name.c_str(), flags, 0644); }));
    if (file.isOpen()) {
        ::flock(file.get(), LOCK_EX | LOCK_NB); // where there are no locks the number has to do
    }
    return file;
}

bool isLocked(int folder, const char* name) {
    // For writing: network file systems lock no other.
    constexpr int flags = O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC;
    const FileDescriptor file(uninterrupted([&] { return ::openat(folder, name, flags); }));
    return file.isOpen() && ::flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

std::error_code replace(int folder, const std::string& newName, const std::string& name) {
    if (::renameat(folder, newName.c_str(), folder, name.c_str()) != 0) {
        return lastSystemError();
    }
    return flush(folder);
}

} // namespace

// A name in the same folder and a rename, rather than a file without a name (O_TMPFILE): such a
// file can be given a free name but cannot take the place of another, needs /proc, and not every
// file system has it. The price is that a kill may leave a hidden file with the temporary name.
std::error_code writeAtomically(const std::string& text, const std::string& path) {
    const PathParts target(path);
    const FileDescriptor folder(uninterrupted(
        [&] { return ::open(target.folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!folder.isOpen()) {
        return lastSystemError();
    }
    const std::string temporary = temporaryName();
    const FileDescriptor file = newLockedFile(folder.get(), temporary);
    if (!file.isOpen()) {
        return lastSystemError();
    }
    std::error_code error = writeAll(file.get(), text);
    if (!error) {
        error = flush(file.get());
    }
    if (!error) {
        error = replace(folder.get(), temporary, target.name);
    }
    if (error) {
        ::unlinkat(folder.get(), temporary.c_str(), 0); // gone already when the rename was done
    }
    return error;
}

void removeTemporaryFiles(const std::string& folder) {
    const FileDescriptor opened = openFolder(AT_FDCWD, folder.c_str(), LastLink::followed);
    if (!opened.isOpen()) {
        return;
    }
    DirectoryReader reader(opened.get());
    DirectoryBlock entries;
    while (reader.read(entries)) {
        while (const auto entry = entries.next()) {
            if (isTemporaryOfAnEndedProcess(entry->name) && !isLocked(opened.get(), entry->name)) {
                ::unlinkat(opened.get(), entry->name, 0); // no folder, whatever its name
            }
        }
    }
}

} // namespace drossbin
