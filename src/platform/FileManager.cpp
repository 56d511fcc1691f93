#include "platform/FileManager.h"

#include "platform/AtomicWrite.h"
#include "platform/folders/DirectoryReader.h"
#include "platform/folders/FileDescriptor.h"
#include "platform/folders/OpenFolder.h"
#include "platform/folders/PathParts.h"
#include "platform/folders/SystemError.h"
#include "platform/measuring/MeasuringPool.h"
#include "platform/measuring/TreeSize.h"
#include "platform/removing/TreeRemoval.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <limits>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace drossbin {

namespace {

#ifdef DROSSBIN_LINUX
constexpr int searchOnly = O_PATH;
#elif defined(O_SEARCH)
constexpr int searchOnly = O_SEARCH;
#else
constexpr int searchOnly = O_RDONLY;
#endif

std::string withoutTrailingSlashes(std::string path) {
    path.erase(path.find_last_not_of('/') + 1);
    return path;
}

std::string homeDirectoryInEnvironment() {
    // The environment is changed before the first thread starts, and never after.
    const char* const home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe)
    return home != nullptr ? home : "";
}

std::string homeDirectoryInUserDatabase() {
    std::array<char, 16384> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    ::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found);
    return found != nullptr ? found->pw_dir : "";
}

// A damaged or foreign file system may hold a date beyond what a Date holds: it is then the
// nearest one that fits.
Date dateFrom(const timespec& time) {
    using Limits = std::numeric_limits<Date::rep>;
    constexpr Date::rep microsecondsPerSecond = 1'000'000;
    if (time.tv_sec >= Limits::max() / microsecondsPerSecond) {
        return Date::max();
    }
    if (time.tv_sec <= Limits::min() / microsecondsPerSecond) {
        return Date::min();
    }
    return Date(
        std::chrono::microseconds(time.tv_sec * microsecondsPerSecond + time.tv_nsec / 1'000));
}

Date modificationDate(const struct stat& status) {
#ifdef __APPLE__
    return dateFrom(status.st_mtimespec);
#else
    return dateFrom(status.st_mtim);
#endif
}

// The folder may come to be at any moment, so that what counts is what is there in the end.
std::error_code createOneDirectory(const std::string& path) {
    if (FileManager::existence(path) == FileManager::Existence::folder ||
        ::mkdir(path.c_str(), 0777) == 0) {
        return {};
    }
    const std::error_code error = lastSystemError();
    const bool isThere = FileManager::existence(path) == FileManager::Existence::folder;
    return isThere ? std::error_code() : error;
}

} // namespace

std::optional<std::string> FileManager::homeDirectoryForCurrentUser() {
    for (const auto& source : {homeDirectoryInEnvironment, homeDirectoryInUserDatabase}) {
        std::string home = source();
        if (home.starts_with('/')) {
            return withoutTrailingSlashes(std::move(home));
        }
    }
    return std::nullopt;
}

FileManager::Existence FileManager::existence(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return Existence::missing;
    }
    return S_ISDIR(status.st_mode) ? Existence::folder : Existence::file;
}

std::optional<FileManager::Attributes> FileManager::attributesOfItem(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return Attributes{status.st_size, modificationDate(status)};
}

std::optional<std::int64_t> FileManager::systemSize(const std::string& path) {
    struct statvfs volume {};
    std::int64_t bytes = 0;
    if (::statvfs(path.c_str(), &volume) != 0 ||
        __builtin_mul_overflow(volume.f_blocks, volume.f_frsize, &bytes)) {
        return std::nullopt;
    }
    return bytes;
}

std::optional<std::vector<std::string>> FileManager::contentsOfDirectory(const std::string& path) {
    const FileDescriptor folder = openFolder(AT_FDCWD, path.c_str(), LastLink::followed);
    if (!folder.isOpen()) {
        return std::nullopt;
    }
    std::vector<std::string> names;
    DirectoryReader reader(folder.get());
    DirectoryBlock entries;
    while (reader.read(entries)) {
        while (const auto entry = entries.next()) {
            names.emplace_back(entry->name);
        }
    }
    return reader.error() ? std::nullopt : std::optional(std::move(names));
}

std::error_code FileManager::createDirectory(const std::string& path) {
    std::size_t end = 0;
    while (end != std::string::npos) {
        end = path.find('/', end + 1);
        if (const std::error_code error = createOneDirectory(path.substr(0, end))) {
            return error;
        }
    }
    return {};
}

std::error_code FileManager::removeItem(const std::string& path) {
    // With its slash, the name of a link would stand for what the link leads to.
    const PathParts item(withoutTrailingSlashes(path));
    if (item.name.empty() || item.name == "." || item.name == "..") {
        return std::make_error_code(std::errc::invalid_argument);
    }
    const FileDescriptor parent(::open(item.folder.c_str(), searchOnly | O_DIRECTORY | O_CLOEXEC));
    return parent.isOpen() ? removeEntry(parent.get(), item.name) : lastSystemError();
}

std::optional<std::int64_t> FileManager::sizeOfFolderContents(const std::string& path) {
    return treeSize(path, MeasuringPool::ofThisProcess());
}

std::error_code FileManager::writeAtomically(const std::string& text, const std::string& path) {
    return drossbin::writeAtomically(text, path);
}

void FileManager::removeTemporaryFiles(const std::string& folder) {
    drossbin::removeTemporaryFiles(folder);
}

} // namespace drossbin
