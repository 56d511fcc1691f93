#include "platform/removing/EntryBatch.h"

#include <algorithm>
#include <cstring>

namespace drossbin {

namespace {

constexpr std::size_t nameBytes = std::size_t{4} * 1024 * 1024;

// Folders are entered one by one while the names of the others wait, at every open level.
constexpr std::size_t folderCount = 1024;

} // namespace

bool EntryBatch::isFull() const {
    return m_names.size() >= nameBytes || m_folders >= folderCount;
}

void EntryBatch::takeBlock() {
    while (const auto entry = m_block.next()) {
        m_entries.push_back(
            {entry->inode, static_cast<std::uint32_t>(m_names.size()), entry->kind});
        m_names.append(entry->name, std::strlen(entry->name) + 1);
        m_folders += entry->kind == DirectoryBlock::Kind::other ? 0 : 1;
    }
}

std::error_code EntryBatch::readFrom(DirectoryReader& reader) {
    m_entries.clear();
    m_names.clear();
    m_folders = 0;
    m_endsFolder = false;
    while (!m_endsFolder && !isFull()) {
        if (reader.read(m_block)) {
            takeBlock();
        } else if (reader.error()) {
            return reader.error();
        } else {
            m_endsFolder = true;
        }
    }
    std::ranges::sort(m_entries, {}, &Entry::inode);
    return {};
}

} // namespace drossbin
