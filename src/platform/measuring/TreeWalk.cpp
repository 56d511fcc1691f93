#include "platform/measuring/TreeWalk.h"

#include "platform/basics/CheckedSum.h"
#include "platform/measuring/MeasuringPool.h"

#include <cstring>
#include <fcntl.h>
#include <utility>

namespace drossbin {

namespace {

/// What the names of a folder's subfolders take before they are entered and the rest of the
/// folder waits: a folder of a million folders must not queue them all.
constexpr std::size_t manyNames = std::size_t{32} * 1024;

/// What those of all levels take before each reads as little as it can: thousands of levels with
/// thousands of folders each would fill gigabytes.
constexpr std::size_t tooManyNames = std::size_t{512} * 1024;
constexpr std::size_t smallRead = std::size_t{2} * 1024;

} // namespace

std::int64_t TreeWalk::sizeBelow(OpenFolder folder) {
    m_stack.enter(std::move(folder));
    walk();
    return m_size;
}

std::int64_t TreeWalk::sizeOf(Subtree subtree) {
    m_stack.enter(std::move(subtree.folder));
    m_stack.unread().reset();
    const std::string_view names = subtree.subfolders;
    for (std::size_t start = 0; start < names.size();) {
        const std::size_t end = names.find('\0', start);
        m_stack.addSubfolder(names.substr(start, end - start));
        start = end + 1;
    }
    measure(subtree.entries);
    walk();
    return m_size;
}

void TreeWalk::walk() {
    while (!m_stack.isEmpty() && !isGivenUp()) {
        if (m_stack.hasSubfolders()) {
            enterLastSubfolder();
        } else if (m_stack.unread()) {
            readOn();
        } else {
            m_stack.leave();
        }
        if (m_stack.lacksDescriptors()) {
            giveUp();
        }
    }
}

bool TreeWalk::isGivenUp() const {
    return m_pool != nullptr && m_pool->isGivenUp();
}

// A walk that is alone goes on without what it could not open.
void TreeWalk::giveUp() {
    if (m_pool != nullptr) {
        m_pool->giveUp();
    }
}

void TreeWalk::readOn() {
    const bool isTight = m_stack.bytesOfAllSubfolders() >= tooManyNames;
    const std::size_t enough = isTight ? 1 : manyNames;
    DirectoryReader reader(m_stack.folder(), *m_stack.unread());
    while (reader.read(m_entries, isTight ? smallRead : DirectoryBlock::capacity)) {
        if (!giveAway(m_entries)) {
            measure(m_entries);
        }
        if (m_stack.bytesOfSubfolders() >= enough) {
            m_stack.unread() = reader.position();
            return;
        }
    }
    // Some systems read a folder through a descriptor more.
    if (lacksDescriptors(reader.error())) {
        if (m_stack.closeUppermost()) {
            return;
        }
        giveUp();
    }
    m_stack.unread().reset();
}

void TreeWalk::measure(DirectoryBlock& entries) {
    while (const auto entry = entries.next()) {
        measure(*entry);
        if (--m_untilSharing == 0) {
            shareWork();
        }
    }
}

void TreeWalk::measure(const DirectoryBlock::Entry& entry) {
    bool isFolder = entry.kind == DirectoryBlock::Kind::folder;
    struct stat status;
    if (!isFolder) {
        if (::fstatat(m_stack.folder(), entry.name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
            return; // vanished, or in a folder that may be read but not searched
        }
        isFolder = S_ISDIR(status.st_mode);
    }
    if (isFolder) {
        m_stack.addSubfolder(entry.name);
    } else {
        m_size = checkedSum(m_size, status.st_size);
    }
}

void TreeWalk::enterLastSubfolder() {
    const char* name = m_stack.lastSubfolder();
    FileDescriptor folder = openSubfolder(name);
    struct stat status;
    const bool isKnown = folder.isOpen()
                             ? ::fstat(folder.get(), &status) == 0
                             : ::fstatat(m_stack.folder(), name, &status, AT_SYMLINK_NOFOLLOW) == 0;
    m_stack.dropLastSubfolder();
    if (isKnown) {
        m_size = checkedSum(m_size, status.st_size);
    }
    if (isKnown && folder.isOpen()) {
        m_stack.enter({std::move(folder), FolderIdentity::from(status)});
    }
}

FileDescriptor TreeWalk::openSubfolder(const char* name) {
    FileDescriptor folder = openFolder(m_stack.folder(), name, LastLink::refused);
    while (!folder.isOpen() && lacksDescriptors() && m_stack.closeUppermost()) {
        folder = openFolder(m_stack.folder(), name, LastLink::refused);
    }
    if (!folder.isOpen() && lacksDescriptors()) {
        giveUp();
    }
    return folder;
}

void TreeWalk::shareWork() {
    m_untilSharing = stretch;
    m_isLarge = true;
    if (m_pool == nullptr) {
        return;
    }
    const ThreadUsage now = ThreadUsage::now();
    m_pool->adjust(m_lastUsage && now.hasWaitedSince(*m_lastUsage));
    m_lastUsage = now;
    if (m_pool->wantsWork()) {
        if (auto half = m_stack.split()) {
            m_pool->give(std::move(*half));
            m_lastUsage = ThreadUsage::now(); // to wait for the pool is not to wait for the disk
        }
    }
}

bool TreeWalk::giveAway(DirectoryBlock& entries) {
    const bool isWorthIt = m_isLarge && entries.bytesLeft() >= DirectoryBlock::capacity / 2;
    if (!isWorthIt || m_pool == nullptr || !m_pool->wantsWork()) {
        return false;
    }
    OpenFolder folder = m_stack.openFolderAgain();
    if (!folder.isOpen()) {
        return false;
    }
    m_pool->give({std::move(folder), std::move(entries), {}});
    return true;
}

} // namespace drossbin
