#include "platform/TreeWalk.h"

#include "platform/CheckedSum.h"
#include "platform/WalkCrew.h"

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

std::int64_t TreeWalk::sizeOf(Parcel parcel) {
    m_stack.enter(std::move(parcel.folder));
    m_stack.unread().reset();
    const std::string_view names = parcel.subfolders;
    for (std::size_t start = 0; start < names.size();) {
        const std::size_t end = names.find('\0', start);
        m_stack.addSubfolder(names.substr(start, end - start));
        start = end + 1;
    }
    measure(parcel.entries);
    walk();
    return m_size;
}

std::int64_t TreeWalk::sizeGivenAway() {
    return m_crew != nullptr ? m_crew->finish(m_measurement) : 0;
}

void TreeWalk::walk() {
    while (!m_stack.isEmpty() && !m_measurement.isGivenUp()) {
        if (m_stack.hasSubfolders()) {
            enterLastSubfolder();
        } else if (m_stack.unread()) {
            readOn();
        } else {
            m_stack.leave();
        }
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
    m_stack.unread().reset();
}

void TreeWalk::measure(DirectoryBlock& entries) {
    while (const auto entry = entries.next()) {
        measure(*entry);
        if (--m_untilStock == 0) {
            takeStock();
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
        folder = m_measurement.open(m_stack.folder(), name, LastLink::refused);
    }
    return folder;
}

void TreeWalk::takeStock() {
    m_untilStock = stretch;
    m_crew = m_measurement.crew;
    if (m_crew == nullptr) {
        return;
    }
    m_crew->suit(m_pace.hasWaited());
    if (m_crew->wantsWork()) {
        if (auto share = m_stack.split()) {
            m_crew->give({std::move(share->folder), {}, std::move(share->names)}, m_measurement);
            m_pace.restart(); // to wait for the crew is not to wait for the disk
        }
    }
}

bool TreeWalk::giveAway(DirectoryBlock& entries) {
    const bool isLarge = entries.bytesLeft() >= DirectoryBlock::capacity / 2;
    if (!isLarge || m_crew == nullptr || !m_crew->wantsWork()) {
        return false;
    }
    OpenFolder folder = m_stack.openFolderAgain();
    if (!folder.isOpen()) {
        return false;
    }
    m_crew->give({std::move(folder), std::move(entries), {}}, m_measurement);
    return true;
}

} // namespace drossbin
