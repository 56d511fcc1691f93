#include "platform/removing/TreeRemoval.h"

#include "platform/folders/OpenFolder.h"
#include "platform/folders/SystemError.h"
#include "platform/removing/EntryBatch.h"
#include "platform/removing/RemovalLevel.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace drossbin {

namespace {

// Levels above these are closed on the way down, and opened again on the way up.
constexpr std::size_t openLevels = 16;

// What appears in a folder while it is emptied, or changes its kind, is found by another pass;
// the bound is for someone who never stops adding. To read a folder again because it was closed
// meanwhile is no pass, and knows no bound: each time a branch of more than 16 levels has gone
// before, of which a folder may hold any number.
constexpr int passesPerFolder = 100;
constexpr int passesPerItem = 10;

std::error_code busy() {
    return std::make_error_code(std::errc::device_or_resource_busy);
}

bool isFolder(int parent, const char* name) {
    struct stat status {};
    return ::fstatat(parent, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode);
}

bool isFolder(int parent, const char* name, DirectoryBlock::Kind kind) {
    return kind == DirectoryBlock::Kind::unknown ? isFolder(parent, name)
                                                 : kind == DirectoryBlock::Kind::folder;
}

// No error for what is gone or a folder by now, which not all systems say: a later pass finds it.
std::error_code removeNonFolder(int parent, const char* name) {
    if (::unlinkat(parent, name, 0) == 0 || errno == ENOENT || errno == EISDIR) {
        return {};
    }
    const std::error_code error = lastSystemError();
    return isFolder(parent, name) ? std::error_code() : error;
}

class TreeRemoval {
  public:
    TreeRemoval(int parent, FolderIdentity parentIdentity)
        : m_parent(parent)
        , m_parentIdentity(parentIdentity) {}

    std::error_code remove(std::string name) {
        std::error_code error = enter(std::move(name));
        while (!error && !m_levels.empty()) {
            error = step();
        }
        return error;
    }

  private:
    std::error_code step() {
        RemovalLevel& level = m_levels.back();
        if (!level.folders.empty()) {
            std::string next = std::move(level.folders.back());
            level.folders.pop_back();
            return enter(std::move(next));
        }
        return level.isRead ? leave() : removeBatch(level);
    }

    std::error_code enter(std::string name) {
        FileDescriptor folder = openFolder(deepestFolder(), name.c_str(), LastLink::refused);
        if (!folder.isOpen()) {
            return handleUnopened(name);
        }
        const auto identity = FolderIdentity::of(folder.get());
        if (!identity) {
            return lastSystemError();
        }
        const auto& above = m_levels.empty() ? m_parentIdentity : m_levels.back().identity;
        if (!identity->sharesMountWith(above)) {
            return busy();
        }
        m_levels.emplace_back(std::move(name), *identity, std::move(folder));
        if (m_levels.size() > openLevels) {
            m_levels[m_levels.size() - 1 - openLevels].close();
        }
        return {};
    }

    [[nodiscard]] std::error_code handleUnopened(const std::string& name) const {
        if (errno == ENOENT || errno == ENOTDIR || errno == ELOOP) {
            return {}; // gone or no folder any more, which a later pass finds
        }
        const std::error_code error = lastSystemError();
        // A folder that may not be read can still go when it is empty.
        const bool isRemoved = ::unlinkat(deepestFolder(), name.c_str(), AT_REMOVEDIR) == 0;
        return isRemoved ? std::error_code() : error;
    }

    std::error_code removeBatch(RemovalLevel& level) {
        if (const std::error_code error = m_batch.readFrom(*level.reader)) {
            return error;
        }
        level.isRead = m_batch.endsFolder();
        for (const EntryBatch::Entry& entry : m_batch.entries()) {
            const char* name = m_batch.name(entry);
            if (isFolder(level.folder.get(), name, entry.kind)) {
                level.folders.emplace_back(name);
            } else if (const std::error_code error = removeNonFolder(level.folder.get(), name)) {
                return error;
            }
        }
        std::ranges::reverse(level.folders);
        return {};
    }

    // Removes the deepest level itself, now that everything read in it is gone.
    std::error_code leave() {
        if (const std::error_code error = reopenLevelAbove()) {
            return error;
        }
        RemovalLevel& level = m_levels.back();
        const int above = m_levels.size() == 1 ? m_parent : (m_levels.end() - 2)->folder.get();
        if (::unlinkat(above, level.name.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT ||
            errno == ENOTDIR) {
            m_levels.pop_back();
            return {};
        }
        const std::error_code error = lastSystemError();
        const bool isFilled = errno == ENOTEMPTY || errno == EEXIST;
        if (!isFilled || ++level.passes == passesPerFolder) {
            return error;
        }
        level.reader->rewind();
        level.isRead = false;
        return {};
    }

    // By "..", which needs no path of any length; the identity tells whether someone has moved
    // the level to another place meanwhile.
    std::error_code reopenLevelAbove() {
        if (m_levels.size() == 1 || (m_levels.end() - 2)->folder.isOpen()) {
            return {};
        }
        FileDescriptor folder = openFolder(m_levels.back().folder.get(), "..", LastLink::refused);
        if (!folder.isOpen()) {
            return lastSystemError();
        }
        RemovalLevel& above = *(m_levels.end() - 2);
        const auto identity = FolderIdentity::of(folder.get());
        if (!identity) {
            return lastSystemError();
        }
        if (!identity->isSameFolderAs(above.identity)) {
            return busy();
        }
        above.open(std::move(folder));
        return {};
    }

    [[nodiscard]] int deepestFolder() const {
        return m_levels.empty() ? m_parent : m_levels.back().folder.get();
    }

    int m_parent;
    FolderIdentity m_parentIdentity;
    std::vector<RemovalLevel> m_levels;
    EntryBatch m_batch;
};

} // namespace

std::error_code removeEntry(int parent, const std::string& name) {
    const auto identity = FolderIdentity::of(parent);
    if (!identity) {
        return lastSystemError();
    }
    for (int pass = 0; pass < passesPerItem; ++pass) {
        struct stat status {};
        if (::fstatat(parent, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
            return pass > 0 && errno == ENOENT ? std::error_code() : lastSystemError();
        }
        const std::error_code error = S_ISDIR(status.st_mode)
                                          ? TreeRemoval(parent, *identity).remove(name)
                                          : removeNonFolder(parent, name.c_str());
        if (error) {
            return error;
        }
    }
    return busy();
}

} // namespace drossbin
